#pragma once

class QWidget;

namespace ombrin {

/// Makes the image and masked buttons, labels, link buttons and menu items known to assistive
/// technology. Called by their constructors.
void installWidgetAccessibility();

/// Tells assistive technology, if there is any, that \a widget was pressed or let go.
void announcePressedChange(QWidget *widget);

/// Tells assistive technology, if there is any, that \a widget was checked or unchecked.
void announceCheckedChange(QWidget *widget);

} // namespace ombrin
