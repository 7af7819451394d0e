#include "support/TestCase.h"
#include "support/XUser.h"

#include <ombrin/OmFaderWidget.h>
#include <ombrin/OmInfoPopup.h>
#include <ombrin/OmSkin.h>

using namespace ombrin::test;
using ombrin::OmInfoPopup;

namespace {

void movePointerTo(const QPoint &position)
{
    xdo("mousemove %1 %2"_q.arg(position.x()).arg(position.y()));
}

} // namespace

// With a real mouse: the pop-up covers the icon that the mouse came to.
class tst_OmInfoPopupX11 : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ombrin::OmSkin::init(false); }

    void popupStaysWhileTheMouseIsOverItAndThenGoes()
    {
        movePointerTo(QPoint(5, 5));
        QWidget window;
        window.setGeometry(300, 300, 200, 100);
        OmInfoPopup icon(&window);
        icon.move(20, 30);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window, 20000)); // the window manager has placed it
        for (int round = 0; round < 2; ++round) {
            const QPoint corner = icon.mapToGlobal(QPoint(0, 0));
            movePointerTo(corner + QPoint(5, 5));
            QWidget *popup = nullptr;
            QVERIFY(waitFor(
                    [&] { return (popup = QApplication::activePopupWidget()) != nullptr; }));
            QCOMPARE(popup->geometry(), QRect(corner, QSize(150, 150)));
            QVERIFY(waitFor([&] { return popup->findChildren<QWidget *>().size() == 1; }));
            movePointerTo(corner + QPoint(100, 100));
            QTest::qWait(700); // longer than a fade
            QVERIFY(popup->isVisible());
            QCOMPARE(QApplication::activePopupWidget(), popup);

            movePointerTo(QPoint(5, 5));
            QVERIFY(waitFor([&] { return !popup->isVisible(); }));
            QVERIFY(icon.isVisible());
        }
    }
};

OMBRIN_TEST_MAIN(tst_OmInfoPopupX11)
#include "tst_ominfopopup_x11.moc"
