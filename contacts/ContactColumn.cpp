#include "contacts/ContactColumn.h"

#include <QtCore/QChildEvent>

#include <utility>

namespace ombrin {

ContactColumn::ContactColumn(ForgetChild forget)
    : m_forget(std::move(forget))
{}

void ContactColumn::childEvent(QChildEvent *event)
{
    if (event->removed())
        m_forget(event->child());
    QWidget::childEvent(event);
}

} // namespace ombrin
