#include <ombrin/OmCheckBoxAssortmentView.h>

#include "skin/SkinPixmap.h"
#include "views/ColoredCheckBox.h"

#include <ombrin/OmImageButton.h>
#include <ombrin/OmLabel.h>

#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QStyle>

#include <algorithm>
#include <iterator>
#include <utility>

namespace ombrin {

namespace {

constexpr int kHeaderHeight = 24;
constexpr int kHintWidth = 250;
constexpr int kHintHeightBesideRows = 27;
constexpr int kHintRowHeight = 16;
constexpr int kMinimumWidth = 60;
constexpr int kLabelLeft = 8;
constexpr int kBesideLabel = 40;
constexpr int kListMargin = 5;
constexpr const char *kRetracted = "retracted";

void place(QWidget *widget, const QRect &wanted)
{
    const QRect geometry(wanted.topLeft(), wanted.size().expandedTo(QSize(0, 0)));
    if (widget->geometry() != geometry)
        widget->setGeometry(geometry);
}

void whiten(QWidget *widget, QPalette::ColorRole role)
{
    QPalette palette = widget->palette();
    palette.setBrush(role, QBrush(Qt::white));
    widget->setPalette(palette);
}

void showOrHide(QWidget *widget, bool visible)
{
    if (widget->isHidden() == visible)
        widget->setVisible(visible);
}

} // namespace

OmCheckBoxAssortmentView::OmCheckBoxAssortmentView(QWidget *parent)
    : QWidget(parent)
    , m_items(this)
{
    createHeader();
    createFrame();
    refreshWidget();
}

OmCheckBoxAssortmentView::~OmCheckBoxAssortmentView()
{
    // A check box does not survive its own signal, which may have come from a click on it.
    if (m_clicked) {
        m_clicked->setParent(nullptr);
        m_clicked->deleteLater();
    }
    removeRowsFrom(0);
    // The children die after the list that they would leave.
    const auto children =
            findChildren<OmCheckBoxAssortmentItem *>(QString(), Qt::FindDirectChildrenOnly);
    for (OmCheckBoxAssortmentItem *item : children)
        item->m_view = nullptr;
}

OmCheckBoxAssortmentList &OmCheckBoxAssortmentView::items()
{
    return m_items;
}

QString OmCheckBoxAssortmentView::text() const
{
    return m_text;
}

void OmCheckBoxAssortmentView::setText(QString text)
{
    if (m_text == text)
        return;
    m_text = std::move(text);
    DoOnChanged();
}

bool OmCheckBoxAssortmentView::isAddButtonVisible() const
{
    return m_isAddButtonVisible;
}

void OmCheckBoxAssortmentView::setIsAddButtonVisible(bool visible)
{
    if (m_isAddButtonVisible == visible)
        return;
    m_isAddButtonVisible = visible;
    DoOnChanged();
}

bool OmCheckBoxAssortmentView::isRetracted() const
{
    return m_isRetracted;
}

void OmCheckBoxAssortmentView::setIsRetracted(bool retracted)
{
    if (m_isRetracted == retracted)
        return;
    m_isRetracted = retracted;
    updateGeometry();
    DoOnChanged();
}

QSize OmCheckBoxAssortmentView::sizeHint() const
{
    const int height =
            m_isRetracted ? kHeaderHeight : kHintHeightBesideRows + kHintRowHeight * m_items.size();
    return {kHintWidth, height};
}

QSize OmCheckBoxAssortmentView::minimumSizeHint() const
{
    return {kMinimumWidth, kHeaderHeight};
}

void OmCheckBoxAssortmentView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    resizeWidget();
}

void OmCheckBoxAssortmentView::slotOnAddButtonClicked()
{
    const QPointer<OmCheckBoxAssortmentView> guard(this);
    Q_EMIT signalOnAddClicked();
    if (guard)
        refreshWidget();
}

void OmCheckBoxAssortmentView::slotOnRetractButtonClicked()
{
    setIsRetracted(!m_isRetracted);
}

void OmCheckBoxAssortmentView::slotOnCheckboxStateChanged(int state)
{
    const QPointer<QCheckBox> checkBox = qobject_cast<QCheckBox *>(sender());
    const auto row = std::find_if(m_rows.begin(), m_rows.end(), [&checkBox](const Row &candidate) {
        return candidate.checkBox == checkBox;
    });
    const auto index = static_cast<int>(std::distance(m_rows.begin(), row));
    OmCheckBoxAssortmentItem *item = m_items.value(index);
    if (!checkBox || row == m_rows.end() || !item)
        return;
    if (state != Qt::Checked && state != Qt::Unchecked)
        return;
    const QPointer<OmCheckBoxAssortmentView> guard(this);
    const QPointer<QCheckBox> clickedBefore = std::exchange(m_clicked, checkBox);
    item->setValue(state == Qt::Checked);
    if (guard)
        m_clicked = clickedBefore;
}

void OmCheckBoxAssortmentView::createHeader()
{
    m_header = new QWidget(this);
    m_label = new OmLabel(m_header);
    m_label->enableElide(true);
    m_label->setElideMode(Qt::ElideRight);
    m_label->setTextFormat(Qt::PlainText);
    QFont font = m_label->font();
    font.setBold(true);
    m_label->setFont(font);

    m_addButton = new OmImageButton(m_header);
    m_addButton->setPixmapUp(skinPixmap(QStringLiteral(":/treeview_open")));
    m_addButton->setPixmapDown(skinPixmap(QStringLiteral(":/treeview_closed")));
    m_addButton->setPixmapHovered(skinPixmap(QStringLiteral(":/delete-16")));
    connect(m_addButton, &OmImageButton::clicked, this,
            &OmCheckBoxAssortmentView::slotOnAddButtonClicked);

    m_retractButton = new OmImageButton(m_header);
    m_retractButton->setProperty(kRetracted, !m_isRetracted);
    connect(m_retractButton, &OmImageButton::clicked, this,
            &OmCheckBoxAssortmentView::slotOnRetractButtonClicked);
}

void OmCheckBoxAssortmentView::createFrame()
{
    m_frame = new QFrame(this);
    m_frame->setFrameShape(QFrame::StyledPanel);
    m_frame->setFrameShadow(QFrame::Plain);
    whiten(m_frame, m_frame->backgroundRole());
    m_frame->setAutoFillBackground(true);

    m_listWidget = new QListWidget(m_frame);
    m_listWidget->setFrameShape(QFrame::NoFrame);
    m_listWidget->setSpacing(1);
    // Under a style sheet the one does not inherit from the other.
    whiten(m_listWidget, QPalette::Base);
    whiten(m_listWidget->viewport(), QPalette::Base);
}

// Everything that changes ends here.
void OmCheckBoxAssortmentView::refreshWidget()
{
    refreshRows();
    if (m_label->text() != m_text)
        m_label->setText(m_text);
    showOrHide(m_addButton, m_isAddButtonVisible);
    showOrHide(m_frame, !m_isRetracted);
    refreshRetractButton();
    const auto vertical = m_isRetracted ? QSizePolicy::Fixed : QSizePolicy::Expanding;
    if (sizePolicy().verticalPolicy() != vertical)
        setSizePolicy(QSizePolicy::Ignored, vertical);
    resizeWidget();
}

// Rows are matched to items by their place only. A row that shows its item as of the item's last
// change is left alone: adding items one by one would otherwise look at every check box each time.
void OmCheckBoxAssortmentView::refreshRows()
{
    const int count = m_items.size();
    const bool countChanges = count != static_cast<int>(m_rows.size());
    for (int i = 0; i < count; ++i) {
        const OmCheckBoxAssortmentItem *const item = m_items.at(i);
        if (i == static_cast<int>(m_rows.size()))
            m_rows.push_back({addRow(), 0});
        Row &row = m_rows[static_cast<std::size_t>(i)];
        if (item && row.stamp != item->m_stamp) // null only if put there past the hooks
            refreshRow(&row, *item);
    }
    removeRowsFrom(count);
    if (countChanges)
        updateGeometry();
}

void OmCheckBoxAssortmentView::refreshRow(Row *row, const OmCheckBoxAssortmentItem &item)
{
    row->stamp = item.m_stamp;
    ColoredCheckBox *checkBox = row->checkBox;
    if (checkBox->text() != item.m_text)
        checkBox->setText(item.m_text);
    checkBox->setTextColor(item.m_color);
    if (checkBox->isChecked() != item.m_value) {
        const QSignalBlocker blocker(checkBox);
        checkBox->setChecked(item.m_value);
    }
}

ColoredCheckBox *OmCheckBoxAssortmentView::addRow()
{
    auto *row = new QListWidgetItem(m_listWidget);
    auto *checkBox = new ColoredCheckBox(m_listWidget);
    m_listWidget->setItemWidget(row, checkBox);
    connect(checkBox, &QCheckBox::stateChanged, this,
            &OmCheckBoxAssortmentView::slotOnCheckboxStateChanged);
    return checkBox;
}

void OmCheckBoxAssortmentView::removeRowsFrom(int row)
{
    const int extra = static_cast<int>(m_rows.size()) - row;
    if (extra <= 0)
        return;
    m_rows.resize(static_cast<std::size_t>(row));
    m_listWidget->model()->removeRows(row, extra);
}

void OmCheckBoxAssortmentView::refreshRetractButton()
{
    if (m_retractButton->property(kRetracted).toBool() == m_isRetracted)
        return;
    const QPixmap picture = skinPixmap(m_isRetracted ? QStringLiteral(":/header_closed")
                                                     : QStringLiteral(":/header_open"));
    m_retractButton->setPixmapUp(picture);
    m_retractButton->setPixmapDown(picture);
    m_retractButton->setPixmapHovered(picture);
    m_retractButton->setProperty(kRetracted, m_isRetracted);
    nameButtons();
}

void OmCheckBoxAssortmentView::nameButtons()
{
    m_addButton->setAccessibleName(tr("Add"));
    m_retractButton->setAccessibleName(m_isRetracted ? tr("Unfold") : tr("Fold"));
}

void OmCheckBoxAssortmentView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        nameButtons();
    if (event->type() == QEvent::LayoutDirectionChange)
        resizeWidget();
    // The frame hears of another style after the view.
    if (event->type() == QEvent::StyleChange)
        QMetaObject::invokeMethod(this, &OmCheckBoxAssortmentView::resizeWidget,
                                  Qt::QueuedConnection);
}

void OmCheckBoxAssortmentView::resizeWidget()
{
    const int addWidth = m_isAddButtonVisible ? kHeaderHeight : 0;
    const int buttonsLeft = width() - kHeaderHeight;
    const QRect header(0, 0, width(), kHeaderHeight);
    const auto placeInHeader = [&](QWidget *widget, int left, int partWidth) {
        place(widget, QStyle::visualRect(layoutDirection(), header,
                                         QRect(left, 0, partWidth, kHeaderHeight)));
    };
    place(m_header, header);
    placeInHeader(m_retractButton, buttonsLeft, kHeaderHeight);
    placeInHeader(m_addButton, buttonsLeft - addWidth, addWidth);
    placeInHeader(m_label, kLabelLeft, width() - kBesideLabel - addWidth);
    // The caption begins at the edge, whichever way it runs.
    m_label->setAlignment(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)
                          | Qt::AlignAbsolute | Qt::AlignVCenter);
    place(m_frame, QRect(0, kHeaderHeight, width(), m_isRetracted ? 0 : height() - kHeaderHeight));
    const int beside = kListMargin + m_frame->frameWidth();
    place(m_listWidget,
          QRect(kListMargin, kListMargin, m_frame->width() - beside, m_frame->height() - beside));
}

void OmCheckBoxAssortmentView::DoOnChanged()
{
    refreshWidget();
}

} // namespace ombrin
