#pragma once

#include <ombrin/OmStyle2.h>

#include <QtGui/QPalette>

/// The library's style for a program that does not call OmSkin::init() by itself.
///
/// The colours of the skin stand in for those of the desktop; the colours that a program itself
/// chooses stay as they are. The skin's style sheet is left alone, since a program can
/// have one only; tool tips and status bars are drawn here as it draws them.
class SkinnedStyle : public ombrin::OmStyle2
{
    Q_OBJECT

public:
    SkinnedStyle();

    QPalette standardPalette() const override;
    using OmStyle2::polish;
    void polish(QPalette &palette) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;

private:
    QPalette m_palette;
};
