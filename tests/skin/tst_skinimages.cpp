#include "support/WidgetEvents.h"

#include <functional>

using namespace ombrin::test;

namespace {

enum class Alpha {
    Opaque, // covers its whole rectangle
    Cut,    // hard edges: a pixel is there or it is not
    Free,   // any shape
};

/// Pictures of one size: \a pattern with every word of \a words in the place of %1.
struct Group
{
    const char *pattern;
    const char *words;
    int width;
    int height;
    Alpha alpha;
};

constexpr int densities[] = {1, 2, 3};
constexpr char activations[] = "active inactive";
constexpr char hoverStates[] = "normal hover";
constexpr char comboStates[] = "normal hover disabled clicked";
constexpr char foldStates[] = "open closed";
constexpr char buttonStates[] = "up_active down_active hover_active disabled_active "
                                "up_inactive down_inactive hover_inactive disabled_inactive";
constexpr char stars[] = "empty half full empty_hover half_hover full_hover";
constexpr char captureStates[] = " -hover -pressed";
constexpr char seconds[] = "1 2 3 4 5 6 7 8 9 10";

constexpr Group groups[] = {
        {"top_left_%1", activations, 86, 30, Alpha::Cut},
        {"top_center_%1", activations, 8, 30, Alpha::Opaque},
        {"top_right_%1", activations, 88, 30, Alpha::Cut},
        {"left_%1", activations, 5, 8, Alpha::Opaque},
        {"right_%1", activations, 5, 8, Alpha::Opaque},
        {"bottom_left_%1", activations, 5, 5, Alpha::Cut},
        {"bottom_right_%1", activations, 5, 5, Alpha::Cut},
        {"bottom_center_%1", activations, 8, 5, Alpha::Opaque},
        {"minimize_%1", buttonStates, 24, 20, Alpha::Cut},
        {"maximize_%1", buttonStates, 24, 20, Alpha::Cut},
        {"restore_%1", buttonStates, 24, 20, Alpha::Cut},
        {"close_%1", buttonStates, 24, 20, Alpha::Cut},
        {"scrollbar_vertical_right_%1", hoverStates, 16, 16, Alpha::Free},
        {"scrollbar_vertical_left_%1", hoverStates, 16, 16, Alpha::Free},
        {"scrollbar_horizontal_down_%1", hoverStates, 16, 16, Alpha::Free},
        {"scrollbar_horizontal_up_%1", hoverStates, 16, 16, Alpha::Free},
        {"scrollbar_horizontal_trackbar_%1", hoverStates, 48, 16, Alpha::Cut},
        {"scrollbar_vertical_trackbar_%1", hoverStates, 16, 48, Alpha::Cut},
        {"combobox_arrow_%1", comboStates, 15, 7, Alpha::Free},
        {"header_%1", foldStates, 24, 24, Alpha::Free},
        {"treeview_%1", foldStates, 24, 24, Alpha::Free},
        {"%1-16",
         "chat exit phone filetransfer webfolder profile block authorization save addsmiley close "
         "delete is_typing is_talking",
         16, 16, Alpha::Free},
        {"%1-14", "search erase-left", 14, 14, Alpha::Free},
        {"%1-24", "zoom+", 24, 24, Alpha::Free},
        {"%1-32", "chat unblock addmulti", 32, 32, Alpha::Free},
        {"%1-78", "no_userpic", 78, 78, Alpha::Opaque},
        {"star_%1-32", stars, 32, 32, Alpha::Free},
        {"snapshot-snap%1-32.png", captureStates, 32, 32, Alpha::Free},
        {"snapshot-close%1-32.png", captureStates, 32, 32, Alpha::Free},
        {"countdown-%1-128.png", seconds, 128, 128, Alpha::Free},
        {"countdown-snap%1-64.png", captureStates, 64, 64, Alpha::Free},
};

QStringList namesOf(const Group &group)
{
    QStringList names;
    for (const QString &word : words(group.words))
        names.append(QString::fromLatin1(group.pattern).arg(word));
    return names;
}

QString densityName(const QString &name, int density)
{
    if (density == 1)
        return name;
    const QString mark = "@%1x"_q.arg(density);
    if (!name.endsWith(".png"_q))
        return name + mark;
    return name.chopped(4) + mark + ".png"_q;
}

QImage load(const QString &name, int density = 1)
{
    return QImage(":/"_q + densityName(name, density)).convertToFormat(QImage::Format_ARGB32);
}

bool allAlphas(const QImage &image, const std::function<bool(int alpha)> &holds)
{
    return pixelCount(image, [&](const QColor &color) { return !holds(color.alpha()); }) == 0;
}

/// \a picture on \a ground, as an eye that sees no colours has it.
QImage grayOn(const QColor &ground, const QImage &picture)
{
    QImage image = flatImage(picture.size(), ground);
    QPainter(&image).drawImage(0, 0, picture);
    return image.convertToFormat(QImage::Format_Grayscale8).convertToFormat(QImage::Format_RGB32);
}

int differingPixels(const QImage &a, const QImage &b, const QColor &ground)
{
    QImage difference = grayOn(ground, a);
    QPainter painter(&difference);
    painter.setCompositionMode(QPainter::CompositionMode_Difference);
    painter.drawImage(0, 0, grayOn(ground, b));
    painter.end();
    return pixelCount(difference, [](const QColor &color) { return color.red() >= 10; });
}

} // namespace

class tst_SkinImages : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(registerPictures("skins/default/default.res"));
        QVERIFY(registerPictures("skins/ombrin.res"));
    }

    void everyPictureIsThereInEveryDensity()
    {
        for (const Group &group : groups) {
            for (const QString &name : namesOf(group)) {
                for (const int density : densities) {
                    const QImage image = load(name, density);
                    const QByteArray where = densityName(name, density).toLatin1();
                    QVERIFY2(image.size() == QSize(group.width, group.height) * density, where);
                    const int strength = qAlpha(image.pixel(image.rect().center()));
                    const bool isCut =
                            allAlphas(image, [&](int a) { return a == 0 || a == strength; });
                    const bool isOpaque = allAlphas(image, [](int a) { return a == 255; });
                    const bool isThere = !allAlphas(image, [](int a) { return a == 0; });
                    QVERIFY2(isThere && (isCut || group.alpha == Alpha::Free), where);
                    QVERIFY2(isOpaque == (group.alpha == Alpha::Opaque), where);
                }
            }
        }
    }

    void framePiecesMeetWithoutSeam_data()
    {
        columns<QString, int>("activation", "density");
        for (const char *activation : {"active", "inactive"}) {
            for (const int density : densities) {
                QTest::addRow("%s@%d", activation, density)
                        << QString::fromLatin1(activation) << density;
            }
        }
    }
    void framePiecesMeetWithoutSeam()
    {
        QFETCH(QString, activation);
        QFETCH(int, density);
        const auto piece = [&](const char *name) {
            return load(QLatin1String(name) + QLatin1Char('_') + activation, density);
        };
        const auto column = [](const QImage &image, int x) {
            return image.copy(x, 0, 1, image.height());
        };
        const int side = 5 * density;
        const auto row = [side](const QImage &image, int y, int x = 0) {
            return image.copy(x, y, side, 1);
        };

        // What is stretched looks the same all along.
        const QImage top = piece("top_center");
        const QImage bottom = piece("bottom_center");
        const QImage left = piece("left");
        const QImage right = piece("right");
        for (int x = 1; x < top.width(); ++x)
            QVERIFY(column(top, x) == column(top, 0) && column(bottom, x) == column(bottom, 0));
        for (int y = 1; y < left.height(); ++y)
            QVERIFY(row(left, y) == row(left, 0) && row(right, y) == row(right, 0));

        // Its neighbours end as it begins.
        const QImage topLeft = piece("top_left");
        const QImage topRight = piece("top_right");
        const QImage bottomLeft = piece("bottom_left");
        const QImage bottomRight = piece("bottom_right");
        QCOMPARE(column(topLeft, topLeft.width() - 1), column(top, 0));
        QCOMPARE(column(topRight, 0), column(top, 0));
        QCOMPARE(column(bottomLeft, side - 1), column(bottom, 0));
        QCOMPARE(column(bottomRight, 0), column(bottom, 0));
        QCOMPARE(row(topLeft, topLeft.height() - 1), row(left, 0));
        QCOMPARE(row(topRight, topRight.height() - 1, topRight.width() - side), row(right, 0));
        QCOMPARE(row(bottomLeft, 0), row(left, 0));
        QCOMPARE(row(bottomRight, 0), row(right, 0));
    }

    void statesDiffer()
    {
        const auto compare = [](const QStringList &names, const QColor &ground) {
            for (int i = 0; i < names.size(); ++i) {
                const QImage image = load(names.at(i));
                // A sixteenth of the picture, or the strokes of a small sign.
                const int least = qBound(8, image.width() * image.height() / 16, 300);
                for (int j = 0; j < i; ++j) {
                    const int count = differingPixels(image, load(names.at(j)), ground);
                    QVERIFY2(count >= least,
                             qPrintable("%1 and %2 differ in %3 pixels"_q.arg(
                                     names.at(i), names.at(j), QString::number(count))));
                }
            }
        };
        for (const Group &group : groups) {
            const QStringList names = namesOf(group);
            if (group.words == buttonStates) {
                compare(names.mid(0, 4), QColor(0xeceef1));
                compare(names.mid(4), QColor(0x6b727b));
            } else {
                compare(names, QColor(0xefeff0));
            }
        }
    }
};

OMBRIN_TEST_MAIN(tst_SkinImages)
#include "tst_skinimages.moc"
