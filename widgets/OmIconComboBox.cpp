#include <ombrin/OmIconComboBox.h>

#include "widgets/OmIconComboBoxAccessible.h"

#include <ombrin/OmIconComboBoxDelegate.h>

#include <QtWidgets/QListView>
#include <QtWidgets/QStyleOptionComboBox>
#include <QtWidgets/QStylePainter>

#include <algorithm>

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

// Makes the list lower by \a spare pixels at the end that is away from the box. Some styles lay the
// list over the box; it then still covers it.
void OmIconComboBox::shrinkPopup(QWidget *popup, int spare) const
{
    const int boxTop = mapToGlobal(QPoint(0, 0)).y();
    QRect geometry = popup->geometry();
    const int lowestTop = geometry.top() + spare;
    const bool isAbove = geometry.bottom() <= boxTop;
    geometry.setHeight(geometry.height() - spare);
    geometry.moveTop(isAbove ? lowestTop : std::clamp(boxTop, geometry.top(), lowestTop));
    popup->setGeometry(geometry);
}

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
    if (spare > 0)
        shrinkPopup(popup, spare);
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
