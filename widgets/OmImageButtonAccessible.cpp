#include "widgets/OmImageButtonAccessible.h"

#include <ombrin/OmImageButton.h>

#if QT_CONFIG(accessibility)

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QAccessibleWidget>

namespace ombrin {

namespace {

class OmImageButtonAccessible : public QAccessibleWidget
{
public:
    explicit OmImageButtonAccessible(OmImageButton *button)
        : QAccessibleWidget(button, QAccessible::Button)
    {}

    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        // A picture has no text of its own; its tool tip says what it is for.
        if (kind == QAccessible::Name && text.isEmpty())
            return widget()->toolTip();
        const bool toolTipIsName = kind == QAccessible::Description
                                   && widget()->accessibleDescription().isEmpty()
                                   && this->text(QAccessible::Name) == text;
        return toolTipIsName ? QString() : text;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.pressed = button()->isDown();
        state.hotTracked = button()->isHovered();
        state.checkable = button()->isCheckable();
        state.checked = button()->isCheckable() && button()->isChecked();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (widget()->isEnabled())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString &action) override
    {
        if (action != pressAction()) {
            QAccessibleWidget::doAction(action);
            return;
        }
        // Through the mouse handlers, which subclasses may have overridden.
        const QPointer<QWidget> target(widget());
        sendMouse(target, QEvent::MouseButtonPress, Qt::LeftButton);
        sendMouse(target, QEvent::MouseButtonRelease, Qt::NoButton);
    }

private:
    OmImageButton *button() const { return static_cast<OmImageButton *>(widget()); }

    static void sendMouse(QWidget *target, QEvent::Type type, Qt::MouseButtons held)
    {
        if (!target || !target->isEnabled())
            return;
        const QPoint centre = target->rect().center();
        QMouseEvent event(type, centre, target->mapToGlobal(centre), Qt::LeftButton, held,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(target, &event);
    }
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    if (className != QLatin1String(OmImageButton::staticMetaObject.className()))
        return nullptr;
    auto *const button = qobject_cast<OmImageButton *>(object);
    return button ? new OmImageButtonAccessible(button) : nullptr;
}

void announce(OmImageButton *button, QAccessible::State changed)
{
    QAccessibleStateChangeEvent event(button, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void installImageButtonAccessibility()
{
    // Qt takes a factory once, however often it is installed, but looks for it in a list.
    static const bool installed = (QAccessible::installFactory(createInterface), true);
    Q_UNUSED(installed)
}

void announcePressedChange(OmImageButton *button)
{
    QAccessible::State changed;
    changed.pressed = true;
    announce(button, changed);
}

void announceCheckedChange(OmImageButton *button)
{
    QAccessible::State changed;
    changed.checked = true;
    announce(button, changed);
}

} // namespace ombrin

#else

namespace ombrin {

void installImageButtonAccessibility() {}
void announcePressedChange(OmImageButton *) {}
void announceCheckedChange(OmImageButton *) {}

} // namespace ombrin

#endif
