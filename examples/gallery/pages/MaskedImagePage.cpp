#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/OmImageMaskedButton.h>

#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>

namespace gallery {

namespace {

using ombrin::OmImageMaskedButton;
using ombrin::OmImageMaskedWidget;

QImage skinImage(const QString &name)
{
    return skinPicture(name).toImage();
}

OmImageMaskedWidget *picture(const QString &name)
{
    auto *widget = new OmImageMaskedWidget;
    widget->setImage(skinImage(name));
    widget->setFixedSize(widget->size());
    return widget;
}

OmImageMaskedButton *snapButton()
{
    auto *button = new OmImageMaskedButton;
    button->setImage_Normal(skinImage(QStringLiteral("countdown-snap-64.png")));
    button->setImage_Hovered(skinImage(QStringLiteral("countdown-snap-hover-64.png")));
    button->setImage_Pressed(skinImage(QStringLiteral("countdown-snap-pressed-64.png")));
    button->setFixedSize(button->size());
    return button;
}

/// A ground on which every pixel that does not belong to a picture is seen.
class StripedGround : public QWidget
{
public:
    StripedGround()
        : m_row(new QHBoxLayout(this))
    {
        m_row->setContentsMargins(kCardGap, kCardGap, kCardGap, kCardGap);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }

    void add(QWidget *widget, const QString &text = QString())
    {
        auto *column = new QVBoxLayout;
        column->setSpacing(6);
        column->addStretch();
        column->addWidget(widget, 0, Qt::AlignHCenter);
        if (!text.isEmpty())
            column->addWidget(plate(text), 0, Qt::AlignHCenter);
        column->addStretch();
        m_row->addLayout(column);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        constexpr int stripe = 16;
        QPainter painter(this);
        painter.fillRect(rect(), palette().color(QPalette::AlternateBase));
        painter.setPen(QPen(palette().color(QPalette::Mid), stripe));
        for (int x = -height(); x < width() + height(); x += 2 * stripe)
            painter.drawLine(x, height() + stripe, x + height() + 2 * stripe, -stripe);
        painter.setPen(QPen(palette().color(QPalette::Dark), 1));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

private:
    static QLabel *plate(const QString &text)
    {
        QLabel *label = caption(text, Qt::AlignCenter);
        label->setAutoFillBackground(true);
        label->setBackgroundRole(QPalette::Base);
        label->setContentsMargins(6, 1, 6, 1);
        return label;
    }

    QHBoxLayout *m_row;
};

class MaskedImagePage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(MaskedImagePage)

public:
    MaskedImagePage();

private:
    static QWidget *createPictureCard();
    static QWidget *createStateCard();
    static QWidget *createLiveCard();
};

MaskedImagePage::MaskedImagePage()
{
    auto *lower = cardStack(Qt::Horizontal);
    lower->addWidget(createStateCard(), 1);
    lower->addWidget(createLiveCard(), 1);
    QVBoxLayout *column = cardColumn(this);
    column->addWidget(createPictureCard(), 1);
    column->addLayout(lower, 1);
}

QWidget *MaskedImagePage::createPictureCard()
{
    auto *ground = new StripedGround;
    for (const char *name : {"countdown-1-128.png", "countdown-3-128.png", "countdown-10-128.png",
                             "no_userpic-78", "star_full-32", "chat-32"})
        ground->add(picture(QLatin1String(name)));
    auto *card = new Card(tr("The widget has the shape of its image"));
    card->body()->addWidget(ground, 1);
    return card;
}

QWidget *MaskedImagePage::createStateCard()
{
    const std::pair<const char *, QString> states[] = {
            {"countdown-snap-64.png", tr("Normal")},
            {"countdown-snap-hover-64.png", tr("Hovered")},
            {"countdown-snap-pressed-64.png", tr("Pressed")}};
    auto *ground = new StripedGround;
    for (const auto &[name, text] : states) {
        auto *button = new OmImageMaskedButton;
        button->setImage_Normal(skinImage(QLatin1String(name)));
        button->setFixedSize(button->size());
        pinState(button);
        ground->add(button, text);
    }
    auto *card = new Card(tr("A button with an image for each state"));
    card->body()->addWidget(ground, 1);
    return card;
}

QWidget *MaskedImagePage::createLiveCard()
{
    OmImageMaskedButton *button = snapButton();
    button->setToolTip(tr("Take the picture now"));
    QLabel *log = note(tr("Click the button; its corners let the mouse through."));
    connect(button, &OmImageMaskedButton::signalOnClicked, log, [log, count = 0]() mutable {
        log->setText(tr("signalOnClicked(), %n time(s)", nullptr, ++count));
    });
    auto *ground = new StripedGround;
    ground->add(button);
    auto *card = new Card(tr("Try it"));
    card->body()->addWidget(ground, 1);
    card->body()->addWidget(log);
    return card;
}

} // namespace

GALLERY_PAGE(MaskedImagePage, "masked-image", PageGroup::BasicWidgets,
             QT_TRANSLATE_NOOP("GalleryPage", "Masked image"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmImageMaskedWidget and OmImageMaskedButton: pictures and buttons "
                               "of any shape."));

} // namespace gallery
