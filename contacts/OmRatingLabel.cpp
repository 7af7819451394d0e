#include <ombrin/OmRatingLabel.h>

#include "contacts/OmRatingLabelAccessible.h"
#include "contacts/ScaledPixmap.h"
#include "widgets/KeyboardAccess.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

#include <algorithm>

namespace ombrin {

namespace {

constexpr int kStars = 5;
constexpr int kMaxRating = 2 * kStars;
constexpr int kMaxStarSize = 32;
constexpr int kMargin = 1;
constexpr int kGap = 1;
constexpr int kMaxHeight = kMaxStarSize + 2 * kMargin;

} // namespace

OmRatingLabel::OmRatingLabel(QWidget *parent)
    : QLabel(parent)
{
    installRatingLabelAccessibility();
    setMouseTracking(true);
    setMaximumHeight(kMaxHeight);
    setFrameStyle(QFrame::NoFrame);
}

OmRatingLabel::~OmRatingLabel() = default;

int OmRatingLabel::rating() const
{
    return m_rating;
}

void OmRatingLabel::setRating(int rating)
{
    storeRating(rating);
    update();
}

int OmRatingLabel::currentRating() const
{
    return m_currentRating;
}

QSize OmRatingLabel::sizeHint() const
{
    return {kStars * (kMaxStarSize + kGap) + kMargin, kMaxHeight};
}

void OmRatingLabel::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !rect().contains(mousePosition(event)))
        return;
    // The pointer may have come here unseen, in a touch or after the last paint.
    m_pointer = mousePosition(event);
    noticePointer();
    giveRating(m_currentRating);
}

void OmRatingLabel::mouseMoveEvent(QMouseEvent *event)
{
    m_pointer = mousePosition(event);
    noticePointer();
    update();
    QLabel::mouseMoveEvent(event);
}

void OmRatingLabel::keyPressEvent(QKeyEvent *event)
{
    const int rating = ratingOfKey(event);
    if (!hasFocus() || rating < 0)
        QLabel::keyPressEvent(event);
    else if (rating != m_rating)
        giveRating(rating);
}

void OmRatingLabel::enterEvent(EnterEvent *event)
{
    m_hovered = true;
    QWidget::enterEvent(event);
}

void OmRatingLabel::leaveEvent(QEvent *event)
{
    m_pointer = QPoint();
    m_hovered = false;
    update();
    QWidget::leaveEvent(event);
}

void OmRatingLabel::paintEvent(QPaintEvent *)
{
    noticePointer();
    const int size = starSize();
    const int lit = litHalves();
    QPainter painter(this);
    for (int star = 0; star < kStars; ++star) {
        const QPoint place(kMargin + star * (size + kGap), kMargin);
        const auto draw = [&](const QString &path) {
            painter.drawPixmap(place,
                               scaledSkinPixmap(path, QSize(size, size), devicePixelRatioF()));
        };
        const int half = 2 * star + 1;
        const int full = half + 1;
        if (lit >= full) {
            draw(QStringLiteral(":/star_full_hover-32"));
        } else if (lit == half) {
            draw(QStringLiteral(":/star_half_hover-32"));
        } else {
            draw(m_hovered ? QStringLiteral(":/star_empty_hover-32")
                           : QStringLiteral(":/star_empty-32"));
            if (m_rating == half)
                draw(QStringLiteral(":/star_half-32"));
            else if (m_rating >= full)
                draw(QStringLiteral(":/star_full-32"));
        }
    }
    drawFocusFrame(&painter, this);
}

int OmRatingLabel::starSize() const
{
    return std::clamp(height() - 2 * kMargin, 0, kMaxStarSize);
}

// The rating to which a key leads, or -1. Right is more also where texts run from right to left:
// the stars always run from left to right.
int OmRatingLabel::ratingOfKey(const QKeyEvent *event) const
{
    if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return -1;
    const int rating = std::clamp(m_rating, 0, kMaxRating);
    switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Plus:
        return std::min(rating + 1, kMaxRating);
    case Qt::Key_Left:
    case Qt::Key_Down:
    case Qt::Key_Minus:
        return std::max(rating - 1, 0);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return kMaxRating;
    default:
        return -1;
    }
}

// How many half stars are left of the pointer or under it.
int OmRatingLabel::litHalves() const
{
    const int size = starSize();
    const int pitch = size + kGap;
    for (int star = 0; star < kStars; ++star) {
        if (m_pointer.x() <= star * pitch)
            return 2 * star;
        if (m_pointer.x() <= (star + 1) * pitch - size / 2)
            return 2 * star + 1;
    }
    return kMaxRating;
}

// A pointer that is not over a star leaves the rating as it was.
void OmRatingLabel::noticePointer()
{
    if (const int lit = litHalves(); lit > 0)
        m_currentRating = lit;
}

void OmRatingLabel::storeRating(int rating)
{
    if (m_rating == rating)
        return;
    m_rating = rating;
    announceRating(this);
}

void OmRatingLabel::giveRating(int rating)
{
    storeRating(rating);
    update();
    Q_EMIT ratingChanged(rating);
}

} // namespace ombrin
