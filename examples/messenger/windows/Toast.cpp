#include "windows/Toast.h"

#include "windows/PlainText.h"

#include <ombrin/OmFaderWidget.h>
#include <ombrin/OmLabel.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtWidgets/QGridLayout>

namespace messenger {

namespace {

constexpr QSize kSize(260, 64);
constexpr int kMargin = 10;
constexpr int kDistance = 12;
constexpr int kShownMs = 6000;

} // namespace

Toast::Toast(const QPixmap &picture, const QString &title, const QString &text)
    : OmTrayPopup(nullptr, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setCursor(Qt::PointingHandCursor);
    setFixedSize(kSize);
    auto *face = new QLabel;
    face->setPixmap(picture);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    grid->setHorizontalSpacing(kMargin);
    grid->setVerticalSpacing(2);
    grid->addWidget(face, 0, 0, 2, 1);
    grid->addWidget(plainBoldLabel(title), 0, 1, Qt::AlignBottom);
    grid->addWidget(plainLabel(text), 1, 1, Qt::AlignTop);
    grid->setColumnStretch(1, 1);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Toast::fadeAway);
}

Toast::~Toast() = default;

void Toast::popUp()
{
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    move(area.bottomRight() - QPoint(width() + kDistance, height() + kDistance));
    show();
    (new ombrin::OmFaderWidget(this))->fadeIn();
    m_timer.start(kShownMs);
}

void Toast::fadeAway()
{
    auto *fader = new ombrin::OmFaderWidget(this);
    connect(fader, &ombrin::OmFaderWidget::done, this, &QWidget::close);
    fader->fadeOut();
}

void Toast::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT clicked();
    close();
}

void Toast::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Dark));
    painter.setBrush(palette().base());
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace messenger
