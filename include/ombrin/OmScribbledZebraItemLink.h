#pragma once

#include <ombrin/OmScribbledZebraItemText.h>

/// A link in an OmScribbledZebraView: a text that underlines itself under the mouse and reports
/// clicks, and has colours of its own while it is disabled.
///
/// \code
/// auto *link = new OmScribbledZebraItemLink(1, 0, true, tr("Call"), nullptr);
/// link->setBrush(Qt::blue);
/// connect(link, &OmScribbledZebraItemLink::signalOnLinkActivated, this, &Profile::call);
/// view->items().append(link); // which owns it now
/// \endcode
///
/// \ingroup views
class OMBRIN_GUI_EXPORT OmScribbledZebraItemLink : public OmScribbledZebraItemText
{
    Q_OBJECT

public:
    /// A link that reads \a text; for the rest see OmScribbledZebraItemBase.
    OmScribbledZebraItemLink(int column, int row, bool isAlignedLeftOrRight, const QString &text,
                             QObject *parent);
    ~OmScribbledZebraItemLink() override;

    /// Whether the link can be used, as it can at first.
    bool isEnabled() const;
    void setIsEnabled(bool isEnabled);

    /// Pen and brush while the link is disabled: none, and grey, unless set.
    QPen disabledPen() const;
    void setDisabledPen(const QPen &pen);
    QBrush disabledBrush() const;
    void setDisabledBrush(const QBrush &brush);

    /// An OmGraphicsSimpleHyperlinkItem.
    QGraphicsItem *CreateGraphicsItem() override;
    /// Does nothing to an item that is not an OmGraphicsSimpleHyperlinkItem.
    void AdjustGraphicsItem(QGraphicsItem *item) override;

Q_SIGNALS:
    /// The link was clicked. A slot may delete the link and the view.
    void signalOnLinkActivated(OmScribbledZebraItemLink &p_oItem);

private Q_SLOTS:
    void slotOnGraphicsItemActivated();

private:
    bool m_isEnabled = true;
    QPen m_disabledPen = Qt::NoPen;
    QBrush m_disabledBrush = QColor(184, 184, 184);
};
