#include <ombrin/OmTabBar.h>

#include <ombrin/OmQtCompat.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QMimeData>
#include <QtCore/QPointer>
#include <QtGui/QDrag>
#include <QtGui/QDropEvent>
#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

#include <utility>

namespace ombrin {

namespace {

QPoint dropPosition(const QDropEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->position().toPoint();
#else
    return event->pos();
#endif
}

// Where the tab at an index is after another one was inserted, removed or moved.
int afterInsertion(int index, int inserted)
{
    return index >= inserted ? index + 1 : index;
}

int afterRemoval(int index, int removed)
{
    if (index == removed)
        return -1;
    return index > removed ? index - 1 : index;
}

int afterMove(int index, int from, int to)
{
    if (index == from)
        return to;
    const int closed = index > from ? index - 1 : index;
    return closed >= to ? closed + 1 : closed;
}

// The caption without the '&' that mark its shortcut.
QString plainCaption(const QString &caption)
{
    QString plain;
    plain.reserve(caption.size());
    bool isMarked = false;
    for (const QChar character : caption) {
        isMarked = !isMarked && character == QLatin1Char('&');
        if (!isMarked)
            plain.append(character);
    }
    return plain;
}

template <typename Value, typename Argument>
void exchangeProperty(QTabBar *bar, int first, int second, Value (QTabBar::*read)(int) const,
                      void (QTabBar::*write)(int, Argument))
{
    const Value value = (bar->*read)(first);
    (bar->*write)(first, (bar->*read)(second));
    (bar->*write)(second, value);
}

// Sets before it clears, since QTabBar leaves a current tab that is disabled or hidden.
void exchangeFlag(QTabBar *bar, int first, int second, bool (QTabBar::*read)(int) const,
                  void (QTabBar::*write)(int, bool))
{
    const bool value = (bar->*read)(first);
    if (value == (bar->*read)(second))
        return;
    const QPointer<QTabBar> guard(bar);
    (bar->*write)(value ? second : first, true);
    if (guard)
        (bar->*write)(value ? first : second, false);
}

} // namespace

OmTabBar::OmTabBar(QWidget *parent)
    : QTabBar(parent)
{
    setUsesScrollButtons(false);
    setFocusPolicy(Qt::NoFocus);
    // Else, without scroll buttons, a long caption would make the window as wide as itself.
    setElideMode(Qt::ElideRight);
    connect(this, &QTabBar::tabMoved, this, &OmTabBar::followMovedTab);
}

OmTabBar::~OmTabBar()
{
    // Without its source a drag would go on to nowhere.
    if (m_dragRuns)
        QDrag::cancel();
}

void OmTabBar::enableDragableTabs(bool enable)
{
    m_dragable = enable;
    setAcceptDrops(enable);
}

bool OmTabBar::hasDragableTabs() const
{
    return m_dragable;
}

bool OmTabBar::hasTabText() const
{
    return m_tabText;
}

void OmTabBar::enableTabText(bool enable)
{
    if (m_tabText == enable)
        return;
    m_tabText = enable;
    for (int index = 0; index < count(); ++index) {
        if (enable)
            showCaption(index);
        else
            hideCaption(index);
    }
    if (enable)
        m_savedTexts.clear();
}

void OmTabBar::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_pressPosition = mousePosition(event);
    QTabBar::mousePressEvent(event);
}

void OmTabBar::mouseMoveEvent(QMouseEvent *event)
{
    const int distance = (mousePosition(event) - m_pressPosition).manhattanLength();
    const bool isDrag = m_dragable && event->buttons().testFlag(Qt::LeftButton)
                        && distance >= QApplication::startDragDistance();
    if (!isDrag)
        QTabBar::mouseMoveEvent(event);
    else if (!m_dragRuns)
        startDrag();
}

void OmTabBar::paintEvent(QPaintEvent *event)
{
    QTabBar::paintEvent(event);
    if (!m_dragging)
        return;
    QPainter painter(this);
    painter.setBrush(palette().color(QPalette::Highlight));
    painter.drawRect(dropMarker());
}

void OmTabBar::dragEnterEvent(QDragEnterEvent *event)
{
    if (!m_dragable) {
        QTabBar::dragEnterEvent(event);
        return;
    }
    if (!isTabBarMove(event)) {
        event->ignore();
        return;
    }
    m_dragging = true;
    event->acceptProposedAction();
}

void OmTabBar::dragMoveEvent(QDragMoveEvent *event)
{
    if (!m_dragable) {
        QTabBar::dragMoveEvent(event);
        return;
    }
    if (!isTabBarMove(event)) {
        event->ignore();
        return;
    }
    m_dropIndex = tabBarIndexByIntersectionDrag(dropPosition(event));
    m_dragging = true;
    repaint();
    event->acceptProposedAction();
}

void OmTabBar::dragLeaveEvent(QDragLeaveEvent *event)
{
    hideDropMarker();
    if (!m_dragable)
        QTabBar::dragLeaveEvent(event);
}

void OmTabBar::dropEvent(QDropEvent *event)
{
    hideDropMarker();
    if (!m_dragable) {
        QTabBar::dropEvent(event);
        return;
    }
    if (!isTabBarMove(event)) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    const int target = tabBarIndexByIntersectionDrag(dropPosition(event));
    m_exchangeTarget = target < m_dragSource ? target + 1 : target;
    // Qt does not survive that a drop deletes its window, as a receiver of tabsExchanged() may.
    if (!m_dragRuns)
        finishDrag();
}

void OmTabBar::tabInserted(int index)
{
    m_dragSource = afterInsertion(m_dragSource, index);
    m_dropIndex = afterInsertion(m_dropIndex, index);
    m_exchangeTarget = afterInsertion(m_exchangeTarget, index);
    if (!m_tabText && index <= m_savedTexts.size())
        m_savedTexts.insert(index, QString());
    QTabBar::tabInserted(index);
}

void OmTabBar::tabRemoved(int index)
{
    m_dragSource = afterRemoval(m_dragSource, index);
    m_dropIndex = afterRemoval(m_dropIndex, index);
    m_exchangeTarget = afterRemoval(m_exchangeTarget, index);
    if (index < m_savedTexts.size())
        m_savedTexts.removeAt(index);
    QTabBar::tabRemoved(index);
}

int OmTabBar::tabBarIndexByIntersection(const QPoint &position) const
{
    for (int index = 0; index < count(); ++index) {
        if (tabRect(index).contains(position))
            return index;
    }
    return -1;
}

int OmTabBar::tabBarIndexByIntersectionDrag(const QPoint &position) const
{
    const int index = tabBarIndexByIntersection(position);
    if (index < 0)
        return -1;
    const QRect rect = tabRect(index);
    return position.x() > rect.left() + rect.width() / 2 ? index : index - 1;
}

bool OmTabBar::isTabBarMove(QDropEvent *event) const
{
    return event->source() == this && event->possibleActions().testFlag(Qt::MoveAction);
}

void OmTabBar::exchangeTabs(int first, int second)
{
    if (first == second)
        return;
    exchangeProperty(this, first, second, &QTabBar::tabText, &QTabBar::setTabText);
    exchangeProperty(this, first, second, &QTabBar::tabIcon, &QTabBar::setTabIcon);
    exchangeProperty(this, first, second, &QTabBar::tabTextColor, &QTabBar::setTabTextColor);
    exchangeProperty(this, first, second, &QTabBar::tabToolTip, &QTabBar::setTabToolTip);
    exchangeProperty(this, first, second, &QTabBar::tabWhatsThis, &QTabBar::setTabWhatsThis);
    exchangeProperty(this, first, second, &QTabBar::tabData, &QTabBar::setTabData);
    exchangeProperty(this, first, second, &QTabBar::accessibleTabName,
                     &QTabBar::setAccessibleTabName);
    if (qMax(first, second) < m_savedTexts.size())
        std::swap(m_savedTexts[first], m_savedTexts[second]);

    const QPointer<OmTabBar> guard(this);
    exchangeFlag(this, first, second, &QTabBar::isTabEnabled, &QTabBar::setTabEnabled);
    if (guard)
        exchangeFlag(this, first, second, &QTabBar::isTabVisible, &QTabBar::setTabVisible);
    if (guard)
        Q_EMIT tabsExchanged(first, second);
}

void OmTabBar::followMovedTab(int from, int to)
{
    m_dragSource = afterMove(m_dragSource, from, to);
    m_exchangeTarget = afterMove(m_exchangeTarget, from, to);
    if (qMax(from, to) < m_savedTexts.size())
        m_savedTexts.move(from, to);
}

void OmTabBar::startDrag()
{
    releasePress();
    m_dragging = true;
    auto *drag = new QDrag(this);
    // Qt goes on using the drag after its loop, even when the bar was deleted in there.
    drag->setParent(QCoreApplication::instance());
    auto *marker = new QMimeData;
    marker->setData(QStringLiteral("binary/ombrin-tab"), QByteArray());
    drag->setMimeData(marker);
    m_dragSource = tabBarIndexByIntersection(m_pressPosition);
    m_dragRuns = true;

    const QPointer<OmTabBar> guard(this);
    drag->exec(Qt::MoveAction);
    if (guard)
        finishDrag();
}

void OmTabBar::finishDrag()
{
    m_dragRuns = false;
    hideDropMarker();
    const int source = std::exchange(m_dragSource, -1);
    const int target = std::exchange(m_exchangeTarget, -1);
    if (source >= 0 && target >= 0)
        exchangeTabs(target, source);
}

// QTabBar does not see the end of a press that becomes a drag: it would go on painting the tab as
// pressed. A release outside of the bar selects nothing.
void OmTabBar::releasePress()
{
    const QPointF outside(-1, -1);
    QMouseEvent release(QEvent::MouseButtonRelease, outside, mapToGlobal(outside.toPoint()),
                        Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QTabBar::mouseReleaseEvent(&release);
}

void OmTabBar::hideDropMarker()
{
    m_dropIndex = -1;
    m_dragging = false;
    update();
}

QRect OmTabBar::dropMarker() const
{
    constexpr int kLength = 12;
    const QRect tab = tabRect(m_dropIndex);
    int left = tab.right() - 1;
    if (m_dropIndex < 0)
        left = tab.right() + 1;
    else if (m_dropIndex == count() - 1)
        left = tab.right() - 2;
    return QRect(QPoint(left, tab.top()), QPoint(left + 1, tab.top() + kLength));
}

void OmTabBar::hideCaption(int index)
{
    const QString caption = tabText(index);
    m_savedTexts.append(caption);
    if (accessibleTabName(index).isEmpty())
        setAccessibleTabName(index, plainCaption(caption));
    setTabText(index, QString());
}

void OmTabBar::showCaption(int index)
{
    const QString caption = m_savedTexts.value(index);
    if (accessibleTabName(index) == plainCaption(caption))
        setAccessibleTabName(index, QString());
    setTabText(index, caption);
}

} // namespace ombrin
