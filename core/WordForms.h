#pragma once

#include <QtCore/QStringList>

/// \file
/// Spellings that count as the same word.

namespace ombrin {

/// Whether a dictionary can be asked for \a word: it is not empty, not longer than Hunspell takes
/// and free of control characters.
bool isWord(const QString &word);

/// \a word as dictionaries write it, with plain apostrophes.
QString withPlainApostrophes(const QString &word);
/// Whether \a word has an apostrophe as books print it.
bool hasTypographicApostrophe(const QString &word);
QString withTypographicApostrophes(const QString &word);

/// \a word in upper case, with a capital, and in lower case, without itself.
QStringList otherCapitalisations(const QString &word);

} // namespace ombrin
