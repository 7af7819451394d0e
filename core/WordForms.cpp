#include "core/WordForms.h"

#include <algorithm>

namespace ombrin {

namespace {

constexpr int kLongestWord = 99;
constexpr QChar kPlainApostrophe(u'\'');
constexpr QChar kTypographicApostrophe(u'\u2019');

QString withCapital(const QString &word)
{
    const int first = word.at(0).isHighSurrogate() ? 2 : 1;
    return word.left(first).toUpper() + word.mid(first).toLower();
}

} // namespace

bool isWord(const QString &word)
{
    return !word.isEmpty() && word.size() <= kLongestWord
           && std::none_of(word.cbegin(), word.cend(),
                           [](QChar c) { return c.unicode() < 0x20 || c.unicode() == 0x7f; });
}

QString withPlainApostrophes(const QString &word)
{
    if (!hasTypographicApostrophe(word))
        return word;
    return QString(word).replace(kTypographicApostrophe, kPlainApostrophe);
}

bool hasTypographicApostrophe(const QString &word)
{
    return word.contains(kTypographicApostrophe);
}

QString withTypographicApostrophes(const QString &word)
{
    return QString(word).replace(kPlainApostrophe, kTypographicApostrophe);
}

QStringList otherCapitalisations(const QString &word)
{
    QStringList forms{word.toUpper(), withCapital(word), word.toLower()};
    forms.removeDuplicates();
    forms.removeAll(word);
    return forms;
}

} // namespace ombrin
