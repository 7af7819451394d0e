#pragma once

class QBoxLayout;
class QVBoxLayout;
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

/// A row of controls.
QBoxLayout *controlRow();
/// The column, \a spacing pixels between its parts, that fills \a panel.
QVBoxLayout *panelColumn(QWidget *panel, int spacing);

} // namespace gallery
