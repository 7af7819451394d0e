#include <ombrin/OmScribbledZebraPole.h>

OmScribbledZebraPole::OmScribbledZebraPole(int indent, bool isAlignedLeftOrRight, QObject *parent)
    : QObject(parent)
    , m_indent(indent)
    , m_isAlignedLeftOrRight(isAlignedLeftOrRight)
{}

OmScribbledZebraPole::~OmScribbledZebraPole() = default;

int OmScribbledZebraPole::indent() const
{
    return m_indent;
}

void OmScribbledZebraPole::setIndent(int indent)
{
    if (m_indent == indent)
        return;
    m_indent = indent;
    Q_EMIT signalOnChanged();
}

bool OmScribbledZebraPole::isAlignedLeftOrRight() const
{
    return m_isAlignedLeftOrRight;
}

void OmScribbledZebraPole::setIsAlignedLeftOrRight(bool isAlignedLeftOrRight)
{
    if (m_isAlignedLeftOrRight == isAlignedLeftOrRight)
        return;
    m_isAlignedLeftOrRight = isAlignedLeftOrRight;
    Q_EMIT signalOnChanged();
}
