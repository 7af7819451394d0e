#include "support/TestCase.h"
#include "support/XUser.h"

#include <ombrin/OmScreenShooter.h>
#include <ombrin/OmScreenShooter_FullscreenCutter.h>

using namespace ombrin::test;

namespace {

constexpr QPoint kSecond(1280, 0); // the second screen's corner, for the X server and for Qt

} // namespace

// Two screens on a real X server, the second twice as dense as the first.
class tst_OmScreenShooterScreens : public TestCase
{
    Q_OBJECT

public Q_SLOTS:
    void shot(QPixmap picture) { m_picture = picture; }

private Q_SLOTS:
    void cutsHaveTheRealPixelsOfTheirScreens_data()
    {
        // from: in pixels of the X server
        const auto row = columns<QPoint, QPoint, QSize, qreal>("from", "by", "size", "density");
        row("first", {100, 100}, {60, 40}, {61, 41}, 1.0);
        row("second", kSecond + QPoint(100, 100), {60, 40}, {62, 42}, 2.0);
        row("from the first to the second", kSecond + QPoint(-40, 100), {80, 60}, {122, 42}, 2.0);
    }

    void cutsHaveTheRealPixelsOfTheirScreens()
    {
        QFETCH(QPoint, from);
        QFETCH(QPoint, by);
        QCOMPARE(QGuiApplication::screens().size(), 2);
        QWidget first(nullptr, Qt::FramelessWindowHint);
        first.setPalette(QPalette(Qt::red));
        first.setGeometry(50, 50, 300, 300);
        QWidget second(nullptr, Qt::FramelessWindowHint);
        second.setPalette(QPalette(Qt::green));
        second.setGeometry(QRect(kSecond + QPoint(20, 20), QSize(200, 200)));
        for (QWidget *window : {&first, &second}) {
            window->show();
            QVERIFY(QTest::qWaitForWindowExposed(window, 20000));
        }
        QImage whole;
        QVERIFY(waitFor([&whole] { // until both are drawn
            whole = OmScreenShooter::shootSimple().toImage();
            return whole.pixelColor(200, 200) == QColor(Qt::red)
                   && whole.pixelColor((kSecond + QPoint(30, 30)) * 2) == QColor(Qt::green);
        }));
        QCOMPARE(whole.devicePixelRatio(), 2.0);
        QCOMPARE(whole.size(), QGuiApplication::primaryScreen()->virtualGeometry().size() * 2);

        m_picture = QPixmap();
        OmScreenShooter::shootUserCutted(0, false, this, SLOT(shot(QPixmap)), nullptr, nullptr);
        QVERIFY(waitFor([] {
            const auto *cutter =
                    qobject_cast<OmScreenShooter_FullscreenCutter *>(QApplication::activeWindow());
            return cutter && cutter->isVisible();
        }));
        dragBy(from, by);
        xdo("key Return"_q);
        QVERIFY(waitFor([this] { return !m_picture.isNull(); }));
        QTEST(m_picture.size(), "size");
        QTEST(m_picture.devicePixelRatio(), "density");
        const QColor corner = m_picture.toImage().pixelColor(0, 0);
        const QColor end =
                m_picture.toImage().pixelColor(m_picture.width() - 1, m_picture.height() - 1);
        const auto expected = [](const QPoint &native) {
            return native.x() < kSecond.x()
                           ? (native.x() < 350 ? QColor(Qt::red) : QColor(Qt::black))
                           : QColor(Qt::green);
        };
        QCOMPARE(corner, expected(from));
        QCOMPARE(end, expected(from + by));
    }

private:
    QPixmap m_picture;
};

OMBRIN_TEST_MAIN(tst_OmScreenShooterScreens)
#include "tst_omscreenshooter_screens.moc"
