#include "support/TestCase.h"
#include "support/WidgetEvents.h"

#include "skin/SkinPixmap.h"

#include <ombrin/OmFaderWidget.h>
#include <ombrin/OmInfoPopup.h>
#include <ombrin/OmSkin.h>

using namespace ombrin::test;
using namespace ombrin;

namespace {

// The icon in a window, as hosts have it.
struct Host
{
    explicit Host(const QPoint &position = QPoint(100, 100))
    {
        window.setGeometry(QRect(position, QSize(200, 100)));
        icon->move(20, 30);
        icon->setPopupMessage("A <b>message</b>"_q);
        window.show();
    }

    void hover()
    {
        sendEnter(icon);
        popup = QApplication::activePopupWidget();
        QVERIFY(popup);
    }

    bool waitForFades() const
    {
        return TestCase::waitFor([this] { return fades() == 0; });
    }

    int fades() const { return int(popup->findChildren<OmFaderWidget *>().size()); }

    QWidget window;
    QPointer<OmInfoPopup> icon = new OmInfoPopup(&window);
    QPointer<QWidget> popup;
};

} // namespace

class tst_OmInfoPopup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ombrin::OmSkin::init(false); }

    void hoveringFadesInAYellowPopup()
    {
        Host host;
        QCOMPARE(host.icon->minimumSize(), QSize(16, 16));
        QCOMPARE(host.icon->maximumSize(), QSize(16, 16));
        QCOMPARE(host.icon->pixmap(Qt::ReturnByValue).toImage(),
                 ombrin::skinPixmap(":/is_typing-16"_q).toImage());
        host.hover();
        QVERIFY(!host.popup->parentWidget());
        QCOMPARE(host.popup->windowFlags(), Qt::Popup | Qt::FramelessWindowHint);
        QCOMPARE(host.popup->geometry(), QRect(120, 130, 150, 150));
        QVERIFY(qobject_cast<QVBoxLayout *>(host.popup->layout()));
        const auto *const message = host.popup->findChild<QLabel *>();
        QVERIFY(message->wordWrap());
        QCOMPARE(message->text(), "A <b>message</b>"_q);
        QCOMPARE(message->textFormat(), Qt::PlainText);
        QVERIFY(!host.popup->findChild<QTextEdit *>());

        const auto *const fader = host.popup->findChild<OmFaderWidget *>();
        QVERIFY(fader);
        QCOMPARE(fader->fadeColor(), QColor("#fffc00"_q));
        QCOMPARE(fader->size(), QSize(150, 150));
        QVERIFY(host.waitForFades());
        QVERIFY(host.popup->isVisible());
        QCOMPARE(host.popup->grab().toImage().pixelColor(2, 2), QColor("#fffc00"_q));

        QPalette dark = host.popup->palette();
        dark.setColor(QPalette::WindowText, Qt::white);
        host.popup->setPalette(dark);
        QCOMPARE(message->palette().color(QPalette::WindowText), QColor(Qt::black));
    }

    void popupIsBuiltOnceAndUsedAgain()
    {
        for (const bool noticeInput : {false, true}) {
            Host host;
            host.icon->setNotice("<i>notice</i>"_q);
            host.icon->enableNoticeInput(noticeInput);
            host.hover();
            const QPointer<QWidget> first = host.popup;
            host.popup->close();

            host.icon->enableNoticeInput(!noticeInput);
            host.icon->setNotice("another"_q);
            host.icon->setPopupMessage("another"_q);
            host.window.move(150, 120);
            host.popup->resize(20, 20);
            host.hover();
            QCOMPARE(host.popup, first);
            QCOMPARE(host.popup->geometry(),
                     QRect(host.icon->mapToGlobal(QPoint(0, 0)), QSize(150, 150)));
            QCOMPARE(host.popup->findChild<QLabel *>()->text(), "A <b>message</b>"_q);
            const auto *const box = host.popup->findChild<QTextEdit *>();
            QCOMPARE(box != nullptr, noticeInput);
            if (box) {
                QCOMPARE(box->toPlainText(), "<i>notice</i>"_q);
                QVERIFY(box->y() > host.popup->findChild<QLabel *>()->y());
            }
        }
    }

    void comingBackKeepsThePopupOpen()
    {
        for (const auto &[toPopup, late] :
             {std::pair(false, false), {false, true}, {true, false}, {true, true}}) {
            Host host;
            host.hover();
            sendLeave(host.icon);
            if (late) { // between the last paint of the fade and its report
                OmFaderWidget *const fader = host.popup->findChildren<OmFaderWidget *>().last();
                fader->setFadeDuration(0);
                fader->grab();
            }
            sendEnter(toPopup ? host.popup.data() : host.icon.data());
            QVERIFY(host.waitForFades());
            QVERIFY(host.popup->isVisible());
            sendLeave(toPopup ? host.popup.data() : static_cast<QWidget *>(host.icon.data()));
            QCOMPARE(host.fades(), 1);
            QVERIFY(waitFor([&] { return !host.popup->isVisible(); }));
            QVERIFY(host.icon && host.icon->isVisible());
        }
    }

    // As a click outside of it does.
    void closingThePopupMeanwhileLeavesNoFadeBehind()
    {
        Host host;
        host.hover();
        sendLeave(host.icon);
        host.popup->close();
        host.hover();
        QVERIFY(host.waitForFades());
        QVERIFY(host.popup->isVisible());
    }

    void hostMayDeleteThePopup()
    {
        Host host;
        host.hover();
        delete host.popup;
        sendLeave(host.icon);
        host.hover();
        QVERIFY(host.popup->isVisible());
    }

    void popupGoesWithTheIcon()
    {
        Host host;
        host.hover();
        QVERIFY(host.waitForFades());
        sendLeave(host.icon);
        connect(host.popup->findChild<OmFaderWidget *>(), &OmFaderWidget::done, &host.window,
                [&] { delete host.icon; });
        QVERIFY(waitFor([&] { return host.icon.isNull(); }));
        QVERIFY(!host.popup);
    }
};

OMBRIN_TEST_MAIN(tst_OmInfoPopup)
#include "tst_ominfopopup.moc"
