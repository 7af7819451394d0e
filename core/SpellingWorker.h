#pragma once

#include "core/SpellingBackend.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace ombrin {

/// Owns the loaded dictionaries and the thread that loads them, computes suggestions and stores
/// what the user adds.
///
/// Every dictionary is loaded twice. One copy computes suggestions and is used by the thread alone.
/// The other answers isCorrect(), in the caller's thread under a lock that nothing holds for long:
/// asking the thread would take longer than the answer, and the thread may just be busy with a
/// suggestion for a quarter of a second. Both are made and destroyed in the thread only, one at a
/// time.
class SpellingWorker
{
public:
    /// Called in the thread when the suggestions for a word are there.
    using Announcement = std::function<void(const QString &word)>;

    explicit SpellingWorker(Announcement announce);
    /// Does what is still to be stored, then ends the thread.
    ~SpellingWorker();

    /// Loads \a dictionaries in place of those in use; \a personalWords may be suggested as well.
    /// Suggestions computed or wanted so far are forgotten.
    void load(const std::vector<SpellingFiles> &dictionaries, const QStringList &personalWords);

    /// Whether a dictionary accepts \a word, or any capitalisation of it unless \a regardCase.
    /// Waits for what load() has begun. True without a usable dictionary.
    bool isCorrect(const QString &word, bool regardCase);

    /// Lets \a word be suggested.
    void addWord(const QString &word);

    /// Computes suggestions for \a word when there is nothing else to do, the latest word first.
    void wantSuggestions(const QString &word);
    /// Computes the suggestions for \a word next and waits for them for at most \a patience
    /// milliseconds, or without an end if that is negative. Nothing if they are not there by then.
    std::optional<QStringList> awaitSuggestions(const QString &word, int patience);

    /// Runs \a job in the thread before any suggestion.
    void post(std::function<void()> job);
    /// Waits until every job is done.
    void finishJobs();
    /// Ends the thread; it begins anew when there is something to do.
    void stop();

private:
    struct Dictionary
    {
        SpellingFiles files;
        std::unique_ptr<SpellingBackend> checker;
        std::unique_ptr<SpellingBackend> suggester;
    };
    using Dictionaries = std::vector<std::shared_ptr<Dictionary>>;

    void start();
    void run();
    void runJob(std::unique_lock<std::mutex> &lock);
    void findSuggestions(std::unique_lock<std::mutex> &lock);
    void exchangeDictionaries(const std::vector<SpellingFiles> &wanted);
    bool isAccepted(const QString &word, bool regardCase);
    bool isMeantWithSharpS(const QString &word);
    bool isAcceptedAsItIs(const QString &word);
    QStringList computeSuggestions(const QString &word);
    void want(const QString &word);
    void remember(const QString &word, const QStringList &suggestions);

    const Announcement m_announce;
    std::thread m_thread;

    // Guards what follows, up to the next mutex.
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::condition_variable m_done;
    std::deque<std::function<void()>> m_jobs;
    std::deque<QString> m_wanted;
    QHash<QString, QStringList> m_suggestions;
    std::deque<QString> m_suggestionOrder;
    int m_generation = 0;
    bool m_isBusy = false;
    bool m_isIdle = false;
    bool m_isStopping = false;

    std::mutex m_checkMutex;
    std::condition_variable m_loaded;
    Dictionaries m_dictionaries;
    int m_loads = 0;

    // Of the thread alone.
    SpellingBackendFactory m_make;
    QStringList m_personalWords;
};

} // namespace ombrin
