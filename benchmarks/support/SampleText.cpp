#include "support/SampleText.h"

#include "core/SpellingBackend.h"

#include <QtCore/QFile>
#include <QtCore/QStringList>

#include <algorithm>

namespace ombrin::bench {

QStringList dictionaryWords(const QString &name, int count)
{
    QFile file(installedDictionaries().value(name).words);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList all = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n')).mid(1);
    for (QString &line : all)
        line = line.section(QLatin1Char('/'), 0, 0).section(QLatin1Char('\t'), 0, 0);
    all.erase(std::remove_if(all.begin(), all.end(),
                             [](const QString &word) {
                                 return word.size() < 4
                                        || !std::all_of(word.cbegin(), word.cend(),
                                                        [](QChar c) { return c.isLower(); });
                             }),
              all.end());
    QStringList chosen;
    for (int i = 0; i < qMin(count, static_cast<int>(all.size())); ++i)
        chosen.append(all.at(static_cast<int>(qint64(i) * all.size() / count)));
    return chosen;
}

QString sampleText(const QStringList &words, int length, int wrongOneIn)
{
    QString text;
    int paragraph = 0;
    for (int i = 0; text.size() < length; ++i) {
        // Not in alphabetical order.
        const QString &word = words.at(static_cast<int>(qint64(i) * 7919 % words.size()));
        text += i % wrongOneIn == 0 ? misspelt(word) : word;
        const bool isEnd = text.size() - paragraph > 100;
        text += isEnd ? QStringLiteral(".\n") : QStringLiteral(" ");
        if (isEnd)
            paragraph = static_cast<int>(text.size());
    }
    return text;
}

} // namespace ombrin::bench
