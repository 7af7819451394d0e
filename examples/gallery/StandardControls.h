#pragma once

class QWidget;

/// \file
/// Qt's own controls, in panels that the pages about the style show in several states.

namespace gallery {

/// Buttons, fields, sliders and progress bars.
QWidget *createFieldsPanel();
/// Item views, a calendar and a text edit.
QWidget *createViewsPanel();
/// A main window, a menu, a tool box, tabs and a group box.
QWidget *createContainersPanel();

/// Gives \a page three cards with the panel that \a create makes: normal, disabled, right to left.
void showInThreeStates(QWidget *page, QWidget *(*create)());

} // namespace gallery
