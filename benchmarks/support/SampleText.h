#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace ombrin::bench {

/// Words of the installed dictionary \a name, spread over the alphabet; none if it is missing.
QStringList dictionaryWords(const QString &name, int count);

/// \a word with a letter too much.
inline QString misspelt(const QString &word)
{
    return QString(word).insert(word.size() / 2, QLatin1Char('q'));
}

/// Paragraphs of some hundred characters, \a length characters in all, made of \a words in turn;
/// one word in \a wrongOneIn is misspelt.
QString sampleText(const QStringList &words, int length, int wrongOneIn);

} // namespace ombrin::bench
