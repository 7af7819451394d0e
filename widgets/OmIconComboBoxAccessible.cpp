#include "widgets/OmIconComboBoxAccessible.h"

#include <ombrin/OmIconComboBox.h>

#if QT_CONFIG(accessibility)

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QLineEdit>

namespace ombrin {

namespace {

class OmIconComboBoxAccessible : public QAccessibleWidget
{
public:
    explicit OmIconComboBoxAccessible(OmIconComboBox *box)
        : QAccessibleWidget(box, QAccessible::ComboBox)
    {}

    int childCount() const override { return box()->isEditable() ? 2 : 1; }

    QAccessibleInterface *child(int index) const override
    {
        if (index == 0)
            return QAccessible::queryAccessibleInterface(box()->view());
        if (index == 1 && box()->isEditable())
            return QAccessible::queryAccessibleInterface(box()->lineEdit());
        return nullptr;
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        if (!child || !child->object())
            return -1;
        if (child->object() == box()->view())
            return 0;
        return child->object() == box()->lineEdit() ? 1 : -1;
    }

    QAccessibleInterface *childAt(int x, int y) const override
    {
        const QLineEdit *const edit = box()->lineEdit();
        const bool isOnEdit = edit && edit->rect().contains(edit->mapFromGlobal(QPoint(x, y)));
        return isOnEdit ? child(1) : nullptr;
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value)
            return currentItemText();
        const QString text = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && text.isEmpty() ? currentItemText() : text;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = box()->view()->isVisible();
        state.editable = box()->isEditable();
        return state;
    }

    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (box()->isEnabled())
            names = QStringList{showMenuAction(), pressAction()} + names;
        return names;
    }

    void doAction(const QString &action) override
    {
        if (action != showMenuAction() && action != pressAction())
            QAccessibleWidget::doAction(action);
        else if (!box()->isEnabled())
            return;
        else if (box()->view()->isVisible())
            box()->hidePopup();
        else
            box()->showPopup();
    }

private:
    OmIconComboBox *box() const { return static_cast<OmIconComboBox *>(widget()); }

    QString currentItemText() const
    {
        for (const int role :
             {int(Qt::AccessibleTextRole), int(Qt::DisplayRole), int(Qt::ToolTipRole)}) {
            QString text = box()->currentData(role).toString();
            if (!text.isEmpty())
                return text;
        }
        return box()->currentText();
    }
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    if (className != QLatin1String(OmIconComboBox::staticMetaObject.className()))
        return nullptr;
    auto *const box = qobject_cast<OmIconComboBox *>(object);
    return box ? new OmIconComboBoxAccessible(box) : nullptr;
}

} // namespace

void installIconComboBoxAccessibility()
{
    // Not once for all: an application that ends takes the factories along. Qt takes each once.
    QAccessible::installFactory(createInterface);
}

} // namespace ombrin

#else

namespace ombrin {

void installIconComboBoxAccessibility() {}

} // namespace ombrin

#endif
