#include "support/WidgetEvents.h"

#include "skin/SkinPixmap.h"

#include <ombrin/OmImageButton.h>
#include <ombrin/OmSkin.h>
#include <ombrin/OmWindow.h>

using namespace ombrin;

// Two screens, the second twice as dense as the first.
class tst_OmWindowScreens : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCOMPARE(QGuiApplication::screens().size(), 2);
        ombrin::OmSkin::init(false);
    }

    void frameAndButtonsAreSharpOnTheScreenTheyStandOn()
    {
        OmWindow window;
        window.resize(400, 300);
        QVERIFY(ombrin::test::activate(&window));

        const QList<QScreen *> screens = QGuiApplication::screens();
        for (QScreen *screen : {screens.at(1), screens.at(0), screens.at(1)}) {
            const QPoint place = screen->geometry().topLeft() + QPoint(100, 100);
            window.move(place);
            const qreal density = screen->devicePixelRatio();
            const OmImageButton *const button = window.findChild<OmImageButton *>();
            QVERIFY(waitFor([&] {
                return window.screen() == screen && window.pos() == place
                       && window.devicePixelRatioF() == density
                       && button->pixmapUp().devicePixelRatio() == density;
            }));
            QCOMPARE(window.size(), QSize(400, 300));
            const QImage picture = ombrin::skinImage(":/top_left_active"_q, density)
                                           .convertToFormat(QImage::Format_RGB32);
            QCOMPARE(picture.size(), QSize(86, 30) * density);
            const QImage grabbed = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
            // Without the corner, which is transparent.
            const QRect inner = picture.rect().adjusted(8, 8, 0, 0);
            QCOMPARE(grabbed.copy(inner), picture.copy(inner));

            const auto buttons = window.findChildren<OmImageButton *>();
            for (const OmImageButton *each : buttons) {
                QCOMPARE(each->pixmapUp().devicePixelRatio(), density);
                QCOMPARE(each->pixmapUp().size(), QSize(24, 20) * density);
            }
        }
    }
};

OMBRIN_TEST_MAIN(tst_OmWindowScreens)
#include "tst_omwindow_screens.moc"
