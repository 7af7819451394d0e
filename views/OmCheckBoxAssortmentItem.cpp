#include <ombrin/OmCheckBoxAssortmentItem.h>

#include <ombrin/OmCheckBoxAssortmentView.h>

#include <utility>

namespace ombrin {

namespace {

// Widgets live in one thread.
quint64 nextStamp()
{
    static quint64 stamp = 0;
    return ++stamp;
}

} // namespace

OmCheckBoxAssortmentItem::OmCheckBoxAssortmentItem(QString text, bool value, QColor color,
                                                   QVariant data)
    : m_text(std::move(text))
    , m_value(value)
    , m_color(color)
    , m_data(std::move(data))
    , m_stamp(nextStamp())
{
    // A child that was not hidden is shown with its parent.
    hide();
}

OmCheckBoxAssortmentItem::~OmCheckBoxAssortmentItem()
{
    if (m_view)
        m_view->items().removeAll(this);
}

QString OmCheckBoxAssortmentItem::text() const
{
    return m_text;
}

void OmCheckBoxAssortmentItem::setText(QString text)
{
    if (m_text == text)
        return;
    m_text = std::move(text);
    DoOnChanged();
}

bool OmCheckBoxAssortmentItem::value() const
{
    return m_value;
}

void OmCheckBoxAssortmentItem::setValue(bool value)
{
    if (m_value == value)
        return;
    m_value = value;
    m_stamp = nextStamp();
    const QPointer<OmCheckBoxAssortmentView> view = m_view;
    if (view)
        Q_EMIT view->signalOnItemCheckChanged(this);
    if (view)
        view->refreshWidget();
}

QColor OmCheckBoxAssortmentItem::color() const
{
    return m_color;
}

void OmCheckBoxAssortmentItem::setColor(QColor color)
{
    if (m_color == color)
        return;
    m_color = color;
    DoOnChanged();
}

QVariant OmCheckBoxAssortmentItem::data() const
{
    return m_data;
}

void OmCheckBoxAssortmentItem::setData(QVariant data)
{
    if (m_data == data)
        return;
    m_data = std::move(data);
    DoOnChanged();
}

void OmCheckBoxAssortmentItem::DoOnChanged()
{
    m_stamp = nextStamp();
    if (m_view)
        m_view->refreshWidget();
}

} // namespace ombrin
