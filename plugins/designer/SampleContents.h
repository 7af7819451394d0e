#pragma once

class QWidget;

/// Examples that are shown in the form editor alone, for widgets whose contents come from the
/// program. Each takes a widget of the class that it is named after.
namespace ombrin::designer {

void showSampleTabs(QWidget *tabBar);
void showSampleCards(QWidget *contactCardList);
void showSampleCheckBoxes(QWidget *checkBoxAssortmentView);
void showSampleLines(QWidget *zebraView);
/// Lets the bar have the size that is drawn on the form: by itself it begins very wide, to measure
/// the buttons that the program gives it.
void releaseWidth(QWidget *toolBar);

} // namespace ombrin::designer
