#pragma once

#include <ombrin/OmGlobal.h>

#include <QtWidgets/QComboBox>

namespace ombrin {

/// A combo box for choosing among icons.
///
/// The list drops down as a grid of cells of 22 x 22 pixels that show the icons and no texts; under
/// OmStyle2 it is 100 pixels wider than the box, and it is no higher than its rows. The closed box
/// shows icon and text of the current item and no edit field. The box is as wide as its widest
/// item.
///
/// \code
/// auto *smileys = new ombrin::OmIconComboBox(this);
/// smileys->addItem(QIcon(QStringLiteral(":/addsmiley-16")), QString());
/// smileys->setItemData(0, tr("Smile"), Qt::AccessibleTextRole);
/// \endcode
///
/// Items are those of QComboBox; one without an icon is an empty cell. Assistive technology sees a
/// combo box named by its accessible name, else by its value: the \c Qt::AccessibleTextRole of the
/// current item, else its text or tool tip.
///
/// \ingroup widgets
class OMBRIN_GUI_EXPORT OmIconComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit OmIconComboBox(QWidget *parent = nullptr);
    ~OmIconComboBox() override;

    void showPopup() override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void shrinkPopup(QWidget *popup, int spare) const;
};

} // namespace ombrin
