#include <ombrin/OmImageButton.h>

#include "widgets/KeyboardAccess.h"
#include "widgets/WidgetAccessibility.h"

#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

#include <algorithm>
#include <array>

namespace ombrin {

namespace {

using ChannelTable = std::array<uchar, 256>;

template <typename Formula>
constexpr ChannelTable tabulate(Formula formula)
{
    ChannelTable table{};
    for (int value = 0; value < 256; ++value) {
        const int refined = static_cast<int>(formula(value));
        table[static_cast<std::size_t>(value)] = static_cast<uchar>(std::clamp(refined, 0, 255));
    }
    return table;
}

constexpr ChannelTable kDownTable = tabulate([](int value) { return value * 0.95; });
constexpr ChannelTable kHoveredTable = tabulate([](int value) { return value * 1.05; });
constexpr ChannelTable kDisabledTable =
        tabulate([](int value) { return (value * (1.0 / 255)) * (value - 192) + 192; });

QPixmap refined(const QPixmap &pixmap, const ChannelTable &table)
{
    if (pixmap.isNull())
        return pixmap;
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        QRgb *const line = reinterpret_cast<QRgb *>(image.scanLine(y));
        std::transform(line, line + image.width(), line, [&table](QRgb pixel) {
            return qRgba(table[static_cast<std::size_t>(qRed(pixel))],
                         table[static_cast<std::size_t>(qGreen(pixel))],
                         table[static_cast<std::size_t>(qBlue(pixel))], qAlpha(pixel));
        });
    }
    return QPixmap::fromImage(image.convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

} // namespace

OmImageButton::OmImageButton(QWidget *parent, Qt::WindowFlags f)
    : QWidget(parent, f)
{
    installWidgetAccessibility();
    setBackgroundRole(QPalette::NoRole);
    setCursor(QCursor(Qt::ArrowCursor));
}

OmImageButton::~OmImageButton() = default;

bool OmImageButton::isCheckable() const
{
    return m_checkable;
}

void OmImageButton::setCheckable(bool checkable)
{
    m_checkable = checkable;
}

bool OmImageButton::isChecked() const
{
    return m_checked;
}

void OmImageButton::setChecked(bool checked)
{
    storeChecked(checked);
    update();
}

bool OmImageButton::isDown() const
{
    return m_down;
}

void OmImageButton::setDown(bool down)
{
    storeDown(down);
    update();
}

bool OmImageButton::isHovered() const
{
    return m_hovered;
}

void OmImageButton::setHovered(bool hovered)
{
    m_hovered = hovered;
    update();
}

int OmImageButton::offset() const
{
    return m_offset;
}

void OmImageButton::setOffset(int offset)
{
    m_offset = offset;
}

QPixmap OmImageButton::pixmapUp() const
{
    return m_normal.up;
}

void OmImageButton::setPixmapUp(const QPixmap &pixmap)
{
    replacePixmap(&m_normal.up, pixmap);
}

QPixmap OmImageButton::pixmapDown() const
{
    return m_normal.down;
}

void OmImageButton::setPixmapDown(const QPixmap &pixmap)
{
    replacePixmap(&m_normal.down, pixmap);
}

QPixmap OmImageButton::pixmapHovered() const
{
    return m_normal.hovered;
}

void OmImageButton::setPixmapHovered(const QPixmap &pixmap)
{
    replacePixmap(&m_normal.hovered, pixmap);
}

QPixmap OmImageButton::pixmapDisabled() const
{
    return m_normal.disabled;
}

void OmImageButton::setPixmapDisabled(const QPixmap &pixmap)
{
    replacePixmap(&m_normal.disabled, pixmap);
}

QPixmap OmImageButton::pixmapUpSelected() const
{
    return m_selected.up;
}

void OmImageButton::setPixmapUpSelected(const QPixmap &pixmap)
{
    replacePixmap(&m_selected.up, pixmap);
}

QPixmap OmImageButton::pixmapDownSelected() const
{
    return m_selected.down;
}

void OmImageButton::setPixmapDownSelected(const QPixmap &pixmap)
{
    replacePixmap(&m_selected.down, pixmap);
}

QPixmap OmImageButton::pixmapHoveredSelected() const
{
    return m_selected.hovered;
}

void OmImageButton::setPixmapHoveredSelected(const QPixmap &pixmap)
{
    replacePixmap(&m_selected.hovered, pixmap);
}

QPixmap OmImageButton::pixmapDisabledSelected() const
{
    return m_selected.disabled;
}

void OmImageButton::setPixmapDisabledSelected(const QPixmap &pixmap)
{
    replacePixmap(&m_selected.disabled, pixmap);
}

void OmImageButton::setIgnoreHovered(bool ignore)
{
    m_ignoreHovered = ignore;
}

void OmImageButton::setAllPixmaps(const QPixmap &pixmap, bool selectedSet, bool normalSet,
                                  bool deriveDown, bool deriveHovered, bool deriveDisabled)
{
    const auto fill = [&](PixmapSet *set) {
        set->up = pixmap;
        if (deriveDown)
            set->down = refinePictureToDownState(pixmap);
        if (deriveHovered)
            set->hovered = refinePictureToHoveredState(pixmap);
        if (deriveDisabled)
            set->disabled = refinePictureToDisabledState(pixmap);
    };
    if (selectedSet)
        fill(&m_selected);
    if (normalSet)
        fill(&m_normal);
    update();
}

QPixmap OmImageButton::refinePictureToDownState(QPixmap pixmap)
{
    return refined(pixmap, kDownTable);
}

QPixmap OmImageButton::refinePictureToHoveredState(QPixmap pixmap)
{
    return refined(pixmap, kHoveredTable);
}

QPixmap OmImageButton::refinePictureToDisabledState(QPixmap pixmap)
{
    return refined(pixmap, kDisabledTable);
}

bool OmImageButton::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseMove:
        if (isEnabled())
            followDrag(static_cast<const QMouseEvent *>(event));
        break;
    case QEvent::Show:
    case QEvent::EnabledChange:
        dropLostPress();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void OmImageButton::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_pressTracked = QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
    storeDown(true);
    update();
    Q_EMIT pressed();
}

void OmImageButton::mouseReleaseEvent(QMouseEvent *event)
{
    m_pressedOutside = false;
    m_pressTracked = false;
    m_pressedByKey = false;
    if (!m_down)
        return;
    storeDown(false);
    update();
    if (rect().contains(mousePosition(event)))
        click();
}

void OmImageButton::keyPressEvent(QKeyEvent *event)
{
    if (!isClickKey(this, event)) {
        QWidget::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) {
        m_pressedByKey = true;
        storeDown(true);
        update();
        Q_EMIT pressed();
    }
}

void OmImageButton::keyReleaseEvent(QKeyEvent *event)
{
    if (!m_pressedByKey || !isClickKey(this, event)) {
        QWidget::keyReleaseEvent(event);
    } else if (!event->isAutoRepeat()) {
        dropPress();
        click();
    }
}

// The release of a key that was pressed here will go elsewhere.
void OmImageButton::focusOutEvent(QFocusEvent *event)
{
    if (m_pressedByKey)
        dropPress();
    QWidget::focusOutEvent(event);
}

void OmImageButton::enterEvent(EnterEvent *)
{
    dropLostPress();
    pointerEntered();
}

void OmImageButton::leaveEvent(QEvent *)
{
    pointerLeft();
}

void OmImageButton::paintEvent(QPaintEvent *)
{
    const QPixmap &picture = pixmap();
    if (picture.isNull())
        return;
    const int shift = m_down || !isEnabled() ? m_offset : 0;
    QPainter painter(this);
    painter.setClipping(true);
    painter.drawPixmap(shift, shift, picture);
}

const QPixmap &OmImageButton::pixmap() const
{
    const PixmapSet &set = m_checkable && m_checked ? m_selected : m_normal;
    if (m_down)
        return set.down;
    if (isEnabled())
        return m_hovered ? set.hovered : set.up;
    return set.disabled.isNull() ? set.down : set.disabled;
}

void OmImageButton::replacePixmap(QPixmap *target, const QPixmap &pixmap)
{
    *target = pixmap;
    update();
}

void OmImageButton::storeDown(bool down)
{
    if (m_down == down)
        return;
    m_down = down;
    announcePressedChange(this);
}

void OmImageButton::storeChecked(bool checked)
{
    if (m_checked == checked)
        return;
    m_checked = checked;
    announceCheckedChange(this);
}

void OmImageButton::pointerEntered()
{
    if (m_pressedOutside)
        storeDown(true);
    m_pressedOutside = false;
    if (!m_ignoreHovered)
        m_hovered = true;
    update();
}

void OmImageButton::pointerLeft()
{
    if (m_down)
        m_pressedOutside = true;
    storeDown(false);
    if (!m_ignoreHovered)
        m_hovered = false;
    update();
}

// While a mouse button is held Qt keeps back the enter and leave events of the widget under it.
void OmImageButton::followDrag(const QMouseEvent *event)
{
    if (event->buttons() == Qt::NoButton)
        return;
    const bool inside = rect().contains(mousePosition(event));
    if (inside && m_pressedOutside)
        pointerEntered();
    else if (!inside && m_down)
        pointerLeft();
}

// The release of a press is lost when the button is disabled or hidden, or its window blocked by a
// dialog, before it comes. Such a press must not linger as a picture that stays down.
void OmImageButton::dropLostPress()
{
    if (!m_pressTracked || QGuiApplication::mouseButtons() != Qt::NoButton)
        return;
    dropPress();
}

void OmImageButton::dropPress()
{
    m_pressTracked = false;
    m_pressedOutside = false;
    m_pressedByKey = false;
    storeDown(false);
    update();
}

void OmImageButton::click()
{
    const QPointer<OmImageButton> guard(this);
    storeChecked(!m_checked);
    Q_EMIT clicked(m_checked);
    if (guard)
        Q_EMIT released();
}

} // namespace ombrin
