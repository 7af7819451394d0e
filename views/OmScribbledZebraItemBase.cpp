#include <ombrin/OmScribbledZebraItemBase.h>

OmScribbledZebraItemBase::OmScribbledZebraItemBase(int column, int row, bool isAlignedLeftOrRight,
                                                   QObject *parent)
    : QObject(parent)
    , m_row(row)
    , m_column(column)
    , m_isAlignedLeftOrRight(isAlignedLeftOrRight)
{}

OmScribbledZebraItemBase::~OmScribbledZebraItemBase() = default;

int OmScribbledZebraItemBase::row() const
{
    return m_row;
}

void OmScribbledZebraItemBase::setRow(int row)
{
    if (m_row == row)
        return;
    m_row = row;
    DoOnChanged();
}

int OmScribbledZebraItemBase::column() const
{
    return m_column;
}

void OmScribbledZebraItemBase::setColumn(int column)
{
    if (m_column == column)
        return;
    m_column = column;
    DoOnChanged();
}

bool OmScribbledZebraItemBase::isAlignedLeftOrRight() const
{
    return m_isAlignedLeftOrRight;
}

void OmScribbledZebraItemBase::setIsAlignedLeftOrRight(bool isAlignedLeftOrRight)
{
    if (m_isAlignedLeftOrRight == isAlignedLeftOrRight)
        return;
    m_isAlignedLeftOrRight = isAlignedLeftOrRight;
    DoOnChanged();
}

QSize OmScribbledZebraItemBase::size() const
{
    return m_size;
}

QVariant OmScribbledZebraItemBase::data() const
{
    return m_data;
}

void OmScribbledZebraItemBase::setData(const QVariant &data)
{
    m_data = data;
}

void OmScribbledZebraItemBase::DoOnChanged()
{
    m_size = recalcSize();
    Q_EMIT signalOnChanged();
}
