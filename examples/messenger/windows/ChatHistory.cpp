#include "windows/ChatHistory.h"

#include "model/MessageHtml.h"
#include "model/Session.h"
#include "windows/Pictures.h"

#include <ombrin/OmSafeHtml.h>

#include <QtCore/QLocale>
#include <QtGui/QImageReader>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

namespace messenger {

namespace {

constexpr int kFaceExtent = 32;
constexpr QSize kLargestPicture(280, 220);
const QColor kQuietColor(0x6b, 0x72, 0x7b);
// A message that follows another of the same person so soon needs no name of its own.
constexpr qint64 kTogetherSeconds = 300;
constexpr int kTimeWidth = 40;
constexpr int kTimeMargin = 4;

QString nameColor(Message::From from)
{
    return from == Message::From::Me ? QStringLiteral("#2a6fbb") : QStringLiteral("#9a4a1c");
}

QString faceName(Message::From from)
{
    return from == Message::From::Me ? QStringLiteral("face:me") : QStringLiteral("face:contact");
}

QString timeOf(const Message &message)
{
    const QLocale locale;
    // The plain locale has seconds in its short times.
    QString time = locale.language() == QLocale::C
                           ? message.time.toString(QStringLiteral("HH:mm"))
                           : locale.toString(message.time.time(), QLocale::ShortFormat);
    // "9:41 AM" in one line.
    return time.replace(QLatin1Char(' '), QChar(QChar::Nbsp));
}

/// A table of face, words and time, which is not mirrored by itself.
QString rowTemplate(bool isRightToLeft)
{
    const QString table =
            QStringLiteral("<table width=\"100%\" cellspacing=\"0\" cellpadding=\"0\" "
                           "style=\"margin-top:%1px\"><tr>");
    const QString end = QStringLiteral("</tr></table>");
    if (isRightToLeft)
        return table
               + QStringLiteral("<td width=\"%7\" align=\"left\" style=\"color:%6\">%5</td>"
                                "<td align=\"right\" style=\"padding-left:8px; "
                                "padding-right:6px\">%3%4</td>"
                                "<td width=\"38\" align=\"right\">%2</td>")
               + end;
    return table
           + QStringLiteral("<td width=\"38\">%2</td>"
                            "<td style=\"padding-left:6px; padding-right:8px\">%3%4</td>"
                            "<td width=\"%7\" align=\"right\" style=\"color:%6\">%5</td>")
           + end;
}

QSize shownSize(const QSize &size)
{
    return size.boundedTo(kLargestPicture) == size
                   ? size
                   : size.scaled(kLargestPicture, Qt::KeepAspectRatio);
}

/// Keeps a view that shows the end of its document at the end while the document grows.
class EndKeeper
{
public:
    explicit EndKeeper(QScrollBar *bar)
        : m_bar(bar)
        , m_isAtEnd(bar->value() >= bar->maximum() - kNearEnd)
    {}
    ~EndKeeper()
    {
        if (m_isAtEnd)
            m_bar->setValue(m_bar->maximum());
    }
    Q_DISABLE_COPY(EndKeeper)

private:
    static constexpr int kNearEnd = 4;

    QScrollBar *m_bar;
    bool m_isAtEnd;
};

} // namespace

ChatHistory::ChatHistory(Session *session, const QString &contactId, QWidget *parent)
    : OmTextBrowser(parent)
    , m_session(session)
    , m_contactId(contactId)
{
    setSaveableImages(true);
    document()->setDocumentMargin(8);
    document()->setDefaultStyleSheet(
            QStringLiteral("a { color: %1 }").arg(palette().color(QPalette::Link).name()));
    for (const QString &smiley : smileys())
        addFace(smileyName(smiley), smileyPicture(smiley));
    refreshFaces();
}

ChatHistory::~ChatHistory() = default;

void ChatHistory::refreshFaces()
{
    const Contact contact = m_session->roster().contact(m_contactId);
    addFace(faceName(Message::From::Me),
            roundPortrait(QPixmap::fromImage(m_session->ownPicture()), kFaceExtent));
    addFace(faceName(Message::From::Contact), roundPortrait(portraitOf(contact), kFaceExtent));
    viewport()->update();
}

// The document asks for pictures by name; those that it was given are never looked for elsewhere.
void ChatHistory::addFace(const QString &name, const QPixmap &picture)
{
    document()->addResource(QTextDocument::ImageResource, QUrl(name), picture);
}

void ChatHistory::add(const Message &message)
{
    if (message.time.date() != m_last.time.date())
        addDay(message.time.date());
    if (message.from == Message::From::Messenger || message.kind == Message::Kind::Nudge) {
        addLine(remarkOf(message));
    } else {
        const bool isContinued = m_last.time.isValid() && m_last.from == message.from
                                 && m_last.kind != Message::Kind::Nudge
                                 && m_last.time.secsTo(message.time) < kTogetherSeconds
                                 && m_last.time.date() == message.time.date();
        addRow(message, isContinued);
    }
    m_last = message;
}

void ChatHistory::addDay(const QDate &day)
{
    addLine(QLocale().toString(day, QLocale::LongFormat));
}

QString ChatHistory::remarkOf(const Message &message) const
{
    if (message.kind != Message::Kind::Nudge)
        return message.text;
    const QString alias = m_session->roster().contact(m_contactId).alias;
    return message.from == Message::From::Me ? tr("You have nudged %1.").arg(alias)
                                             : tr("%1 has nudged you.").arg(alias);
}

/// A quiet line in the middle.
void ChatHistory::addLine(const QString &text)
{
    QTextBlockFormat format;
    format.setAlignment(Qt::AlignHCenter);
    format.setTopMargin(6);
    format.setBottomMargin(2);
    QTextCharFormat quietFormat;
    quietFormat.setForeground(kQuietColor);
    const EndKeeper keeper(verticalScrollBar());
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    if (cursor.block().length() > 1)
        cursor.insertBlock();
    cursor.setBlockFormat(format);
    cursor.insertText(text, quietFormat);
}

void ChatHistory::addRow(const Message &message, bool isContinued)
{
    const bool isMine = message.from == Message::From::Me;
    const QString alias =
            isMine ? m_session->account().name : m_session->roster().contact(m_contactId).alias;
    QString face;
    QString name;
    if (!isContinued) {
        face = QStringLiteral("<img src=\"%1\" width=\"32\" height=\"32\">")
                       .arg(faceName(message.from));
        name = QStringLiteral("<b style=\"color:%1\">%2</b><br>")
                       .arg(nameColor(message.from), alias.toHtmlEscaped());
    }
    const QString time = timeOf(message);
    const int timeWidth = qMax(kTimeWidth, fontMetrics().horizontalAdvance(time) + kTimeMargin);
    const QString row =
            rowTemplate(isRightToLeft())
                    .arg(QString::number(isContinued ? 2 : 8), face, name, bodyOf(message),
                         time.toHtmlEscaped(), kQuietColor.name(), QString::number(timeWidth));
    const EndKeeper keeper(verticalScrollBar());
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertHtml(row);
}

QString ChatHistory::bodyOf(const Message &message) const
{
    switch (message.kind) {
    case Message::Kind::Html:
        return ombrin::OmSafeHtml::fromHtml(message.text);
    case Message::Kind::Picture:
        return pictureOf(message.text);
    case Message::Kind::Text:
    case Message::Kind::Nudge:
        break;
    }
    return messageToHtml(message.text);
}

QString ChatHistory::pictureOf(const QString &name) const
{
    const QString fileName = m_session->pictureFile(name);
    const QSize size = shownSize(QImageReader(fileName).size());
    if (size.isEmpty())
        return tr("(a picture that is no longer there)").toHtmlEscaped();
    return QStringLiteral("<img src=\"%1\" width=\"%2\" height=\"%3\">")
            .arg(QString::fromLatin1(QUrl::fromLocalFile(fileName).toEncoded()),
                 QString::number(size.width()), QString::number(size.height()));
}

// Made smaller once and smoothly: the document would do it with each paint, and roughly.
QVariant ChatHistory::loadResource(int type, const QUrl &name)
{
    const QVariant resource = OmTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource)
        return resource;
    const auto picture = resource.value<QPixmap>();
    const QSize size = shownSize(picture.size()) * qApp->devicePixelRatio();
    return size.width() < picture.width()
                   ? picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                   : resource;
}

// Whoever reads the end goes on reading the end.
void ChatHistory::resizeEvent(QResizeEvent *event)
{
    const EndKeeper keeper(verticalScrollBar());
    OmTextBrowser::resizeEvent(event);
}

} // namespace messenger
