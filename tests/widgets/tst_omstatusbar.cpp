#include "support/WidgetEvents.h"

#include <ombrin/OmStatusBar.h>

using ombrin::OmStatusBar;
using namespace ombrin::test;

class tst_OmStatusBar : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void gradientRunsFromTheLightestRowToTheDarkest()
    {
        OmStatusBar bar;
        bar.setSizeGripEnabled(false);
        for (const int height : {21, 41, 101}) {
            bar.resize(50, height);
            const QImage image = paintedOnNothing(&bar);
            const int last = height - 1;
            QCOMPARE(image.pixel(0, 0), qRgb(183, 183, 182));
            QCOMPARE(image.pixel(25, last / 20), qRgb(207, 207, 207));
            QCOMPARE(image.pixel(0, last / 2), qRgb(228, 228, 228));
            QCOMPARE(image.pixel(49, last), qRgb(232, 232, 232));
        }
    }

    void textIsDarkOnTheLightGround()
    {
        QWidget window;
        const OmStatusBar bar(&window);
        for (const auto &[text, shown] : {std::pair(Qt::red, Qt::red), {Qt::white, Qt::black}}) {
            QPalette palette = window.palette();
            palette.setColor(QPalette::WindowText, text);
            window.setPalette(palette);
            QCOMPARE(bar.palette().color(QPalette::WindowText), QColor(shown));
        }
        window.setStyleSheet("QStatusBar { color: yellow; background: navy }"_q);
        bar.ensurePolished();
        QCOMPARE(bar.palette().color(QPalette::WindowText), QColor(Qt::yellow));
    }

    void paletteAndFontAreKeptUnderAStyleSheet()
    {
        qApp->setStyleSheet("QToolTip { color: blue }"_q);
        const auto restore = qScopeGuard([] { qApp->setStyleSheet(QString()); });
        OmStatusBar bar;
        QPalette palette = bar.palette();
        palette.setColor(QPalette::WindowText, Qt::red);
        bar.setPalette(palette);
        QFont font = bar.font();
        font.setPixelSize(30);
        bar.setFont(font);
        bar.show();
        QCOMPARE(bar.palette().color(QPalette::WindowText), QColor(Qt::red));
        QCOMPARE(bar.font().pixelSize(), 30);
    }

    void messagesAndWidgetsLieOverTheGradient()
    {
        OmStatusBar bar;
        bar.resize(200, 22);
        QPalette palette = bar.palette();
        palette.setColor(QPalette::WindowText, Qt::red);
        bar.setPalette(palette);
        const QImage empty = paintedOnNothing(&bar);
        bar.showMessage("Connected"_q);
        const QImage withMessage = paintedOnNothing(&bar);
        const auto isReddish = [](const QColor &color) { return color.red() > color.green() + 60; };
        QCOMPARE(pixelCount(empty, isReddish), 0);
        QVERIFY(pixelCount(withMessage, isReddish) > 50);
        // All around the text the gradient still shows.
        QCOMPARE(withMessage.copy(0, 0, 200, 2), empty.copy(0, 0, 200, 2));
        QCOMPARE(withMessage.copy(150, 0, 30, 22), empty.copy(150, 0, 30, 22));

        bar.clearMessage();
        QCOMPARE(paintedOnNothing(&bar), empty);
        auto *const label = new QLabel;
        label->setAutoFillBackground(true);
        label->setFixedSize(30, 10);
        palette.setColor(QPalette::Window, Qt::blue);
        label->setPalette(palette);
        bar.addWidget(label);
        bar.show();
        QCOMPARE(paintedOnNothing(&bar).pixel(label->geometry().center()), qRgb(0, 0, 255));
    }
};

OMBRIN_TEST_MAIN(tst_OmStatusBar)
#include "tst_omstatusbar.moc"
