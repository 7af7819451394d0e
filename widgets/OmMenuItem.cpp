#include <ombrin/OmMenuItem.h>

#include <ombrin/OmDesktop.h>

#include "skin/LightGround.h"
#include "skin/SkinPixmap.h"
#include "widgets/KeyboardAccess.h"
#include "widgets/WidgetAccessibility.h"

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>

namespace ombrin {

namespace {

constexpr int kHeight = 24;
constexpr int kIconWidth = 20;
constexpr int kMargin = 3;
constexpr int kSpacing = 2;
constexpr QColor kGround(0xf7, 0xf7, 0xf7);
constexpr QColor kHoveredGround(0xe0, 0xe0, 0xe0);

} // namespace

OmMenuItem::OmMenuItem(QWidget *parent)
    : QFrame(parent)
    , m_iconLabel(new QLabel(this))
    , m_textLabel(new QLabel(this))
{
    installWidgetAccessibility();
    setFrameStyle(QFrame::StyledPanel);
    setMinimumSize(0, kHeight);
    setMaximumSize(QWIDGETSIZE_MAX, kHeight);
    m_iconLabel->setFixedWidth(kIconWidth);
    m_textLabel->setTextFormat(Qt::PlainText);

    auto *const row = new QHBoxLayout(this);
    row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    row->setSpacing(kSpacing);
    row->addWidget(m_iconLabel);
    row->addWidget(m_textLabel);

    OmDesktop::setBackgroundColor(this, kGround);
    keepTextReadable(this);
}

OmMenuItem::~OmMenuItem() = default;

void OmMenuItem::setText(const QString &text)
{
    m_text = text;
    m_textLabel->setText(text);
}

QString OmMenuItem::text() const
{
    return m_text;
}

void OmMenuItem::setIcon(const QString &name)
{
    m_icon = name;
    m_iconLabel->setPixmap(skinPixmap(name));
}

QString OmMenuItem::icon() const
{
    return m_icon;
}

void OmMenuItem::mousePressEvent(QMouseEvent *event)
{
    const QPointer<OmMenuItem> guard(this);
    Q_EMIT clicked();
    if (guard)
        QWidget::mousePressEvent(event);
}

void OmMenuItem::keyPressEvent(QKeyEvent *event)
{
    if (!isClickKey(this, event))
        QFrame::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        Q_EMIT clicked();
}

void OmMenuItem::enterEvent(EnterEvent *event)
{
    OmDesktop::setBackgroundColor(this, kHoveredGround);
    QFrame::enterEvent(event);
}

void OmMenuItem::leaveEvent(QEvent *event)
{
    OmDesktop::setBackgroundColor(this, kGround);
    QFrame::leaveEvent(event);
}

void OmMenuItem::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    drawFocusFrame(&painter, this);
}

} // namespace ombrin
