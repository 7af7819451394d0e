#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <memory>

namespace ombrin {

class PersonalWords;
class SpellingWorker;
class VerdictCache;

/// Checks the spelling of single words.
///
/// \code
/// ombrin::OmSpelling *spelling = ombrin::OmSpelling::instance();
/// spelling->setDict(QStringLiteral("en_US,de_DE"));
/// if (!spelling->checkWord(QStringLiteral("helo")))
///     qDebug() << spelling->suggestionList(QStringLiteral("helo"));
/// \endcode
///
/// Dictionaries are those of Hunspell: the two files NAME.aff and NAME.dic in one of these folders,
/// the first of which wins:
/// - the application's folder and its subfolder \c dictionaries,
/// - the folders in the environment variable \c DICPATH, separated as in \c PATH,
/// - \c hunspell, \c myspell and \c myspell/dicts in the system's and the user's data folders.
///
/// A pair of which one file is missing, unreadable, no plain file or plainly broken is left out.
///
/// Dictionaries are loaded, and suggestions computed, in a thread of the service's own. setDict()
/// returns at once; the first check after it waits until the dictionaries are there. The
/// suggestions for a word that was found wrong are begun right away, so that they are there when
/// the user asks for them; see prepareSuggestions() for a caller that cannot wait.
///
/// What the user adds is kept in two UTF-8 files in the folder \c spelling of the application's
/// data folder: personal.txt holds a word a line, replacements.txt a wrong word, a tab and its
/// replacement. Set the application's name and organisation before the first use. Several programs
/// may add to the same files. A file that cannot be read is never overwritten: what is added then
/// lasts as long as the program.
///
/// Words are at most 99 characters long. What no dictionary can judge, because it is empty, longer
/// or holds control characters, is correct, has no suggestions and is not added. A typographic
/// apostrophe counts as a plain one.
///
/// To be used from the thread of the application's event loop. The service is never destroyed; its
/// thread ends with the QCoreApplication.
///
/// \ingroup core
class OMBRIN_CORE_EXPORT OmSpelling : public QObject
{
    Q_OBJECT

public:
    /// The one instance, made on first use.
    static OmSpelling *instance();

    /// Whether words can be checked at all: the library was built with Hunspell and at least one
    /// dictionary is installed. Notices new dictionaries where there were none.
    bool isAvailable() const;

    /// Switches checking on, as it is at first, or off: then every word is correct.
    void setEnabled(bool on);
    bool isEnabled() const;

    /// Whether upper and lower case must be right. At first they need not: a word is correct if any
    /// capitalisation of it is.
    void setRegardCase(bool on);
    bool regardCase() const;

    /// Chooses a dictionary, or several separated by commas: a word is correct if any of them knows
    /// it. Names that are not installed are left out; an empty \a names chooses none.
    void setDict(const QString &names);
    /// The chosen dictionaries, separated by commas; empty, as at first, when there are none.
    QString dict() const;
    /// The names of all installed dictionaries, sorted. Looks for them anew.
    QStringList availDicts() const;

    /// Whether \a word is correct: 1 if so, else 0. Without a dictionary every word is.
    int checkWord(const QString &word);

    /// Words that may have been meant by \a word, the likeliest first; the suggestions of several
    /// dictionaries take turns. Waits until they are computed, which takes up to half a second
    /// where checkWord() has not asked for them long before.
    QStringList suggestionList(const QString &word);

    /// Whether suggestionList(\a word) would answer at once. If not, they are computed next; waits
    /// for them for at most \a patience milliseconds, and suggestionsReady() tells of them.
    bool prepareSuggestions(const QString &word, int patience = 0);

    /// Makes \a word correct, for good.
    void addToDictionary(const QString &word);

    /// Tells that the user has replaced \a wrong by \a right: from now on that is the first
    /// suggestion for \a wrong.
    void replaceWord(const QString &wrong, const QString &right);

    /// Waits until everything that was added is stored.
    void sync();

Q_SIGNALS:
    /// The suggestions for \a word are there.
    void suggestionsReady(const QString &word);

private:
    OmSpelling();
    ~OmSpelling() override;

    static void stopWithApplication();
    static void stop();
    bool judge(const QString &word);
    PersonalWords &personalWords();

    std::unique_ptr<SpellingWorker> m_worker;
    std::unique_ptr<VerdictCache> m_verdicts;
    std::unique_ptr<PersonalWords> m_personal;
    mutable QStringList m_installed;
    QStringList m_dictionaries;
    bool m_isEnabled = true;
    bool m_regardCase = false;
};

} // namespace ombrin
