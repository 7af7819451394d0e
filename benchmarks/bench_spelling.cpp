#include "support/RatioCase.h"
#include "support/SampleText.h"

#include "core/SpellingBackend.h"

#include <ombrin/OmSpelling.h>

#include <QtCore/QFile>

#include <hunspell/hunspell.hxx>

// What the spelling service costs beside Hunspell itself, which is asked as simply as can be.

using ombrin::OmSpelling;
using ombrin::bench::dictionaryWords;
using ombrin::bench::misspelt;
using ombrin::bench::RatioCase;

namespace {

constexpr int kManyWords = 20000; // More than the service remembers.
constexpr int kFewWords = 500;

const QString &dictionary()
{
    static const QString name = QStringLiteral("en_US");
    return name;
}

QStringList sample(int count, int wrongOneIn)
{
    QStringList words = dictionaryWords(dictionary(), count);
    for (int i = 0; i < words.size(); i += wrongOneIn)
        words[i] = misspelt(words.at(i));
    return words;
}

void checkWords(benchmark::State &state, const QStringList &words, bool isNew)
{
    OmSpelling *spelling = OmSpelling::instance();
    spelling->setDict(dictionary());
    spelling->setRegardCase(true);
    for (const QString &word : words)
        spelling->checkWord(word);
    for (auto _ : state) {
        if (isNew) { // Has the service forget every word.
            spelling->setRegardCase(false);
            spelling->setRegardCase(true);
        }
        for (const QString &word : words)
            benchmark::DoNotOptimize(spelling->checkWord(word));
    }
}

void askHunspell(benchmark::State &state, const QStringList &words)
{
    const ombrin::SpellingFiles files = ombrin::installedDictionaries().value(dictionary());
    Hunspell hunspell(QFile::encodeName(files.affixes).constData(),
                      QFile::encodeName(files.words).constData());
    for (auto _ : state) {
        for (const QString &word : words)
            benchmark::DoNotOptimize(hunspell.spell(word.toStdString()));
    }
}

RatioCase compare(const char *name, double target, int count, int wrongOneIn, bool isNew)
{
    return RatioCase(
            name, target,
            [=](benchmark::State &state) { checkWords(state, sample(count, wrongOneIn), isNew); },
            [=](benchmark::State &state) { askHunspell(state, sample(count, wrongOneIn)); });
}

const RatioCase cases[] = {
        compare("spelling: correct words, new", 1.3, kManyWords, kManyWords, true),
        compare("spelling: words new, one in ten wrong", 1.3, kManyWords, 10, true),
        compare("spelling: correct words, seen before", 0.3, kFewWords, kFewWords, false),
        compare("spelling: words seen before, one in ten wrong", 0.3, kFewWords, 10, false),
};

} // namespace
