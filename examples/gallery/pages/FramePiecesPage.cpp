#include "GalleryPage.h"
#include "PageKit.h"

#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

namespace gallery {

namespace {

struct Piece
{
    const char *name;
    QRect place; // in the figure
    QRect label;
    Qt::Alignment labelAlignment;
};

constexpr QSize kFigureSize(316, 226);
constexpr int kTitleHeight = 30;
constexpr int kBorder = 5;
constexpr int kGap = 12;
constexpr int kLabelHeight = 30;
constexpr int kSideTop = kTitleHeight + kGap + kLabelHeight;
constexpr int kBottomTop = kFigureSize.height() - kBorder;
constexpr int kSideHeight = kBottomTop - kGap - kSideTop;
constexpr int kRight = kFigureSize.width() - kBorder;
constexpr int kTopRight = kFigureSize.width() - 88;
constexpr int kCentreWidth = kTopRight - 86 - 2 * kGap;

constexpr Piece kPieces[] = {
        {"top_left", {0, 0, 86, kTitleHeight}, {0, 32, 86, kLabelHeight}, Qt::AlignHCenter},
        {"top_center",
         {86 + kGap, 0, kCentreWidth, kTitleHeight},
         {86 + kGap, 32, kCentreWidth, kLabelHeight},
         Qt::AlignHCenter},
        {"top_right",
         {kTopRight, 0, 88, kTitleHeight},
         {kTopRight, 32, 88, kLabelHeight},
         Qt::AlignHCenter},
        {"left",
         {0, kSideTop, kBorder, kSideHeight},
         {kGap, kSideTop, 60, kSideHeight - 38},
         Qt::AlignLeft},
        {"right",
         {kRight, kSideTop, kBorder, kSideHeight},
         {kRight - 67, kSideTop, 60, kSideHeight - 38},
         Qt::AlignRight},
        {"bottom_left",
         {0, kBottomTop, kBorder, kBorder},
         {kGap, kBottomTop - 42, 80, kLabelHeight},
         Qt::AlignLeft},
        {"bottom_center",
         {kBorder + kGap, kBottomTop, kRight - kBorder - 2 * kGap, kBorder},
         {100, kBottomTop - 42, kFigureSize.width() - 200, kLabelHeight},
         Qt::AlignHCenter},
        {"bottom_right",
         {kRight, kBottomTop, kBorder, kBorder},
         {kRight - 87, kBottomTop - 42, 80, kLabelHeight},
         Qt::AlignRight},
};

/// The eight pictures of a frame, pulled apart, with their names and sizes.
class ExplodedFrame : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(ExplodedFrame)

public:
    explicit ExplodedFrame(const QString &activation)
        : m_activation(activation)
    {
        setFixedSize(kFigureSize);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        QFont small = font();
        if (small.pixelSize() > 0)
            small.setPixelSize(small.pixelSize() - 1);
        else
            small.setPointSizeF(small.pointSizeF() - 1);
        painter.setFont(small);
        painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
        for (const Piece &piece : kPieces)
            draw(&painter, piece);
    }

private:
    void draw(QPainter *painter, const Piece &piece) const
    {
        const QString name = QString::fromLatin1(piece.name);
        const QPixmap picture = skinPicture(name + QLatin1Char('_') + m_activation);
        if (picture.isNull())
            return;
        painter->drawPixmap(piece.place, picture);
        const QSize size = picture.size() / qRound(picture.devicePixelRatioF());
        painter->drawText(piece.label, static_cast<int>(piece.labelAlignment) | Qt::AlignVCenter,
                          tr("%1\n%2 \u00d7 %3").arg(name).arg(size.width()).arg(size.height()));
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
    column->addWidget(createButtonCard(), 1);
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
    grid->setVerticalSpacing(12);
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
    card->body()->addStretch();
    card->body()->addLayout(grid);
    card->body()->addStretch();
    return card;
}

} // namespace

GALLERY_PAGE(FramePiecesPage, "frame-pieces", PageGroup::SkinAndStyle,
             QT_TRANSLATE_NOOP("GalleryPage", "Frame pieces"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "The pictures a frame is put together from; the middle ones are "
                               "stretched."));

} // namespace gallery
