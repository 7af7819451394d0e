#include <ombrin/OmAvatar.h>

#include "contacts/PictureFile.h"
#include "contacts/ScaledPixmap.h"

#include <ombrin/OmFaderWidget.h>
#include <ombrin/OmQtCompat.h>

#include <QtGui/QMouseEvent>
#include <QtGui/QMovie>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>

namespace ombrin {

namespace {

constexpr int kFrameWidth = 1;
constexpr qint64 kMaxAnimationCache = 64 * 1024 * 1024;

QMovie::CacheMode cacheMode(const PictureFile &file)
{
    const bool isSmall = file.animationBytes >= 0 && file.animationBytes <= kMaxAnimationCache;
    return isSmall ? QMovie::CacheAll : QMovie::CacheNone;
}

} // namespace

OmAvatar::OmAvatar(const QPixmap &pixmap, QWidget *parent)
    : QWidget(parent)
{
    QLabel *const label = createLabel();
    label->setPixmap(pixmap);
    addLabel(label, pixmap);
}

OmAvatar::OmAvatar(const QString &fileName, QWidget *parent)
    : QWidget(parent)
{
    QLabel *const label = createLabel();
    const PictureFile file = PictureFile::inspect(fileName);
    const QPixmap pixmap = file.isReadable ? QPixmap(fileName) : QPixmap();
    if (file.isAnimation) {
        auto *const movie = new QMovie(fileName, QByteArray(), this);
        movie->setCacheMode(cacheMode(file));
        label->setMovie(movie);
        movie->start();
    } else {
        label->setPixmap(pixmap);
    }
    addLabel(label, pixmap);
}

OmAvatar::~OmAvatar() = default;

void OmAvatar::mouseReleaseEvent(QMouseEvent *event)
{
    fadeAway();
    if (event->button() == Qt::LeftButton && rect().contains(mousePosition(event)))
        Q_EMIT clicked();
}

void OmAvatar::leaveEvent(QEvent *event)
{
    fadeAway();
    QWidget::leaveEvent(event);
}

void OmAvatar::slotFadeDone(bool fadeOut)
{
    if (fadeOut)
        close();
}

QLabel *OmAvatar::createLabel()
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
    setBackgroundRole(QPalette::NoRole);
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    // The picture alone makes the size: a label without one would ask for a line of text.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    auto *const label = new QLabel(this);
    // Nobody else paints behind a picture with transparent parts, on which the paints of a fade
    // would pile up.
    label->setAutoFillBackground(true);
    return label;
}

void OmAvatar::addLabel(QLabel *label, const QPixmap &pixmap)
{
    const QSize size = logicalSize(pixmap);
    label->setGeometry(QRect(QPoint(kFrameWidth, kFrameWidth), size));
    label->setFrameShape(QFrame::Box);
    label->setCursor(Qt::ArrowCursor);
    layout()->addWidget(label);
    resize(size + 2 * QSize(kFrameWidth, kFrameWidth));
}

void OmAvatar::fadeAway()
{
    auto *const fader = new OmFaderWidget(this);
    fader->fadeOut();
    connect(fader, &OmFaderWidget::done, this, &OmAvatar::slotFadeDone);
}

} // namespace ombrin
