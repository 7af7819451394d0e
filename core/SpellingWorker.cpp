#include "core/SpellingWorker.h"

#include "core/WordForms.h"

#include <algorithm>
#include <chrono>

namespace ombrin {

namespace {

// More wrong words at once than anybody will ask for.
constexpr std::size_t kMostWanted = 256;
constexpr std::size_t kMostRemembered = 1024;

// Takes turns, so that no language comes first because its dictionary does.
QStringList interleaved(const std::vector<QStringList> &lists)
{
    QStringList result;
    bool isEnd = false;
    for (int i = 0; !isEnd; ++i) {
        isEnd = true;
        for (const QStringList &list : lists) {
            if (i >= list.size())
                continue;
            isEnd = false;
            if (!result.contains(list.at(i)))
                result.append(list.at(i));
        }
    }
    return result;
}

} // namespace

SpellingWorker::SpellingWorker(Announcement announce)
    : m_announce(std::move(announce))
{}

SpellingWorker::~SpellingWorker()
{
    load({}, {});
    stop();
}

void SpellingWorker::load(const std::vector<SpellingFiles> &dictionaries,
                          const QStringList &personalWords)
{
    {
        const std::lock_guard lock(m_checkMutex);
        ++m_loads;
    }
    {
        const std::lock_guard lock(m_mutex);
        ++m_generation;
        m_wanted.clear();
        m_suggestions.clear();
        m_suggestionOrder.clear();
    }
    post([this, dictionaries, personalWords, make = spellingBackendFactory()] {
        m_make = make;
        m_personalWords = personalWords;
        exchangeDictionaries(dictionaries);
    });
}

void SpellingWorker::exchangeDictionaries(const std::vector<SpellingFiles> &wanted)
{
    Dictionaries dictionaries;
    bool isOutdated = false;
    {
        const std::lock_guard lock(m_checkMutex);
        isOutdated = m_loads > 1;
        dictionaries = m_dictionaries;
    }
    if (!isOutdated) {
        Dictionaries next;
        for (const SpellingFiles &files : wanted) {
            const auto loaded =
                    std::find_if(dictionaries.cbegin(), dictionaries.cend(),
                                 [&files](const auto &other) { return other->files == files; });
            auto dictionary = loaded != dictionaries.cend() ? *loaded : nullptr;
            if (!dictionary && m_make)
                dictionary =
                        std::make_shared<Dictionary>(Dictionary{files, m_make(files), nullptr});
            if (dictionary && dictionary->checker)
                next.push_back(std::move(dictionary));
        }
        dictionaries.swap(next);
    }
    // The dictionaries that are no longer used die with the local lists, here in the thread.
    const std::lock_guard lock(m_checkMutex);
    m_dictionaries.swap(dictionaries);
    --m_loads;
    m_loaded.notify_all();
}

bool SpellingWorker::isCorrect(const QString &word, bool regardCase)
{
    std::unique_lock lock(m_checkMutex);
    m_loaded.wait(lock, [this] { return m_loads == 0; });
    if (m_dictionaries.empty() || isAccepted(word, regardCase))
        return true;
    return hasTypographicApostrophe(word) && isAccepted(withPlainApostrophes(word), regardCase);
}

bool SpellingWorker::isAccepted(const QString &word, bool regardCase)
{
    if (isAcceptedAsItIs(word))
        return true;
    if (regardCase)
        return false;
    const QStringList forms = otherCapitalisations(word);
    return std::any_of(forms.cbegin(), forms.cend(), [&](const QString &form) {
        return isAcceptedAsItIs(form) && !(form == word.toUpper() && isMeantWithSharpS(word));
    });
}

// Capitals do not tell ss from sharp s: "Strasse" is not right because "STRASSE" is.
bool SpellingWorker::isMeantWithSharpS(const QString &word)
{
    const QString sharp = word.toLower().replace(QLatin1String("ss"), QString(QChar(0xdf)));
    if (!sharp.contains(QChar(0xdf)))
        return false;
    QStringList forms = otherCapitalisations(sharp);
    forms.removeAll(sharp.toUpper());
    forms.append(sharp);
    return std::any_of(forms.cbegin(), forms.cend(),
                       [this](const QString &form) { return isAcceptedAsItIs(form); });
}

bool SpellingWorker::isAcceptedAsItIs(const QString &word)
{
    return std::any_of(
            m_dictionaries.cbegin(), m_dictionaries.cend(),
            [&word](const auto &dictionary) { return dictionary->checker->isCorrect(word); });
}

void SpellingWorker::addWord(const QString &word)
{
    post([this, word] {
        m_personalWords.append(word);
        for (const auto &dictionary : m_dictionaries) {
            if (dictionary->suggester)
                dictionary->suggester->addWord(word);
        }
    });
}

void SpellingWorker::wantSuggestions(const QString &word)
{
    start();
    const std::lock_guard lock(m_mutex);
    want(word);
}

std::optional<QStringList> SpellingWorker::awaitSuggestions(const QString &word, int patience)
{
    start();
    std::unique_lock lock(m_mutex);
    want(word);
    const auto areThere = [this, &word] { return m_suggestions.contains(word); };
    if (patience < 0)
        m_done.wait(lock, areThere);
    else if (!m_done.wait_for(lock, std::chrono::milliseconds(patience), areThere))
        return std::nullopt;
    return m_suggestions.value(word);
}

void SpellingWorker::want(const QString &word)
{
    if (m_suggestions.contains(word))
        return;
    m_wanted.push_front(word);
    if (m_wanted.size() > kMostWanted)
        m_wanted.pop_back();
    // Waking a thread costs more than all the rest of a check.
    if (m_isIdle)
        m_wake.notify_one();
}

void SpellingWorker::post(std::function<void()> job)
{
    {
        const std::lock_guard lock(m_mutex);
        m_jobs.push_back(std::move(job));
    }
    start();
    m_wake.notify_one();
}

void SpellingWorker::finishJobs()
{
    std::unique_lock lock(m_mutex);
    m_done.wait(lock, [this] { return m_jobs.empty() && !m_isBusy; });
}

void SpellingWorker::start()
{
    if (m_thread.joinable())
        return;
    m_isStopping = false;
    m_thread = std::thread([this] { run(); });
}

void SpellingWorker::stop()
{
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_isStopping = true;
    }
    m_wake.notify_one();
    m_thread.join();
}

void SpellingWorker::run()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_isIdle = true;
        m_wake.wait(lock, [this] { return m_isStopping || !m_jobs.empty() || !m_wanted.empty(); });
        m_isIdle = false;
        if (!m_jobs.empty())
            runJob(lock);
        else if (m_isStopping)
            return;
        else
            findSuggestions(lock);
    }
}

void SpellingWorker::runJob(std::unique_lock<std::mutex> &lock)
{
    const std::function<void()> job = std::move(m_jobs.front());
    m_jobs.pop_front();
    m_isBusy = true;
    lock.unlock();
    job();
    lock.lock();
    m_isBusy = false;
    m_done.notify_all();
}

void SpellingWorker::findSuggestions(std::unique_lock<std::mutex> &lock)
{
    const QString word = m_wanted.front();
    const int generation = m_generation;
    m_wanted.pop_front();
    if (m_suggestions.contains(word)) // It was wanted more than once.
        return;
    lock.unlock();
    const QStringList found = computeSuggestions(word);
    lock.lock();
    if (generation != m_generation)
        return;
    remember(word, found);
    m_done.notify_all();
    lock.unlock();
    m_announce(word);
    lock.lock();
}

// m_dictionaries itself is changed by this thread only, so that it may be read without a lock.
QStringList SpellingWorker::computeSuggestions(const QString &word)
{
    const QString plain = withPlainApostrophes(word);
    std::vector<QStringList> lists;
    for (const auto &dictionary : m_dictionaries) {
        if (!dictionary->suggester && m_make) {
            dictionary->suggester = m_make(dictionary->files);
            for (const QString &personal : std::as_const(m_personalWords)) {
                if (dictionary->suggester)
                    dictionary->suggester->addWord(personal);
            }
        }
        if (dictionary->suggester)
            lists.push_back(dictionary->suggester->suggestions(plain));
    }
    QStringList found = interleaved(lists);
    if (hasTypographicApostrophe(word)) {
        for (QString &suggestion : found)
            suggestion = withTypographicApostrophes(suggestion);
        found.removeDuplicates();
    }
    return found;
}

void SpellingWorker::remember(const QString &word, const QStringList &suggestions)
{
    m_suggestions.insert(word, suggestions);
    m_suggestionOrder.push_back(word);
    if (m_suggestionOrder.size() > kMostRemembered) {
        m_suggestions.remove(m_suggestionOrder.front());
        m_suggestionOrder.pop_front();
    }
}

} // namespace ombrin
