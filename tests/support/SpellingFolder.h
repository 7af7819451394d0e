#pragma once

#include "core/SpellingBackend.h"
#include "support/Files.h"

#include <ombrin/OmSpelling.h>

#include <QtCore/QMutex>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>

namespace ombrin::test {

/// A dictionary that knows the words of its list as they stand there and suggests, in that order,
/// those that begin with the same letter. While hold() is locked it is busy with suggestions.
class WordListBackend : public SpellingBackend
{
public:
    explicit WordListBackend(const SpellingFiles &files)
    {
        const QString list = QString::fromUtf8(contentsOf(files.words));
        m_words = list.split(QLatin1Char('\n')).mid(1);
        m_words.removeAll(QString());
    }

    static QMutex &hold()
    {
        static QMutex mutex;
        return mutex;
    }

    bool isCorrect(const QString &word) override { return m_words.contains(word); }
    QStringList suggestions(const QString &word) override
    {
        const QMutexLocker locker(&hold());
        QStringList found;
        for (const QString &known : std::as_const(m_words)) {
            if (known.at(0).toLower() == word.at(0).toLower())
                found.append(known);
        }
        return found;
    }
    void addWord(const QString &word) override { m_words.append(word); }

private:
    QStringList m_words;
};

/// A folder of small dictionaries, which the spelling service finds while this object lives.
class SpellingFolder
{
public:
    SpellingFolder() { qputenv("DICPATH", m_folder.path().toLocal8Bit()); }
    ~SpellingFolder()
    {
        OmSpelling::instance()->sync();
        OmSpelling::instance()->setDict(QString());
        OmSpelling::instance()->setEnabled(true);
        OmSpelling::instance()->setRegardCase(false);
        qunsetenv("DICPATH");
    }

    QString filePath(const QString &name) const { return m_folder.filePath(name); }

    void write(const QString &name, const QByteArray &contents) const
    {
        writeFile(filePath(name), contents);
    }

    /// \a words as they are to stand in the file.
    void add(const QString &name, const QList<QByteArray> &words,
             const QByteArray &encoding = QByteArrayLiteral("UTF-8")) const
    {
        write(name + ".aff"_q, "SET " + encoding + '\n');
        write(name + ".dic"_q, QByteArray::number(words.size()) + '\n' + words.join('\n') + '\n');
    }

    /// Has dictionaries read as plain lists in builds without Hunspell.
    static void needBackend()
    {
        if (!spellingBackendFactory())
            useWordLists();
    }
    /// Has dictionaries read as plain lists.
    static void useWordLists()
    {
        setSpellingBackendFactory([](const SpellingFiles &files) {
            return std::make_unique<WordListBackend>(files);
        });
    }

private:
    QTemporaryDir m_folder;
};

} // namespace ombrin::test
