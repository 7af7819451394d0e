#pragma once

#include <ombrin/OmGlobal.h>

#include <QtWidgets/QLineEdit>

namespace ombrin {

/// A line edit for search words: a magnifier on the left, and on the right, while there is text, an
/// icon that erases it.
///
/// \code
/// auto *search = new ombrin::OmSearchField(this);
/// search->setDefaultText(tr("Search contacts"));
/// connect(search, &QLineEdit::textChanged, contacts, &ContactFilter::setFilter);
/// \endcode
///
/// A press of any mouse button on the 17 pixels at the right edge empties the field. A field that
/// is read-only cannot be erased and does not show the icon. In right-to-left layouts everything
/// changes sides. The application's style and the field's style sheet leave room for the icons; a
/// host that gives the field a style sheet of its own has to leave that room itself.
///
/// The field may be deleted in a slot of the signals that it emits when it is erased with the
/// mouse. As with every QLineEdit that does not hold for those that tell of typing.
///
/// \ingroup widgets
class OMBRIN_GUI_EXPORT OmSearchField : public QLineEdit
{
    Q_OBJECT

    /// What is drawn while the field is empty and has no focus.
    Q_PROPERTY(QString defaultText READ defaultText WRITE setDefaultText)

public:
    explicit OmSearchField(QWidget *parent = nullptr);
    ~OmSearchField() override;

    /// What is drawn in the field, quietly, while it is empty and has no focus. It is seen at the
    /// next repaint. It also becomes the field's accessible name, unless the host gives it one.
    void setDefaultText(const QString &text);
    QString defaultText() const;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect eraseArea() const;
    bool isErasable() const;

    QString m_defaultText;
};

} // namespace ombrin
