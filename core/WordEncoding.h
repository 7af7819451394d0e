#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <string>
#include <vector>

namespace ombrin {

/// The encoding of a dictionary: UTF-8 or one of eight bits.
class WordEncoding
{
public:
    /// \a name as dictionaries write it: "UTF-8", "ISO8859-2", "KOI8-R", "microsoft-cp1251".
    explicit WordEncoding(const QByteArray &name);

    /// False if no encoding of that name is known; such an encoding holds no word.
    bool isKnown() const { return m_isUtf8 || !m_letters.isEmpty(); }

    /// Puts the bytes of \a word into \a bytes; false if it has letters that the encoding lacks.
    bool encode(const QString &word, std::string *bytes) const;
    QString decode(const std::string &bytes) const;

private:
    bool m_isUtf8 = false;
    QString m_letters;         // The character of each byte.
    std::vector<char> m_bytes; // The byte of each character of the basic plane, 0 for none.
};

} // namespace ombrin
