#include "support/RatioCase.h"

#include <ombrin/OmLabel.h>

#include <QtCore/QCoreApplication>
#include <QtGui/QFontMetrics>

using ombrin::OmLabel;
using ombrin::bench::RatioCase;

namespace {

constexpr int kNarrowest = 30;
constexpr int kWidths = 1000;
constexpr int kHeight = 20;

// The same widths for both sides, as far apart as those of a window that is dragged fast.
int nextWidth(int *step)
{
    *step = (*step + 7) % kWidths;
    return kNarrowest + *step;
}

QString textOfLength(int length)
{
    const QString words = QStringLiteral("Back in ten minutes, gone for a walk with the dog. ");
    return words.repeated(length / static_cast<int>(words.size()) + 1).left(length);
}

// A label on screen, as a hidden one is told of its size only once.
void resizeLabel(benchmark::State &state, const QString &text)
{
    QWidget window;
    window.resize(kNarrowest + kWidths, kHeight);
    OmLabel label(true, &window);
    label.resize(kNarrowest, kHeight);
    label.setText(text);
    window.show();
    QCoreApplication::processEvents();
    int step = 0;
    for (auto _ : state)
        label.resize(nextWidth(&step), kHeight);
}

void elideText(benchmark::State &state, const QString &text)
{
    const QFontMetrics metrics{OmLabel().font()};
    int step = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(metrics.elidedText(text, Qt::ElideRight, nextWidth(&step)));
}

RatioCase compare(const char *name, int length)
{
    return RatioCase(
            name, 1.2, [=](benchmark::State &state) { resizeLabel(state, textOfLength(length)); },
            [=](benchmark::State &state) { elideText(state, textOfLength(length)); });
}

const RatioCase resizeCases[] = {
        compare("resized OmLabel, 30 characters, vs elidedText", 30),
        compare("resized OmLabel, 100 characters, vs elidedText", 100),
        compare("resized OmLabel, 1,000 characters, vs elidedText", 1000),
        compare("resized OmLabel, 100,000 characters, vs elidedText", 100000),
};

} // namespace
