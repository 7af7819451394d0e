#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QObject>
#include <QtWidgets/QGraphicsSimpleTextItem>

class QGraphicsScene;

/// A text in a graphics scene that underlines itself under the mouse and reports clicks.
///
/// \code
/// auto *link = new OmGraphicsSimpleHyperlinkItem(nullptr, scene);
/// link->setText(tr("Show picture"));
/// connect(link, &OmGraphicsSimpleHyperlinkItem::signalOnLinkActivated, this, &Page::showPicture);
/// \endcode
///
/// The underlining is part of the item's font, which loses any other underlining. A slot of the
/// signal may delete the item, its scene, and an OmScribbledZebraView that it was clicked in.
///
/// \ingroup views
class OMBRIN_GUI_EXPORT OmGraphicsSimpleHyperlinkItem : public QObject,
                                                        public QGraphicsSimpleTextItem
{
    Q_OBJECT

public:
    /// \a parent or \a scene owns the item, unless both are null.
    OmGraphicsSimpleHyperlinkItem(QGraphicsItem *parent, QGraphicsScene *scene);
    ~OmGraphicsSimpleHyperlinkItem() override;

    /// Whether the link can be used. This is not the state of QGraphicsItem: a disabled link gets
    /// mouse events, too, and does nothing with them.
    bool isEnabled() const;
    void setIsEnabled(bool isEnabled);

Q_SIGNALS:
    /// A mouse button was pressed on the link and released inside it.
    void signalOnLinkActivated(OmGraphicsSimpleHyperlinkItem &p_oItem);

protected:
    void hoverEnterEvent(QGraphicsSceneHoverEvent *event) override;
    void hoverMoveEvent(QGraphicsSceneHoverEvent *event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent *event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;

private:
    friend class OmScribbledZebraItemLink;

    bool isUnderlined() const;
    void setHovered(bool hovered);
    void refreshItem();

    bool m_isEnabled = true;
    bool m_isHovered = false;
};
