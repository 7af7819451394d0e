#pragma once

#include <QtGui/QPalette>

class QWidget;

namespace ombrin {

/// Makes the text colour \a role black where it is a light one.
void blackenLightText(QPalette *palette, QPalette::ColorRole role);

/// Lets \a widget, whose ground is a light colour in every skin, and the labels on it have black
/// text wherever the palette's text colour is a light one, too; also when the palette changes. What
/// a style sheet says counts more.
void keepTextReadable(QWidget *widget);

} // namespace ombrin
