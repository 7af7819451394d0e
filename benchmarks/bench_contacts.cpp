#include "support/RatioCase.h"

#include <ombrin/OmContactCardList.h>

#include <QtCore/QCoreApplication>
#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QToolButton>

#include <malloc.h>

#include <algorithm>
#include <memory>

using namespace ombrin::bench;
using ombrin::OmContactCard;
using ombrin::OmContactCardList;

namespace {

constexpr int kMany = 10000;
constexpr int kFew = 1000;
constexpr QSize kListSize(260, 600);

const QPixmap &picture()
{
    static const QPixmap pixmap = [] {
        QPixmap canvas(96, 96);
        canvas.fill(Qt::darkCyan);
        return canvas;
    }();
    return pixmap;
}

QString aliasOf(int contact)
{
    return QStringLiteral("Contact number %1").arg(contact);
}

// The trace lines of the cards would be most of what is measured.
void muteTrace()
{
    static const auto previous = qInstallMessageHandler(nullptr);
    Q_UNUSED(previous)
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
}

void showNow(QWidget *widget)
{
    widget->resize(kListSize);
    widget->show();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

std::unique_ptr<QWidget> shownList(int contacts)
{
    muteTrace();
    auto list = std::make_unique<OmContactCardList>();
    for (int contact = 0; contact < contacts; ++contact) {
        auto *card = new OmContactCard;
        card->setAlias(aliasOf(contact));
        card->setAvatar(picture(), false);
        card->setStatus(ombrin::Om::Online);
        card->setGeneralApp(static_cast<ombrin::Om::ClientApplication>(11));
        list->addCard(card);
    }
    showNow(list.get());
    return list;
}

// What one writes without thinking: six visible children each.
QWidget *ordinaryCard(int contact)
{
    auto *card = new QWidget;
    auto *row = new QHBoxLayout(card);
    auto *avatar = new QLabel;
    avatar->setFixedSize(32, 32);
    avatar->setPixmap(picture().scaled(32, 32, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    auto *indicator = new QLabel;
    indicator->setFixedSize(18, 18);
    auto *texts = new QVBoxLayout;
    texts->addWidget(new QLabel(aliasOf(contact)));
    texts->addWidget(new QLabel(QStringLiteral("Online")));
    row->addWidget(avatar);
    row->addLayout(texts);
    row->addWidget(indicator);
    for (int button = 0; button < 2; ++button)
        row->addWidget(new QToolButton);
    return card;
}

std::unique_ptr<QWidget> shownOrdinaryList(int contacts)
{
    auto area = std::make_unique<QScrollArea>();
    auto *column = new QWidget;
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (int contact = 0; contact < contacts; ++contact)
        layout->addWidget(ordinaryCard(contact));
    layout->addStretch();
    area->setWidget(column);
    area->setWidgetResizable(true);
    showNow(area.get());
    return area;
}

using ShowList = std::unique_ptr<QWidget> (*)(int contacts);

Body filling(ShowList show, int contacts, int lists = 1)
{
    return [=](benchmark::State &state) {
        for (auto _ : state) {
            for (int list = 0; list < lists; ++list) {
                std::unique_ptr<QWidget> shown = show(contacts);
                state.PauseTiming();
                shown.reset();
                state.ResumeTiming();
            }
        }
    };
}

Body memory(ShowList show)
{
    return [=](benchmark::State &state) {
        show(10); // what is kept once for all
        for (auto _ : state) {
            const std::size_t before = mallinfo2().uordblks;
            const std::unique_ptr<QWidget> shown = show(kMany);
            state.counters[kFigure] = static_cast<double>(mallinfo2().uordblks - before);
        }
    };
}

// One click on each of two cards, \a clicks times.
Body clicking(int contacts, int first, int second, int clicks)
{
    return [=](benchmark::State &state) {
        const std::unique_ptr<QWidget> shown = shownList(contacts);
        auto *const list = static_cast<OmContactCardList *>(shown.get());
        for (auto _ : state) {
            for (int click = 0; click < clicks; ++click) {
                for (const int index : {first, second}) {
                    Q_EMIT list->card(index)->clicked();
                    QCoreApplication::sendPostedEvents();
                }
            }
        }
    };
}

// A visible contact among thousands comes and goes, and is painted.
void changeCard(benchmark::State &state)
{
    const std::unique_ptr<QWidget> shown = shownList(kMany);
    OmContactCard *const card = static_cast<OmContactCardList *>(shown.get())->card(3);
    bool isAway = false;
    for (auto _ : state) {
        isAway = !isAway;
        card->setStatus(isAway ? ombrin::Om::Away : ombrin::Om::Online);
        QCoreApplication::sendPostedEvents();
    }
}

void changeLabel(benchmark::State &state)
{
    const std::unique_ptr<QWidget> shown = shownOrdinaryList(kMany);
    QWidget *const column = static_cast<QScrollArea *>(shown.get())->widget();
    QWidget *const card = column->layout()->itemAt(3)->widget();
    const auto labels = card->findChildren<QLabel *>();
    QLabel *const label = *std::find_if(labels.begin(), labels.end(), [](const QLabel *candidate) {
        return candidate->text() == QStringLiteral("Online");
    });
    bool isAway = false;
    for (auto _ : state) {
        isAway = !isAway;
        label->setText(isAway ? QStringLiteral("Away") : QStringLiteral("Online"));
        QCoreApplication::sendPostedEvents();
    }
}

const RatioCase kCases[] = {
        {"10,000 contacts, time to fill and show : six children each", 0.15,
         filling(shownList, kMany), filling(shownOrdinaryList, kMany)},
        {"10,000 contacts, memory : six children each", 0.3, memory(shownList),
         memory(shownOrdinaryList)},
        {"10,000 contacts : ten times 1,000", 1.5, filling(shownList, kMany),
         filling(shownList, kFew, 10)},
        {"click, all cards move, 10,000 : ten times 1,000", 3, clicking(kMany, 0, kMany - 1, 1),
         clicking(kFew, 0, kFew - 1, 10)},
        {"10,000 contacts, one changes status : six children each", 0.1, changeCard, changeLabel},
        {"click, one card moves, 10,000 : 1,000", 3, clicking(kMany, 3, 4, 10),
         clicking(kFew, 3, 4, 10)},
};

} // namespace
