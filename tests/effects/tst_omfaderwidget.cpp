#include "support/WidgetEvents.h"

#include <ombrin/OmFaderWidget.h>

#include <limits>

using ombrin::OmFaderWidget;
using namespace ombrin::test;

namespace {

constexpr QRgb kGround = 0xff2040c0;
constexpr QRgb kFade = 0xffd08030;

// What one paint of \a fader leaves of the ground.
QRgb paintOnce(OmFaderWidget *fader)
{
    QImage image = flatImage(fader->size(), kGround, QImage::Format_ARGB32_Premultiplied);
    fader->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    const QRgb corner = image.pixel(image.width() - 1, image.height() - 1);
    return image.pixel(0, 0) == corner ? corner : 0;
}

QRgb blended(int alpha)
{
    QImage image = flatImage(QSize(1, 1), kGround, QImage::Format_ARGB32_Premultiplied);
    QColor color = QColor::fromRgb(kFade);
    color.setAlpha(alpha);
    QPainter(&image).fillRect(image.rect(), color);
    return image.pixel(0, 0);
}

} // namespace

class tst_OmFaderWidget : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void coversItsParentInItsColour()
    {
        QWidget parent;
        parent.resize(120, 70);
        QPalette palette;
        palette.setColor(QPalette::Window, QColor(189, 189, 189));
        palette.setColor(QPalette::Disabled, QPalette::Window, Qt::red);
        parent.setPalette(palette);
        OmFaderWidget fader(&parent);
        QCOMPARE(fader.geometry(), QRect(0, 0, 120, 70));
        QVERIFY(!fader.isWindow() && !fader.isVisible());
        QCOMPARE(fader.fadeColor(), QColor(189, 189, 189));
        parent.setEnabled(false);
        QCOMPARE(OmFaderWidget(&parent).fadeColor(), QColor(Qt::red));
        QCOMPARE(OmFaderWidget(nullptr).fadeColor(), QColor(Qt::white));
    }

    void everyPaintMovesTheAlphaByOneStep_data()
    {
        const auto row = columns<int, int, int>("duration", "step", "paints");
        row("default", 333, 25, 11);
        row("a second", 1000, 8, 32);
        row("longest", 8415, 1, 255);
        row("beyond the longest", 8416, 1, 255);
        row("zero", 0, 8415, 1);
        row("negative", -333, 8415, 1);
        row("most negative", std::numeric_limits<int>::min(), 8415, 1);
    }

    void everyPaintMovesTheAlphaByOneStep()
    {
        QFETCH(int, duration);
        QFETCH(int, step);
        QFETCH(int, paints);
        for (const bool out : {false, true}) {
            QWidget parent;
            parent.resize(20, 10);
            QPointer<OmFaderWidget> fader = new OmFaderWidget(&parent);
            QSignalSpy done(fader, &OmFaderWidget::done);
            fader->setFadeColor(QColor::fromRgb(kFade));
            fader->setFadeDuration(duration);
            QCOMPARE(paintOnce(fader), kGround);
            if (out)
                fader->fadeOut();
            else
                fader->fadeIn();
            for (int paint = 0; paint < paints; ++paint) {
                const int alpha = out ? paint * step : 255 - paint * step;
                QCOMPARE(paintOnce(fader), blended(alpha));
                QVERIFY(fader->isVisibleTo(&parent));
            }
            // What comes before the end is told already shows the end.
            QCOMPARE(paintOnce(fader), blended(out ? 255 : 0));
            QVERIFY(waitFor([&] { return fader.isNull(); }));
            QCOMPARE(done, QList<QVariantList>{{out}});
        }
    }

    void startingAgainBeginsAtThatDirectionsEnd()
    {
        QWidget parent;
        QPointer<OmFaderWidget> fader = new OmFaderWidget(&parent);
        QSignalSpy done(fader, &OmFaderWidget::done);
        fader->setFadeColor(QColor::fromRgb(kFade));
        fader->fadeOut();
        for (int paint = 0; paint < 4; ++paint)
            paintOnce(fader);
        fader->fadeIn();
        QCOMPARE(paintOnce(fader), blended(255));
        for (int paint = 1; paint < 11; ++paint)
            paintOnce(fader);
        // Also between the last paint and its report.
        fader->fadeOut();
        QCOMPARE(paintOnce(fader), blended(0));
        QCoreApplication::processEvents();
        QVERIFY(fader && done.isEmpty());
        for (int paint = 1; paint < 11; ++paint)
            paintOnce(fader);
        QVERIFY(waitFor([&] { return fader.isNull(); }));
        QCOMPARE(done, QList<QVariantList>{{true}});
    }

    void hostMayDeleteFaderOrParentAtTheEnd()
    {
        for (const bool deleteParent : {false, true}) {
            QPointer<QWidget> parent = new QWidget;
            QPointer<OmFaderWidget> fader = new OmFaderWidget(parent);
            fader->setFadeDuration(66);
            connect(fader, &OmFaderWidget::done, qApp, [&](bool out) {
                QVERIFY(out && !fader->isVisible());
                if (deleteParent)
                    delete parent;
                else
                    delete fader;
            });
            parent->show();
            fader->fadeOut();
            QVERIFY(waitFor([&] { return fader.isNull(); }));
            QCOMPARE(parent.isNull(), deleteParent);
            delete parent;
        }
    }
};

OMBRIN_TEST_MAIN(tst_OmFaderWidget)
#include "tst_omfaderwidget.moc"
