#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QPoint>
#include <QtCore/QStringList>
#include <QtWidgets/QTabBar>

namespace ombrin {

/// A tab bar whose tabs exchange places by drag and drop, and whose captions can be hidden.
///
/// Behaves as QTabBar, without scroll buttons and without keyboard focus of its own; captions are
/// shortened where there is not enough room. OmTabWidget has one; alone it is used like this:
///
/// \code
/// auto *bar = new ombrin::OmTabBar(this);
/// bar->addTab(QIcon(QStringLiteral(":/chat-16")), tr("Ada"));
/// bar->addTab(QIcon(QStringLiteral(":/chat-16")), tr("Max"));
/// bar->enableDragableTabs(true);
/// connect(bar, &ombrin::OmTabBar::tabsExchanged, this, &ChatWindow::exchangeConversations);
/// \endcode
///
/// **Dragging.** A drag begins when the mouse is moved with the left button held by at least
/// QApplication::startDragDistance(). While it is over the bar a marker shows after which tab the
/// dragged one would go: over the right half of a tab after that tab, over the left half before
/// it, over empty space before the first one. The halves are those of the screen, in right-to-left
/// and vertical bars too. The drop does not shift tabs: the dragged tab and the one in the place
/// where it would go exchange places. With the tabs A B C D E and B dragged:
///
/// | Dropped on       | Result    |
/// |------------------|-----------|
/// | right half of D  | A D C B E |
/// | left half of D   | A C B D E |
/// | right half of A  | A B C D E |
/// | left half of A   | B A C D E |
/// | empty space      | B A C D E |
///
/// Text, icon, text colour, tool tip, What's This text, data, accessible name, enabled and visible
/// change places; tab buttons (setTabButton()) stay. Drags that come from elsewhere are refused.
/// The drag carries the MIME type "binary/ombrin-tab" without data. Tabs that the host inserts,
/// removes or moves during a drag do not confuse it; when the dragged tab itself is removed the
/// drop does nothing.
///
/// tabsExchanged() is emitted when the event loop of the drag has ended, right after the drop: the
/// receiver may delete the bar, and the bar may be deleted at any time during a drag.
///
/// **Captions.** enableTabText(false) takes the captions away until enableTabText(true) brings them
/// back; they follow their tabs meanwhile. A tab that is added while captions are hidden shows the
/// caption that it is given, and has an empty one when captions come back. Hidden captions remain
/// the names that assistive technology reads.
///
/// Indices out of range do nothing.
///
/// \ingroup widgets
class OMBRIN_GUI_EXPORT OmTabBar : public QTabBar
{
    Q_OBJECT

    /// Whether the user can drag tabs onto each other. False by default.
    Q_PROPERTY(bool dragableTabs READ hasDragableTabs WRITE enableDragableTabs)
    /// Whether the captions are shown. True by default.
    Q_PROPERTY(bool tabText READ hasTabText WRITE enableTabText)

public:
    explicit OmTabBar(QWidget *parent = nullptr);
    ~OmTabBar() override;

    /// Lets the user drag tabs, and the bar accept drops.
    void enableDragableTabs(bool enable);
    bool hasDragableTabs() const;

    bool hasTabText() const;

public Q_SLOTS:
    /// Hides the captions, or brings them back.
    void enableTabText(bool enable);

Q_SIGNALS:
    /// The user has exchanged two tabs: the dragged one is now at \a firstTabIndex and came from
    /// \a secondTabIndex.
    void tabsExchanged(int firstTabIndex, int secondTabIndex);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void tabInserted(int index) override;
    void tabRemoved(int index) override;

private:
    int tabBarIndexByIntersection(const QPoint &position) const;
    int tabBarIndexByIntersectionDrag(const QPoint &position) const;
    bool isTabBarMove(QDropEvent *event) const;
    void exchangeTabs(int first, int second);

    void followMovedTab(int from, int to);
    void startDrag();
    void finishDrag();
    void releasePress();
    void hideDropMarker();
    QRect dropMarker() const;
    void hideCaption(int index);
    void showCaption(int index);

    bool m_dragging = false;
    bool m_dragable = false;
    bool m_tabText = true;
    bool m_dragRuns = false;
    int m_dragSource = -1;
    int m_dropIndex = -1;
    // The tab with which the dragged one exchanges places once the drag has ended.
    int m_exchangeTarget = -1;
    QPoint m_pressPosition;
    QStringList m_savedTexts;
};

} // namespace ombrin
