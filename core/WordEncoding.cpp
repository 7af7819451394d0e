#include "core/WordEncoding.h"

#include <QTextCodec> // of QtCore in Qt 5, of Core5Compat in Qt 6

namespace ombrin {

namespace {

constexpr std::size_t kBytes = 256;
constexpr std::size_t kBasicPlane = 0x10000;

// Hunspell's names differ from those of the rest of the world.
QByteArray commonName(QByteArray name)
{
    name.replace("ISO8859-", "ISO-8859-");
    name.replace("microsoft-cp", "windows-");
    name.replace("TIS620-2533", "TIS-620");
    return name;
}

} // namespace

WordEncoding::WordEncoding(const QByteArray &name)
    : m_isUtf8(name.compare("UTF-8", Qt::CaseInsensitive) == 0)
{
    QTextCodec *codec = m_isUtf8 ? nullptr : QTextCodec::codecForName(commonName(name));
    if (!codec)
        return;
    // Asked once for each byte: codecs are too slow to be asked for each word.
    m_bytes.resize(kBasicPlane);
    for (std::size_t byte = 0; byte < kBytes; ++byte) {
        const char encoded = static_cast<char>(byte);
        const QString letter = codec->toUnicode(&encoded, 1);
        m_letters += letter.size() == 1 ? letter.at(0) : QChar(QChar::ReplacementCharacter);
        if (m_letters.back() != QChar(QChar::ReplacementCharacter))
            m_bytes[m_letters.back().unicode()] = encoded;
    }
}

bool WordEncoding::encode(const QString &word, std::string *bytes) const
{
    bytes->clear();
    for (const QChar letter : word) {
        const char16_t unit = letter.unicode();
        if (m_isUtf8 && unit >= 0x80) {
            const QByteArray encoded = word.toUtf8();
            bytes->assign(encoded.constData(), static_cast<std::size_t>(encoded.size()));
            return true;
        }
        const char byte = m_isUtf8 ? static_cast<char>(unit) : isKnown() ? m_bytes[unit] : '\0';
        if (byte == '\0')
            return false;
        bytes->push_back(byte);
    }
    return true;
}

QString WordEncoding::decode(const std::string &bytes) const
{
    if (m_isUtf8)
        return QString::fromUtf8(bytes.data(), static_cast<int>(bytes.size()));
    QString word;
    for (const char byte : bytes)
        word += isKnown() ? m_letters.at(static_cast<uchar>(byte))
                          : QChar(QChar::ReplacementCharacter);
    return word;
}

} // namespace ombrin
