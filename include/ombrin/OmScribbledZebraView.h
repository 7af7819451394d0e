#pragma once

#include <ombrin/OmScribbledZebraItemList.h>
#include <ombrin/OmScribbledZebraPoleList.h>

#include <QtCore/QPointer>
#include <QtWidgets/QGraphicsView>

#include <memory>

class OmGraphicsSimpleHyperlinkItem;

namespace ombrin {
class ZebraLayout;
}

/// Short texts and links in lines, on stripes of white and light grey.
///
/// Items hang on poles, which are vertical guides at a distance from the left or the right edge: an
/// item starts or ends at its pole. A line is as high as its highest item, and items are centred in
/// it. The stripes go on to the bottom of the view.
///
/// \code
/// auto *view = new OmScribbledZebraView(this);
/// view->poles().append(120, true);
/// view->poles().append(130, true);
/// view->blockRefresh(true); // one layout for all of it
/// view->items() << new OmScribbledZebraItemText(0, 0, false, tr("City"), nullptr)
///               << new OmScribbledZebraItemText(1, 0, true, profile.city(), nullptr);
/// view->blockRefresh(false);
/// \endcode
///
/// The view follows each change of poles and items at once. It owns both lists, and these own what
/// is added to them. Items whose row is negative, or whose column names no pole, are hidden.
///
/// Left and right mean what they say in right-to-left layouts, too.
///
/// An item that changes by itself costs no more when there are many of them; only if it makes its
/// line higher or lower, all that is below moves. Resizing, and changes of poles, lay out all
/// items. An item put into the list through a non-const reference or iterator, which passes the
/// hooks of the list by, shows only with the next of those.
///
/// Places are limited to 2^30 pixels from the upper left corner, beyond which items pile up.
///
/// \ingroup views
class OMBRIN_GUI_EXPORT OmScribbledZebraView : public QGraphicsView
{
    Q_OBJECT

    /// The height of lines without higher items, in pixels.
    Q_PROPERTY(int minimumLineHeight READ minimumLineHeight WRITE setMinimumLineHeight)

public:
    explicit OmScribbledZebraView(QWidget *parent = nullptr);
    ~OmScribbledZebraView() override;

    using QGraphicsView::items;
    /// The items and poles, which the view owns and follows.
    OmScribbledZebraItemList &items();
    OmScribbledZebraPoleList &poles();

    /// The height of lines without higher items, in pixels; 20 unless set. A value below 1 counts
    /// as 1.
    int minimumLineHeight() const;
    void setMinimumLineHeight(int height);

    /// While \a block is true the view is not laid out; it is at once when that ends. Calls do not
    /// nest.
    void blockRefresh(bool block);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void drawBackground(QPainter *painter, const QRectF &rect) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private Q_SLOTS:
    void slotOnItemsChanged();

private:
    friend class OmGraphicsSimpleHyperlinkItem;
    friend class OmScribbledZebraItemList;

    enum class Extent { ChangedItems, AllItems };

    void refreshView(Extent extent = Extent::AllItems);
    void refreshSceneRect();
    bool postponeActivation(OmGraphicsSimpleHyperlinkItem *link);

    QGraphicsScene *m_scene;
    std::shared_ptr<ombrin::ZebraLayout> m_layout;
    bool m_refreshBlocked = false;
    bool m_isRefreshing = false;
    bool m_isRefreshQueued = false;
    bool m_isReleasingMouse = false;
    int m_minimumLineHeight = 20;
    QPointer<OmGraphicsSimpleHyperlinkItem> m_activatedLink;
    OmScribbledZebraItemList *m_items;
    OmScribbledZebraPoleList *m_poles;
};
