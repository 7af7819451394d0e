#include "support/RatioCase.h"

#include <ombrin/OmSafeHtml.h>
#include <ombrin/OmTextBrowser.h>
#include <ombrin/vhutilities.h>

#include "text/RecogniserPatterns.h"

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QTextDocument>

using namespace ombrin;
using bench::RatioCase;

namespace {

constexpr int kKilobyte = 1024;

// A conversation that is on show while messages come in.
template <typename Browser>
void appendMessages(benchmark::State &state, int count)
{
    const QString message = QStringLiteral("<b>Ann:</b> see <a href='http://example.com'>this</a>");
    for (auto _ : state) {
        Browser browser;
        browser.resize(400, 300);
        browser.ensurePolished();
        // Links look alike in both: a style sheet costs the same wherever it comes from.
        browser.document()->setDefaultStyleSheet(
                QStringLiteral("a { text-decoration: underline; color: #009cff }"));
        for (int i = 0; i < count; ++i)
            browser.append(message);
    }
}

const RatioCase appending(
        "10,000 messages appended to OmTextBrowser vs QTextBrowser", 1.05,
        [](benchmark::State &state) { appendMessages<OmTextBrowser>(state, 10000); },
        [](benchmark::State &state) { appendMessages<QTextBrowser>(state, 10000); });

// In brackets, which change nothing, as QRegExp shares what the recognisers have built of the same
// expressions.
QString inBrackets(const char *pattern)
{
    QString inner = QString::fromLatin1(pattern);
    if (inner.startsWith(QLatin1Char('^')))
        inner.remove(0, 1);
    if (inner.endsWith(QLatin1Char('$')))
        inner.chop(1);
    return QStringLiteral("(?:%1)").arg(inner);
}

const RatioCase building(
        "phone number recognised vs expressions built per call", 0.05,
        [](benchmark::State &state) {
            for (auto _ : state)
                benchmark::DoNotOptimize(
                        vhutilities::IsPossiblePhoneNumber(QStringLiteral("12-34")));
        },
        [](benchmark::State &state) {
            QStringList patterns;
            for (const char *pattern : vhutilities::kPhonePatterns)
                patterns.append(inBrackets(pattern));
            for (auto _ : state) {
                for (const QString &pattern : std::as_const(patterns))
                    benchmark::DoNotOptimize(vhutilities::IsStringMatchingWithRegularExpression(
                            QStringLiteral("12-34"), pattern));
            }
        });

using Recogniser = bool (*)(const QString &);

bool isPhoneNumber(const QString &text)
{
    return vhutilities::IsPossiblePhoneNumber(text);
}

bool isAddress(const QString &text)
{
    return vhutilities::IsPossibleEMailAddress(text, false);
}

// Ten times the text may take ten times as long; the rest is for what no longer fits a cache.
RatioCase linear(const char *name, const char *unit, Recogniser recognise)
{
    const auto body = [unit, recognise](int kilobytes, int rounds) {
        return [=](benchmark::State &state) {
            const QString text = QString::fromLatin1(unit).repeated(
                    kilobytes * kKilobyte / static_cast<int>(qstrlen(unit)));
            for (auto _ : state) {
                for (int round = 0; round < rounds; ++round)
                    benchmark::DoNotOptimize(recognise(text));
            }
        };
    };
    return RatioCase(name, 1.5, body(100, 1), body(10, 10));
}

const RatioCase growth[] = {
        linear("phone number, 100 KB of digits vs ten times 10 KB", "1", isPhoneNumber),
        linear("phone number, 100 KB of letters vs ten times 10 KB", "a", isPhoneNumber),
        linear("phone number, 100 KB of 12- vs ten times 10 KB", "12-", isPhoneNumber),
        linear("address, 100 KB of letters vs ten times 10 KB", "a", isAddress),
        linear("address, 100 KB of labels vs ten times 10 KB", "a-b.", isAddress),
        linear("address, 100 KB of escapes vs ten times 10 KB", "%aa", isAddress),
};

void layOut(benchmark::State &state, const QString &html)
{
    for (auto _ : state) {
        QTextDocument document;
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        document.setDefaultTextOption(option);
        document.setTextWidth(400);
        document.setHtml(OmSafeHtml::fromHtml(html));
        benchmark::DoNotOptimize(document.documentLayout()->documentSize());
    }
}

// Hostile messages beside ordinary ones of the same length.
RatioCase hostile(const char *name, double target, const QString &html)
{
    const QString words = QStringLiteral("Back in ten minutes. ");
    return RatioCase(
            name, target, [=](benchmark::State &state) { layOut(state, html); },
            [=](benchmark::State &state) {
                const int count = static_cast<int>((html.size() + words.size()) / words.size());
                layOut(state, words.repeated(count));
            });
}

const RatioCase hostileCases[] = {
        hostile("safe HTML, tables 18 deep vs words", 2,
                QStringLiteral("<table><tr><td>").repeated(18)),
        hostile("safe HTML, 10,000 nested tags vs words", 2, QStringLiteral("<b>").repeated(10000)),
        hostile("safe HTML, word of 200,000 letters vs words", 4,
                QString(200000, QLatin1Char('a'))),
        hostile("safe HTML, 16,000 paragraphs vs words", 4, QStringLiteral("<p>x").repeated(16000)),
        hostile("safe HTML, 16,000 list items vs words", 4,
                QStringLiteral("<ul>") + QStringLiteral("<li>").repeated(16000)),
};

} // namespace
