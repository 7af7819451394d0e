#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtGui/QColor>
#include <QtWidgets/QItemDelegate>

namespace ombrin {

/// Draws the entries of an OmSmoothList: a selected one as a tab that is open to the right, the one
/// under the mouse as a link. Entries are 6 pixels taller than plain ones.
///
/// The list makes its own delegate and keeps its properties up to date; a host has nothing to do
/// with it, unless it wants the same look in a list of its own:
///
/// \code
/// auto *delegate = new ombrin::OmSmoothDelegate(list);
/// delegate->setFillColor(palette().color(QPalette::Window));
/// list->setItemDelegate(delegate);
/// \endcode
///
/// \ingroup views
class OMBRIN_GUI_EXPORT OmSmoothDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit OmSmoothDelegate(QObject *parent = nullptr);
    ~OmSmoothDelegate() override;

    /// The colour that fills the tab of a selected entry.
    void setFillColor(const QColor &color);
    /// The colour of the tab's outline.
    void setOutlineColor(const QColor &color);
    /// The colour of the text in the tab, where the entry has none of its own.
    void setTextColor(const QColor &color);
    /// The geometry of the list.
    void setListRect(const QRect &rect);
    /// The row under the mouse, or one that there is not, and where in the list the mouse is. The
    /// entry is drawn as a link while the mouse is over its text or up to 6 pixels beyond its end.
    void setHovered(int row, const QPoint &mousePosition);

    /// Whether the mouse is over the text of the entry \a index in the hovered row, where \a option
    /// is as for paint().
    bool isOverText(const QStyleOptionViewItem &option, const QModelIndex &index) const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void drawDisplay(QPainter *painter, const QStyleOptionViewItem &option, const QRect &rect,
                     const QString &text) const override;

private:
    void paintTab(QPainter *painter, const QRect &rect) const;
    bool isOverText(const QRect &textRect, const QStyleOptionViewItem &option,
                    const QString &text) const;

    QColor m_fillColor;
    QColor m_outlineColor;
    QColor m_textColor;
    QRect m_listRect;
    int m_hoveredRow;
    QPoint m_mousePosition;
    // The row that is being painted.
    mutable int m_paintedRow = -1;
};

} // namespace ombrin
