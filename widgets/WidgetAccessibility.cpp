#include "widgets/WidgetAccessibility.h"

#include "widgets/ClickableAccessible.h"

#include <ombrin/OmImageButton.h>
#include <ombrin/OmImageMaskedButton.h>
#include <ombrin/OmLabel.h>
#include <ombrin/OmLinkButton.h>
#include <ombrin/OmMenuItem.h>

#if QT_CONFIG(accessibility)

#include <QtGui/QTextDocument>
#include <QtGui/QTextDocumentFragment>
#include <QtWidgets/QStyle>

namespace ombrin {

// Outside the unnamed namespace, as the button makes it a friend.
class OmImageMaskedButtonAccessible : public ClickableAccessible
{
public:
    explicit OmImageMaskedButtonAccessible(OmImageMaskedButton *button)
        : ClickableAccessible(button, QAccessible::Button)
    {}

    QAccessible::State state() const override
    {
        const auto *const button = static_cast<OmImageMaskedButton *>(widget());
        QAccessible::State state = ClickableAccessible::state();
        state.pressed = button->m_pressed;
        state.hotTracked = button->m_hovered;
        return state;
    }
};

namespace {

class ImageButtonAccessible : public ClickableAccessible
{
public:
    explicit ImageButtonAccessible(OmImageButton *button)
        : ClickableAccessible(button, QAccessible::Button)
    {}

    QAccessible::State state() const override
    {
        const auto *const button = static_cast<OmImageButton *>(widget());
        QAccessible::State state = ClickableAccessible::state();
        state.pressed = button->isDown();
        state.hotTracked = button->isHovered();
        state.checkable = button->isCheckable();
        state.checked = button->isCheckable() && button->isChecked();
        return state;
    }
};

class LinkButtonAccessible : public ClickableAccessible
{
public:
    explicit LinkButtonAccessible(OmLinkButton *button)
        : ClickableAccessible(button, QAccessible::Link)
    {}

    // A link leads somewhere; a button with an arrow folds something out where it stands.
    QAccessible::Role role() const override
    {
        return button()->isCheckable() ? QAccessible::Button : QAccessible::Link;
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Accelerator)
            return button()->shortcut().toString(QKeySequence::NativeText);
        return ClickableAccessible::text(kind);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = ClickableAccessible::state();
        state.pressed = button()->isDown();
        state.linked = !button()->isCheckable();
        state.checkable = button()->isCheckable();
        state.checked = button()->isChecked();
        state.expandable = button()->isCheckable();
        state.expanded = button()->isChecked();
        state.collapsed = button()->isCheckable() && !button()->isChecked();
        return state;
    }

protected:
    QString ownName() const override { return button()->text(); }

private:
    const OmLinkButton *button() const { return static_cast<OmLinkButton *>(widget()); }
};

class MenuItemAccessible : public ClickableAccessible
{
public:
    explicit MenuItemAccessible(OmMenuItem *item)
        : ClickableAccessible(item, QAccessible::MenuItem)
    {}

    QAccessible::State state() const override
    {
        QAccessible::State state = ClickableAccessible::state();
        state.hotTracked = widget()->underMouse();
        return state;
    }

protected:
    QString ownName() const override { return static_cast<OmMenuItem *>(widget())->text(); }
};

class LabelAccessible : public ClickableAccessible
{
public:
    explicit LabelAccessible(OmLabel *label)
        : ClickableAccessible(label, QAccessible::StaticText)
    {}

    QAccessible::Role role() const override
    {
        if (label()->isLink())
            return QAccessible::Link;
        const bool isPicture = !label()->pixmap(Qt::ReturnByValue).isNull();
        return isPicture ? QAccessible::Graphic : QAccessible::StaticText;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = ClickableAccessible::state();
        state.readOnly = true;
        state.linked = label()->isLink();
        state.hotTracked = label()->isLink() && label()->underMouse();
        return state;
    }

    QVector<QPair<QAccessibleInterface *, QAccessible::Relation>>
    relations(QAccessible::Relation match) const override
    {
        auto relations = ClickableAccessible::relations(match);
        if (match & QAccessible::Labelled && label()->buddy()) {
            if (auto *const buddy = QAccessible::queryAccessibleInterface(label()->buddy()))
                relations.append({buddy, QAccessible::Labelled});
        }
        return relations;
    }

protected:
    // The whole text, also where there is room for a part of it only.
    QString ownName() const override
    {
        const QString text = label()->text();
        const Qt::TextFormat format = label()->textFormat();
        const bool isRich =
                format == Qt::RichText || (format == Qt::AutoText && Qt::mightBeRichText(text));
        if (isRich)
            return QTextDocumentFragment::fromHtml(text).toPlainText();
        return label()->buddy() ? withoutMnemonic(text) : text;
    }

    bool isPressable() const override { return label()->isLink(); }

private:
    static QString withoutMnemonic(QString text)
    {
        for (auto at = text.indexOf(QLatin1Char('&')); at >= 0;
             at = text.indexOf(QLatin1Char('&'), at + 1))
            text.remove(at, 1);
        return text;
    }

    const OmLabel *label() const { return static_cast<OmLabel *>(widget()); }
};

template <typename Widget, typename Interface>
QAccessibleInterface *create(QObject *object)
{
    auto *const widget = qobject_cast<Widget *>(object);
    return widget ? new Interface(widget) : nullptr;
}

struct Entry
{
    const QMetaObject *metaObject;
    QAccessibleInterface *(*create)(QObject *);
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    static const Entry entries[] = {
            {&OmImageButton::staticMetaObject, create<OmImageButton, ImageButtonAccessible>},
            {&OmImageMaskedButton::staticMetaObject,
             create<OmImageMaskedButton, OmImageMaskedButtonAccessible>},
            {&OmLabel::staticMetaObject, create<OmLabel, LabelAccessible>},
            {&OmLinkButton::staticMetaObject, create<OmLinkButton, LinkButtonAccessible>},
            {&OmMenuItem::staticMetaObject, create<OmMenuItem, MenuItemAccessible>},
    };
    for (const Entry &entry : entries) {
        if (className == QLatin1String(entry.metaObject->className()))
            return entry.create(object);
    }
    return nullptr;
}

void announce(QWidget *widget, QAccessible::State changed)
{
    QAccessibleStateChangeEvent event(widget, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void installWidgetAccessibility()
{
    // Not once for all: an application that ends takes the factories along. Qt takes each once.
    QAccessible::installFactory(createInterface);
}

void announcePressedChange(QWidget *widget)
{
    QAccessible::State changed;
    changed.pressed = true;
    announce(widget, changed);
}

void announceCheckedChange(QWidget *widget)
{
    QAccessible::State changed;
    changed.checked = true;
    announce(widget, changed);
}

} // namespace ombrin

#else

namespace ombrin {

void installWidgetAccessibility() {}
void announcePressedChange(QWidget *) {}
void announceCheckedChange(QWidget *) {}

} // namespace ombrin

#endif
