#include "support/WidgetEvents.h"

#include <ombrin/OmRatingLabel.h>

#include <cmath>

using namespace ombrin::test;
using ombrin::OmRatingLabel;

namespace {

constexpr QRgb kGround = 0xffffffff;

// The star pictures are grey, as the test's skin has them: empty, empty under the mouse, half and
// so on, from 0x10 to 0x60. In the tables below they are letters.
QChar letter(QRgb color)
{
    return "?eEhHfF?????????"_q.at(qGray(color) / 0x10);
}

QImage painted(OmRatingLabel *label)
{
    const qreal ratio = label->devicePixelRatioF();
    QImage image = flatImage((QSizeF(label->size()) * ratio).toSize(), Qt::white);
    image.setDevicePixelRatio(ratio);
    label->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

QString shownStars(OmRatingLabel *label)
{
    const QImage image = painted(label);
    const int size = qMin(label->height() - 2, 32);
    QString stars;
    for (int star = 0; star < 5; ++star) {
        const QPointF centre(1 + star * (size + 1) + size / 2.0, 1 + size / 2.0);
        stars += letter(image.pixel((centre * image.devicePixelRatio()).toPoint()));
    }
    return stars;
}

} // namespace

class tst_OmRatingLabel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(registerPictures("testdata/contacts.res")); }

    void hasRoomForItsStars()
    {
        OmRatingLabel label;
        QCOMPARE(label.maximumHeight(), 34);
        QCOMPARE(label.frameStyle(), 0);
        QCOMPARE(label.sizeHint(), QSize(166, 34));
    }

    void showsTheStoredRating_data()
    {
        const auto row = columns<int, QString>("rating", "stars");
        row("0", 0, "eeeee");
        row("1", 1, "heeee");
        row("7", 7, "fffhe");
        row("10", 10, "fffff");
        row("above", 11, "fffff");
        row("below", -1, "eeeee");
    }

    void showsTheStoredRating()
    {
        QFETCH(int, rating);
        QFETCH(QString, stars);
        OmRatingLabel label;
        label.resize(label.sizeHint());
        QSignalSpy changed(&label, &OmRatingLabel::ratingChanged);
        label.setRating(rating);
        QCOMPARE(label.rating(), rating);
        QCOMPARE(shownStars(&label), stars);
        sendEnter(&label);
        QCOMPARE(shownStars(&label), stars.replace(QLatin1Char('e'), QLatin1Char('E')));
        QVERIFY(changed.isEmpty());
    }

    void starsLightUpUpToThePointer_data()
    {
        const auto row = columns<int, int, int, QString>("height", "x", "current", "stars");

        // The stored rating is 7.
        row("before the first", 34, 0, 0, "fffhE");
        row("first pixel", 34, 1, 1, "HffhE");
        row("last of the half", 34, 17, 1, "HffhE");
        row("first of the full", 34, 18, 2, "FffhE");
        row("50", 34, 50, 3, "FHfhE");
        row("last", 34, 160, 10, "FFFFF");
        row("far right", 34, 500, 10, "FFFFF");
        row("left of it", 34, -20, 0, "fffhE");
        row("small, odd: half", 19, 10, 1, "HffhE");
        row("small, odd: full", 19, 11, 2, "FffhE");
    }

    void starsLightUpUpToThePointer()
    {
        QFETCH(int, height);
        QFETCH(int, x);
        OmRatingLabel label;
        label.resize(200, height);
        label.setRating(7);
        sendEnter(&label);
        for (const int y : {0, 10, 300}) {
            sendMouseMove(&label, QPoint(x, y));
            QTEST(shownStars(&label), "stars");
            QTEST(label.currentRating(), "current");
        }
        sendLeave(&label);
        QCOMPARE(shownStars(&label), "fffhe"_q);
        QCOMPARE(label.rating(), 7);
    }

    void starsStandExactlyWhereTheyShould()
    {
        for (const auto &[height, size] : {std::pair(34, 32), {18, 16}, {3, 1}, {2, 0}}) {
            OmRatingLabel label;
            label.resize(200, height);
            label.setRating(10);
            const QImage image = painted(&label);
            const qreal ratio = label.devicePixelRatioF();
            // With a fraction, edges fall between pixels.
            const qreal blur = ratio == std::floor(ratio) ? 0 : 1;
            for (int x = 0; x < image.width(); ++x) {
                const qreal at = (x + 0.5) / ratio - 1; // from the first star
                const qreal inStar = at - std::floor(at / (size + 1)) * (size + 1);
                const bool isStar = size > 0 && at >= 0 && at < 5 * (size + 1);
                const QRgb pixel = image.pixel(x, image.height() / 2);
                if (isStar && inStar >= blur && inStar < size - blur)
                    QCOMPARE(pixel, 0xff505050);
                else if (!isStar || (inStar >= size + blur && inStar < size + 1 - blur))
                    QCOMPARE(pixel, kGround);
            }
            QCOMPARE(image.pixel(int(5 * ratio), 0), kGround);
            QCOMPARE(image.pixel(int(5 * ratio), image.height() - 1), kGround);
        }
    }

    void aClickTakesTheRatingUnderThePointer_data()
    {
        const auto row = columns<int, QPoint, int>("button", "place", "rating");
        row("left", Qt::LeftButton, {60, 10}, 4);
        row("right", Qt::RightButton, {60, 10}, 7);
        row("released below", Qt::LeftButton, {60, 40}, 7);
        row("released left of it", Qt::LeftButton, {-1, 10}, 7);
    }

    void aClickTakesTheRatingUnderThePointer()
    {
        QFETCH(int, button);
        QFETCH(QPoint, place);
        QFETCH(int, rating);
        OmRatingLabel label;
        label.resize(166, 34);
        label.setRating(7);
        QSignalSpy changed(&label, &OmRatingLabel::ratingChanged);
        const auto mouseButton = static_cast<Qt::MouseButton>(button);
        QTest::mousePress(&label, mouseButton, Qt::NoModifier, QPoint(60, 10));
        QTest::mouseRelease(&label, mouseButton, Qt::NoModifier, place);
        QCOMPARE(label.rating(), rating);
        if (rating == 7)
            QVERIFY(changed.isEmpty());
        else
            QCOMPARE(changed, QList<QVariantList>{{rating}});
    }

    void hostMayDeleteTheLabelAsItIsRated()
    {
        auto label = std::make_unique<OmRatingLabel>();
        label->resize(166, 34);
        connect(label.get(), &OmRatingLabel::ratingChanged, this, [&label] { label.reset(); });
        QTest::mouseClick(label.get(), Qt::LeftButton, Qt::NoModifier, QPoint(60, 10));
        QVERIFY(!label);
    }

    void screenReadersSeeASlider()
    {
        OmRatingLabel label;
        QAccessibleInterface *const seen = accessible(&label);
        QCOMPARE(seen->role(), QAccessible::Slider);
        QAccessibleValueInterface *const slider = seen->valueInterface();
        QVERIFY(slider);
        QCOMPARE(slider->minimumValue().toInt(), 0);
        QCOMPARE(slider->maximumValue().toInt(), 10);
        QCOMPARE(slider->minimumStepSize().toInt(), 1);
        label.setRating(7);
        QCOMPARE(slider->currentValue().toInt(), 7);
        QCOMPARE(seen->text(QAccessible::Value), "7"_q);
        label.setRating(-4);
        QCOMPARE(slider->currentValue().toInt(), 0);

        QSignalSpy changed(&label, &OmRatingLabel::ratingChanged);
        slider->setCurrentValue(3);
        slider->setCurrentValue(99);
        label.setEnabled(false);
        slider->setCurrentValue(1);
        QCOMPARE(label.rating(), 10);
        QCOMPARE(changed, (QList<QVariantList>{{3}, {10}}));
    }
};

OMBRIN_TEST_MAIN(tst_OmRatingLabel)
#include "tst_omratinglabel.moc"
