#include "support/RatioCase.h"

#include <ombrin/OmCheckBoxAssortmentView.h>

using ombrin::OmCheckBoxAssortmentView;
using ombrin::bench::RatioCase;

namespace {

constexpr int kItems = 2000;

// Adds kItems items one by one, to views of \a itemsPerView each.
void addItems(benchmark::State &state, int itemsPerView)
{
    for (auto _ : state) {
        for (int added = 0; added < kItems; added += itemsPerView) {
            OmCheckBoxAssortmentView view(nullptr);
            for (int i = 0; i < itemsPerView; ++i)
                view.items().append(QStringLiteral("Friends"), true, Qt::black, QVariant());
        }
    }
}

const RatioCase adding(
        "check boxes added to 2,000 vs to 200, per item", 2,
        [](benchmark::State &state) { addItems(state, kItems); },
        [](benchmark::State &state) { addItems(state, kItems / 10); });

} // namespace
