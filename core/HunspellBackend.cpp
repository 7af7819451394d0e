#include "core/HunspellBackend.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <exception>
#include <vector>

namespace ombrin {

namespace {

QByteArray pathOf(const QString &file)
{
#ifdef Q_OS_WIN
    // Only with this prefix Hunspell takes paths for UTF-8.
    return QByteArrayLiteral("\\\\?\\")
           + QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(file).absoluteFilePath())).toUtf8();
#else
    return QFile::encodeName(file);
#endif
}

} // namespace

// Hunspell reports nothing, but the standard library throws where a broken file leads it astray or
// memory ends; nothing may leave this class, since nobody catches it in the service's thread.
std::unique_ptr<SpellingBackend> HunspellBackend::create(const SpellingFiles &files)
{
    if (!areUsable(files)) // Removed by now; Hunspell would print it.
        return nullptr;
    try {
        std::unique_ptr<HunspellBackend> backend(new HunspellBackend(files));
        if (backend->m_encoding.isKnown())
            return backend;
    } catch (const std::exception &) {
    }
    return nullptr;
}

HunspellBackend::HunspellBackend(const SpellingFiles &files)
    : m_hunspell(pathOf(files.affixes).constData(), pathOf(files.words).constData())
    , m_encoding(QByteArray::fromStdString(m_hunspell.get_dict_encoding()))
{}

bool HunspellBackend::isCorrect(const QString &word)
{
    try {
        return m_encoding.encode(word, &m_word) && m_hunspell.spell(m_word);
    } catch (const std::exception &) {
        return true;
    }
}

QStringList HunspellBackend::suggestions(const QString &word)
{
    QStringList result;
    try {
        if (!m_encoding.encode(word, &m_word))
            return result;
        const std::vector<std::string> found = m_hunspell.suggest(m_word);
        for (const std::string &suggestion : found)
            result.append(m_encoding.decode(suggestion));
    } catch (const std::exception &) {
    }
    return result;
}

void HunspellBackend::addWord(const QString &word)
{
    try {
        if (m_encoding.encode(word, &m_word))
            m_hunspell.add(m_word);
    } catch (const std::exception &) {
    }
}

} // namespace ombrin
