#pragma once

#include <QtCore/QPointer>
#include <QtCore/QString>

#include <array>
#include <functional>

class QPoint;
class QWidget;

namespace ombrin {

class OmImageButton;

/// The title-bar buttons and the header menu of a skinned window.
class TitleBar
{
public:
    /// What the entries of the header menu call, in their order: 100, 80, 60, 50, 40 and 20 %.
    using OpacitySlots = std::array<std::function<void()>, 6>;

    /// For \a window, with texts translated in \a translationContext.
    TitleBar(QWidget *window, const char *translationContext);

    /// Makes the four buttons, children of the window; the restore button is hidden at first.
    void createButtons();
    void translate();
    /// Moves the buttons to where they belong at the window's width.
    void placeButtons() const;
    /// Gives the buttons the pictures of the active or the inactive window, for its screen.
    void setPictures(bool active);
    /// The same for another screen; buttons that have no pictures yet get none.
    void followDensity(bool active);
    void setMaximizingEnabled(bool enabled) const;
    /// Shows either the maximise or the restore button, as the window's state asks.
    void checkState() const;

    /// Opens the header menu at the mouse pointer if \a position, in window coordinates, lies in
    /// the title band. Choosing an opacity calls its function in \a opacitySlots.
    void popupHeaderMenu(const QPoint &position, const OpacitySlots &opacitySlots) const;

private:
    enum ButtonIndex { Minimize, Maximize, Restore, Close, ButtonCount };

    QString translated(const char *text) const;
    void createButton(ButtonIndex index);

    QWidget *m_window;
    const char *m_translationContext;
    bool m_hasPictures = false;
    QPointer<OmImageButton> m_buttons[ButtonCount]; // the host may delete one
};

} // namespace ombrin
