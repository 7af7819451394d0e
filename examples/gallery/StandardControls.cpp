#include "StandardControls.h"

#include "PageKit.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QBoxLayout>

namespace gallery {

namespace {

struct StandardControls
{
    Q_DECLARE_TR_FUNCTIONS(StandardControls)
};

void addState(QBoxLayout *cards, const QString &title, QWidget *panel)
{
    auto *card = new Card(title);
    card->body()->addWidget(panel, 1);
    cards->addWidget(card, 1);
}

} // namespace

QBoxLayout *controlRow()
{
    auto *layout = new QHBoxLayout;
    layout->setSpacing(8);
    return layout;
}

QVBoxLayout *panelColumn(QWidget *panel, int spacing)
{
    auto *column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    return column;
}

void showInThreeStates(QWidget *page, QWidget *(*create)())
{
    QWidget *disabled = create();
    disabled->setEnabled(false);
    QWidget *mirrored = create();
    mirrored->setLayoutDirection(Qt::RightToLeft);

    QBoxLayout *cards = cardStack(Qt::Horizontal);
    addState(cards, StandardControls::tr("Normal"), create());
    addState(cards, StandardControls::tr("Disabled"), disabled);
    addState(cards, StandardControls::tr("Right to left"), mirrored);
    cardColumn(page)->addLayout(cards, 1);
}

} // namespace gallery
