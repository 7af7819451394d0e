#include "PageKit.h"

#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QPushButton>

namespace gallery {

namespace {

constexpr int kCardMargin = 14;
constexpr int kCardSpacing = 8;
constexpr qreal kCardRadius = 4;

QLabel *quietLabel(const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    QPalette palette = label->palette();
    const QColor quiet = palette.color(QPalette::Disabled, QPalette::WindowText);
    palette.setColor(QPalette::WindowText, quiet);
    label->setPalette(palette);
    return label;
}

} // namespace

Card::Card(const QString &title, QWidget *parent)
    : QWidget(parent)
    , m_body(new QVBoxLayout(this))
{
    m_body->setContentsMargins(kCardMargin, kCardMargin - 2, kCardMargin, kCardMargin);
    m_body->setSpacing(kCardSpacing);

    auto *heading = new QLabel(title);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    m_body->addWidget(heading);
}

void Card::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().base());
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kCardRadius,
                            kCardRadius);
}

QVBoxLayout *cardColumn(QWidget *page)
{
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(kPageMargin, kCardGap, kPageMargin, kPageMargin);
    column->setSpacing(kCardGap);
    return column;
}

QBoxLayout *cardStack(Qt::Orientation orientation)
{
    auto *stack = new QBoxLayout(orientation == Qt::Horizontal ? QBoxLayout::LeftToRight
                                                               : QBoxLayout::TopToBottom);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->setSpacing(kCardGap);
    return stack;
}

QLabel *caption(const QString &text, Qt::Alignment alignment)
{
    QLabel *label = quietLabel(text);
    label->setAlignment(alignment);
    return label;
}

QLabel *note(const QString &text)
{
    QLabel *label = quietLabel(text);
    label->setWordWrap(true);
    return label;
}

QPushButton *pushButton(const QString &text, const QString &statusTip)
{
    auto *button = new QPushButton(text);
    button->setStatusTip(statusTip);
    return button;
}

void pinState(QWidget *widget)
{
    widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    widget->setFocusPolicy(Qt::NoFocus);
}

void pinHovered(QWidget *widget)
{
    pinState(widget);
    widget->setAttribute(Qt::WA_UnderMouse);
}

} // namespace gallery
