#pragma once

#include <QtCore/QPointer>
#include <QtCore/QSize>

#include <initializer_list>

class QLabel;
class QPixmap;
class QWidget;

/// \file
/// What the wizards do with their widgets.

namespace ombrin {

/// Fills \a widget with white, on which its text stays readable.
void setWhiteBackground(QWidget *widget);

/// Shows \a pixmap in \a label unless it does already.
void refreshPixmap(QLabel *label, const QPixmap &pixmap);
/// The logical size of what \a label shows; null when that is nothing.
QSize pixmapSize(const QLabel *label);

/// Takes \a page off the wizard that shows it: it is hidden and has no parent afterwards. Host code
/// that runs meanwhile may destroy it.
void releasePage(QWidget *page);

/// Lays out \a window with everything in it at once, so that it has the size it will keep.
void settleLayouts(QWidget *window);

/// Puts \a page with everything on it, and then those of \a buttons that are not hidden, into the
/// tab order one after the other. \a page may be null.
void refreshPageTabOrder(QWidget *page, std::initializer_list<QWidget *> buttons);

/// Calls the functions in \a steps one after the other, for as long as \a wizard and its mission
/// exist: each of them may run code of the host's that destroys them.
template <typename Wizard>
void refreshStepByStep(Wizard *wizard, std::initializer_list<void (Wizard::*)()> steps)
{
    const QPointer<Wizard> guard(wizard);
    for (const auto step : steps) {
        if (!guard || !guard->Mission())
            return;
        (wizard->*step)();
    }
}

} // namespace ombrin
