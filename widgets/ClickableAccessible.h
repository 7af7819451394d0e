#pragma once

#include <QtGui/QAccessible>

#if QT_CONFIG(accessibility)

#include <QtWidgets/QAccessibleWidget>

namespace ombrin {

/// What assistive technology sees of a widget that the mouse clicks.
///
/// The widget is named by its accessible name, else by what it shows (ownName()), else by its tool
/// tip. While it is enabled it can be pressed; that goes through its mouse handlers, which
/// subclasses may have overridden.
class ClickableAccessible : public QAccessibleWidget
{
public:
    ClickableAccessible(QWidget *widget, QAccessible::Role role);

    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString &action) override;

protected:
    /// The name of a widget to which nobody gave an accessible name.
    virtual QString ownName() const;
    /// Whether a press means anything to the widget at present.
    virtual bool isPressable() const;
};

} // namespace ombrin

#endif
