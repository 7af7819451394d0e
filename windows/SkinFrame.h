#pragma once

#include "windows/FramePainter.h"
#include "windows/TitleBar.h"

#include <ombrin/OmGlobal.h>

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>

class QByteArray;
class QMenuBar;
class QMouseEvent;
class QPaintEvent;
class QWidget;

namespace ombrin {

class MoveResizeHandler;
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

    /// Takes effect with applyAlwaysOnTop().
    void setAlwaysOnTop(bool on) { m_alwaysOnTop = on; }
    bool isAlwaysOnTop() const { return m_alwaysOnTop; }
    void applyAlwaysOnTop() const;

    /// What the window does before its base class gets \a event.
    void handleEvent(QEvent *event);
    void handleDoubleClick(const QMouseEvent *event);
    void handleNativeEvent(const QByteArray &eventType, void *message) const;
    void paint(QPaintEvent *event);
    /// Gives the content the contents rectangle when there is no layout.
    void placeContent();

    void computeAndSetMask();
    /// Gives the title-bar buttons the pictures of the window's activation.
    void setButtons();

    const TitleBar &titleBar() const { return m_titleBar; }

private:
    void restoreNativeStyle();
    void followScreen();
    void insertMenuBar();
    void restrainSizeGrip();

    QWidget *m_window;
    bool m_active = true;
    bool m_fixed = false;
    bool m_alwaysOnTop = false;
    bool m_useLayout = true;
    bool m_hidesSizeGrip = false;
    QString m_title;
    TitleBar m_titleBar;
    FramePainter m_painter;
    QPointer<MoveResizeHandler> m_handler;
    QPointer<QMenuBar> m_menuBar;
    QPointer<OmStatusBar> m_statusBar;
    QPointer<QWidget> m_content;
    QMetaObject::Connection m_screenChange; // of the present native window
};

} // namespace ombrin
