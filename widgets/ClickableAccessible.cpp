#include "widgets/ClickableAccessible.h"

#if QT_CONFIG(accessibility)

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QWidget>

namespace ombrin {

namespace {

void sendMouse(QWidget *target, QEvent::Type type, Qt::MouseButtons held)
{
    if (!target || !target->isEnabled())
        return;
    const QPoint centre = target->rect().center();
    QMouseEvent event(type, centre, target->mapToGlobal(centre), Qt::LeftButton, held,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
}

} // namespace

ClickableAccessible::ClickableAccessible(QWidget *widget, QAccessible::Role role)
    : QAccessibleWidget(widget, role)
{}

QString ClickableAccessible::text(QAccessible::Text kind) const
{
    const QString text = QAccessibleWidget::text(kind);
    if (kind == QAccessible::Name && text.isEmpty()) {
        const QString name = ownName();
        return name.isEmpty() ? widget()->toolTip() : name;
    }
    // What serves as the name is not said twice.
    const bool isToolTip =
            kind == QAccessible::Description && widget()->accessibleDescription().isEmpty();
    return isToolTip && this->text(QAccessible::Name) == text ? QString() : text;
}

QStringList ClickableAccessible::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (widget()->isEnabled() && isPressable())
        names.prepend(pressAction());
    return names;
}

void ClickableAccessible::doAction(const QString &action)
{
    if (action != pressAction()) {
        QAccessibleWidget::doAction(action);
        return;
    }
    if (!isPressable())
        return;
    const QPointer<QWidget> target(widget());
    sendMouse(target, QEvent::MouseButtonPress, Qt::LeftButton);
    sendMouse(target, QEvent::MouseButtonRelease, Qt::NoButton);
}

QString ClickableAccessible::ownName() const
{
    return QString();
}

bool ClickableAccessible::isPressable() const
{
    return true;
}

} // namespace ombrin

#endif
