#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/OmLabel.h>
#include <ombrin/OmLinkButton.h>
#include <ombrin/OmMenuItem.h>

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QSlider>

namespace gallery {

namespace {

using ombrin::OmLabel;
using ombrin::OmLinkButton;
using ombrin::OmMenuItem;

constexpr int kNarrowest = 30;

OmLabel *elidingLabel(const QString &text, Qt::TextElideMode mode = Qt::ElideRight)
{
    auto *label = new OmLabel(true, nullptr);
    label->setElideMode(mode);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

/// A label whose extent is seen.
OmLabel *tinted(OmLabel *label, int width)
{
    label->setAutoFillBackground(true);
    label->setBackgroundRole(QPalette::Window);
    label->setFixedWidth(width);
    return label;
}

OmLinkButton *linkButton(const QString &text, bool checkable = false, bool checked = false)
{
    auto *button = new OmLinkButton(text, nullptr);
    button->setCheckable(checkable);
    button->setChecked(checked);
    return button;
}

OmMenuItem *menuItem(const QString &icon, const QString &text)
{
    auto *item = new OmMenuItem;
    item->setIcon(QStringLiteral(":/") + icon);
    item->setText(text);
    return item;
}

/// A menu item that stays as it looks under the mouse.
class HoveredItem : public OmMenuItem
{
public:
    HoveredItem(const QString &icon, const QString &text)
    {
        setIcon(QStringLiteral(":/") + icon);
        setText(text);
        pinHovered(this);
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        ombrin::EnterEvent event{QPointF(), QPointF(), QPointF()};
#else
        ombrin::EnterEvent event(QEvent::Enter);
#endif
        enterEvent(&event);
    }
};

class LabelsPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(LabelsPage)

public:
    LabelsPage();

private:
    static QWidget *createElisionCard();
    static QWidget *createLinkCard();
    static QWidget *createMenuCard();
    static QWidget *createLiveCard();
};

LabelsPage::LabelsPage()
{
    auto *upper = cardStack(Qt::Horizontal);
    upper->addWidget(createElisionCard(), 3);
    upper->addWidget(createLinkCard(), 2);
    auto *lower = cardStack(Qt::Horizontal);
    lower->addWidget(createLiveCard(), 3);
    lower->addWidget(createMenuCard(), 2);
    QVBoxLayout *column = cardColumn(this);
    column->addLayout(upper);
    column->addLayout(lower);
    column->addStretch();
}

QWidget *LabelsPage::createElisionCard()
{
    const std::pair<QString, Qt::TextElideMode> modes[] = {{tr("Right"), Qt::ElideRight},
                                                           {tr("Middle"), Qt::ElideMiddle},
                                                           {tr("Left"), Qt::ElideLeft}};
    auto *grid = new QGridLayout;
    grid->setVerticalSpacing(8);
    int row = 0;
    for (const auto &[name, mode] : modes) {
        grid->addWidget(new QLabel(name), row, 0);
        int column = 1;
        for (const int width : {60, 110, 170})
            grid->addWidget(
                    tinted(elidingLabel(tr("Back in ten minutes, gone for a walk"), mode), width),
                    row, column++);
        ++row;
    }
    grid->setColumnStretch(4, 1);
    auto *card = new Card(tr("Labels shorten their text to their width"));
    card->body()->addLayout(grid);
    card->body()->addStretch();
    return card;
}

QWidget *LabelsPage::createLinkCard()
{
    OmLinkButton *disabled = linkButton(tr("Disabled"));
    disabled->setEnabled(false);
    OmLinkButton *mirrored = linkButton(tr("Right to left"), true);
    mirrored->setLayoutDirection(Qt::RightToLeft);
    auto *grid = new QGridLayout;
    grid->setVerticalSpacing(8);
    grid->addWidget(linkButton(tr("Show profile")), 0, 0);
    grid->addWidget(disabled, 0, 1);
    grid->addWidget(linkButton(tr("Folded"), true), 1, 0);
    grid->addWidget(linkButton(tr("Unfolded"), true, true), 1, 1);
    grid->addWidget(mirrored, 2, 0, 1, 2);
    auto *card = new Card(tr("Link buttons"));
    card->body()->addLayout(grid);
    card->body()->addStretch();
    return card;
}

QWidget *LabelsPage::createMenuCard()
{
    auto *column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(menuItem(QStringLiteral("chat-16"), tr("Chat with Contact")));
    column->addWidget(new HoveredItem(QStringLiteral("phone-16"), tr("Call Contact")));
    const std::pair<const char *, QString> others[] = {
            {"filetransfer-16", tr("Send File")},
            {"webfolder-16", tr("Open Web Folder")},
            {"profile-16", tr("Show Profile")},
            {"block-16", tr("Block Contact")},
            {"authorization-16", tr("Authenticate Contact")},
            {"exit-16", tr("Kick Contact")},
    };
    for (const auto &[icon, text] : others)
        column->addWidget(menuItem(QLatin1String(icon), text));
    auto *card = new Card(tr("Menu items, the second under the mouse"));
    card->body()->addLayout(column);
    card->body()->addStretch();
    return card;
}

QWidget *LabelsPage::createLiveCard()
{
    OmLabel *label = tinted(
            elidingLabel(tr("Drag the slider: the more room, the more of this is read.")), 200);
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setRange(kNarrowest, 360);
    slider->setValue(label->width());
    connect(slider, &QSlider::valueChanged, label,
            [label](int width) { label->setFixedWidth(width); });

    QLabel *log = note(tr("Point at the link, or click something."));
    auto *link = new OmLabel;
    link->setText(tr("This label is a link"));
    link->enableLink(true);
    connect(link, &OmLabel::hovered, log, [log](bool hover) {
        log->setText(hover ? QStringLiteral("hovered(true)") : QStringLiteral("hovered(false)"));
    });
    connect(link, &OmLabel::clicked, log, [log] { log->setText(QStringLiteral("clicked()")); });

    OmLinkButton *details = linkButton(tr("Details"), true, true);
    OmMenuItem *item = menuItem(QStringLiteral("save-16"), tr("Save Picture As..."));
    connect(details, &QAbstractButton::toggled, item, &QWidget::setVisible);
    connect(item, &OmMenuItem::clicked, log, [log] { log->setText(QStringLiteral("clicked()")); });

    auto *links = new QHBoxLayout;
    links->addWidget(link);
    links->addWidget(details);
    links->addStretch();
    auto *card = new Card(tr("Try it"));
    card->body()->addWidget(slider);
    card->body()->addWidget(label);
    card->body()->addLayout(links);
    card->body()->addWidget(item);
    card->body()->addStretch();
    card->body()->addWidget(log);
    return card;
}

} // namespace

GALLERY_PAGE(LabelsPage, "labels", PageGroup::BasicWidgets,
             QT_TRANSLATE_NOOP("GalleryPage", "Labels and links"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmLabel, OmLinkButton and OmMenuItem: small texts that shorten "
                               "themselves, lead somewhere or choose something."));

} // namespace gallery
