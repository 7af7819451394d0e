// Words to be judged, suggestions, what the user adds, and a personal file that is no text.

#include "FuzzTarget.h"

#include "core/PersonalWords.h"
#include "support/SpellingFolder.h"

namespace {

using ombrin::OmSpelling;
using ombrin::fuzz::Input;

constexpr int kMostSteps = 30;

void readPersonalFiles(Input *input)
{
    const QString folder = ombrin::fuzz::folder().path();
    const QByteArray bytes = input->rest();
    ombrin::fuzz::writeFile(folder + QStringLiteral("/personal.txt"), bytes);
    ombrin::fuzz::writeFile(folder + QStringLiteral("/replacements.txt"), bytes);
    ombrin::PersonalWords words(folder);
    const QStringList known = words.words();
    for (const QString &word : known)
        FUZZ_CHECK(words.contains(word, true) && words.contains(word, false));
    words.addReplacement(QStringLiteral("teh"), QStringLiteral("the"));
    words.replacementFile()->save();
    FUZZ_CHECK(ombrin::PersonalWords(folder).replacement(QStringLiteral("teh"))
               == QStringLiteral("the"));
}

void step(Input *input)
{
    static const QString dictionaries[] = {QStringLiteral("utf8"), QStringLiteral("latin"),
                                           QStringLiteral("greek,utf8"), QStringLiteral("cyrillic"),
                                           QString()};
    OmSpelling *const spelling = OmSpelling::instance();
    switch (input->choice(8)) {
    case 0:
        return spelling->setDict(dictionaries[input->choice(int(std::size(dictionaries)))]);
    case 1:
        return spelling->setRegardCase(input->choice(2) == 1);
    case 2: {
        const QString word = input->text();
        spelling->addToDictionary(word);
        FUZZ_CHECK(spelling->checkWord(word) == 1);
        return;
    }
    case 3: {
        const QString wrong = input->text();
        return spelling->replaceWord(wrong, input->text());
    }
    case 4: {
        const QStringList suggestions = spelling->suggestionList(input->text());
        FUZZ_CHECK(suggestions.size() < 1000);
        return;
    }
    case 5:
        return spelling->setDict(input->text());
    default: {
        const QString word = input->text();
        FUZZ_CHECK(spelling->checkWord(word) == spelling->checkWord(word));
        return;
    }
    }
}

void prepareDictionaries()
{
    static const auto *const folder = [] {
        auto *made = new ombrin::test::SpellingFolder;
        made->add(QStringLiteral("utf8"), {"hello",
                                           "stra\xC3\x9F"
                                           "e",
                                           "don't", "\xF0\x9F\x98\x80"});
        made->add(QStringLiteral("latin"), {"gr\xFC\xDF", "\xFF"}, "ISO8859-1");
        made->add(QStringLiteral("greek"), {"\xE1\xE2"}, "ISO8859-7");
        made->add(QStringLiteral("cyrillic"), {"\xC1\xC2"}, "KOI8-R");
        return made;
    }();
    Q_UNUSED(folder)
}

void run(Input input)
{
    prepareDictionaries();
    if (input.choice(4) == 0)
        return readPersonalFiles(&input);
    for (int steps = 0; steps < kMostSteps && !input.isEmpty(); ++steps)
        step(&input);
    ombrin::fuzz::runEvents();
}

} // namespace

OMBRIN_FUZZ_TARGET(run)
