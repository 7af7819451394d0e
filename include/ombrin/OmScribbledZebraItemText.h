#pragma once

#include <ombrin/OmScribbledZebraItemBase.h>

#include <QtCore/QString>
#include <QtGui/QBrush>
#include <QtGui/QFont>
#include <QtGui/QPen>

/// A text of one line in an OmScribbledZebraView; plain black unless told otherwise.
///
/// \code
/// auto *name = new OmScribbledZebraItemText(0, 0, true, tr("Name"), nullptr);
/// name->setBrush(Qt::darkGray);
/// view->items().append(name); // which owns it now
/// \endcode
///
/// The text is plain: no character means anything special. See OmScribbledZebraItemBase for where
/// it is shown.
///
/// \ingroup views
class OMBRIN_GUI_EXPORT OmScribbledZebraItemText : public OmScribbledZebraItemBase
{
    Q_OBJECT

public:
    /// An item that shows \a text; for the rest see OmScribbledZebraItemBase.
    OmScribbledZebraItemText(int column, int row, bool isAlignedLeftOrRight, const QString &text,
                             QObject *parent);
    ~OmScribbledZebraItemText() override;

    /// What is shown; plain text of one line.
    QString text() const;
    void setText(const QString &text);

    /// The font; that of the application when the item was made, unless set.
    QFont font() const;
    void setFont(const QFont &font);

    /// The pen that outlines the glyphs; none unless set.
    QPen pen() const;
    void setPen(const QPen &pen);

    /// The brush that fills the glyphs; black unless set.
    QBrush brush() const;
    void setBrush(const QBrush &brush);

    QSize recalcSize() const override;
    /// A QGraphicsSimpleTextItem.
    QGraphicsItem *CreateGraphicsItem() override;
    /// Does nothing to an item that is not a QGraphicsSimpleTextItem.
    void AdjustGraphicsItem(QGraphicsItem *item) override;

private:
    template <typename Value>
    void change(Value &member, const Value &value);

    QString m_text;
    QFont m_font;
    QPen m_pen = Qt::NoPen;
    QBrush m_brush = Qt::black;
};
