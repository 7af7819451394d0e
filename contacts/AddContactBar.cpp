#include "contacts/AddContactBar.h"

#include "skin/SkinPixmap.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QToolButton>

namespace ombrin {

namespace {

constexpr QSize kIconSize(32, 32);
constexpr QSize kButtonSize(40, 40);

} // namespace

AddContactBar::AddContactBar(QWidget *parent)
    : QWidget(parent)
    , m_button(new QToolButton(this))
{
    m_button->setIconSize(kIconSize);
    m_button->setFixedSize(kButtonSize);
    m_button->setIcon(skinPixmap(QStringLiteral(":/addmulti-32")));
    m_button->setAutoRaise(true);
    m_button->setFocusPolicy(Qt::NoFocus);
    connect(m_button, &QToolButton::clicked, this, &AddContactBar::clicked);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_button);
    row->addItem(new QSpacerItem(1, 1, QSizePolicy::Expanding, QSizePolicy::Minimum));
    setTexts();
}

void AddContactBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    QWidget::changeEvent(event);
}

void AddContactBar::setTexts()
{
    m_button->setToolTip(
            QCoreApplication::translate("ombrin::OmContactCardList", "Add Contact(s)"));
}

} // namespace ombrin
