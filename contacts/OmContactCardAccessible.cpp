#include "contacts/OmContactCardAccessible.h"

#include "contacts/ContactColumn.h"
#include "widgets/ClickableAccessible.h"

#include <ombrin/OmContactCard.h>

#if QT_CONFIG(accessibility)

namespace ombrin {

namespace {

class ContactCardAccessible : public ClickableAccessible
{
public:
    explicit ContactCardAccessible(OmContactCard *card)
        : ClickableAccessible(card, QAccessible::ListItem)
    {}

    QString text(QAccessible::Text kind) const override
    {
        const QString text = ClickableAccessible::text(kind);
        return kind == QAccessible::Description && text.isEmpty() ? card()->statusName() : text;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = ClickableAccessible::state();
        state.selectable = true;
        state.selected = card()->isBig();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = ClickableAccessible::actionNames();
        if (card()->isEnabled())
            names.append(showMenuAction());
        return names;
    }

    void doAction(const QString &action) override
    {
        // The menu is open until the user has chosen; the caller is not to wait for that.
        if (action == showMenuAction() && card()->isEnabled())
            QMetaObject::invokeMethod(card(), "slotContextMenu", Qt::QueuedConnection,
                                      Q_ARG(QPoint, QPoint()));
        else
            ClickableAccessible::doAction(action);
    }

protected:
    QString ownName() const override
    {
        return card()->alias().isEmpty() ? card()->ombrinId() : card()->alias();
    }

private:
    OmContactCard *card() const { return static_cast<OmContactCard *>(widget()); }
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    if (className == QLatin1String(OmContactCard::staticMetaObject.className())) {
        auto *const card = qobject_cast<OmContactCard *>(object);
        return card ? new ContactCardAccessible(card) : nullptr;
    }
    if (className == QLatin1String(ContactColumn::staticMetaObject.className())) {
        auto *const column = qobject_cast<ContactColumn *>(object);
        return column ? new QAccessibleWidget(column, QAccessible::List) : nullptr;
    }
    return nullptr;
}

void announce(OmContactCard *card, QAccessible::Event kind)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(card, kind);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void installContactCardAccessibility()
{
    // Not once for all: an application that ends takes the factories along. Qt takes each once.
    QAccessible::installFactory(createInterface);
}

void announceContactName(OmContactCard *card)
{
    announce(card, QAccessible::NameChanged);
}

void announceContactStatus(OmContactCard *card)
{
    announce(card, QAccessible::DescriptionChanged);
}

void announceContactSelection(OmContactCard *card)
{
    announce(card, card->isBig() ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
}

} // namespace ombrin

#else

namespace ombrin {

void installContactCardAccessibility() {}
void announceContactName(OmContactCard *) {}
void announceContactStatus(OmContactCard *) {}
void announceContactSelection(OmContactCard *) {}

} // namespace ombrin

#endif
