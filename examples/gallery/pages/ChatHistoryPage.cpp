#include "GalleryPage.h"
#include "PageKit.h"

#include <ombrin/OmLineEdit.h>
#include <ombrin/OmSafeHtml.h>
#include <ombrin/OmTextBrowser.h>

#include <QtCore/QTemporaryDir>
#include <QtCore/QUrl>
#include <QtGui/QPainter>
#include <QtGui/QTextDocument>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>

namespace gallery {

namespace {

using ombrin::OmSafeHtml;
using ombrin::OmTextBrowser;

constexpr int kSmileyExtent = 18;
constexpr QSize kReceivedSize(150, 84);

QPixmap smiley(bool isHappy)
{
    constexpr int kDensity = 2;
    QPixmap picture(QSize(kSmileyExtent, kSmileyExtent) * kDensity);
    picture.setDevicePixelRatio(kDensity);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0xb8, 0x86, 0x0b), 1));
    painter.setBrush(QColor(0xff, 0xd2, 0x4d));
    painter.drawEllipse(QRectF(1, 1, 16, 16));
    painter.setPen(QPen(QColor(0x4a, 0x38, 0x10), 1.5, Qt::SolidLine, Qt::RoundCap));
    painter.drawPoint(QPointF(6.5, 7));
    painter.drawPoint(QPointF(11.5, 7));
    const QRectF mouth = isHappy ? QRectF(5, 5.5, 8, 8) : QRectF(5, 11.5, 8, 6);
    painter.drawArc(mouth, (isHappy ? 200 : 20) * 16, 140 * 16);
    return picture;
}

/// A picture as a friend would send it: hills under the evening sun.
QImage receivedPicture()
{
    QImage image(kReceivedSize * 2, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(2, 2);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QLinearGradient sky(0, 0, 0, kReceivedSize.height());
    sky.setColorAt(0, QColor(0x4f, 0x7c, 0xac));
    sky.setColorAt(1, QColor(0xff, 0xd9, 0xa0));
    painter.fillRect(QRect(QPoint(), kReceivedSize), sky);
    painter.setBrush(QColor(0xff, 0xf3, 0xc4));
    painter.drawEllipse(QPointF(104, 44), 13, 13);
    painter.setBrush(QColor(0x5b, 0x7f, 0x5a));
    painter.drawEllipse(QPointF(38, 96), 76, 40);
    painter.setBrush(QColor(0x3f, 0x62, 0x48));
    painter.drawEllipse(QPointF(128, 104), 80, 42);
    return image;
}

class ChatHistoryPage : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(ChatHistoryPage)

public:
    ChatHistoryPage();

private:
    QWidget *createHistoryCard();
    QWidget *createSwitchCard();
    QWidget *createSafetyCard();
    static QWidget *createToolTipCard();
    void fillHistory();
    void say(const QString &name, const QString &color, const QString &html);

    OmTextBrowser *m_history;
    // Holds what was received.
    QTemporaryDir m_folder;
};

ChatHistoryPage::ChatHistoryPage()
    : m_history(new OmTextBrowser)
{
    m_history->setSaveableImages(true);
    auto *side = cardStack(Qt::Vertical);
    side->addWidget(createSwitchCard());
    side->addWidget(createToolTipCard());
    side->addStretch();
    auto *upper = cardStack(Qt::Horizontal);
    upper->addWidget(createHistoryCard(), 3);
    upper->addLayout(side, 2);
    QVBoxLayout *column = cardColumn(this);
    column->addLayout(upper, 1);
    column->addWidget(createSafetyCard());
    fillHistory();
}

QWidget *ChatHistoryPage::createHistoryCard()
{
    auto *card = new Card(tr("A conversation"));
    card->body()->addWidget(m_history, 1);
    QLabel *log = note(tr("Point at a link, click it, or open the menu of the picture."));
    connect(m_history, &QTextBrowser::anchorClicked, log, [log](const QUrl &link) {
        log->setText(QStringLiteral("anchorClicked(%1)").arg(link.toString()));
    });
    card->body()->addWidget(log);
    return card;
}

QWidget *ChatHistoryPage::createSwitchCard()
{
    auto *copyable = new QCheckBox(tr("Copying is allowed"));
    copyable->setChecked(true);
    connect(copyable, &QCheckBox::toggled, m_history, &OmTextBrowser::setCopyable);
    auto *saveable = new QCheckBox(tr("Pictures can be saved"));
    saveable->setChecked(true);
    connect(saveable, &QCheckBox::toggled, m_history, &OmTextBrowser::setSaveableImages);
    auto *card = new Card(tr("Switches"));
    card->body()->addWidget(copyable);
    card->body()->addWidget(saveable);
    return card;
}

QWidget *ChatHistoryPage::createToolTipCard()
{
    auto *card = new Card(tr("What links say"));
    OmTextBrowser explaining;
    for (const char *link : {"https://example.com/long/way", "mailto:ann@example.com",
                             "sip:5551234", "pushplay:7", "pushsave:7"}) {
        Q_EMIT explaining.highlighted(QUrl(QString::fromLatin1(link)));
        card->body()->addWidget(caption(QString::fromLatin1(link)));
        auto *toolTip = new QLabel(explaining.toolTip());
        toolTip->setWordWrap(true);
        toolTip->setContentsMargins(0, 0, 0, 4);
        card->body()->addWidget(toolTip);
    }
    return card;
}

QWidget *ChatHistoryPage::createSafetyCard()
{
    auto *field = new ombrin::OmLineEdit;
    field->setText(QStringLiteral("<b>Hi</b> <img src=\"/dev/zero\" alt=\"(no picture)\"> "
                                  "<a href=\"javascript:x()\">click</a> <table><td>here"));
    auto *button = pushButton(tr("Append"), tr("Append the message after it was made safe"));
    const auto append = [this, field] {
        say(tr("Stranger"), QStringLiteral("#d64541"), OmSafeHtml::fromHtml(field->text()));
    };
    connect(button, &QPushButton::clicked, m_history, append);
    connect(field, &QLineEdit::returnPressed, m_history, append);
    auto *row = new QHBoxLayout;
    row->addWidget(field, 1);
    row->addWidget(button);
    auto *card = new Card(tr("A stranger's HTML, made safe before it is shown"));
    card->body()->addLayout(row);
    return card;
}

void ChatHistoryPage::say(const QString &name, const QString &color, const QString &html)
{
    m_history->append(QStringLiteral("<b style=\"color:%1\">%2:</b> %3")
                              .arg(color, name.toHtmlEscaped(), html));
}

void ChatHistoryPage::fillHistory()
{
    QTextDocument *document = m_history->document();
    document->addResource(QTextDocument::ImageResource, QUrl(QStringLiteral("qrc:/smiley-happy")),
                          smiley(true));
    document->addResource(QTextDocument::ImageResource, QUrl(QStringLiteral("qrc:/smiley-sad")),
                          smiley(false));
    const QString picture = m_folder.filePath(QStringLiteral("evening.png"));
    receivedPicture().save(picture);

    const QString ann = QStringLiteral("#3a8ddb");
    const QString ben = QStringLiteral("#21a121");
    say(QStringLiteral("Ann"), ann,
        tr("Good morning! <img src=\":/smiley-happy\" style=\"vertical-align: middle\"> The "
           "timetable is at "
           "<a href=\"https://example.com/timetable\">example.com</a>."));
    say(QStringLiteral("Ben"), ben,
        tr("Not from here <img src=\":/smiley-sad\" style=\"vertical-align: middle\"> Send it to "
           "<a "
           "href=\"mailto:ben@example.com\">my mail</a> or call <a "
           "href=\"sip:5551234\">555-1234</a>."));
    say(QStringLiteral("Ann"), ann,
        tr("I left you <a href=\"pushplay:7\">a message</a> (<a href=\"pushsave:7\">save</a>)."));
    say(QStringLiteral("Dana"), QStringLiteral("#8a5bb5"),
        QString::fromUtf8("\u05d1\u05d5\u05e7\u05e8 \u05d8\u05d5\u05d1! "
                          "\u0635\u0628\u0627\u062d \u0627\u0644\u062e\u064a\u0631"));
    say(QStringLiteral("Mei"), QStringLiteral("#c77700"),
        QString::fromUtf8("\u65e9\u4e0a\u597d\uff01\u304a\u306f\u3088\u3046\u3002"));
    say(QStringLiteral("Ben"), ben, tr("The view from here:"));
    m_history->append(QStringLiteral("<img src=\"%1\" width=\"%2\" height=\"%3\">")
                              .arg(QUrl::fromLocalFile(picture).toString())
                              .arg(kReceivedSize.width())
                              .arg(kReceivedSize.height()));
    say(QStringLiteral("Ann"), ann, tr("Lovely! See you <b>tonight</b>?"));
    say(QStringLiteral("Ben"), ben, tr("Sure. <i>Half past seven</i>, as always."));
}

} // namespace

GALLERY_PAGE(ChatHistoryPage, "chat-history", PageGroup::RichText,
             QT_TRANSLATE_NOOP("GalleryPage", "Chat history"),
             QT_TRANSLATE_NOOP("GalleryPage",
                               "OmTextBrowser and OmSafeHtml: a conversation whose links explain "
                               "themselves, and from which pictures can be kept."));

} // namespace gallery
