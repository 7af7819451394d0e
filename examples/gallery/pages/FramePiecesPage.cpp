#include "GalleryPage.h"
#include "PageKit.h"

#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

namespace gallery {

namespace {

/// The eight pictures of a frame, pulled apart.
class ExplodedFrame : public QWidget
{
public:
    explicit ExplodedFrame(const QString &activation)
        : m_activation(activation)
    {
        setFixedSize(kSize);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const int right = width() - kRightWidth;
        const int bottom = height() - kBorder;
        const int side = bottom - kGap - (kTitleHeight + kGap);
        const int centre = kLeftWidth + kGap;
        QPainter painter(this);
        draw(&painter, "top_left", QRect(0, 0, kLeftWidth, kTitleHeight));
        draw(&painter, "top_center", QRect(centre, 0, right - kGap - centre, kTitleHeight));
        draw(&painter, "top_right", QRect(right, 0, kRightWidth, kTitleHeight));
        draw(&painter, "left", QRect(0, kTitleHeight + kGap, kBorder, side));
        draw(&painter, "right", QRect(width() - kBorder, kTitleHeight + kGap, kBorder, side));
        draw(&painter, "bottom_left", QRect(0, bottom, kBorder, kBorder));
        draw(&painter, "bottom_center",
             QRect(kBorder + kGap, bottom, width() - 2 * (kBorder + kGap), kBorder));
        draw(&painter, "bottom_right", QRect(width() - kBorder, bottom, kBorder, kBorder));
    }

private:
    static constexpr QSize kSize{310, 176};
    static constexpr int kLeftWidth = 86;
    static constexpr int kRightWidth = 88;
    static constexpr int kTitleHeight = 30;
    static constexpr int kBorder = 5;
    static constexpr int kGap = 12;

    void draw(QPainter *painter, const char *piece, const QRect &place) const
    {
        const QPixmap picture = skinPicture(QLatin1String(piece) + QLatin1Char('_') + m_activation);
        if (!picture.isNull())
            painter->drawPixmap(place, picture);
    }

    QString m_activation;
};

/// A strip of a frame's title band, as the ground of title-bar buttons.
class TitleBand : public QWidget
{
public:
    TitleBand(const QString &activation, const QStringList &buttons)
        : m_activation(activation)
        , m_buttons(buttons)
    {
        setFixedSize(10 + kPitch * static_cast<int>(buttons.size()), 30);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.drawPixmap(rect(), skinPicture(QStringLiteral("top_center_") + m_activation));
        int x = 6;
        for (const QString &button : m_buttons) {
            painter.drawPixmap(x, 5, skinPicture(button + QLatin1Char('_') + m_activation));
            x += kPitch;
        }
    }

private:
    static constexpr int kPitch = 26;

    QString m_activation;
    QStringList m_buttons;
};

class FramePiecesPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(FramePiecesPage)

public:
    FramePiecesPage();

private:
    static QWidget *createFrameCard(const QString &title, const QString &activation);
    static QWidget *createButtonCard();
};

FramePiecesPage::FramePiecesPage()
{
    auto *frames = cardStack(Qt::Horizontal);
    frames->addWidget(createFrameCard(tr("Active frame"), QStringLiteral("active")), 1);
    frames->addWidget(createFrameCard(tr("Inactive frame"), QStringLiteral("inactive")), 1);
    QVBoxLayout *column = cardColumn(this);
    column->addLayout(frames);
    column->addWidget(createButtonCard());
    column->addStretch();
}

QWidget *FramePiecesPage::createFrameCard(const QString &title, const QString &activation)
{
    auto *card = new Card(title);
    card->body()->addWidget(new ExplodedFrame(activation), 0, Qt::AlignHCenter);
    return card;
}

QWidget *FramePiecesPage::createButtonCard()
{
    const std::pair<QString, const char *> states[] = {{tr("Up"), "up"},
                                                       {tr("Hovered"), "hover"},
                                                       {tr("Down"), "down"},
                                                       {tr("Disabled"), "disabled"}};
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(kPageMargin);
    grid->setVerticalSpacing(8);
    grid->addWidget(caption(tr("Active")), 1, 0);
    grid->addWidget(caption(tr("Inactive")), 2, 0);
    int column = 1;
    for (const auto &[text, state] : states) {
        QStringList buttons;
        for (const char *name : {"minimize", "maximize", "restore", "close"})
            buttons.append(QLatin1String(name) + QLatin1Char('_') + QLatin1String(state));
        grid->addWidget(caption(text, Qt::AlignCenter), 0, column);
        grid->addWidget(new TitleBand(QStringLiteral("active"), buttons), 1, column,
                        Qt::AlignCenter);
        grid->addWidget(new TitleBand(QStringLiteral("inactive"), buttons), 2, column,
                        Qt::AlignCenter);
        grid->setColumnStretch(column, 1);
        ++column;
    }
    auto *card = new Card(tr("Title-bar buttons"));
    card->body()->addLayout(grid);
    return card;
}

} // namespace

GALLERY_PAGE(FramePiecesPage, "frame-pieces", PageGroup::SkinAndStyle,
             QT_TRANSLATE_NOOP("GalleryPage", "Frame pieces"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "The pictures a frame is put together from; the middle ones are "
                               "stretched."));

} // namespace gallery
