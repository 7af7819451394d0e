#include "support/TestCase.h"
#include "support/WidgetEvents.h"

#include <ombrin/OmMenuItem.h>

using ombrin::OmMenuItem;
using namespace ombrin::test;

namespace {

const QColor kGround(0xf7, 0xf7, 0xf7);
const QColor kHoveredGround(0xe0, 0xe0, 0xe0);

QList<QLabel *> labels(const OmMenuItem &item)
{
    return item.findChildren<QLabel *>();
}

QColor ground(OmMenuItem *item)
{
    return item->grab().toImage().pixelColor(item->width() - 4, item->height() / 2);
}

} // namespace

class tst_OmMenuItem : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsIconAndText()
    {
        QTemporaryDir directory;
        const QString file = directory.filePath("icon.png"_q);
        QVERIFY(flatImage(QSize(16, 16), Qt::blue).save(file));

        OmMenuItem item;
        QVERIFY(item.setProperty("text", "<b>Chat</b>"_q));
        QVERIFY(item.setProperty("icon", file));
        QCOMPARE(labels(item).at(1)->text(), item.text());
        QCOMPARE(labels(item).at(1)->textFormat(), Qt::PlainText);
        QCOMPARE(labels(item).at(0)->pixmap(Qt::ReturnByValue).size(), QSize(16, 16));
        item.resize(120, 24);
        const QImage painted = item.grab().toImage();
        const QPoint icon = labels(item).at(0)->pos() + QPoint(1, 8);
        QCOMPARE(painted.pixelColor(icon), QColor(Qt::blue));

        item.setIcon(":/there-is-no-such-picture"_q);
        QVERIFY(labels(item).at(0)->pixmap(Qt::ReturnByValue).isNull());
        item.setText(QString(100000, QLatin1Char('x')));
        item.resize(100, 60);
        item.grab();
        QCOMPARE(item.height(), 24);
        QCOMPARE(labels(item).at(0)->width(), 20);

        QPalette dark = item.palette();
        dark.setColor(QPalette::WindowText, Qt::white);
        item.setPalette(dark);
        QCOMPARE(labels(item).at(1)->palette().color(QPalette::WindowText), QColor(Qt::black));
    }

    void darkensUnderTheMouse()
    {
        OmMenuItem item;
        item.resize(100, 24);
        QCOMPARE(ground(&item), kGround);
        sendEnter(&item);
        QCOMPARE(ground(&item), kHoveredGround);
        sendLeave(&item);
        QCOMPARE(ground(&item), kGround);
    }

    void anyPressClicks()
    {
        QWidget window;
        OmMenuItem item(&window);
        item.setText("Chat"_q);
        item.resize(100, 24);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QSignalSpy spy(&item, &OmMenuItem::clicked);
        int clicks = 0;
        for (const auto button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
            // On icon, text and margin alike.
            for (const QPoint &position : {QPoint(8, 12), QPoint(30, 12), QPoint(99, 23)}) {
                QTest::mousePress(window.windowHandle(), button, Qt::NoModifier, position);
                QCOMPARE(spy.size(), ++clicks);
                QTest::mouseRelease(window.windowHandle(), button, Qt::NoModifier, position);
                QCOMPARE(spy.size(), clicks);
            }
        }
    }

    void mayBeDeletedInItsSlot()
    {
        QWidget window;
        QPointer<OmMenuItem> item(new OmMenuItem(&window));
        item->resize(100, 24);
        window.show();
        connect(item, &OmMenuItem::clicked, this, [item] { delete item; });
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QVERIFY(!item);
    }

    void screenReadersSeeAMenuItem()
    {
        OmMenuItem item;
        item.setText("Chat"_q);
        QCOMPARE(accessible(&item)->role(), QAccessible::MenuItem);
        QCOMPARE(accessibleName(&item), "Chat"_q);
        QSignalSpy spy(&item, &OmMenuItem::clicked);
        pressAccessibly(&item);
        QCOMPARE(spy.size(), 1);
        item.setEnabled(false);
        QVERIFY(accessible(&item)->state().disabled && !isAccessiblyPressable(&item));
    }
};

OMBRIN_TEST_MAIN(tst_OmMenuItem)
#include "tst_ommenuitem.moc"
