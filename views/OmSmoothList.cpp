#include <ombrin/OmSmoothList.h>

#include <ombrin/OmQtCompat.h>
#include <ombrin/OmSmoothDelegate.h>

#include <QtCore/QSignalBlocker>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

#include <algorithm>

namespace ombrin {

namespace {

constexpr int kRowsBeyond = 1000;
constexpr QColor kLine(192, 192, 192);
constexpr QColor kHoveredText(128, 128, 128);

// Compares first: each change is told to the view. Not to the host, for which nothing has changed.
void setLook(QListWidgetItem *entry, const QColor &color, bool underline)
{
    const QSignalBlocker blocker(entry->listWidget());
    if (entry->foreground() != QBrush(color))
        entry->setForeground(color);
    QFont font = entry->font();
    if (font.underline() != underline) {
        font.setUnderline(underline);
        entry->setFont(font);
    }
}

} // namespace

OmSmoothList::OmSmoothList(QWidget *parent)
    : QListWidget(parent)
    , m_delegate(new OmSmoothDelegate(this))
    , m_lineColor(kLine)
{
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    setFrameShadow(QFrame::Plain);
    setFrameShape(QFrame::NoFrame);
    takeColors();
    setItemDelegate(m_delegate);
    connect(this, &QListWidget::itemSelectionChanged, this,
            &OmSmoothList::slotRestoreDefaultColoursAndFont);
}

OmSmoothList::~OmSmoothList() = default;

void OmSmoothList::slotRestoreDefaultColoursAndFont()
{
    restoreEntries();
    viewport()->update();
}

void OmSmoothList::mouseMoveEvent(QMouseEvent *event)
{
    hover(itemAt(mousePosition(event)), mousePosition(event));
}

void OmSmoothList::leaveEvent(QEvent *event)
{
    slotRestoreDefaultColoursAndFont();
    QListWidget::leaveEvent(event);
    m_delegate->setHovered(count() + kRowsBeyond, QPoint());
    setCursor(Qt::ArrowCursor);
}

void OmSmoothList::resizeEvent(QResizeEvent *event)
{
    m_delegate->setListRect(geometry());
    QListWidget::resizeEvent(event);
}

void OmSmoothList::paintEvent(QPaintEvent *event)
{
    QListWidget::paintEvent(event);
    paintBorder();
}

void OmSmoothList::changeEvent(QEvent *event)
{
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        takeColors();
        slotRestoreDefaultColoursAndFont();
    }
}

void OmSmoothList::takeColors()
{
    m_textColor = palette().color(QPalette::Text);
    m_windowColor = palette().color(QPalette::Window);
    m_tabTextColor = palette().color(QPalette::Text);
    m_delegate->setFillColor(m_windowColor);
    m_delegate->setOutlineColor(m_lineColor);
    m_delegate->setTextColor(m_tabTextColor);
}

void OmSmoothList::restoreEntries()
{
    for (int row = 0; row < count(); ++row)
        setLook(item(row), m_textColor, false);
    m_hovered = QModelIndex();
}

// Entries are looked through only when the mouse has come to another one.
void OmSmoothList::hover(QListWidgetItem *entry, const QPoint &position)
{
    const bool isLink = entry && (entry->flags() & Qt::ItemIsEnabled) != 0;
    const QModelIndex hovered = isLink ? indexFromItem(entry) : QModelIndex();
    if (m_hovered != hovered)
        restoreEntries();
    if (isLink)
        setLook(entry, kHoveredText, true);
    m_hovered = hovered;
    m_delegate->setHovered(isLink ? hovered.row() : count() + kRowsBeyond, position);
    setCursor(isLink && isOverText(entry) ? Qt::PointingHandCursor : Qt::ArrowCursor);
    viewport()->update();
}

bool OmSmoothList::isOverText(const QListWidgetItem *entry) const
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    QStyleOptionViewItem option;
    initViewItemOption(&option);
#else
    QStyleOptionViewItem option = viewOptions();
#endif
    option.rect = visualItemRect(entry);
    return m_delegate->isOverText(option, indexFromItem(entry));
}

void OmSmoothList::paintBorder()
{
    QPainter painter(viewport());
    painter.fillRect(0, 0, 1, height(), m_lineColor);
    painter.fillRect(0, 0, width(), 1, m_lineColor);
    painter.fillRect(0, height() - 1, width(), 1, m_lineColor);

    QVector<QRect> tabs;
    const QList<QListWidgetItem *> selected = selectedItems();
    for (const QListWidgetItem *entry : selected) {
        const QRect tab = visualItemRect(entry);
        if (tab.isValid())
            tabs.append(tab);
    }
    std::sort(tabs.begin(), tabs.end(),
              [](const QRect &a, const QRect &b) { return a.top() < b.top(); });
    // Rectangles, as lines would not be crisp on every screen.
    const auto drawRightLine = [&](int from, int to) {
        painter.fillRect(QRect(QPoint(width() - 1, from), QPoint(width() - 1, to)), m_lineColor);
    };
    int y = 0;
    for (const QRect &tab : std::as_const(tabs)) {
        drawRightLine(y, tab.top() + 2);
        y = tab.bottom() - 1;
    }
    drawRightLine(y, height());
}

} // namespace ombrin
