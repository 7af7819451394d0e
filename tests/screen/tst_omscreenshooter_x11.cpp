#include "support/TestCase.h"
#include "support/WidgetEvents.h"
#include "support/XUser.h"

#include <ombrin/OmImageMaskedButton.h>
#include <ombrin/OmScreenShooter.h>
#include <ombrin/OmScreenShooter_FullscreenCutter.h>
#include <ombrin/OmSkin.h>

using namespace ombrin::test;
using Cutter = OmScreenShooter_FullscreenCutter;

namespace {

void key(const char *name)
{
    xdo("key "_q + QLatin1String(name));
}

} // namespace

// With a real mouse and keyboard, on a desktop with a red window on it.
class tst_OmScreenShooterX11 : public TestCase
{
    Q_OBJECT

public Q_SLOTS:
    void shot(QPixmap picture)
    {
        ++m_reports;
        m_picture = picture;
    }
    void failed() { ++m_reports; }

private Q_SLOTS:
    void initTestCase() { ombrin::OmSkin::init(false); }

    void ownWindowsAreNotInThePicture()
    {
        OmScreenShooter::shootDelayed(60000, true, this, SLOT(shot(QPixmap)), this, SLOT(failed()));
        auto *button = shown<ombrin::OmImageMaskedButton>();
        QVERIFY(button && QTest::qWaitForWindowExposed(button, 20000));
        // Both stand over the window, and are seen.
        const QPoint middle = button->geometry().center();
        const QPixmap before = OmScreenShooter::shootSimple();
        QVERIFY(before.toImage().pixelColor(middle) != QColor(Qt::red));
        clickAt(middle);
        QVERIFY(waitForReport());
        QCOMPARE(m_picture.size(), QGuiApplication::primaryScreen()->size());
        for (const QPoint &point :
             {middle, middle - QPoint(0, 100), QPoint(300, 300), QPoint(899, 699)})
            QCOMPARE(pixel(point.x(), point.y()), QColor(Qt::red));
        QVERIFY(pixel(299, 300) != QColor(Qt::red));
    }

    void areaIsCutByMouse_data()
    {
        // clicks: on the snap button, or twice inside
        const auto row = columns<bool, int>("moves", "clicks");
        row("snap button", false, 1);
        row("moved, snap button", true, 1);
        row("double click", false, 2);
    }

    void areaIsCutByMouse()
    {
        QFETCH(bool, moves);
        QFETCH(int, clicks);
        QVERIFY(startCutting());
        QPoint corner(200, 250);
        dragBy(corner, QPoint(200, 100));
        if (moves) {
            dragBy(corner + QPoint(50, 50), QPoint(20, 10));
            corner += QPoint(20, 10);
        }
        clickAt(corner + (clicks == 1 ? QPoint(200 - 74 + 10, 100 - 37 + 10) : QPoint(60, 50)), 1,
                clicks);
        QVERIFY(waitForReport());
        QCOMPARE(m_picture.size(), QSize(201, 101));
        const QPoint first = QPoint(300, 300) - corner; // of the window's pixels
        QCOMPARE(pixel(first.x(), first.y()), QColor(Qt::red));
        QVERIFY(pixel(first.x() - 1, first.y()) != QColor(Qt::red));
        QVERIFY(pixel(first.x(), first.y() - 1) != QColor(Qt::red));
        QCOMPARE(pixel(200, 100), QColor(Qt::red));
    }

    void keyboardAndFocusAreTheCutters_data()
    {
        // key: none where another window is activated
        const auto row = columns<bool, QString, QSize>("selects", "key", "size");
        row("enter", true, "KP_Enter", {101, 51});
        row("return, nothing selected", false, "Return", {0, 0});
        row("escape", true, "Escape", {0, 0});
        row("other window", true, QString(), {0, 0});
    }

    void keyboardAndFocusAreTheCutters()
    {
        QFETCH(bool, selects);
        QFETCH(QString, key);
        QVERIFY(startCutting());
        QCOMPARE(shown<Cutter>()->geometry(), QGuiApplication::primaryScreen()->geometry());
        if (selects)
            dragBy(QPoint(400, 400), QPoint(100, 50));
        if (key.isEmpty())
            m_window->activateWindow();
        else
            ::key(qPrintable(key));
        QVERIFY(waitForReport());
        QTEST(m_picture.size(), "size");
    }

protected:
    void setUp() override
    {
        m_reports = 0;
        m_picture = QPixmap();
        m_window = std::make_unique<QWidget>(nullptr, Qt::FramelessWindowHint);
        m_window->setGeometry(300, 300, 600, 400);
        m_window->setPalette(QPalette(Qt::red));
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get(), 20000));
        QVERIFY(waitFor([] { // until it is drawn
            return OmScreenShooter::shootSimple().toImage().pixelColor(899, 699) == QColor(Qt::red);
        }));
    }
    void tearDown() override { m_window.reset(); }

private:
    bool startCutting()
    {
        OmScreenShooter::shootUserCutted(0, false, this, SLOT(shot(QPixmap)), this, SLOT(failed()));
        return waitFor([] { return shown<Cutter>() && shown<Cutter>()->isActiveWindow(); });
    }
    bool waitForReport()
    {
        return waitFor([this] { return m_reports > 0 && !shown<Cutter>(); }) && m_reports == 1;
    }
    QColor pixel(int x, int y) const { return m_picture.toImage().pixelColor(x, y); }

    int m_reports = 0;
    QPixmap m_picture;
    std::unique_ptr<QWidget> m_window;
};

OMBRIN_TEST_MAIN(tst_OmScreenShooterX11)
#include "tst_omscreenshooter_x11.moc"
