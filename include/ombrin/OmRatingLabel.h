#pragma once

#include <ombrin/OmGlobal.h>
#include <ombrin/OmQtCompat.h>

#include <QtWidgets/QLabel>

namespace ombrin {

/// Five stars that show a rating and let the user give one with the mouse or with keys.
///
/// A rating counts half stars, from 0 to 10. While the pointer is over the label the stars up to it
/// light up; a click of the left button takes the rating they show. The label takes the focus once
/// the host gives it a focus policy. Then Right, Up or Plus gives half a star more, Left, Down or
/// Minus half a star less, Home none and End all five.
///
/// \code
/// auto *rating = new ombrin::OmRatingLabel(this);
/// rating->setRating(7); // three stars and a half
/// connect(rating, &ombrin::OmRatingLabel::ratingChanged, this, &Window::sendRating);
/// \endcode
///
/// The stars are as high as the label less two pixels, at most 32. The label may be deleted in a
/// slot of ratingChanged().
///
/// Assistive technology sees a slider with values from 0 to 10. A value that it sets is a rating
/// given by the user.
///
/// \ingroup contacts
class OMBRIN_GUI_EXPORT OmRatingLabel : public QLabel
{
    Q_OBJECT

    /// The rating in half stars, from 0 to 10.
    Q_PROPERTY(int rating READ rating WRITE setRating USER true)

public:
    explicit OmRatingLabel(QWidget *parent = nullptr);
    ~OmRatingLabel() override;

    /// The rating given by host or user, in half stars.
    int rating() const;
    /// Shows \a rating and emits nothing. A value outside of 0 to 10 is kept and looks like the
    /// nearest one within.
    void setRating(int rating);
    /// The rating that a click at the place where the pointer is, or was last, gives.
    int currentRating() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user gave a rating, maybe the one that there was before.
    void ratingChanged(int rating);

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void enterEvent(EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    friend class OmRatingLabelAccessible;

    int starSize() const;
    int litHalves() const;
    int ratingOfKey(const QKeyEvent *event) const;
    void noticePointer();
    void storeRating(int rating);
    void giveRating(int rating);

    bool m_hovered = false;
    int m_rating = 0;
    int m_currentRating = 0;
    QPoint m_pointer;
};

} // namespace ombrin
