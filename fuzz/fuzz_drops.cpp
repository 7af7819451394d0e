// What other programs drag onto the widgets that take drops.

#include "FuzzTarget.h"

#include <ombrin/OmContactCard.h>
#include <ombrin/OmQtCompat.h>
#include <ombrin/OmTabBar.h>
#include <ombrin/OmTextBrowser.h>
#include <ombrin/OmTextEdit.h>

#include <QtCore/QMimeData>
#include <QtGui/QDropEvent>

#include <memory>

namespace {

using ombrin::fuzz::Input;

QWidget *viewportOf(QAbstractScrollArea *area)
{
    return area->viewport();
}

void drag(QWidget *target, const QMimeData &data, Input *input)
{
    const QPoint first(input->number(), input->number());
    const QPoint last(input->number(), input->number());
    const auto actions = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(first, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
    QDragMoveEvent move(last, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &move);
    if (input->choice(4) == 0) {
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(target, &leave);
        return;
    }
    QDropEvent drop(last, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &drop);
}

void fill(QMimeData *data, Input *input)
{
    static const char *const kTypes[] = {
            "binary/ombrin-tab", "text/uri-list",          "text/plain",         "text/html",
            "image/png",         "application/x-qt-image", "application/x-color"};
    for (int count = input->choice(3); count >= 0; --count) {
        const QString type = QString::fromLatin1(kTypes[input->choice(int(std::size(kTypes)))]);
        data->setData(type, input->line());
    }
}

void run(Input input)
{
    const int kind = input.choice(4);
    QMimeData data;
    fill(&data, &input);
    if (kind == 0) {
        ombrin::OmTabBar bar;
        for (int tab = input.choice(5); tab > 0; --tab)
            bar.addTab(input.text());
        bar.enableDragableTabs(true);
        bar.resize(200, 30);
        drag(&bar, data, &input);
        bar.grab();
    } else if (kind == 1) {
        ombrin::OmContactCard card;
        card.setAlias(input.text());
        card.setOwn(true);
        card.resize(200, 50);
        drag(&card, data, &input);
        card.grab();
    } else if (kind == 2) {
        ombrin::OmTextEdit edit;
        drag(viewportOf(&edit), data, &input);
        edit.grab();
    } else {
        ombrin::OmTextBrowser browser;
        drag(viewportOf(&browser), data, &input);
        browser.grab();
    }
    ombrin::fuzz::runEvents();
}

} // namespace

OMBRIN_FUZZ_TARGET(run)
