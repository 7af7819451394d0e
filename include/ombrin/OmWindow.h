#pragma once

#include <ombrin/OmGlobal.h>
#include <ombrin/OmQtCompat.h>

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

#include <memory>

class QAction;
class QMenuBar;

namespace ombrin {

class OmStatusBar;
class SkinFrame;

/// A frameless top-level window with a skinned border, title and title-bar buttons.
///
/// The window moves when it is dragged with the left mouse button, resizes when the drag starts
/// within 4 pixels of an edge, maximises to the work area by a double click on its title, and
/// offers a menu for its opacity on a right click there. It hosts one content widget:
///
/// \code
/// auto *window = new ombrin::OmWindow;
/// window->setAttribute(Qt::WA_DeleteOnClose);
/// window->setWindowTitle(QStringLiteral("Contacts"));
/// window->setWidget(new ContactView);
/// window->menuBar()->addMenu(QStringLiteral("&File"));
/// window->statusBar()->showMessage(QStringLiteral("Online"));
/// window->resize(400, 300);
/// window->show();
/// \endcode
///
/// The contents margins (5, 30, 5, 5) keep the content inside the border; no window is smaller than
/// 174 x 35 pixels. Without a skin (see OmSkin) border and buttons are not drawn, and everything
/// else works.
///
/// setWindowTitle() hides QWidget's function of that name: called through a \c QWidget pointer it
/// is Qt's, which sets the title in the task bar and leaves the drawn one as it is.
///
/// A window with a \a parent is shown inside it, like any QWidget, unless it is given the flag
/// \c Qt::Window.
///
/// To be used from the GUI thread.
///
/// \ingroup windows
class OMBRIN_GUI_EXPORT OmWindow : public QWidget
{
    Q_OBJECT

    // QWidget's property of this name would leave the drawn title as it is.
    Q_PROPERTY(QString windowTitle READ windowTitle WRITE setWindowTitle)
    /// Whether the size is fixed for the user.
    Q_PROPERTY(bool fixed READ fixed WRITE setFixed)

public:
    explicit OmWindow(QWidget *parent = nullptr);
    ~OmWindow() override;

    /// Makes \a widget, which the window takes ownership of, its content. Null does nothing.
    ///
    /// With a layout (see setUseLayout()) the widget is appended to it, below what stands there;
    /// an earlier content widget stays. A menu bar and a status bar asked for before there was a
    /// layout find their places above and below the first content widget. Without a layout the
    /// widget fills the contents rectangle.
    void setWidget(QWidget *widget);
    /// The content widget; null before setWidget() and after that widget was deleted.
    QWidget *widget();

    /// Chooses whether a vertical layout places content, menu bar and status bar (the default) or
    /// the content is given the contents rectangle by hand. Call it before setWidget(), menuBar()
    /// and statusBar(), which read it; it changes nothing by itself.
    void setUseLayout(bool useLayout);
    bool useLayout() const;

    /// Fixes the size: no resizing by mouse and no maximising until it is set free again. Moving
    /// stays possible.
    void setFixed(bool fixed);
    bool fixed() const;

    /// The menu bar, made on first call at the top of the window; null without a layout.
    QMenuBar *menuBar();
    /// The status bar, made on first call at the end of the layout; null without a layout. It
    /// shows status tips for a second.
    OmStatusBar *statusBar();

    /// Sets the drawn title and the one in the task bar. The title is plain text.
    void setWindowTitle(const QString &title);
    /// Sets the drawn title alone.
    void setWindowTitleOnly(const QString &title);
    /// The drawn title.
    QString windowTitleOnly();

    /// Lets \a action switch and show whether the window stays above all others: it becomes
    /// checkable, triggering it runs the slot slotAlwaysOnTopTimer(), and its check mark follows.
    /// Null, the default, takes the connection away. The action stays the host's.
    void setAlwaysOnTopAction(QAction *action);
    /// Whether the window is kept above all others; false at first.
    bool isAlwaysOnTop() const;

protected:
    bool event(QEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool nativeEvent(const QByteArray &eventType, void *message,
                     NativeEventResult *result) override;

private Q_SLOTS:
    void slotCheckState();
    void slotHeaderContextMenu(const QPoint &pos);
    void slotAlwaysOnTopTimer();
    void slotAlwaysOnTop();
    void slotOp100Timer();
    void slotOp100();
    void slotOp80Timer();
    void slotOp80();
    void slotOp60Timer();
    void slotOp60();
    void slotOp50Timer();
    void slotOp50();
    void slotOp40Timer();
    void slotOp40();
    void slotOp20Timer();
    void slotOp20();

private:
    void computeAndSetMask();
    void setButtons();

    std::unique_ptr<SkinFrame> m_frame;
    QPointer<QAction> m_alwaysOnTopAction;
};

} // namespace ombrin
