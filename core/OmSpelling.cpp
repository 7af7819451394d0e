#include <ombrin/OmSpelling.h>

#include "core/PersonalWords.h"
#include "core/SpellingBackend.h"
#include "core/SpellingWorker.h"
#include "core/VerdictCache.h"
#include "core/WordForms.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStandardPaths>

namespace ombrin {

namespace {

constexpr QChar kNameSeparator(u',');

QString personalFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
           + QStringLiteral("/spelling");
}

} // namespace

OmSpelling *OmSpelling::instance()
{
    // Never destroyed, since at the end of the program nothing that its thread needs may be left.
    static OmSpelling *const spelling = new OmSpelling;
    return spelling;
}

OmSpelling::OmSpelling()
    : m_worker(std::make_unique<SpellingWorker>([this](const QString &word) {
        QMetaObject::invokeMethod(
                this, [this, word] { Q_EMIT suggestionsReady(word); }, Qt::QueuedConnection);
    }))
    , m_verdicts(std::make_unique<VerdictCache>())
{}

OmSpelling::~OmSpelling() = default;

bool OmSpelling::isAvailable() const
{
    if (!spellingBackendFactory())
        return false;
    return !m_installed.isEmpty() || !availDicts().isEmpty();
}

void OmSpelling::setEnabled(bool on)
{
    m_isEnabled = on;
}

bool OmSpelling::isEnabled() const
{
    return m_isEnabled;
}

void OmSpelling::setRegardCase(bool on)
{
    if (m_regardCase == on)
        return;
    m_regardCase = on;
    m_verdicts->clear();
}

bool OmSpelling::regardCase() const
{
    return m_regardCase;
}

void OmSpelling::setDict(const QString &names)
{
    const QHash<QString, SpellingFiles> installed = installedDictionaries();
    QStringList chosen;
    std::vector<SpellingFiles> files;
    const QStringList wanted = names.split(kNameSeparator);
    for (const QString &entry : wanted) {
        const QString name = entry.trimmed();
        if (!installed.contains(name) || chosen.contains(name))
            continue;
        chosen.append(name);
        files.push_back(installed.value(name));
    }
    if (!spellingBackendFactory())
        chosen.clear();
    if (chosen == m_dictionaries)
        return;
    m_dictionaries = chosen;
    m_verdicts->clear();
    stopWithApplication();
    m_worker->load(files, personalWords().words());
}

QString OmSpelling::dict() const
{
    return m_dictionaries.join(kNameSeparator);
}

QStringList OmSpelling::availDicts() const
{
    m_installed = spellingBackendFactory() ? installedDictionaries().keys() : QStringList();
    m_installed.sort();
    return m_installed;
}

int OmSpelling::checkWord(const QString &word)
{
    if (!m_isEnabled || m_dictionaries.isEmpty())
        return 1;
    const VerdictCache::Verdict known = m_verdicts->find(word);
    if (known != VerdictCache::Verdict::Unknown)
        return known == VerdictCache::Verdict::Correct ? 1 : 0;
    if (!isWord(word))
        return 1;
    const bool isCorrect = judge(word);
    m_verdicts->store(word, isCorrect);
    if (!isCorrect)
        m_worker->wantSuggestions(word);
    return isCorrect ? 1 : 0;
}

bool OmSpelling::judge(const QString &word)
{
    return personalWords().contains(word, m_regardCase) || m_worker->isCorrect(word, m_regardCase);
}

QStringList OmSpelling::suggestionList(const QString &word)
{
    if (m_dictionaries.isEmpty() || !isWord(word))
        return {};
    QStringList suggestions = m_worker->awaitSuggestions(word, -1).value_or(QStringList());
    const QString replacement = personalWords().replacement(word);
    if (!replacement.isEmpty()) {
        suggestions.removeAll(replacement);
        suggestions.prepend(replacement);
    }
    return suggestions;
}

bool OmSpelling::prepareSuggestions(const QString &word, int patience)
{
    return m_dictionaries.isEmpty() || !isWord(word)
           || m_worker->awaitSuggestions(word, qMax(0, patience)).has_value();
}

void OmSpelling::addToDictionary(const QString &word)
{
    if (!isWord(word))
        return;
    stopWithApplication();
    personalWords().addWord(word);
    m_verdicts->clear();
    m_worker->addWord(withPlainApostrophes(word));
    m_worker->post([file = m_personal->wordFile()] { file->save(); });
}

void OmSpelling::replaceWord(const QString &wrong, const QString &right)
{
    if (!isWord(wrong) || !isWord(right))
        return;
    stopWithApplication();
    personalWords().addReplacement(wrong, right);
    m_worker->post([file = m_personal->replacementFile()] { file->save(); });
}

void OmSpelling::sync()
{
    m_worker->finishJobs();
}

// Each application runs its routines once and forgets them.
void OmSpelling::stopWithApplication()
{
    qRemovePostRoutine(&OmSpelling::stop);
    qAddPostRoutine(&OmSpelling::stop);
}

void OmSpelling::stop()
{
    instance()->m_worker->stop();
}

PersonalWords &OmSpelling::personalWords()
{
    // Read late: the folder depends on names that the application sets when it starts.
    if (!m_personal)
        m_personal = std::make_unique<PersonalWords>(personalFolder());
    return *m_personal;
}

} // namespace ombrin
