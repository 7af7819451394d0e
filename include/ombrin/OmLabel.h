#pragma once

#include <ombrin/OmGlobal.h>
#include <ombrin/OmQtCompat.h>

#include <QtWidgets/QLabel>

namespace ombrin {

/// A label that can shorten its text to the room it has, and can act as a link.
///
/// \code
/// auto *alias = new ombrin::OmLabel(true, this); // elides
/// alias->setTextFormat(Qt::PlainText);           // the text comes from other people
/// alias->setText(contact.alias());
/// alias->enableLink(true);
/// connect(alias, &ombrin::OmLabel::clicked, this, &Card::editAlias);
/// \endcode
///
/// While eliding is on the label shows as much of its text as fits into its width, with an ellipsis
/// in place of the rest, and follows each change of its width or font. text() is always the whole
/// text. In a layout such a label asks for the room of its whole text but can be made as narrow as
/// the ellipsis. The width that counts is that of the label, without regard to its margin or
/// indent; elision suits plain text of one line. What the host shows through QLabel itself, a
/// picture for example, is left alone.
///
/// A link has the hand cursor, tells when the pointer comes and goes, and is clicked by releasing
/// the left mouse button inside it, or by Space, Return or Enter while it has the focus, which it
/// takes once the host gives it a focus policy. It may be deleted in a slot of any of its signals.
///
/// The setters store their value and change nothing on the screen; set them before the text.
///
/// Assistive technology sees a link that can be pressed, or else a text, named by accessibleName()
/// or else by the whole text.
///
/// \ingroup widgets
class OMBRIN_GUI_EXPORT OmLabel : public QLabel
{
    Q_OBJECT

    /// Whether the text is shortened to the label's width. Takes effect with the next text, size or
    /// font.
    Q_PROPERTY(bool elide READ isElided WRITE enableElide)
    /// Where the ellipsis goes.
    Q_PROPERTY(Qt::TextElideMode elideMode READ elideMode WRITE setElideMode)
    /// Whether the label acts as a link.
    Q_PROPERTY(bool link READ isLink WRITE enableLink)
    // QLabel's property of this name would give away the shortened text.
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit OmLabel(QWidget *parent = nullptr);
    /// The same, with eliding on if \a elide is true.
    OmLabel(bool elide, QWidget *parent);
    ~OmLabel() override;

    void enableElide(bool enable);
    bool isElided() const;

    /// Where the ellipsis goes (default: Qt::ElideRight). Qt::ElideNone shows the whole text.
    void setElideMode(Qt::TextElideMode mode);
    Qt::TextElideMode elideMode() const;

    void enableLink(bool enable);
    bool isLink() const;

    /// The whole text last given to setText().
    QString text() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Shows \a text, shortened if eliding is on.
    void setText(const QString &text);

Q_SIGNALS:
    /// The link was clicked.
    void clicked();
    /// The pointer came to the link (\a hover is true) or went from it.
    void hovered(bool hover);

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void enterEvent(EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    // Empty until the first width is included.
    struct WidthRange
    {
        bool contains(int width) const { return width >= first && width <= last; }
        void include(int width)
        {
            first = last < first ? width : qMin(first, width);
            last = qMax(last, width);
        }

        int first = 0;
        int last = -1;
    };

    void showText();
    void showElidedAgain();
    void elideToWidth();
    bool showsOwnText() const;
    int textWidth() const;
    bool reportHover(bool hover);

    bool m_elide = false;
    bool m_link = false;
    Qt::TextElideMode m_elideMode = Qt::ElideRight;
    QString m_text;
    // What of it QLabel was last told to show.
    QString m_shownText;
    // Widths at which this is what is to be shown.
    WidthRange m_rightWidths;
    mutable int m_textWidth = -1;
};

} // namespace ombrin
