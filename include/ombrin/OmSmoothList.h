#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QPersistentModelIndex>
#include <QtGui/QColor>
#include <QtWidgets/QListWidget>

namespace ombrin {

class OmSmoothDelegate;

/// A list for choosing what an area at its right shows. The selected entry looks like a tab that
/// opens into that area, the one under the mouse like a link, and a thin grey line is drawn around
/// the list but where tabs are open.
///
/// \code
/// auto *pages = new ombrin::OmSmoothList(this);
/// pages->addItems({tr("General"), tr("Sounds")});
/// connect(pages, &QListWidget::currentRowChanged, stack, &QStackedWidget::setCurrentIndex);
/// \endcode
///
/// The area at the right should have the palette's window colour, as the tab has. The list uses
/// underlines and text colours of its entries for itself: it gives all of them the palette's text
/// colour and no underline whenever the mouse moves to another entry or leaves, and when the
/// selection changes. Entries that are not enabled do not act as links.
///
/// Entries are selected by a press of the mouse and by the keyboard, as in any list. Moves of the
/// mouse do not reach QListWidget: whatever they do while a button is held, the selection stays as
/// the press made it, and entries cannot be dragged.
///
/// \ingroup views
class OMBRIN_GUI_EXPORT OmSmoothList : public QListWidget
{
    Q_OBJECT

public:
    explicit OmSmoothList(QWidget *parent = nullptr);
    ~OmSmoothList() override;

protected:
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void slotRestoreDefaultColoursAndFont();

private:
    void takeColors();
    void restoreEntries();
    void hover(QListWidgetItem *entry, const QPoint &position);
    bool isOverText(const QListWidgetItem *entry) const;
    void paintBorder();

    OmSmoothDelegate *m_delegate;
    QColor m_textColor;
    QColor m_windowColor;
    QColor m_lineColor;
    QColor m_tabTextColor;
    // The entry that looks like a link, if there is one.
    QPersistentModelIndex m_hovered;
};

} // namespace ombrin
