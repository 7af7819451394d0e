#include <ombrin/OmLabel.h>

#include "widgets/TextElision.h"
#include "widgets/WidgetAccessibility.h"

#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>

#include <algorithm>

namespace ombrin {

namespace {

constexpr ushort kEllipsis = 0x2026;

int advance(const QLabel *label, const QString &text)
{
    return label->fontMetrics().horizontalAdvance(text);
}

} // namespace

OmLabel::OmLabel(QWidget *parent)
    : OmLabel(false, parent)
{}

OmLabel::OmLabel(bool elide, QWidget *parent)
    : QLabel(parent)
    , m_elide(elide)
{
    installWidgetAccessibility();
}

OmLabel::~OmLabel() = default;

void OmLabel::enableElide(bool enable)
{
    m_elide = enable;
}

bool OmLabel::isElided() const
{
    return m_elide;
}

void OmLabel::setElideMode(Qt::TextElideMode mode)
{
    m_elideMode = mode;
}

Qt::TextElideMode OmLabel::elideMode() const
{
    return m_elideMode;
}

void OmLabel::enableLink(bool enable)
{
    m_link = enable;
}

bool OmLabel::isLink() const
{
    return m_link;
}

void OmLabel::setText(const QString &text)
{
    m_text = text;
    m_textWidth = -1;
    showText();
}

QString OmLabel::text() const
{
    return m_text;
}

QSize OmLabel::sizeHint() const
{
    QSize hint = QLabel::sizeHint();
    if (m_elide && m_shownText != m_text && showsOwnText())
        hint.rwidth() += std::max(0, textWidth() - advance(this, m_shownText));
    return hint;
}

QSize OmLabel::minimumSizeHint() const
{
    QSize hint = QLabel::minimumSizeHint();
    if (m_elide && showsOwnText())
        hint.rwidth() -=
                std::max(0, advance(this, m_shownText) - advance(this, QString(QChar(kEllipsis))));
    return hint;
}

void OmLabel::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_link && event->button() == Qt::LeftButton && rect().contains(mousePosition(event))) {
        const QPointer<OmLabel> guard(this);
        Q_EMIT clicked();
        if (!guard)
            return;
    }
    QLabel::mouseReleaseEvent(event);
}

void OmLabel::enterEvent(EnterEvent *event)
{
    if (reportHover(true))
        QLabel::enterEvent(event);
}

void OmLabel::leaveEvent(QEvent *event)
{
    if (reportHover(false))
        QLabel::leaveEvent(event);
}

void OmLabel::resizeEvent(QResizeEvent *event)
{
    showElidedAgain();
    QLabel::resizeEvent(event);
}

void OmLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() != QEvent::FontChange)
        return;
    m_textWidth = -1;
    showElidedAgain();
}

void OmLabel::showText()
{
    m_shownText = m_elide ? elidedText(fontMetrics(), m_text, m_elideMode, width()) : m_text;
    QLabel::setText(m_shownText);
}

void OmLabel::showElidedAgain()
{
    if (m_elide && showsOwnText())
        showText();
}

// Remembered, as a layout asks anew after each change of the text that is shown.
int OmLabel::textWidth() const
{
    if (m_textWidth < 0)
        m_textWidth = std::min(advance(this, m_text), QWIDGETSIZE_MAX);
    return m_textWidth;
}

// The host may have put a picture or a number into the label by way of QLabel.
bool OmLabel::showsOwnText() const
{
    return QLabel::text() == m_shownText;
}

// Whether the label is still there.
bool OmLabel::reportHover(bool hover)
{
    if (!m_link)
        return true;
    setCursor(hover ? Qt::PointingHandCursor : Qt::ArrowCursor);
    const QPointer<OmLabel> guard(this);
    Q_EMIT hovered(hover);
    return !guard.isNull();
}

} // namespace ombrin
