#pragma once

#include <ombrin/OmGlobal.h>
#include <ombrin/OmQtCompat.h>

#include <QtWidgets/QDialog>

#include <memory>

class QMenuBar;

namespace ombrin {

class OmStatusBar;
class SkinFrame;

/// A dialog with the border, title, buttons and mouse behaviour of OmWindow.
///
/// It is window-modal: while shown it blocks its parent window and that window's parents, and no
/// other window of the application. Everything else is QDialog's: Escape and the close button
/// reject it, Enter presses the default button.
///
/// Either put a layout on the dialog, which the contents margins (5, 30, 5, 5) keep inside the
/// border, or hand one content widget to setWidget():
///
/// \code
/// ombrin::OmDialog2 dialog(mainWindow);
/// dialog.setWindowTitle(QStringLiteral("About"));
/// auto *layout = new QVBoxLayout(&dialog);
/// layout->addWidget(new QLabel(QStringLiteral("Version 1.0")));
/// dialog.exec();
/// \endcode
///
/// A derived class that overrides one of the protected event functions calls the one here, which
/// keeps the frame working.
///
/// setWindowTitle() hides QWidget's function of that name: called through a \c QWidget pointer it
/// is Qt's, which sets the title in the task bar and leaves the drawn one as it is.
///
/// To be used from the GUI thread.
///
/// \ingroup windows
class OMBRIN_GUI_EXPORT OmDialog2 : public QDialog
{
    Q_OBJECT

    // QWidget's property of this name would leave the drawn title as it is.
    Q_PROPERTY(QString windowTitle READ windowTitle WRITE setWindowTitle)
    /// Whether the size is fixed for the user.
    Q_PROPERTY(bool fixed READ fixed WRITE setFixed)

public:
    explicit OmDialog2(QWidget *parent = nullptr);
    ~OmDialog2() override;

    /// \copydoc OmWindow::setWidget()
    void setWidget(QWidget *widget);
    /// \copydoc OmWindow::widget()
    QWidget *widget();

    /// \copydoc OmWindow::setUseLayout()
    void setUseLayout(bool useLayout);
    bool useLayout() const;

    /// \copydoc OmWindow::setFixed()
    void setFixed(bool fixed);
    bool fixed() const;

    /// \copydoc OmWindow::menuBar()
    QMenuBar *menuBar();
    /// \copydoc OmWindow::statusBar()
    OmStatusBar *statusBar();

    /// \copydoc OmWindow::setWindowTitle()
    void setWindowTitle(const QString &title);
    /// \copydoc OmWindow::setWindowTitleOnly()
    void setWindowTitleOnly(const QString &title);
    /// \copydoc OmWindow::windowTitleOnly()
    QString windowTitleOnly();

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
};

} // namespace ombrin
