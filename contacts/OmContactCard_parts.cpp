// The widgets that a contact card is made of, made when they are needed.

#include <ombrin/OmContactCard.h>

#include "contacts/CardLayout.h"
#include "contacts/ColumnLayout.h"
#include "contacts/ContactActions.h"
#include "skin/SkinPixmap.h"

#include <ombrin/OmAvatarSmall.h>
#include <ombrin/OmLabel.h>

#include <QAction>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QToolBar>

#include <algorithm>
#include <utility>

namespace ombrin {

namespace {

constexpr int kSmallHeight = 48;
constexpr int kBigHeight = 72;
constexpr int kSmallAvatar = 32;
constexpr int kBigAvatar = 50;
constexpr int kMargin = 3;
constexpr QSize kIndicatorSize(18, 18);
constexpr QSize kActionIconSize(12, 12);

template <typename Layout>
Layout *createTightLayout()
{
    auto *layout = new Layout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

/// A text that may come from other people. It begins at the picture, whichever way it runs.
class CardText : public OmLabel
{
public:
    explicit CardText(QWidget *parent)
        : OmLabel(true, parent)
    {
        setTextFormat(Qt::PlainText);
        beginAtPicture();
    }

protected:
    void changeEvent(QEvent *event) override
    {
        OmLabel::changeEvent(event);
        if (event->type() == QEvent::LayoutDirectionChange)
            beginAtPicture();
    }

private:
    void beginAtPicture()
    {
        const Qt::Alignment side = isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
        setAlignment(side | Qt::AlignAbsolute | Qt::AlignVCenter);
    }
};

bool breaksLine(QChar c)
{
    const QChar::Category category = c.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line
           || category == QChar::Separator_Paragraph;
}

} // namespace

// The layouts of the card, and of the list it is in, are told of changes of sizes and nothing else:
// see CardLayout and ColumnLayout.
void OmContactCard::changeSize()
{
    ColumnLayout *const column = ColumnLayout::of(this);
    const int previousHeight = minimumHeight();
    {
        const ColumnLayout::Silence silence(column);
        createFace();
        createTools();
        if (m_big)
            fillToolBar();
        m_toolBar->setVisible(m_big);
        resizeParts();
        m_avatar->setAvatar(m_avatar->avatar(), false);
        m_layout->layOut();
    }
    if (column)
        column->resized(this, m_big, minimumHeight() - previousHeight);
}

void OmContactCard::createFace()
{
    if (m_avatar)
        return;
    const ColumnLayout::Silence silence(ColumnLayout::of(this));
    m_avatar = new OmAvatarSmall(this);
    connect(m_avatar, &OmAvatarSmall::clicked, this, &OmContactCard::avatarClicked);

    m_layout = new CardLayout(this);
    m_layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    m_layout->setSpacing(kMargin);
    m_layout->addItem(new QSpacerItem(1, 1, QSizePolicy::Fixed, QSizePolicy::Minimum));
    m_layout->addWidget(m_avatar);
    m_layout->addLayout(createTextColumn());

    resizeParts();
    m_avatar->setAvatar(m_pendingPicture, m_pendingHover);
    m_pendingPicture = QPixmap();
    showAlias();
    showStatus();
    indicate(m_indication);
    showFace();
}

QLayout *OmContactCard::createTextColumn()
{
    m_aliasLabel = new CardText(this);
    m_statusLabel = new CardText(this);
    m_indicatorLabel = new QLabel(this);
    m_indicatorLabel->setFixedSize(kIndicatorSize);
    m_toolRow = createTightLayout<QHBoxLayout>();

    auto *texts = createTightLayout<QVBoxLayout>();
    texts->addWidget(m_aliasLabel);
    texts->addWidget(m_statusLabel);
    auto *upper = createTightLayout<QHBoxLayout>();
    upper->addLayout(texts);
    upper->addWidget(m_indicatorLabel);
    upper->addItem(new QSpacerItem(8, 1, QSizePolicy::Fixed, QSizePolicy::Minimum));

    auto *column = createTightLayout<QVBoxLayout>();
    column->addItem(new QSpacerItem(1, 2, QSizePolicy::Minimum, QSizePolicy::Fixed));
    column->addLayout(upper);
    column->addLayout(m_toolRow);
    column->addItem(new QSpacerItem(1, 1, QSizePolicy::Minimum, QSizePolicy::Expanding));
    return column;
}

// A card that is being painted paints its new parts right afterwards.
void OmContactCard::showFace()
{
    if (isVisible()) {
        for (QWidget *part :
             {static_cast<QWidget *>(m_avatar), static_cast<QWidget *>(m_aliasLabel),
              static_cast<QWidget *>(m_statusLabel), static_cast<QWidget *>(m_indicatorLabel)})
            part->show();
    }
    m_layout->layOut();
}

void OmContactCard::createTools()
{
    if (m_toolBar)
        return;
    m_toolBar = new QToolBar(this);
    m_toolBar->setObjectName(QStringLiteral("actionToolBar"));
    m_toolBar->setIconSize(kActionIconSize);
    m_toolBar->hide();
    m_toolRow->addWidget(m_toolBar);
    // Its own actions report themselves, as they do when they are chosen in the menu.
    connect(m_toolBar, &QToolBar::actionTriggered, this, [this](QAction *action) {
        if (!m_actions.contains(action))
            slotAction(action);
    });
    for (std::size_t index = 0; index < kContactActionCount; ++index) {
        auto *action = new QAction(m_toolBar);
        connect(action, &QAction::triggered, this, [this, action] { slotAction(action); });
        m_actions.append(action);
        showAction(static_cast<int>(index));
    }
}

void OmContactCard::showAction(int index)
{
    const ContactActionLook &look = contactActionLook(static_cast<ContactAction>(index), m_blocked);
    QAction *const action = m_actions.at(index);
    action->setIcon(skinPixmap(QLatin1String(look.icon)));
    action->setText(tr(look.text));
    action->setObjectName(QLatin1String(look.id));
    action->setToolTip(tr(look.toolTip));
}

void OmContactCard::fillToolBar()
{
    for (QAction *action : std::as_const(m_actions))
        m_toolBar->removeAction(action);
    if (const ClientActions *const client = clientActions(m_generalApp)) {
        for (const ContactAction action : *client)
            m_toolBar->addAction(m_actions.at(static_cast<int>(action)));
    }
}

void OmContactCard::resizeParts()
{
    setFixedHeight(m_big ? kBigHeight : kSmallHeight);
    if (!m_avatar)
        return;
    const int extent = m_big ? kBigAvatar : kSmallAvatar;
    m_avatar->setFixedSize(extent, extent);
}

void OmContactCard::showAlias()
{
    if (!m_aliasLabel)
        return;
    QString line = m_alias;
    std::replace_if(line.begin(), line.end(), breaksLine, QLatin1Char(' '));
    m_aliasLabel->setText(line);
}

void OmContactCard::showStatus()
{
    if (m_statusLabel)
        m_statusLabel->setText(statusName());
}

void OmContactCard::indicate(Indication indication)
{
    m_indication = indication;
    if (!m_indicatorLabel)
        return;
    QPixmap picture;
    if (indication == Indication::Typing)
        picture = skinPixmap(QStringLiteral(":/is_typing-16"), devicePixelRatioF());
    else if (indication == Indication::Talking)
        picture = skinPixmap(QStringLiteral(":/is_talking-16"), devicePixelRatioF());
    m_indicatorLabel->setPixmap(picture);
}

void OmContactCard::setBlocked(bool blocked)
{
    m_blocked = blocked;
    if (!m_actions.isEmpty())
        showAction(static_cast<int>(ContactAction::Block));
}

} // namespace ombrin
