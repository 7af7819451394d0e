#pragma once

#include <ombrin/OmCheckBoxAssortmentList.h>
#include <ombrin/OmGlobal.h>

#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include <vector>

class QCheckBox;
class QFrame;
class QListWidget;

namespace ombrin {

class ColoredCheckBox;
class OmImageButton;
class OmLabel;

/// A box of coloured check boxes under a title bar, in which it can be folded away, and which may
/// have a button for adding.
///
/// \code
/// auto *groups = new ombrin::OmCheckBoxAssortmentView(this);
/// groups->setText(tr("Groups"));
/// groups->setIsAddButtonVisible(true);
/// groups->items().append(tr("Friends"), true, Qt::darkGreen, QVariant());
/// connect(groups, &ombrin::OmCheckBoxAssortmentView::signalOnItemCheckChanged, this,
///         [this](const ombrin::OmCheckBoxAssortmentItem *item) {
///             showGroup(item->data(), item->value());
///         });
/// \endcode
///
/// Text, colour and state of the rows follow the items. The view wants a width of 250 pixels and 16
/// pixels of height for each item; a folded one has the height of its title bar, 24 pixels. It may
/// be deleted in a slot of any of its signals.
///
/// \ingroup views
class OMBRIN_GUI_EXPORT OmCheckBoxAssortmentView : public QWidget
{
    Q_OBJECT

    /// The caption in the title bar.
    Q_PROPERTY(QString text READ text WRITE setText)
    /// Whether there is a button for adding. False by default.
    Q_PROPERTY(bool addButtonVisible READ isAddButtonVisible WRITE setIsAddButtonVisible)
    /// Whether the rows are folded away. False by default.
    Q_PROPERTY(bool retracted READ isRetracted WRITE setIsRetracted)

public:
    explicit OmCheckBoxAssortmentView(QWidget *parent = nullptr);
    ~OmCheckBoxAssortmentView() override;

    /// The items, in the order of their rows.
    OmCheckBoxAssortmentList &items();

    /// The caption in the title bar: plain text, shortened where it does not fit.
    QString text() const;
    void setText(QString text);

    bool isAddButtonVisible() const;
    void setIsAddButtonVisible(bool visible);

    /// Whether the rows are folded away.
    bool isRetracted() const;
    void setIsRetracted(bool retracted);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The button for adding was clicked.
    void signalOnAddClicked();
    /// The value of \a p_oItem changed, by a click or by the host.
    void signalOnItemCheckChanged(OmCheckBoxAssortmentItem *p_oItem);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void slotOnAddButtonClicked();
    void slotOnRetractButtonClicked();
    void slotOnCheckboxStateChanged(int state);

private:
    friend class OmCheckBoxAssortmentItem;
    friend class OmCheckBoxAssortmentList;

    // What a row shows, and as of which change of its item.
    struct Row
    {
        ColoredCheckBox *checkBox;
        quint64 stamp;
    };

    void createHeader();
    void createFrame();
    void refreshWidget();
    void refreshRows();
    void refreshRow(Row *row, const OmCheckBoxAssortmentItem &item);
    void refreshRetractButton();
    void nameButtons();
    ColoredCheckBox *addRow();
    void removeRowsFrom(int row);
    void resizeWidget();
    void DoOnChanged();

    QString m_text;
    bool m_isAddButtonVisible = false;
    bool m_isRetracted = false;
    OmCheckBoxAssortmentList m_items;
    QWidget *m_header = nullptr;
    OmLabel *m_label = nullptr;
    OmImageButton *m_addButton = nullptr;
    OmImageButton *m_retractButton = nullptr;
    QFrame *m_frame = nullptr;
    QListWidget *m_listWidget = nullptr;
    std::vector<Row> m_rows;
    // The check box whose change is being told.
    QPointer<QCheckBox> m_clicked;
};

} // namespace ombrin
