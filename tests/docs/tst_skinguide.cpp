#include "SourceFolder.h"
#include "support/Files.h"
#include "support/TestCase.h"

#include <ombrin/OmSkin.h>

namespace {

using Sizes = QMap<QString, QString>;

QStringList guideLines()
{
    const QString guide = QStringLiteral(OMBRIN_SOURCE_DIR "/docs/writing-a-skin.md");
    return QString::fromUtf8(ombrin::test::contentsOf(guide)).split(QLatin1Char('\n'));
}

// "a_{b,c}" as "a_b" and "a_c".
QStringList expanded(const QString &name)
{
    const int open = static_cast<int>(name.indexOf(QLatin1Char('{')));
    const int close = static_cast<int>(name.indexOf(QLatin1Char('}')));
    if (open < 0)
        return QStringList(name);
    QStringList names;
    const QStringList choices = name.mid(open + 1, close - open - 1).split(QLatin1Char(','));
    for (const QString &choice : choices)
        names += expanded(name.left(open) + choice + name.mid(close + 1));
    return names;
}

Sizes imagesOfGuide()
{
    static const QRegularExpression row("^\\| `([^`]+)` \\| (\\d+ x \\d+) \\|"_q);
    Sizes images;
    const QStringList lines = guideLines();
    for (const QString &line : lines) {
        const auto match = row.match(line);
        const QStringList names = match.hasMatch() ? expanded(match.captured(1)) : QStringList();
        for (const QString &name : names)
            images.insert(name, match.captured(2));
    }
    return images;
}

Sizes imagesOfSkin()
{
    Sizes images;
    const QStringList files = QDir(":/"_q).entryList(QDir::Files);
    for (const QString &file : files) {
        const QSize size = QImageReader(":/"_q + file).size();
        if (!file.contains("@2x"_q) && !file.contains("@3x"_q))
            images.insert(file, "%1 x %2"_q.arg(size.width()).arg(size.height()));
    }
    return images;
}

QStringList keysOfGuide()
{
    static const QRegularExpression key("`([A-Za-z]+)`"_q);
    QStringList keys;
    const QStringList lines = guideLines();
    const auto table = lines.indexOf("| Key | Where it shows |"_q);
    for (auto line = table + 2; table >= 0 && lines.at(line).startsWith(QLatin1Char('|')); ++line) {
        auto match = key.globalMatch(lines.at(line).section(QLatin1Char('|'), 1, 1));
        while (match.hasNext())
            keys.append(match.next().captured(1));
    }
    keys.sort();
    return keys;
}

} // namespace

class tst_SkinGuide : public ombrin::test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyImageOfTheSkinIsListedWithItsSize()
    {
        ombrin::OmSkin::registerPictures();
        QCOMPARE(imagesOfGuide(), imagesOfSkin());
    }

    void everyColourOfTheSkinIsListed()
    {
        QSettings palette(QStringLiteral(OMBRIN_SOURCE_DIR "/skins/default/Global_Palette.ini"),
                          QSettings::IniFormat);
        QCOMPARE(palette.childGroups(), ombrin::test::words("Active Disabled Inactive"));
        const QStringList groups = palette.childGroups();
        for (const QString &group : groups) {
            palette.beginGroup(group);
            QStringList keys = palette.childKeys();
            keys.sort();
            QCOMPARE(keysOfGuide(), keys);
            palette.endGroup();
        }
    }
};

OMBRIN_TEST_MAIN(tst_SkinGuide)
#include "tst_skinguide.moc"
