#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolButton>

namespace ombrin {

/// A tool bar that shows text beside the icons of its buttons where there is room for it.
///
/// The buttons that the host names with setButtonList() are measured once, at the first resize of
/// the bar. At this and each further resize they show text beside their icons if the bar is more
/// than 30 pixels wider than they were together, and else icons only.
///
/// \code
/// auto *bar = new ombrin::OmToolBar(this);
/// QList<QToolButton *> buttons;
/// for (QAction *action : {call, send, block}) {
///     auto *button = new ombrin::OmToolButton;
///     button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
///     button->setDefaultAction(action);
///     bar->addWidget(button);
///     buttons.append(button);
/// }
/// bar->setButtonList(buttons);
/// \endcode
///
/// Name the buttons before the bar is shown, and give them the style in which they are to be
/// measured. Up to its first resize the bar's minimum size is 10000 x 0, so that all buttons have
/// room when they are measured; then it is 0 x 0. The first resize comes before the bar's window is
/// laid out for showing, so the window does not grow.
///
/// The buttons are not owned; one that is deleted is forgotten.
///
/// \ingroup widgets
class OMBRIN_GUI_EXPORT OmToolBar : public QToolBar
{
    Q_OBJECT

public:
    explicit OmToolBar(QWidget *parent = nullptr);
    ~OmToolBar() override;

    /// Replaces the buttons whose style the bar manages. Null pointers are ignored. The styles and
    /// the measured width stay as they are until the next resize and for ever, respectively.
    void setButtonList(QList<QToolButton *> buttons);

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private Q_SLOTS:
    void slotResize();

private:
    void measure();
    void checkWidth();

    QList<QPointer<QToolButton>> m_buttons;
    bool m_measurePending = true;
    int m_totalWidth = 0;
    // Of the latest resize event, which does not live as long as slotResize() needs it.
    QSize m_previousSize;
};

} // namespace ombrin
