#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/OmScribbledZebraItemLink.h>
#include <ombrin/OmScribbledZebraView.h>

#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>

namespace gallery {

namespace {

const QColor kLabelColor(0x60, 0x6c, 0x78);
const QColor kLinkColor(0x1a, 0x5f, 0xb4);

/// The columns of a profile, by the order of its poles.
enum Column { LabelColumn, ValueColumn, ActionColumn };

/// A view that draws its poles.
class PoleView : public OmScribbledZebraView
{
public:
    PoleView()
        : OmScribbledZebraView(nullptr)
    {}

protected:
    void drawForeground(QPainter *painter, const QRectF &rect) override
    {
        painter->setPen(QPen(QColor(0xd0, 0x40, 0x40), 0, Qt::DashLine));
        for (const OmScribbledZebraPole *pole : poles()) {
            const int x = pole->isAlignedLeftOrRight() ? pole->indent()
                                                       : viewport()->width() - pole->indent();
            painter->drawLine(QPointF(x + 0.5, rect.top()), QPointF(x + 0.5, rect.bottom()));
        }
    }
};

OmScribbledZebraItemText *textItem(int column, int row, const QString &text,
                                   const QColor &color = Qt::black)
{
    const bool startsAtPole = column == ValueColumn;
    auto *item = new OmScribbledZebraItemText(column, row, startsAtPole, text, nullptr);
    item->setBrush(color);
    return item;
}

OmScribbledZebraItemLink *linkItem(int column, int row, const QString &text, QLabel *log)
{
    const bool startsAtPole = column == ValueColumn;
    auto *link = new OmScribbledZebraItemLink(column, row, startsAtPole, text, nullptr);
    link->setBrush(kLinkColor);
    QObject::connect(link, &OmScribbledZebraItemLink::signalOnLinkActivated, log,
                     [log](const OmScribbledZebraItemLink &activated) {
                         log->setText(
                                 QStringLiteral("signalOnLinkActivated(%1)").arg(activated.text()));
                     });
    return link;
}

QFont titleFont()
{
    QFont font;
    font.setPixelSize(22);
    font.setBold(true);
    return font;
}

QSlider *slider(int minimum, int maximum, int value)
{
    auto *result = new QSlider(Qt::Horizontal);
    result->setRange(minimum, maximum);
    result->setValue(value);
    return result;
}

// As much of the card as there is, however high the scene is.
void addToCard(QWidget *view, Card *card)
{
    view->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    view->setMinimumHeight(140);
    card->body()->addWidget(view, 1);
}

class ZebraPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(ZebraPage)

public:
    ZebraPage();

private:
    QWidget *createProfileCard();
    QWidget *createPolesCard();
    QWidget *createLiveCard();
    void fillProfile();
    void addLine();

    OmScribbledZebraView *m_profile = new OmScribbledZebraView;
    QLabel *m_log = nullptr;
};

ZebraPage::ZebraPage()
{
    m_log = note(tr("Click a link."));
    auto *right = cardStack(Qt::Vertical);
    right->addWidget(createPolesCard(), 1);
    right->addWidget(createLiveCard());
    auto *row = cardStack(Qt::Horizontal);
    row->addWidget(createProfileCard(), 4);
    row->addLayout(right, 3);
    cardColumn(this)->addLayout(row, 1);
}

QWidget *ZebraPage::createProfileCard()
{
    m_profile->poles().append(110, true);
    m_profile->poles().append(122, true);
    m_profile->poles().append(8, false);
    fillProfile();
    auto *card = new Card(tr("A profile"));
    addToCard(m_profile, card);
    card->body()->addWidget(m_log);
    return card;
}

void ZebraPage::fillProfile()
{
    const struct
    {
        QString label;
        QString value;
    } lines[] = {
            {QString(), tr("Ada Lovelace")},          {tr("Nickname"), tr("countess")},
            {tr("Birthday"), tr("10 December 1815")}, {tr("City"), tr("London")},
            {tr("Language"), tr("English, French")},  {tr("Interests"), tr("mathematics, music")},
    };
    auto &items = m_profile->items();
    m_profile->blockRefresh(true);
    int row = 0;
    for (const auto &line : lines) {
        items << textItem(LabelColumn, row, line.label, kLabelColor)
              << textItem(ValueColumn, row, line.value);
        ++row;
    }
    static_cast<OmScribbledZebraItemText *>(items.at(1))->setFont(titleFont());
    items << textItem(LabelColumn, row, tr("Phone"), kLabelColor)
          << linkItem(ValueColumn, row, QStringLiteral("+44 20 7946 0123"), m_log)
          << linkItem(ActionColumn, row, tr("Call"), m_log);
    ++row;
    items << textItem(LabelColumn, row, tr("E-mail"), kLabelColor)
          << linkItem(ValueColumn, row, QStringLiteral("ada@example.org"), m_log)
          << linkItem(ActionColumn, row, tr("Write"), m_log);
    ++row;
    OmScribbledZebraItemLink *disabled = linkItem(ValueColumn, row, tr("not online"), m_log);
    disabled->setIsEnabled(false);
    items << textItem(LabelColumn, row, tr("Video"), kLabelColor) << disabled;
    m_profile->blockRefresh(false);
}

QWidget *ZebraPage::createPolesCard()
{
    auto *view = new PoleView;
    view->poles().append(90, true);
    view->poles().append(90, false);
    const auto add = [view](int column, int row, bool startsAtPole, const QString &text) {
        view->items() << new OmScribbledZebraItemText(column, row, startsAtPole, text, nullptr);
    };
    add(0, 0, true, tr("starts at its pole"));
    add(0, 1, false, tr("ends at it"));
    add(1, 2, false, tr("ends at the right one"));
    add(1, 3, true, tr("starts at it"));
    add(0, 5, false, tr("left,"));
    add(0, 5, true, tr(" right"));
    auto *card = new Card(tr("Poles, measured from either edge"));
    addToCard(view, card);
    return card;
}

QWidget *ZebraPage::createLiveCard()
{
    QSlider *poles = slider(60, 200, 110);
    connect(poles, &QSlider::valueChanged, m_profile, [this](int value) {
        m_profile->poles().at(LabelColumn)->setIndent(value);
        m_profile->poles().at(ValueColumn)->setIndent(value + 12);
    });
    QSlider *height = slider(1, 40, m_profile->minimumLineHeight());
    connect(height, &QSlider::valueChanged, m_profile, &OmScribbledZebraView::setMinimumLineHeight);
    auto *form = new QFormLayout;
    form->addRow(caption(tr("Poles")), poles);
    form->addRow(caption(tr("Line height")), height);

    QPushButton *more = pushButton(tr("Add a line"), QStringLiteral("items() << ..."));
    connect(more, &QPushButton::clicked, this, &ZebraPage::addLine);
    QPushButton *less = pushButton(tr("Remove the last"), QStringLiteral("takeLast()"));
    connect(less, &QPushButton::clicked, m_profile, [this] {
        if (!m_profile->items().isEmpty())
            delete m_profile->items().takeLast();
    });
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(more);
    buttons->addWidget(less);
    auto *card = new Card(tr("Try it on the profile"));
    card->body()->addLayout(form);
    card->body()->addLayout(buttons);
    return card;
}

void ZebraPage::addLine()
{
    auto &items = m_profile->items();
    const int row = items.isEmpty() ? 0 : items.last()->row() + 1;
    items << textItem(ValueColumn, row, tr("Line %1").arg(row + 1));
    m_profile->verticalScrollBar()->setValue(m_profile->verticalScrollBar()->maximum());
}

} // namespace

GALLERY_PAGE(ZebraPage, "zebra", PageGroup::ListsAndViews,
             QT_TRANSLATE_NOOP("GalleryPage", "Zebra view"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmScribbledZebraView: texts and links in striped lines, hung on "
                               "guides that are measured from the left or the right edge."));

} // namespace gallery
