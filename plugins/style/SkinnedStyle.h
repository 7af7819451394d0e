#pragma once

#include <ombrin/OmStyle2.h>

#include <QtGui/QPalette>

/// The library's style for a program that does not call OmSkin::init() by itself.
///
/// The colours of the skin are the style's standard palette, which Qt gives to programs as far as
/// they choose no colours of their own. The skin's style sheet is left alone, since a program can
/// have one only; tool tips and status bars are drawn here as it draws them.
class SkinnedStyle : public ombrin::OmStyle2
{
    Q_OBJECT

public:
    SkinnedStyle();

    QPalette standardPalette() const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;

private:
    QPalette m_palette;
};
