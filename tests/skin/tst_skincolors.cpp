#include "support/Files.h"
#include "support/TestCase.h"

#include <algorithm>
#include <cmath>

namespace {

QString skinFolder()
{
    return QCoreApplication::applicationDirPath() + "/skins"_q;
}

double luminance(QRgb rgb)
{
    const auto linear = [](int channel) {
        const double value = channel / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(rgb)) + 0.7152 * linear(qGreen(rgb)) + 0.0722 * linear(qBlue(rgb));
}

double contrast(QRgb a, QRgb b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

class tst_SkinColors : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(ombrin::test::registerPictures("skins/default/default.res")); }

    void titleTextIsReadable()
    {
        for (const bool active : {true, false}) {
            const QImage band(active ? ":/top_center_active"_q : ":/top_center_inactive"_q);
            QCOMPARE(band.height(), 30);
            for (int y = 2; y < 29; ++y)
                QVERIFY(contrast(band.pixel(0, y), active ? qRgb(0, 0, 0) : qRgb(255, 255, 255))
                        >= 4.5);
        }
    }

    void paletteIsComplete()
    {
        const QStringList keys = m_palette.allKeys();
        QCOMPARE(keys.size(), 3 * 17);
        for (const QString &key : keys)
            QVERIFY2(QColor(m_palette.value(key).toString()).isValid(), qPrintable(key));
    }

    void paletteTextIsReadable()
    {
        constexpr const char *kPairs[][2] = {{"WindowText", "Window"},
                                             {"Text", "Base"},
                                             {"Text", "AlternateBase"},
                                             {"Text", "Window"},
                                             {"ButtonText", "Button"},
                                             {"HighlightedText", "Highlight"},
                                             {"BrightText", "Shadow"},
                                             {"Link", "Window"},
                                             {"Link", "Base"},
                                             {"Link", "AlternateBase"},
                                             {"LinkVisited", "Window"},
                                             {"LinkVisited", "Base"},
                                             {"LinkVisited", "AlternateBase"}};
        for (const QString &group : ombrin::test::words("Active Disabled Inactive")) {
            const auto color = [&](const char *role) {
                return QColor(
                        m_palette.value(group + QLatin1Char('/') + QLatin1String(role)).toString());
            };
            for (const auto &[text, ground] : kPairs) {
                QVERIFY2(contrast(color(text).rgb(), color(ground).rgb()) >= 4.5,
                         qPrintable("%1: %2 on %3"_q.arg(group, QLatin1String(text),
                                                         QLatin1String(ground))));
            }
        }
    }

    void styleSheetIsValid()
    {
        const QString styleSheet = QString::fromUtf8(
                ombrin::test::contentsOf(skinFolder() + "/default/default.css"_q));
        QVERIFY(styleSheet.contains("QToolTip"_q));

        // Qt warns about a sheet that it cannot parse when the first widget is polished with it.
        qApp->setStyleSheet(styleSheet);
        QLabel().ensurePolished();
        qApp->setStyleSheet(QString());
    }

private:
    const QSettings m_palette{skinFolder() + "/default/Global_Palette.ini"_q, QSettings::IniFormat};
};

OMBRIN_TEST_MAIN(tst_SkinColors)
#include "tst_skincolors.moc"
