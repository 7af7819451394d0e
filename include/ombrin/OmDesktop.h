#pragma once

#include <ombrin/OmGlobal.h>

#include <QtGui/QColor>

class QWidget;

namespace ombrin {

/// Helpers that act on a window and the screen. Holds static functions only.
///
/// \code
/// if (!window->isActiveWindow())
///     ombrin::OmDesktop::flashWindow(window, true); // somebody wrote
/// \endcode
///
/// Every function does nothing when its widget is null. To be used from the GUI thread, while the
/// QApplication exists.
///
/// flashWindow() and setForeground() act on the native window that the user sees the widget in:
/// for a widget inside a window that is widget->window(). They never create a native window, so a
/// window that has not been shown yet stays as it is.
///
/// \ingroup windows
class OMBRIN_GUI_EXPORT OmDesktop
{
public:
    /// Flashes the caption and the task-bar button of the window of \a widget three times, at the
    /// rate at which the system's text cursor blinks. Window systems other than Windows mark the
    /// window as demanding attention instead, until the user comes to it; a window that is active
    /// or hidden is left alone there.
    ///
    /// The second argument is not used.
    static void flashWindow(QWidget *widget, bool);

    /// Raises the window of \a widget above all windows that are not kept on top. A window that was
    /// kept on top no longer is. While the application is the active one, the window may become the
    /// active window. A minimised window stays minimised. On Wayland nothing happens: there no
    /// window can raise itself. An X11 window manager may rather mark the window as demanding
    /// attention.
    static void setForeground(QWidget *widget);

    /// Centres \a widget, in its present size, in the work area of the primary screen.
    ///
    /// The position is half of what the work area's width and height leave over, in logical pixels,
    /// counted from the screen's origin: the left and top of the work area are not added. Where a
    /// panel lies at the left or top edge, the widget lies by half of the panel's thickness left of
    /// or above the middle. A widget larger than the work area reaches beyond it on all sides.
    ///
    /// This is QWidget::setGeometry(), so a decoration lies around the centred area and the place
    /// of a child widget is counted from its parent.
    static void setCentered(QWidget *widget);

    /// Fills the background of \a widget with \a color and repaints it at once.
    ///
    /// Sets the \c Window brush in all groups of the palette, the background role and
    /// \c autoFillBackground. A style sheet that sets a background wins over the palette. An
    /// invalid colour fills black, as everywhere in Qt.
    static void setBackgroundColor(QWidget *widget, const QColor &color);

    /// Gives \a widget the text colour \a color by means of a style sheet.
    ///
    /// The style sheet that the widget had before is lost. It also colours the widget's children.
    /// The colour's transparency is not used, and an invalid colour is black.
    static void setTextColor(QWidget *widget, const QColor &color);

    /// The virtual desktop the user looks at: always 0, the only one known here.
    static int currentActiveDesktop();

    /// The virtual desktop \a widget is on: always 0.
    static int currentDesktop(QWidget *widget);

    /// Changes nothing, as there is only desktop 0.
    static void setDesktop(QWidget *widget, int desktop);

    OmDesktop() = delete;
};

} // namespace ombrin
