#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QPointer>
#include <QtCore/QVariant>
#include <QtGui/QColor>
#include <QtWidgets/QWidget>

namespace ombrin {

class OmCheckBoxAssortmentView;

/// One check box of an OmCheckBoxAssortmentView: a caption, its colour, whether it is checked, and
/// a value that is the host's own.
///
/// \code
/// auto *item = new ombrin::OmCheckBoxAssortmentItem(tr("Colleagues"), true, Qt::red, groupId);
/// view->items().append(item); // the view owns it from now on
/// \endcode
///
/// It is a widget only so that Qt's ownership applies; it is never shown. What changes in it is
/// seen in its view at once; setting what is there already does nothing. An item that is deleted
/// leaves the list of its view and its row.
///
/// \ingroup views
class OMBRIN_GUI_EXPORT OmCheckBoxAssortmentItem : public QWidget
{
    Q_OBJECT

public:
    /// An item that belongs to no view yet. The parameters are the values of the functions below.
    explicit OmCheckBoxAssortmentItem(QString text = QString(), bool value = true,
                                      QColor color = Qt::black, QVariant data = QVariant());
    ~OmCheckBoxAssortmentItem() override;

    /// The caption, with no markup but the mnemonic of QCheckBox: "&&" shows an ampersand.
    QString text() const;
    void setText(QString text);

    /// Whether the check box is checked.
    bool value() const;
    /// Emits signalOnItemCheckChanged() of the item's view when the value changes, as a click on
    /// the check box does. The item may be deleted in its slots.
    void setValue(bool value);

    /// The colour of the caption.
    QColor color() const;
    void setColor(QColor color);

    /// The host's own value.
    QVariant data() const;
    void setData(QVariant data);

private:
    friend class OmCheckBoxAssortmentList;
    friend class OmCheckBoxAssortmentView;

    void DoOnChanged();

    QString m_text;
    bool m_value;
    QColor m_color;
    QVariant m_data;
    QPointer<OmCheckBoxAssortmentView> m_view;
    // Of the last change; no two changes of any items have the same.
    quint64 m_stamp;
};

} // namespace ombrin
