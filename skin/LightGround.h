#pragma once

class QWidget;

namespace ombrin {

/// Lets \a widget, whose ground is a light colour in every skin, and the labels on it have black
/// text wherever the palette's text colour is a light one, too; also when the palette changes. What
/// a style sheet says counts more.
void keepTextReadable(QWidget *widget);

} // namespace ombrin
