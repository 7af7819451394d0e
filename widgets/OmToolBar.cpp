#include <ombrin/OmToolBar.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>
#include <QtGui/QResizeEvent>

#include <utility>

namespace ombrin {

namespace {

constexpr int kWidthToMeasureIn = 10000;
constexpr int kSpareWidth = 30;
constexpr int kResizeDelayMs = 20;

} // namespace

OmToolBar::OmToolBar(QWidget *parent)
    : QToolBar(parent)
{
    setMinimumSize(kWidthToMeasureIn, 0);
}

OmToolBar::~OmToolBar() = default;

void OmToolBar::setButtonList(QList<QToolButton *> buttons)
{
    m_buttons.clear();
    for (QToolButton *button : std::as_const(buttons))
        m_buttons.append(button);
}

bool OmToolBar::event(QEvent *event)
{
    const bool isHandled = QToolBar::event(event);
    // A window about to be shown polishes its children and then makes room for their minimum
    // sizes. Resized in between, the bar no longer asks for the width it was measured in.
    if (event->type() == QEvent::Polish && m_measurePending) {
        QResizeEvent first(size(), QSize());
        QCoreApplication::sendEvent(this, &first);
    }
    return isHandled;
}

void OmToolBar::resizeEvent(QResizeEvent *event)
{
    m_previousSize = event->oldSize();
    if (m_measurePending)
        measure();
    checkWidth();
    QTimer::singleShot(kResizeDelayMs, this, &OmToolBar::slotResize);
}

void OmToolBar::slotResize()
{
    QResizeEvent event(size(), m_previousSize);
    QToolBar::resizeEvent(&event);
}

void OmToolBar::measure()
{
    m_totalWidth = 0;
    for (const QPointer<QToolButton> &button : std::as_const(m_buttons))
        m_totalWidth += button ? button->width() : 0;
    m_measurePending = false;
    setMinimumSize(0, 0);
}

void OmToolBar::checkWidth()
{
    const Qt::ToolButtonStyle style = width() - kSpareWidth > m_totalWidth
                                              ? Qt::ToolButtonTextBesideIcon
                                              : Qt::ToolButtonIconOnly;
    for (const QPointer<QToolButton> &button : std::as_const(m_buttons)) {
        if (button)
            button->setToolButtonStyle(style);
    }
}

} // namespace ombrin
