#include <ombrin/OmStyle2.h>

#include "skin/OmStyle2_p.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

#include <vector>

namespace ombrin {

namespace {

constexpr QColor kFrameGrey(189, 189, 189);
constexpr QColor kDisabledGrey(203, 203, 203);
constexpr QColor kHoverOrange(255, 193, 48);
constexpr int kArrowExtent = 10;

// What a one-pixel pen draws around the rectangle that Qt calls by the name of its top left and
// its bottom right pixel.
void drawFrame(QPainter *painter, const QRect &rect, const QColor &color)
{
    fillFrame(painter, rect, 1, color);
}

QColor lineEditFrameColor(QStyle::State state)
{
    if (!(state & QStyle::State_Enabled))
        return kDisabledGrey;
    return state & QStyle::State_MouseOver ? kHoverOrange : kFrameGrey;
}

void drawMenuBarPanel(QPainter *painter, const QStyleOption &option)
{
    const QRect r = option.rect;
    if (r.isEmpty())
        return;
    const QColor window = option.palette.color(QPalette::Window);
    const QColor inner = window.darker(150);
    painter->fillRect(r.left(), r.top(), r.width(), 1, window.darker(200));
    painter->fillRect(r.left(), r.top() + 1, r.width(), 1, inner);
    painter->fillRect(r.left(), r.bottom() - 1, r.width(), 2, inner);
    painter->fillRect(r.left(), r.top(), 1, r.height(), inner);
}

// One colour of the check mark's picture, the rest is transparent.
QImage makeCheckMark(const char *color)
{
    const std::vector<const char *> picture = {
            "13 13 2 1",     "       c None", color,           "             ",
            "             ", "             ", "         .   ", "        ..   ",
            "   .   ...   ", "   .. ...    ", "   .....     ", "    ...      ",
            "     .       ", "             ", "             ", "             ",
    };
    return QImage(picture.data()).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

const QImage &checkMark(bool enabled)
{
    static const QImage enabledMark = makeCheckMark(".      c #21A121");
    static const QImage disabledMark = makeCheckMark(".      c #90D090");
    return enabled ? enabledMark : disabledMark;
}

void drawCheckBox(QPainter *painter, const QStyleOption &option)
{
    const QRect r = option.rect;
    if (!qstyleoption_cast<const QStyleOptionButton *>(&option) || r.isEmpty())
        return;
    const bool enabled = option.state & QStyle::State_Enabled;
    const bool sunken = option.state & QStyle::State_Sunken;
    const QPalette &palette = option.palette;

    if (enabled && !sunken && (option.state & QStyle::State_MouseOver))
        drawFrame(painter, r.adjusted(0, 0, 1, 1), kHoverOrange);

    QLinearGradient ground(r.left(), r.top(), r.right(), r.bottom());
    ground.setStops(
            {{0.0, palette.color(QPalette::Window)}, {1.0, palette.color(QPalette::Light)}});
    painter->fillRect(r.adjusted(1, 1, -1, -1), ground);

    const QColor button = palette.color(QPalette::Button);
    if (sunken)
        fillFrame(painter, r, 2, button.darker(200));
    else
        drawFrame(painter, r.adjusted(1, 1, 0, 0), button.darker(enabled ? 160 : 130));

    if (option.state & (QStyle::State_On | QStyle::State_NoChange | QStyle::State_Sunken))
        painter->drawImage(r, checkMark(enabled));
}

} // namespace

void OmStyle2::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                             QPainter *painter, const QWidget *widget) const
{
    if (!option || !painter)
        return;

    switch (element) {
    case PE_Frame:
        drawFrame(painter, option->rect, kFrameGrey);
        break;
    case PE_FrameLineEdit:
        drawFrame(painter, option->rect, lineEditFrameColor(option->state));
        break;
    case PE_PanelLineEdit:
        drawLineEditPanel(option, painter, widget);
        break;
    case PE_PanelButtonTool:
        drawToolButtonPanel(option, painter, widget);
        break;
    case PE_PanelMenuBar:
        drawMenuBarPanel(painter, *option);
        break;
    case PE_IndicatorBranch:
        drawBranch(option, painter, widget);
        break;
    case PE_IndicatorCheckBox:
        drawCheckBox(painter, *option);
        break;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

// The style below frames the panel in a way of its own: it is let to fill it only.
void OmStyle2::drawLineEditPanel(const QStyleOption *option, QPainter *painter,
                                 const QWidget *widget) const
{
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    if (!frame || frame->lineWidth == 0) {
        QProxyStyle::drawPrimitive(PE_PanelLineEdit, option, painter, widget);
        return;
    }
    followMouse(*option);
    QStyleOptionFrame panel(*frame);
    panel.lineWidth = 0;
    QProxyStyle::drawPrimitive(PE_PanelLineEdit, &panel, painter, widget);
    proxy()->drawPrimitive(PE_FrameLineEdit, option, painter, widget);
}

void OmStyle2::drawToolButtonPanel(const QStyleOption *option, QPainter *painter,
                                   const QWidget *widget) const
{
    const bool antialiased = painter->testRenderHint(QPainter::Antialiasing);
    if (antialiased)
        painter->setRenderHint(QPainter::Antialiasing, false);
    QProxyStyle::drawPrimitive(PE_PanelButtonTool, option, painter, widget);
    if (antialiased)
        painter->setRenderHint(QPainter::Antialiasing, true);
}

void OmStyle2::drawBranch(const QStyleOption *option, QPainter *painter,
                          const QWidget *widget) const
{
    if (!(option->state & State_Children))
        return;
    QStyleOption arrow(*option);
    if (arrow.rect.width() > kArrowExtent && arrow.rect.height() > kArrowExtent) {
        arrow.rect = QRect(0, 0, kArrowExtent, kArrowExtent);
        arrow.rect.moveCenter(option->rect.center());
    }
    const PrimitiveElement direction =
            option->state & State_Open ? PE_IndicatorArrowDown : PE_IndicatorArrowRight;
    proxy()->drawPrimitive(direction, &arrow, painter, widget);
}

} // namespace ombrin
