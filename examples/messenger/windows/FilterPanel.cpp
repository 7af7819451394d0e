#include "windows/FilterPanel.h"

#include "windows/Pictures.h"

#include <ombrin/OmCheckBoxAssortmentView.h>
#include <ombrin/OmSearchField.h>

#include <QtWidgets/QBoxLayout>

#include <array>

namespace messenger {

namespace {

using ombrin::OmCheckBoxAssortmentItem;
using ombrin::OmCheckBoxAssortmentView;
namespace Om = ombrin::Om;

// A presence of each kind, in the order of ContactFilter::Presence.
constexpr std::array<Om::ContactStatus, ContactFilter::PresenceCount> kPresences = {
        Om::Online, Om::Away, Om::Busy, Om::Offline};

constexpr std::array<QRgb, 5> kGroupColors = {0xff2a6fbb, 0xff8a4fa0, 0xff2f7d6b, 0xffa8572a,
                                              0xff5a6470};

/// A box that shows all its rows.
class FilterBox : public OmCheckBoxAssortmentView
{
public:
    QSize sizeHint() const override
    {
        // The frame of the rows takes some room, too.
        const int frame = isRetracted() ? 0 : 8;
        return OmCheckBoxAssortmentView::sizeHint() + QSize(0, frame);
    }
};

// Darker than the sign, to be read as text.
QColor textColor(Om::ContactStatus status)
{
    return presenceColor(status).darker(150);
}

} // namespace

FilterPanel::FilterPanel(const ContactFilter &filter, const QStringList &groups, QWidget *parent)
    : QWidget(parent)
    , m_filter(filter)
    , m_search(new ombrin::OmSearchField)
    , m_presences(createBox(tr("Presence")))
    , m_groups(createBox(tr("Groups")))
{
    m_search->setDefaultText(tr("Search contacts"));
    m_search->setStatusTip(tr("Shows the contacts in which all words are found"));
    connect(m_search, &QLineEdit::textChanged, this, [this](const QString &words) {
        m_filter.words = words;
        Q_EMIT filterChanged(m_filter);
    });
    connect(m_search, &QLineEdit::returnPressed, this, &FilterPanel::searched);
    createPresences();
    setGroups(groups);
    connect(m_presences, &OmCheckBoxAssortmentView::signalOnItemCheckChanged, this,
            &FilterPanel::onPresenceChanged);
    connect(m_groups, &OmCheckBoxAssortmentView::signalOnItemCheckChanged, this,
            &FilterPanel::onGroupChanged);
    // Who misses a contact sees at once why.
    setUnfolded(!filter.hiddenPresences.isEmpty() || !filter.hiddenGroups.isEmpty());

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addWidget(m_search);
    column->addWidget(m_presences);
    column->addWidget(m_groups);
}

FilterPanel::~FilterPanel() = default;

OmCheckBoxAssortmentView *FilterPanel::createBox(const QString &title)
{
    auto *box = new FilterBox;
    box->setText(title);
    box->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return box;
}

void FilterPanel::createPresences()
{
    for (int kind = 0; kind < ContactFilter::PresenceCount; ++kind) {
        const Om::ContactStatus status = kPresences[static_cast<std::size_t>(kind)];
        const bool isShown =
                !m_filter.hiddenPresences.contains(static_cast<ContactFilter::Presence>(kind));
        m_presences->items().append(presenceName(status), isShown, textColor(status), kind);
    }
}

void FilterPanel::setGroups(const QStringList &groups)
{
    // Items that are taken out stay with the view until they are deleted.
    while (!m_groups->items().isEmpty())
        delete m_groups->items().takeFirst();
    std::size_t color = 0;
    for (const QString &group : groups) {
        const bool isShown = !m_filter.hiddenGroups.contains(group);
        m_groups->items().append(group, isShown,
                                 QColor::fromRgb(kGroupColors[color++ % kGroupColors.size()]),
                                 group);
    }
    m_groups->updateGeometry();
}

void FilterPanel::setUnfolded(bool unfolded)
{
    m_presences->setIsRetracted(!unfolded);
    m_groups->setIsRetracted(!unfolded);
}

void FilterPanel::toggle()
{
    setUnfolded(m_presences->isRetracted() || m_groups->isRetracted());
}

void FilterPanel::focusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
}

void FilterPanel::onPresenceChanged(const OmCheckBoxAssortmentItem *item)
{
    const auto presence = static_cast<ContactFilter::Presence>(item->data().toInt());
    m_filter.hiddenPresences.removeAll(presence);
    if (!item->value())
        m_filter.hiddenPresences.append(presence);
    Q_EMIT filterChanged(m_filter);
}

void FilterPanel::onGroupChanged(const OmCheckBoxAssortmentItem *item)
{
    const QString group = item->data().toString();
    m_filter.hiddenGroups.removeAll(group);
    if (!item->value())
        m_filter.hiddenGroups.append(group);
    Q_EMIT filterChanged(m_filter);
}

} // namespace messenger
