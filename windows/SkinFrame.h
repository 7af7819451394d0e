#pragma once

#include "windows/FramePainter.h"

#include <ombrin/OmGlobal.h>

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>

#include <array>
#include <functional>

class QByteArray;
class QMenuBar;
class QMouseEvent;
class QPaintEvent;
class QWidget;

namespace ombrin {

class MoveResizeHandler;
class OmImageButton;
class OmStatusBar;

/// Everything that makes a plain window a skinned one: border, title, shape, title-bar buttons,
/// header menu, moving and resizing, and the places of content, menu bar and status bar.
///
/// OmWindow and OmDialog2 own one each and pass their events and calls on to it.
class SkinFrame : public QObject
{
public:
    /// How long an action waits for the menu it was chosen from to close, or for a resize to
    /// settle, in milliseconds.
    static constexpr int kDeferral = 20;

    /// What the entries of the header menu call, in their order: 100, 80, 60, 50, 40 and 20 %.
    using OpacitySlots = std::array<std::function<void()>, 6>;

    /// A frame for \a window, whose texts are translated in \a translationContext.
    SkinFrame(QWidget *window, const char *translationContext);
    ~SkinFrame() override;

    /// Gives a top-level window's native window, which on Windows is made now, the system menu and
    /// the minimise and maximise boxes. They come back whenever the native window is made anew.
    void extendNativeStyle();
    /// Makes the title-bar buttons and the mouse handling, and sets margins and minimum size.
    void build();

    void setWidget(QWidget *widget);
    QWidget *widget() const { return m_content; }

    void setUseLayout(bool useLayout) { m_useLayout = useLayout; }
    bool useLayout() const { return m_useLayout; }

    void setFixed(bool fixed);
    bool fixed() const { return m_fixed; }

    QMenuBar *menuBar();
    OmStatusBar *statusBar();

    void setTitle(const QString &title);
    QString title() const { return m_title; }

    void toggleAlwaysOnTop();
    bool isAlwaysOnTop() const { return m_alwaysOnTop; }

    /// What the window does before its base class gets \a event.
    void handleEvent(QEvent *event);
    void handleDoubleClick(const QMouseEvent *event);
    void handleNativeEvent(const QByteArray &eventType, void *message) const;
    void paint(QPaintEvent *event);
    void placeButtons();
    /// Gives the content the contents rectangle when there is no layout.
    void placeContent();

    void computeAndSetMask();
    void setButtons();
    void checkState();

    /// Opens the header menu at the mouse pointer if \a position, in window coordinates, lies in
    /// the title band. Choosing an opacity calls its function in \a opacitySlots.
    void popupHeaderMenu(const QPoint &position, const OpacitySlots &opacitySlots);

private:
    enum ButtonIndex { Minimize, Maximize, Restore, Close, ButtonCount };

    QString translated(const char *text) const;
    void createButton(ButtonIndex index);
    void setButtonTexts();
    void restoreNativeStyle();
    void followScreen();
    QFont titleFont() const;
    void insertMenuBar();

    QWidget *m_window;
    const char *m_translationContext;
    bool m_active = true;
    bool m_fixed = false;
    bool m_alwaysOnTop = false;
    bool m_useLayout = true;
    bool m_hasButtonPictures = false;
    QString m_title;
    FramePainter m_painter;
    QPointer<MoveResizeHandler> m_handler;
    QPointer<OmImageButton> m_buttons[ButtonCount];
    QPointer<QMenuBar> m_menuBar;
    QPointer<OmStatusBar> m_statusBar;
    QPointer<QWidget> m_content;
    QMetaObject::Connection m_screenChange; // of the present native window
};

} // namespace ombrin
