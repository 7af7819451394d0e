#include <ombrin/OmBalloonTip.h>

#include "effects/BalloonGeometry.h"
#include "effects/FittedText.h"
#include "effects/OmBalloonTipAccessible.h"
#include "skin/LightGround.h"

#include <ombrin/OmDesktop.h>

#include <QtCore/QPointer>
#include <QtCore/QTimerEvent>
#include <QtGui/QBitmap>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace ombrin {

namespace {

constexpr int kDefaultTimeoutMs = 10000;
constexpr QSize kIconSize(15, 15);
constexpr int kIconMargin = 2;
constexpr QSize kCloseButtonSize(18, 18);
constexpr int kLayoutMargin = 3;
constexpr int kLayoutSpacing = 1;
// Both labels round the height of their text up.
constexpr int kMetricsSlack = 2;
constexpr QRgb kBackground = 0xffffffde;

OmBalloonTip *g_active = nullptr;

QIcon standardIcon(const QStyle *style, MessageIcon icon)
{
    switch (icon) {
    case WarningMessageIcon:
        return style->standardIcon(QStyle::SP_MessageBoxWarning);
    case CriticalMessageIcon:
        return style->standardIcon(QStyle::SP_MessageBoxCritical);
    case InformationMessageIcon:
        return style->standardIcon(QStyle::SP_MessageBoxInformation);
    case NoMessageIcon:
        break;
    }
    return QIcon();
}

QVector<QRect> screenGeometries()
{
    QVector<QRect> geometries;
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens)
        geometries.append(screen->geometry());
    return geometries;
}

// Farther than any desktop, and near enough to be calculated with.
QPoint withinReach(const QPoint &position)
{
    const auto bounded = [](int coordinate) {
        return std::clamp(coordinate, -QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    };
    return {bounded(position.x()), bounded(position.y())};
}

QLabel *plainLabel(const QString &text)
{
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

QBitmap maskOf(const QPainterPath &outline, const QSize &size)
{
    QBitmap mask(size);
    mask.fill(Qt::color0);
    QPainter painter(&mask);
    painter.setPen(QPen(Qt::color1, 1));
    painter.setBrush(QBrush(Qt::color1));
    painter.drawPath(outline);
    return mask;
}

QPixmap pictureOf(const QPainterPath &outline, const QSize &size, const QBrush &brush)
{
    // As coarse as the mask on every screen, so that the outline follows its steps.
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(brush);
    painter.drawPath(outline);
    return picture;
}

} // namespace

void OmBalloonTip::showBalloon(MessageIcon icon, const QString &title, const QString &message,
                               const QPoint &pos, int timeout, bool showArrow, bool showTitle,
                               bool showCloseButton)
{
    hideBalloon();
    g_active = new OmBalloonTip(icon, title, message, showTitle, showCloseButton);
    g_active->balloon(pos, timeout < 0 ? kDefaultTimeoutMs : timeout, showArrow);
}

void OmBalloonTip::hideBalloon()
{
    const QPointer<OmBalloonTip> tip(g_active);
    if (tip)
        tip->hide();
    if (tip)
        tip->close();
    // Whoever watches the balloon may have shown another one by now.
    if (g_active == tip)
        g_active = nullptr;
}

bool OmBalloonTip::isActive()
{
    return g_active != nullptr;
}

OmBalloonTip::OmBalloonTip(MessageIcon icon, const QString &title, const QString &message,
                           bool showTitle, bool showCloseButton)
    : QWidget(nullptr, Qt::ToolTip)
    , m_titleLabel(plainLabel(title))
    , m_closeButton(new QPushButton)
    , m_messageLabel(plainLabel(message))
    , m_title(title)
    , m_message(message)
{
    installBalloonTipAccessibility();
    setAttribute(Qt::WA_DeleteOnClose);
    createContents(icon, showTitle, showCloseButton);
    colourContents();
    setAccessibleName(showTitle && !title.isEmpty() ? title : message);
    if (accessibleName() != message)
        setAccessibleDescription(message);
}

OmBalloonTip::~OmBalloonTip()
{
    close();
    if (g_active == this)
        g_active = nullptr;
}

void OmBalloonTip::balloon(const QPoint &pos, int timeout, bool showArrow)
{
    using namespace balloon_geometry;
    const QPoint position = withinReach(pos);
    QScreen *const screen =
            QGuiApplication::screens().value(screenAt(screenGeometries(), position));
    const QRect area = screen ? screen->geometry() : QRect();

    setContentsMargins(QMargins());
    fitTexts(room(position, area), showArrow);
    const ArrowCorner corner = arrowCorner(position, sizeHint(), area);
    setContentsMargins(margins(corner));
    updateGeometry();
    layout()->activate();
    const QSize size = sizeHint();

    // Made for its screen from the start, the window gets the density and place of that screen.
    winId();
    if (screen)
        windowHandle()->setScreen(screen);
    move(topLeft(position, size, corner, area));
    const QPainterPath shape = outline(size, corner, showArrow);
    setMask(maskOf(shape, size));
    m_pixmap = pictureOf(shape, size, palette().brush(QPalette::Window));
    restartTimer(timeout);
    update();
    show();
}

void OmBalloonTip::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timerId) {
        QWidget::timerEvent(event);
        return;
    }
    restartTimer(0);
    if (!underMouse())
        close();
}

void OmBalloonTip::mousePressEvent(QMouseEvent *)
{
    close();
}

void OmBalloonTip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(rect(), m_pixmap);
}

void OmBalloonTip::createContents(MessageIcon icon, bool showTitle, bool showCloseButton)
{
    QFont bold = m_titleLabel->font();
    bold.setBold(true);
    m_titleLabel->setFont(bold);
    createCloseButton();
    m_messageLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto *grid = new QGridLayout(this);
    const QIcon picture = standardIcon(style(), icon);
    if (picture.isNull()) {
        grid->addWidget(m_titleLabel, 0, 0, 1, 2);
    } else {
        auto *iconLabel = new QLabel;
        iconLabel->setPixmap(picture.pixmap(kIconSize));
        iconLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        iconLabel->setMargin(kIconMargin);
        grid->addWidget(iconLabel, 0, 0);
        grid->addWidget(m_titleLabel, 0, 1);
    }
    grid->addWidget(m_closeButton, 0, 2);
    grid->addWidget(m_messageLabel, 1, 0, 1, 3);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->setContentsMargins(kLayoutMargin, kLayoutMargin, kLayoutMargin, kLayoutMargin);
    grid->setSpacing(kLayoutSpacing);

    m_titleLabel->setVisible(showTitle);
    m_closeButton->setVisible(showCloseButton);
}

void OmBalloonTip::createCloseButton()
{
    m_closeButton->setIcon(style()->standardIcon(QStyle::SP_DockWidgetCloseButton));
    m_closeButton->setIconSize(kCloseButtonSize);
    m_closeButton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_closeButton->setFixedSize(kCloseButtonSize);
    m_closeButton->setAccessibleName(tr("Close"));
    connect(m_closeButton, &QPushButton::clicked, this, &OmBalloonTip::close);
}

void OmBalloonTip::colourContents()
{
    OmDesktop::setBackgroundColor(this, QColor(kBackground));
    keepTextReadable(this);
}

// Keeps the balloon, without the margins of its arrow, within what \a room leaves for it.
void OmBalloonTip::fitTexts(const QSize &room, bool showArrow)
{
    using namespace balloon_geometry;
    const QMargins outer = margins(ArrowCorner());
    const int frameWidth = outer.left() + outer.right() + 2 * kLayoutMargin;
    const int frameHeight = outer.top() + outer.bottom() + 2 * kLayoutMargin;
    QSize space(room.width() - frameWidth, room.height() - frameHeight - kMetricsSlack);

    if (!m_titleLabel->isHidden()) {
        constexpr int beside = 2 * (kCloseButtonSize.width() + kLayoutSpacing);
        const QSize titleSpace(space.width() - beside, space.height() / 3);
        m_titleLabel->setText(fittedText(m_title, m_titleLabel->font(), titleSpace));
        space.rheight() -= std::max(m_titleLabel->sizeHint().height(), kCloseButtonSize.height())
                           + kLayoutSpacing;
    }
    m_messageLabel->setText(fittedText(m_message, m_messageLabel->font(), space));
    m_messageLabel->setMinimumWidth(std::max(narrowestWidth(showArrow) - frameWidth, 0));
}

void OmBalloonTip::restartTimer(int timeout)
{
    if (m_timerId != -1)
        killTimer(m_timerId);
    m_timerId = timeout > 0 ? startTimer(timeout) : -1;
}

} // namespace ombrin
