#include "contacts/ContactColumn.h"

#include "contacts/ColumnLayout.h"

#include <QtCore/QChildEvent>

#include <utility>

namespace ombrin {

ContactColumn::ContactColumn(ForgetChild forget)
    : m_forget(std::move(forget))
    , m_layout(new ColumnLayout(this))
{}

bool ContactColumn::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest && m_layout->moveCards())
        updateGeometry();
    return QWidget::event(event);
}

void ContactColumn::childEvent(QChildEvent *event)
{
    if (event->removed())
        m_forget(event->child());
    QWidget::childEvent(event);
}

} // namespace ombrin
