#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtWidgets/QTabWidget>

class QToolButton;

namespace ombrin {

class OmTabBar;

// The signal tabRemoved() hides the hook of QTabWidget. A using declaration would bring the hook
// back and take away &OmTabWidget::tabRemoved, which could not be told from it.
QT_WARNING_PUSH
QT_WARNING_DISABLE_CLANG("-Woverloaded-virtual")

/// A tab widget with an OmTabBar, and with a button that closes the current tab.
///
/// Behaves as QTabWidget, without scroll buttons. When the user exchanges two tabs the pages
/// follow, and the dragged tab becomes the current one.
///
/// \code
/// auto *tabs = new ombrin::OmTabWidget(this);
/// tabs->addTab(contactList, tr("Contacts"));
/// tabs->addSpecialWidget(contactList); // stays
/// tabs->addTab(chat, tr("Ada"));
/// tabs->enableDragableTabs(true);
/// tabs->enableCloseTabButton(true);
/// connect(tabs, &ombrin::OmTabWidget::tabRemoved, tabs, [](QWidget *page) { delete page; });
/// \endcode
///
/// The close button stands in the top right corner and takes the current page out of the widget,
/// unless it is a special one, for which the button is disabled. The page itself is not deleted: it
/// stays a child of the widget's inside, and the receiver of tabRemoved() decides what becomes of
/// it. The receiver may delete the tab widget, too. (A subclass that overrides the hook
/// QTabWidget::tabRemoved(int) hides the signal of that name; OmTabWidget::tabRemoved names it.)
///
/// With the tab bar hidden the host switches pages with setCurrentIndex().
///
/// \ingroup widgets
class OMBRIN_GUI_EXPORT OmTabWidget : public QTabWidget
{
    Q_OBJECT

    /// Whether the tab bar is shown. True by default.
    Q_PROPERTY(bool tabBar READ hasTabBar WRITE enableTabBar)
    /// Whether the captions are shown. True by default.
    Q_PROPERTY(bool tabText READ hasTabText WRITE enableTabText)
    /// Whether the user can drag tabs onto each other. False by default.
    Q_PROPERTY(bool dragableTabs READ hasDragableTabs WRITE enableDragableTabs)
    /// Whether there is a button that closes the current tab. False by default.
    Q_PROPERTY(bool closeTabButton READ hasCloseTabButton WRITE enableCloseTabButton)

public:
    explicit OmTabWidget(QWidget *parent = nullptr);
    ~OmTabWidget() override;

    /// Shows or hides the tab bar.
    void enableTabBar(bool enable);
    /// Whether the tab bar is shown. True by default.
    bool hasTabBar() const;

    /// See OmTabBar::enableTabText().
    void enableTabText(bool enable);
    bool hasTabText() const;

    /// See OmTabBar::enableDragableTabs().
    void enableDragableTabs(bool enable);
    bool hasDragableTabs() const;

    /// Shows or hides the close button. It takes the place of another widget in the top right
    /// corner.
    void enableCloseTabButton(bool enable);
    /// Whether the close button is shown. False by default.
    bool hasCloseTabButton() const;

    /// Keeps the user from closing the page \a widget, whether it is in the tab widget already or
    /// comes later. Null does nothing.
    void addSpecialWidget(QWidget *widget);

Q_SIGNALS:
    /// The close button has removed the page \a widget, which nobody has deleted. Null when there
    /// was no tab left to remove.
    void tabRemoved(QWidget *widget);

protected:
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void removeCurrentTab();
    void swapTabs(int firstTabIndex, int secondTabIndex);
    void slotTabChanged(int index);

private:
    void installCloseButton();
    bool isSpecial(QWidget *widget) const;

    bool m_closeButtonEnabled = false;
    bool m_tabBarEnabled = true;
    QPointer<OmTabBar> m_tabBar;
    QPointer<QToolButton> m_closeButton;
    QList<QPointer<QWidget>> m_specialWidgets;
};

QT_WARNING_POP

} // namespace ombrin
