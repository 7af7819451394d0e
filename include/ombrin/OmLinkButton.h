#pragma once

#include <ombrin/OmGlobal.h>

#include <QtWidgets/QAbstractButton>

namespace ombrin {

/// A button that looks like a link: underlined text in the palette's link colour.
///
/// A checkable link button has an arrow behind its text, which points right, or down while the
/// button is checked; it suits as a switch that folds something out. In right-to-left layouts the
/// arrow stands on the other side and points left.
///
/// \code
/// auto *details = new ombrin::OmLinkButton(tr("Details"), this);
/// details->setCheckable(true);
/// connect(details, &QAbstractButton::toggled, detailsBox, &QWidget::setVisible);
/// \endcode
///
/// The text is plain, and an ampersand in it is drawn as it is. A text of several lines is drawn on
/// several lines, with one underline.
///
/// Assistive technology sees a link, or a button that expands when it is checkable, named by
/// accessibleName() or else by its text. Signals, keys and focus are those of QAbstractButton; with
/// the focus the button shows the style's focus frame.
///
/// \ingroup widgets
class OMBRIN_GUI_EXPORT OmLinkButton : public QAbstractButton
{
    Q_OBJECT

    /// Where a text that has too little room is shortened.
    Q_PROPERTY(Qt::TextElideMode textElideMode READ textElideMode WRITE setTextElideMode)

public:
    explicit OmLinkButton(QWidget *parent = nullptr);
    /// The same with a text.
    OmLinkButton(const QString &text, QWidget *parent);
    ~OmLinkButton() override;

    /// Where a text that has too little room is shortened (default: Qt::ElideNone, it is cut off).
    void setTextElideMode(Qt::TextElideMode mode);
    Qt::TextElideMode textElideMode() const;

    QSize sizeHint() const override;

protected:
    /// What all constructors share: cursor and size policy.
    void initializeButton();

    void paintEvent(QPaintEvent *event) override;

private:
    Qt::TextElideMode m_textElideMode = Qt::ElideNone;
};

} // namespace ombrin
