#include <ombrin/OmLabel.h>

#include "widgets/KeyboardAccess.h"
#include "widgets/TextElision.h"
#include "widgets/WidgetAccessibility.h"

#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

#include <algorithm>

namespace ombrin {

namespace {

constexpr ushort kEllipsis = 0x2026;

// As QLabel measures it.
int widthOf(const QLabel *label, const QString &text)
{
    return label->fontMetrics().size(Qt::TextExpandTabs, text).width();
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
    m_rightWidths = {};
}

bool OmLabel::isElided() const
{
    return m_elide;
}

void OmLabel::setElideMode(Qt::TextElideMode mode)
{
    m_elideMode = mode;
    m_rightWidths = {};
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
        hint.rwidth() += std::max(0, textWidth() - widthOf(this, m_shownText));
    return hint;
}

QSize OmLabel::minimumSizeHint() const
{
    QSize hint = QLabel::minimumSizeHint();
    if (m_elide && showsOwnText())
        hint.rwidth() -=
                std::max(0, widthOf(this, m_shownText) - widthOf(this, QString(QChar(kEllipsis))));
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

void OmLabel::keyPressEvent(QKeyEvent *event)
{
    if (!m_link || !isClickKey(this, event))
        QLabel::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        Q_EMIT clicked();
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
    m_rightWidths = {};
    showElidedAgain();
}

void OmLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (!m_link)
        return;
    QPainter painter(this);
    drawFocusFrame(&painter, this);
}

void OmLabel::showText()
{
    m_rightWidths = {};
    if (m_elide)
        elideToWidth();
    else
        m_shownText = m_text;
    QLabel::setText(m_shownText);
}

void OmLabel::showElidedAgain()
{
    if (!m_elide || m_rightWidths.contains(width()) || !showsOwnText())
        return;
    elideToWidth();
    QLabel::setText(m_shownText);
}

// What is right at two widths is right at all widths between them, and what fits once fits into
// every greater width.
void OmLabel::elideToWidth()
{
    const QString elided = elidedText(fontMetrics(), m_text, m_elideMode, width());
    if (elided != m_shownText)
        m_rightWidths = {};
    m_shownText = elided;
    m_rightWidths.include(width());
    if (elided == m_text)
        m_rightWidths.include(QWIDGETSIZE_MAX);
}

// Remembered, as a layout asks anew after each change of the text that is shown.
int OmLabel::textWidth() const
{
    if (m_textWidth < 0)
        m_textWidth = std::min(widthOf(this, m_text), QWIDGETSIZE_MAX);
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
