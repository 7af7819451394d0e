#include "support/RatioCase.h"

#include <ombrin/OmScribbledZebraItemText.h>
#include <ombrin/OmScribbledZebraView.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QGraphicsScene>
#include <QtWidgets/QGraphicsSimpleTextItem>

#include <memory>

using ombrin::bench::Body;
using ombrin::bench::RatioCase;

namespace {

constexpr int kFew = 1000;
constexpr int kMany = 10000;
constexpr int kColumns = 2;

// Shows what it paints without a window.
class View : public OmScribbledZebraView
{
public:
    View()
        : OmScribbledZebraView(nullptr)
    {
        resize(400, 300);
        poles().append(100, true);
        poles().append(110, true);
        grab();
    }
    void paintStripes(QPainter *painter) { drawBackground(painter, QRectF(0, 2000, 400, 300)); }
};

QString textOf(int number)
{
    return QStringLiteral("Text %1").arg(number);
}

// The labels of each line end at the first pole, the values start at the second.
OmScribbledZebraItemText *newItem(int number)
{
    return new OmScribbledZebraItemText(number % kColumns, number / kColumns,
                                        number % kColumns != 0, textOf(number), nullptr);
}

std::unique_ptr<View> filledView(int count)
{
    auto view = std::make_unique<View>();
    view->blockRefresh(true);
    for (int number = 0; number < count; ++number)
        view->items().append(newItem(number));
    view->blockRefresh(false);
    return view;
}

// Appends count items to an empty view, as often as makes kMany altogether.
Body appendOneByOne(int count)
{
    return [count](benchmark::State &state) {
        for (auto _ : state) {
            for (int done = 0; done < kMany; done += count) {
                state.PauseTiming();
                auto view = std::make_unique<View>();
                state.ResumeTiming();
                for (int number = 0; number < count; ++number)
                    view->items().append(newItem(number));
                state.PauseTiming();
                view.reset();
                state.ResumeTiming();
            }
        }
    };
}

Body changeOneItem(int count)
{
    return [count](benchmark::State &state) {
        const auto view = filledView(count);
        auto *const item = static_cast<OmScribbledZebraItemText *>(view->items().at(count / 2));
        int step = 0;
        for (auto _ : state)
            item->setText(textOf(++step % 2 + 10));
    };
}

Body paintStripes(int count)
{
    return [count](benchmark::State &state) {
        const auto view = filledView(count);
        QImage image(400, 300, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.translate(0, -2000);
        for (auto _ : state)
            view->paintStripes(&painter);
    };
}

void fillBlockedView(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto view = std::make_unique<View>();
        view->blockRefresh(true);
        for (int number = 0; number < kMany; ++number)
            view->items().append(newItem(number));
        state.ResumeTiming();
        view->blockRefresh(false);
        state.PauseTiming();
        view.reset();
        state.ResumeTiming();
    }
}

void buildAndFillView(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto view = std::make_unique<View>();
        state.ResumeTiming();
        view->blockRefresh(true);
        for (int number = 0; number < kMany; ++number)
            view->items().append(newItem(number));
        view->blockRefresh(false);
        state.PauseTiming();
        view.reset();
        state.ResumeTiming();
    }
}

void addPlainTexts(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto scene = std::make_unique<QGraphicsScene>(0, 0, 400, 20 * kMany / kColumns);
        state.ResumeTiming();
        for (int number = 0; number < kMany; ++number) {
            auto *const item = new QGraphicsSimpleTextItem(textOf(number));
            item->setPos(number % kColumns * 110, number / kColumns * 20 + 3);
            scene->addItem(item);
        }
        state.PauseTiming();
        scene.reset();
        state.ResumeTiming();
    }
}

const RatioCase zebraCases[] = {
        RatioCase("zebra: appending an item, one of 10,000 vs one of 1,000", 2.0,
                  appendOneByOne(kMany), appendOneByOne(kFew)),
        RatioCase("zebra: layout after a change, among 10,000 vs 1,000", 1.5, changeOneItem(kMany),
                  changeOneItem(kFew)),
        RatioCase("zebra: stripes behind 10,000 items vs 1,000", 1.5, paintStripes(kMany),
                  paintStripes(kFew)),
        RatioCase("zebra: first layout of 10,000 vs plain text items in a scene", 1.5,
                  fillBlockedView, addPlainTexts),
        RatioCase("zebra: making 10,000 items and the layout vs plain ones", 3.0, buildAndFillView,
                  addPlainTexts),
};

} // namespace
