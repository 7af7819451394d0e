#include "SkinnedStyle.h"

#include <ombrin/OmSkin.h>

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace {

constexpr QPalette::ColorGroup kGroups[] = {QPalette::Active, QPalette::Disabled,
                                            QPalette::Inactive};
constexpr QPalette::ColorRole kRoles[] = {
        QPalette::Window,     QPalette::WindowText, QPalette::Button,
        QPalette::ButtonText, QPalette::Base,       QPalette::AlternateBase,
        QPalette::BrightText, QPalette::Text,       QPalette::Light,
        QPalette::Midlight,   QPalette::Dark,       QPalette::Mid,
        QPalette::Shadow,     QPalette::Highlight,  QPalette::HighlightedText,
        QPalette::Link,       QPalette::LinkVisited};

const QColor kTipBorder(189, 189, 189);

// The colours of the skin, and those of the style below where the skin has none. What no skin names
// follows from the rest: the desktop's own colours might be light on light here.
QPalette skinPalette(QPalette palette)
{
    const QPalette skin = ombrin::OmSkin::palette();
    for (const QPalette::ColorGroup group : kGroups) {
        for (const QPalette::ColorRole role : kRoles) {
            if (skin.color(group, role).isValid())
                palette.setColor(group, role, skin.color(group, role));
        }
        const QColor text = palette.color(group, QPalette::Text);
        palette.setColor(group, QPalette::ToolTipBase, palette.color(group, QPalette::Base));
        palette.setColor(group, QPalette::ToolTipText, text);
        palette.setColor(group, QPalette::PlaceholderText,
                         QColor(text.red(), text.green(), text.blue(), 128));
    }
    return palette;
}

} // namespace

SkinnedStyle::SkinnedStyle()
    : m_palette(skinPalette(OmStyle2::standardPalette()))
{}

QPalette SkinnedStyle::standardPalette() const
{
    return m_palette;
}

// Qt asks for the palette that fills in what the program leaves open. It has taken the desktop's
// before the standard palette.
void SkinnedStyle::polish(QPalette &palette)
{
    palette = m_palette;
}

void SkinnedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const
{
    if (!option || !painter || element == PE_FrameStatusBarItem)
        return;
    if (element != PE_PanelTipLabel) {
        OmStyle2::drawPrimitive(element, option, painter, widget);
        return;
    }
    painter->save();
    painter->setPen(kTipBorder);
    painter->setBrush(option->palette.toolTipBase());
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    painter->restore();
}
