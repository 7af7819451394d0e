#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/OmImageMaskedButton.h>
#include <ombrin/OmScreenShooter.h>

#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>

namespace gallery {

namespace {

using ombrin::OmImageMaskedButton;
using ombrin::OmImageMaskedWidget;

constexpr unsigned int kDelay = 3000; // milliseconds

/// Shows a picture as large as there is room for.
class PictureView : public QWidget
{
    Q_OBJECT

public:
    void setPicture(const QPixmap &picture)
    {
        m_picture = picture;
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette().color(QPalette::Window));
        if (m_picture.isNull()) {
            painter.setPen(QColor(0x60, 0x60, 0x68));
            painter.drawText(rect(), Qt::AlignCenter, tr("Nothing shot yet"));
            return;
        }
        const QSizeF natural = QSizeF(m_picture.size()) / m_picture.devicePixelRatio();
        const QSize shown =
                natural.toSize().boundedTo(natural.scaled(size(), Qt::KeepAspectRatio).toSize());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, shown, rect()),
                           m_picture);
    }

private:
    QPixmap m_picture;
};

/// A desktop with the windows of a countdown on it.
class Stage : public QWidget
{
public:
    Stage()
    {
        m_number->setImage(skinPicture(QStringLiteral("countdown-3-128.png")).toImage());
        m_button->setImage_Normal(skinPicture(QStringLiteral("countdown-snap-64.png")).toImage());
        m_button->setImage_Hovered(
                skinPicture(QStringLiteral("countdown-snap-hover-64.png")).toImage());
        m_button->setImage_Pressed(
                skinPicture(QStringLiteral("countdown-snap-pressed-64.png")).toImage());
        setFixedHeight(m_number->height() + m_button->height() + 30);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        QLinearGradient gradient(rect().topLeft(), rect().bottomRight());
        gradient.setColorAt(0, QColor(0x5f, 0xa8, 0xe8));
        gradient.setColorAt(1, QColor(0x2a, 0x68, 0xb8));
        painter.fillRect(rect(), gradient);
    }
    void resizeEvent(QResizeEvent *) override
    {
        m_number->move((width() - m_number->width()) / 2, 10);
        m_button->move((width() - m_button->width()) / 2, 20 + m_number->height());
    }

private:
    OmImageMaskedWidget *m_number = new OmImageMaskedWidget(this);
    OmImageMaskedButton *m_button = new OmImageMaskedButton(this);
};

class ScreenShooterPage : public QWidget
{
    Q_OBJECT

public:
    ScreenShooterPage();

private Q_SLOTS:
    void shot(QPixmap picture);
    void failed();

private:
    using Shoot = void (*)(unsigned int, bool, QObject *, const char *, QObject *, const char *);

    QWidget *createShootCard();
    void addRequest(QBoxLayout *column, const QString &text, const QString &statusTip, Shoot shoot,
                    unsigned int delay);

    PictureView *m_view = new PictureView;
    QLabel *m_report = new QLabel(tr("Nothing asked for"));
};

ScreenShooterPage::ScreenShooterPage()
{
    auto *countdown = new Card(tr("Countdown and snap-now button"));
    countdown->body()->addWidget(new Stage);
    auto *result = new Card(tr("Last picture"));
    result->body()->addWidget(m_view, 1);
    auto *exhibits = cardStack(Qt::Vertical);
    exhibits->addWidget(countdown);
    exhibits->addWidget(result, 1);
    auto *row = cardStack(Qt::Horizontal);
    row->addWidget(createShootCard());
    row->addLayout(exhibits, 1);
    cardColumn(this)->addLayout(row, 1);
}

QWidget *ScreenShooterPage::createShootCard()
{
    auto *card = new Card(tr("Take a picture"));
    card->setFixedWidth(kSideColumnWidth);
    QVBoxLayout *body = card->body();
    body->addWidget(caption(tr("Whole desktop")));
    addRequest(body, tr("At once"), tr("Takes the whole desktop"), OmScreenShooter::shootDelayed,
               0);
    addRequest(body, tr("After a countdown"),
               tr("Counts down three seconds, or until the button "
                  "is clicked"),
               OmScreenShooter::shootDelayed, kDelay);
    body->addSpacing(8);
    body->addWidget(caption(tr("An area of it")));
    addRequest(body, tr("Cut"), tr("Drag an area; Enter takes it, Escape does not"),
               OmScreenShooter::shootUserCutted, 0);
    addRequest(body, tr("Cut after a countdown"),
               tr("Counts down first, to open a menu for "
                  "example"),
               OmScreenShooter::shootUserCutted, kDelay);
    body->addSpacing(8);
    body->addWidget(note(tr("An area is moved and resized before it is taken. Whoever does not "
                            "know how is told after five seconds.")));
    body->addStretch();
    body->addWidget(caption(tr("Last report")));
    body->addWidget(m_report);
    return card;
}

void ScreenShooterPage::addRequest(QBoxLayout *column, const QString &text,
                                   const QString &statusTip, Shoot shoot, unsigned int delay)
{
    auto *button = pushButton(text, statusTip);
    connect(button, &QPushButton::clicked, this, [this, shoot, delay] {
        shoot(delay, delay > 0, this, SLOT(shot(QPixmap)), this, SLOT(failed()));
    });
    column->addWidget(button);
}

void ScreenShooterPage::shot(QPixmap picture)
{
    m_view->setPicture(picture);
    m_report->setText(tr("%1 x %2 pixels").arg(picture.width()).arg(picture.height()));
}

void ScreenShooterPage::failed()
{
    m_report->setText(tr("No picture"));
}

} // namespace

GALLERY_PAGE(ScreenShooterPage, "screen-shooter", PageGroup::EffectsAndPopups,
             QT_TRANSLATE_NOOP("GalleryPage", "Screen shooter"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmScreenShooter: the whole desktop or an area of it, now or after "
                               "a countdown."));

} // namespace gallery

#include "ScreenShooterPage.moc"
