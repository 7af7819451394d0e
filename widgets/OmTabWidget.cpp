#include <ombrin/OmTabWidget.h>

#include <ombrin/OmTabBar.h>

#include "skin/SkinPixmap.h"

#include <QtCore/QEvent>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QToolButton>

namespace ombrin {

namespace {

// The lower index first, so that the other page finds its place.
void exchangePages(QStackedWidget *stack, int first, int second)
{
    QWidget *const firstPage = stack->widget(first);
    QWidget *const secondPage = stack->widget(second);
    // A tab widget removes the tab of a page that its stack reports as removed.
    const QSignalBlocker blocker(stack);
    stack->removeWidget(firstPage);
    stack->removeWidget(secondPage);
    if (first >= second) {
        stack->insertWidget(second, firstPage);
        stack->insertWidget(first, secondPage);
    } else {
        stack->insertWidget(first, secondPage);
        stack->insertWidget(second, firstPage);
    }
    stack->setCurrentIndex(first);
}

} // namespace

OmTabWidget::OmTabWidget(QWidget *parent)
    : QTabWidget(parent)
{
    setUsesScrollButtons(false);
    setFocusPolicy(Qt::NoFocus);
    m_tabBar = new OmTabBar(this);
    setTabBar(m_tabBar);
    connect(m_tabBar, &OmTabBar::tabsExchanged, this, &OmTabWidget::swapTabs);
    connect(this, &QTabWidget::currentChanged, this, &OmTabWidget::slotTabChanged);
}

OmTabWidget::~OmTabWidget()
{
    // Pages that go down with the base class must not be reported to slots that are gone.
    disconnect(this, &QTabWidget::currentChanged, this, &OmTabWidget::slotTabChanged);
}

void OmTabWidget::enableTabBar(bool enable)
{
    if (m_tabBarEnabled == enable)
        return;
    m_tabBarEnabled = enable;
    tabBar()->setVisible(enable);
}

bool OmTabWidget::hasTabBar() const
{
    return m_tabBarEnabled;
}

void OmTabWidget::enableTabText(bool enable)
{
    if (m_tabBar)
        m_tabBar->enableTabText(enable);
}

bool OmTabWidget::hasTabText() const
{
    return !m_tabBar || m_tabBar->hasTabText();
}

void OmTabWidget::enableDragableTabs(bool enable)
{
    if (m_tabBar)
        m_tabBar->enableDragableTabs(enable);
}

bool OmTabWidget::hasDragableTabs() const
{
    return m_tabBar && m_tabBar->hasDragableTabs();
}

void OmTabWidget::enableCloseTabButton(bool enable)
{
    if (m_closeButtonEnabled == enable)
        return;
    m_closeButtonEnabled = enable;
    if (enable)
        installCloseButton();
    if (m_closeButton)
        m_closeButton->setVisible(enable);
    slotTabChanged(currentIndex());
}

bool OmTabWidget::hasCloseTabButton() const
{
    return m_closeButtonEnabled;
}

void OmTabWidget::addSpecialWidget(QWidget *widget)
{
    if (!widget)
        return;
    m_specialWidgets.removeAll(nullptr);
    m_specialWidgets.append(widget);
    slotTabChanged(currentIndex());
}

void OmTabWidget::removeCurrentTab()
{
    const QPointer<QWidget> page = widget(currentIndex());
    if (isSpecial(page))
        return;
    const QPointer<OmTabWidget> guard(this);
    {
        // A tab bar does not survive that it is deleted in currentChanged() while it removes a tab.
        const QSignalBlocker blocker(tabBar());
        removeTab(currentIndex());
    }
    if (page)
        Q_EMIT tabBar()->currentChanged(tabBar()->currentIndex());
    if (guard)
        Q_EMIT tabRemoved(page);
}

void OmTabWidget::swapTabs(int firstTabIndex, int secondTabIndex)
{
    const QWidget *const first = widget(firstTabIndex);
    const QWidget *const second = widget(secondTabIndex);
    if (first && second && first != second) {
        if (auto *const stack = qobject_cast<QStackedWidget *>(first->parentWidget()))
            exchangePages(stack, firstTabIndex, secondTabIndex);
    }
    setCurrentIndex(firstTabIndex);
}

void OmTabWidget::slotTabChanged(int index)
{
    if (m_closeButtonEnabled && m_closeButton)
        m_closeButton->setEnabled(!isSpecial(widget(index)));
}

// Makes the button on first use, and puts it back when the host has put something else there.
void OmTabWidget::installCloseButton()
{
    if (!m_closeButton) {
        m_closeButton = new QToolButton(this);
        m_closeButton->setIcon(QIcon(skinPixmap(QStringLiteral(":/close-16"))));
        m_closeButton->setAutoRaise(true);
        m_closeButton->setAccessibleName(tr("Close tab"));
        connect(m_closeButton, &QToolButton::clicked, this, &OmTabWidget::removeCurrentTab);
    }
    if (cornerWidget(Qt::TopRightCorner) != m_closeButton)
        setCornerWidget(m_closeButton, Qt::TopRightCorner);
}

void OmTabWidget::changeEvent(QEvent *event)
{
    QTabWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && m_closeButton)
        m_closeButton->setAccessibleName(tr("Close tab"));
}

bool OmTabWidget::isSpecial(QWidget *widget) const
{
    return widget && m_specialWidgets.contains(widget);
}

} // namespace ombrin
