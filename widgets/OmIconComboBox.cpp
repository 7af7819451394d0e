#include <ombrin/OmIconComboBox.h>

#include "widgets/OmIconComboBoxAccessible.h"

#include <ombrin/OmIconComboBoxDelegate.h>

#include <QtWidgets/QListView>
#include <QtWidgets/QStyleOptionComboBox>
#include <QtWidgets/QStylePainter>

namespace ombrin {

OmIconComboBox::OmIconComboBox(QWidget *parent)
    : QComboBox(parent)
{
    installIconComboBoxAccessibility();
    setItemDelegate(new OmIconComboBoxDelegate(this));
    if (auto *const list = qobject_cast<QListView *>(view())) {
        list->setViewMode(QListView::IconMode);
        list->setResizeMode(QListView::Adjust);
        list->setMovement(QListView::Static);
    }
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

OmIconComboBox::~OmIconComboBox() = default;

// QComboBox makes room for a row per item.
void OmIconComboBox::showPopup()
{
    QComboBox::showPopup();
    QWidget *const popup = view()->window();
    if (popup == window() || !popup->isVisible())
        return;
    view()->doItemsLayout();
    const QModelIndex last = model()->index(count() - 1, modelColumn(), rootModelIndex());
    const int spare = view()->viewport()->rect().bottom() - view()->visualRect(last).bottom();
    if (spare <= 0)
        return;
    QRect geometry = popup->geometry();
    if (geometry.bottom() <= mapToGlobal(QPoint(0, 0)).y())
        geometry.setTop(geometry.top() + spare);
    else
        geometry.setBottom(geometry.bottom() - spare);
    popup->setGeometry(geometry);
}

void OmIconComboBox::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.subControls &= ~QStyle::SC_ComboBoxEditField;
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

} // namespace ombrin
