#include <ombrin/OmStyle2.h>

#include "skin/OmStyle2_p.h"

#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtWidgets/QStyleOption>

namespace ombrin {

namespace {

constexpr int kIconComboBoxExtraWidth = 100;

QString comboArrow(const QStyleOptionComplex &option)
{
    if (!(option.state & QStyle::State_Enabled))
        return QStringLiteral(":/combobox_arrow_disabled");
    if (option.state & (QStyle::State_On | QStyle::State_Sunken))
        return QStringLiteral(":/combobox_arrow_clicked");
    if (option.activeSubControls & QStyle::SC_ComboBoxArrow)
        return QStringLiteral(":/combobox_arrow_hover");
    return QStringLiteral(":/combobox_arrow_normal");
}

} // namespace

QRect OmStyle2::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                               SubControl subControl, const QWidget *widget) const
{
    if (!option)
        return QRect();
    if (control == CC_ScrollBar)
        // NOLINTNEXTLINE(bugprone-parent-virtual-call): past the style below, on purpose
        return QCommonStyle::subControlRect(control, option, subControl, widget);
    if (control == CC_ComboBox && subControl == SC_ComboBoxListBoxPopup
        && isA(widget, "ombrin::OmIconComboBox"))
        return option->rect.adjusted(0, 0, kIconComboBoxExtraWidth, 0);
    return QProxyStyle::subControlRect(control, option, subControl, widget);
}

void OmStyle2::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                  QPainter *painter, const QWidget *widget) const
{
    if (!option || !painter)
        return;
    if (control == CC_ComboBox)
        drawComboBox(option, painter, widget);
    else if (control == CC_ScrollBar)
        drawScrollBar(option, painter, widget);
    else if (control == CC_TitleBar)
        drawTitleBar(option, painter, widget);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

// Plastique fills the title of an active window within a window with a dark blue of its own, but
// writes on it in the palette's colour of selected text, which may be as dark.
void OmStyle2::drawTitleBar(const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const
{
    const auto *bar = qstyleoption_cast<const QStyleOptionTitleBar *>(option);
    if (!bar || !baseStyle() || !baseStyle()->inherits("QPlastiqueStyle")) {
        QProxyStyle::drawComplexControl(CC_TitleBar, option, painter, widget);
        return;
    }
    QStyleOptionTitleBar legible(*bar);
    legible.palette.setColor(QPalette::HighlightedText, Qt::white);
    QProxyStyle::drawComplexControl(CC_TitleBar, &legible, painter, widget);
}

void OmStyle2::drawComboBox(const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const
{
    painter->fillRect(option->rect, option->palette.brush(QPalette::Base));
    proxy()->drawPrimitive(PE_FrameLineEdit, option, painter, widget);

    const QRect arrow = proxy()->subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget);
    const QPixmap normal = skinPixmapFor(QStringLiteral(":/combobox_arrow_normal"), painter);
    const int height = qRound(normal.height() / normal.devicePixelRatio());
    painter->drawPixmap(arrow.left(), option->rect.top() + (arrow.height() - height) / 2,
                        skinPixmapFor(comboArrow(*option), painter));

    // An editable box leaves it to the cursor in its line edit.
    const auto *box = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    if (!box || box->editable || !(box->state & State_HasFocus))
        return;
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(*box);
    focus.rect = proxy()->subElementRect(SE_ComboBoxFocusRect, box, widget);
    focus.backgroundColor = box->palette.color(QPalette::Base);
    proxy()->drawPrimitive(PE_FrameFocusRect, &focus, painter, widget);
}

} // namespace ombrin
