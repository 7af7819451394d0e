#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/OmIconComboBox.h>
#include <ombrin/OmIconComboBoxDelegate.h>

#include <QtGui/QPainter>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QStyleOptionViewItem>

namespace gallery {

namespace {

using ombrin::OmIconComboBox;
using ombrin::OmIconComboBoxDelegate;

constexpr int kColumns = 8;
constexpr int kFocusedCell = 3;

struct Entry
{
    const char *icon;
    const char *text;
};

constexpr Entry kEntries[] = {
        {"chat-16", QT_TRANSLATE_NOOP("IconComboBoxPage", "Chat")},
        {"phone-16", QT_TRANSLATE_NOOP("IconComboBoxPage", "Call")},
        {"filetransfer-16", QT_TRANSLATE_NOOP("IconComboBoxPage", "Send file")},
        {"webfolder-16", QT_TRANSLATE_NOOP("IconComboBoxPage", "Web folder")},
        {"profile-16", QT_TRANSLATE_NOOP("IconComboBoxPage", "Profile")},
        {"block-16", QT_TRANSLATE_NOOP("IconComboBoxPage", "Block")},
        {"authorization-16", QT_TRANSLATE_NOOP("IconComboBoxPage", "Authorise")},
        {"save-16", QT_TRANSLATE_NOOP("IconComboBoxPage", "Save")},
        {"addsmiley-16", QT_TRANSLATE_NOOP("IconComboBoxPage", "Add smiley")},
        {"is_typing-16", QT_TRANSLATE_NOOP("IconComboBoxPage", "Typing")},
        {"is_talking-16", QT_TRANSLATE_NOOP("IconComboBoxPage", "Talking")},
        {"exit-16", QT_TRANSLATE_NOOP("IconComboBoxPage", "Exit")},
};

/// The open list, painted cell by cell, with one cell under the keyboard.
class GridFigure : public QWidget
{
public:
    GridFigure()
    {
        for (const Entry &entry : kEntries)
            m_items.appendRow(new QStandardItem(skinIcon(QLatin1String(entry.icon)), QString()));
        const int rows = (m_items.rowCount() + kColumns - 1) / kColumns;
        setFixedSize(kColumns * cell().width() + 2, rows * cell().height() + 2);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette().base());
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        for (int i = 0; i < m_items.rowCount(); ++i) {
            QStyleOptionViewItem option;
            option.initFrom(this);
            option.state &= ~QStyle::State_HasFocus;
            option.state |= i == kFocusedCell ? QStyle::State_HasFocus : QStyle::State_None;
            option.rect = QRect(
                    QPoint(1 + i % kColumns * cell().width(), 1 + i / kColumns * cell().height()),
                    cell());
            m_delegate.paint(&painter, option, m_items.index(i, 0));
        }
    }

private:
    QSize cell() const { return m_delegate.sizeHint(QStyleOptionViewItem(), QModelIndex()); }

    QStandardItemModel m_items;
    OmIconComboBoxDelegate m_delegate;
};

class IconComboBoxPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(IconComboBoxPage)

public:
    IconComboBoxPage();

private:
    static OmIconComboBox *comboBox(bool withTexts);
    static QWidget *createStatesCard();
    static QWidget *createListCard();
    static QWidget *createLiveCard();
};

IconComboBoxPage::IconComboBoxPage()
{
    auto *upper = cardStack(Qt::Horizontal);
    upper->addWidget(createStatesCard(), 1);
    upper->addWidget(createListCard(), 1);
    QVBoxLayout *column = cardColumn(this);
    column->addLayout(upper);
    column->addWidget(createLiveCard());
    column->addStretch();
}

OmIconComboBox *IconComboBoxPage::comboBox(bool withTexts)
{
    auto *box = new OmIconComboBox;
    box->setIconSize(QSize(16, 16));
    for (const Entry &entry : kEntries) {
        box->addItem(skinIcon(QLatin1String(entry.icon)), withTexts ? tr(entry.text) : QString());
        box->setItemData(box->count() - 1, tr(entry.text), Qt::AccessibleTextRole);
    }
    return box;
}

QWidget *IconComboBoxPage::createStatesCard()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(kCardGap);
    grid->setColumnStretch(2, 1);
    const QString names[] = {tr("Normal"), tr("Under the mouse"), tr("Disabled")};
    for (int row = 0; row < 3; ++row) {
        grid->addWidget(new QLabel(names[row]), row, 0);
        for (const bool withTexts : {false, true}) {
            OmIconComboBox *box = comboBox(withTexts);
            box->setCurrentIndex(row);
            if (row == 1)
                pinHovered(box);
            else
                pinState(box);
            box->setEnabled(row != 2);
            grid->addWidget(box, row, withTexts ? 2 : 1, Qt::AlignLeft);
        }
    }
    auto *card = new Card(tr("Closed"));
    card->body()->addLayout(grid);
    card->body()->addStretch();
    return card;
}

QWidget *IconComboBoxPage::createListCard()
{
    auto *card = new Card(tr("Open"));
    card->body()->addWidget(new GridFigure);
    card->body()->addStretch();
    card->body()->addWidget(note(tr("Cells of 22 x 22 pixels; the one under the keyboard is filled "
                                    "with the highlight colour. Texts are not shown.")));
    return card;
}

QWidget *IconComboBoxPage::createLiveCard()
{
    OmIconComboBox *box = comboBox(false);
    box->setAccessibleName(tr("Icon"));
    auto *chosen = new QLabel(tr(kEntries[0].text));
    connect(box, qOverload<int>(&QComboBox::currentIndexChanged), chosen, [box, chosen](int index) {
        chosen->setText(box->itemData(index, Qt::AccessibleTextRole).toString());
    });

    auto *row = new QHBoxLayout;
    row->setSpacing(kCardGap);
    row->addWidget(box);
    row->addWidget(chosen, 1);
    auto *card = new Card(tr("Try it"));
    card->body()->addLayout(row);
    card->body()->addWidget(note(tr("The arrow keys move among the icons of the open list in all "
                                    "four directions.")));
    card->body()->addStretch();
    return card;
}

} // namespace

GALLERY_PAGE(IconComboBoxPage, "icon-combo-box", PageGroup::BasicWidgets,
             QT_TRANSLATE_NOOP("GalleryPage", "Icon combo box"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmIconComboBox: a choice among icons in a grid that drops down."));

} // namespace gallery
