#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/OmImageButton.h>

#include <QtGui/QPainter>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QGridLayout>

namespace gallery {

namespace {

using ombrin::OmImageButton;

enum class State { Up, Hovered, Down, Disabled };

constexpr State kStates[] = {State::Up, State::Hovered, State::Down, State::Disabled};

void pin(OmImageButton *button, State state)
{
    pinState(button);
    button->setHovered(state == State::Hovered);
    button->setDown(state == State::Down);
    button->setEnabled(state != State::Disabled);
}

OmImageButton *buttonOfSize(const QPixmap &picture)
{
    auto *button = new OmImageButton;
    const QSizeF size = QSizeF(picture.size()) / picture.devicePixelRatioF();
    button->setFixedSize(size.toSize());
    return button;
}

OmImageButton *derivedButton(const QString &picture)
{
    const QPixmap pixmap = skinPicture(picture);
    OmImageButton *button = buttonOfSize(pixmap);
    button->setAllPixmaps(pixmap, true, true, true, true, true);
    return button;
}

OmImageButton *titleButton(const QString &name)
{
    const auto picture = [&name](const char *state) {
        return skinPicture(QStringLiteral("%1_%2_active").arg(name, QLatin1String(state)));
    };
    OmImageButton *button = buttonOfSize(picture("up"));
    button->setPixmapUp(picture("up"));
    button->setPixmapHovered(picture("hover"));
    button->setPixmapDown(picture("down"));
    button->setPixmapDisabled(picture("disabled"));
    return button;
}

QPixmap greyPicture(const QString &name)
{
    return skinIcon(name).pixmap(32, 32, QIcon::Disabled);
}

/// A star that is full while it is checked.
OmImageButton *starButton()
{
    const QPixmap empty = skinPicture(QStringLiteral("star_empty-32"));
    const QPixmap full = skinPicture(QStringLiteral("star_full-32"));
    OmImageButton *button = buttonOfSize(empty);
    button->setCheckable(true);
    button->setAllPixmaps(empty, false, true, true, false, false);
    button->setAllPixmaps(full, true, false, true, false, false);
    button->setPixmapDisabled(greyPicture(QStringLiteral("star_empty-32")));
    button->setPixmapDisabledSelected(greyPicture(QStringLiteral("star_full-32")));
    button->setPixmapHovered(skinPicture(QStringLiteral("star_empty_hover-32")));
    button->setPixmapHoveredSelected(skinPicture(QStringLiteral("star_full_hover-32")));
    return button;
}

/// Shows the place of a button whose picture shifts.
class OutlinedSlot : public QWidget
{
public:
    explicit OutlinedSlot(OmImageButton *button)
    {
        constexpr int margin = 8;
        button->setParent(this);
        const QSize picture = button->size();
        button->setFixedSize(picture + QSize(margin, margin));
        button->move(margin / 2, margin / 2);
        m_outline = QRect(button->pos(), picture);
        setFixedSize(picture + QSize(2 * margin, 2 * margin));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::Dark), 1, Qt::DotLine));
        painter.drawRect(m_outline.adjusted(-1, -1, 0, 0));
    }

private:
    QRect m_outline;
};

class ImageButtonPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(ImageButtonPage)

public:
    ImageButtonPage();

private:
    struct Row
    {
        QString text;
        OmImageButton *(*create)(const QString &);
        QString picture;
        bool checked;
    };

    static QString stateText(State state);
    static QGridLayout *stateGrid(const QVector<Row> &rows);
    static QWidget *createPictureCard();
    static QWidget *createDerivedCard();
    static QWidget *createOffsetCard();
    QWidget *createLiveCard();
    void report(OmImageButton *button, QLabel *log);
};

ImageButtonPage::ImageButtonPage()
{
    auto *upper = cardStack(Qt::Horizontal);
    upper->addWidget(createPictureCard(), 1);
    upper->addWidget(createDerivedCard(), 1);
    auto *lower = cardStack(Qt::Horizontal);
    lower->addWidget(createOffsetCard(), 1);
    lower->addWidget(createLiveCard(), 1);
    QVBoxLayout *column = cardColumn(this);
    column->addLayout(upper, 2);
    column->addLayout(lower, 1);
}

QString ImageButtonPage::stateText(State state)
{
    switch (state) {
    case State::Up:
        return tr("Up");
    case State::Hovered:
        return tr("Hovered");
    case State::Down:
        return tr("Down");
    case State::Disabled:
        return tr("Disabled");
    }
    return QString();
}

QGridLayout *ImageButtonPage::stateGrid(const QVector<Row> &rows)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(8);
    for (int column = 0; column < 4; ++column) {
        grid->addWidget(caption(stateText(kStates[column]), Qt::AlignCenter), 0, column + 1);
        grid->setColumnStretch(column + 1, 1);
    }
    int line = 1;
    for (const Row &row : rows) {
        grid->addWidget(new QLabel(row.text), line, 0);
        for (int column = 0; column < 4; ++column) {
            OmImageButton *button = row.create(row.picture);
            button->setChecked(row.checked);
            pin(button, kStates[column]);
            grid->addWidget(button, line, column + 1, Qt::AlignCenter);
        }
        grid->setRowMinimumHeight(line, 42);
        ++line;
    }
    return grid;
}

QWidget *ImageButtonPage::createPictureCard()
{
    const auto star = [](const QString &) { return starButton(); };
    auto *card = new Card(tr("One picture for each state"));
    card->body()->addLayout(stateGrid({
            {tr("Minimise"), titleButton, QStringLiteral("minimize"), false},
            {tr("Maximise"), titleButton, QStringLiteral("maximize"), false},
            {tr("Close"), titleButton, QStringLiteral("close"), false},
            {tr("Unchecked"), star, QString(), false},
            {tr("Checked"), star, QString(), true},
    }));
    card->body()->addStretch();
    return card;
}

QWidget *ImageButtonPage::createDerivedCard()
{
    auto *card = new Card(tr("All states derived from one picture"));
    card->body()->addLayout(stateGrid({
            {tr("Chat"), derivedButton, QStringLiteral("chat-32"), false},
            {tr("Add several"), derivedButton, QStringLiteral("addmulti-32"), false},
            {tr("Unblock"), derivedButton, QStringLiteral("unblock-32"), false},
            {tr("Call"), derivedButton, QStringLiteral("phone-16"), false},
            {tr("Save"), derivedButton, QStringLiteral("save-16"), false},
    }));
    card->body()->addStretch();
    return card;
}

QWidget *ImageButtonPage::createOffsetCard()
{
    auto *row = new QHBoxLayout;
    for (const int offset : {0, 1, 2, 4}) {
        OmImageButton *button = derivedButton(QStringLiteral("chat-32"));
        button->setOffset(offset);
        pin(button, State::Down);
        auto *column = new QVBoxLayout;
        column->setSpacing(4);
        column->addWidget(new OutlinedSlot(button), 0, Qt::AlignHCenter);
        column->addWidget(caption(tr("offset %1").arg(offset), Qt::AlignCenter));
        row->addLayout(column);
    }
    auto *card = new Card(tr("The offset shifts the picture of a pressed button"));
    card->body()->addStretch();
    card->body()->addLayout(row);
    card->body()->addStretch();
    return card;
}

QWidget *ImageButtonPage::createLiveCard()
{
    OmImageButton *deaf = derivedButton(QStringLiteral("unblock-32"));
    deaf->setIgnoreHovered(true);
    OmImageButton *shifting = derivedButton(QStringLiteral("chat-32"));
    shifting->setOffset(1);
    const std::pair<OmImageButton *, QString> buttons[] = {
            {shifting, tr("Plain")},
            {starButton(), tr("Checkable")},
            {deaf, tr("Ignores hover")},
            {titleButton(QStringLiteral("close")), tr("Skin")},
    };

    QLabel *log = note(tr("Click one of the buttons to see its signals."));
    auto *row = new QHBoxLayout;
    for (const auto &[button, text] : buttons) {
        button->setToolTip(text);
        report(button, log);
        auto *column = new QVBoxLayout;
        column->setSpacing(4);
        column->addStretch();
        column->addWidget(button, 0, Qt::AlignHCenter);
        column->addStretch();
        column->addWidget(caption(text, Qt::AlignCenter));
        row->addLayout(column);
    }
    auto *card = new Card(tr("Try it"));
    card->body()->addStretch();
    card->body()->addLayout(row);
    card->body()->addStretch();
    card->body()->addWidget(log);
    return card;
}

void ImageButtonPage::report(OmImageButton *button, QLabel *log)
{
    connect(button, &OmImageButton::pressed, log, [log] { log->setText(tr("pressed()")); });
    connect(button, &OmImageButton::clicked, log, [log](bool checked) {
        log->setText(tr("%1, clicked(%2)")
                             .arg(log->text(),
                                  checked ? QStringLiteral("true") : QStringLiteral("false")));
    });
    connect(button, &OmImageButton::released, log,
            [log] { log->setText(tr("%1, released()").arg(log->text())); });
}

} // namespace

GALLERY_PAGE(ImageButtonPage, "image-button", PageGroup::BasicWidgets,
             QT_TRANSLATE_NOOP("GalleryPage", "Image button"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmImageButton: a button that is nothing but the picture of its "
                               "state."));

} // namespace gallery
