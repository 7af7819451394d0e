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
#include <QtWidgets/QScrollBar>

namespace messenger {

namespace {

constexpr int kFaceExtent = 32;
constexpr QSize kLargestPicture(280, 220);
// A message that follows another of the same person so soon needs no name of its own.
constexpr qint64 kTogetherSeconds = 300;

QString nameColor(Message::From from)
{
    return from == Message::From::Me ? QStringLiteral("#2a6fbb") : QStringLiteral("#9a4a1c");
}

QString faceName(Message::From from)
{
    return from == Message::From::Me ? QStringLiteral("face:me") : QStringLiteral("face:contact");
}

QString quiet(const QString &text)
{
    return QStringLiteral("<span style=\"color:#6b727b\">%1</span>").arg(text);
}

} // namespace

ChatHistory::ChatHistory(Session *session, const QString &contactId, QWidget *parent)
    : OmTextBrowser(parent)
    , m_session(session)
    , m_contactId(contactId)
{
    setSaveableImages(true);
    document()->setDocumentMargin(8);
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
        appendHtml(remarkOf(message));
    } else {
        const bool isContinued = m_last.time.isValid() && m_last.from == message.from
                                 && m_last.kind != Message::Kind::Nudge
                                 && m_last.time.secsTo(message.time) < kTogetherSeconds
                                 && m_last.time.date() == message.time.date();
        appendHtml(rowOf(message, isContinued));
    }
    m_last = message;
}

void ChatHistory::addDay(const QDate &day)
{
    const QString text = QLocale().toString(day, QLocale::LongFormat);
    appendHtml(
            QStringLiteral("<p align=\"center\" style=\"margin-top:6px; margin-bottom:2px\">%1</p>")
                    .arg(quiet(text.toHtmlEscaped())));
}

QString ChatHistory::remarkOf(const Message &message) const
{
    QString text = message.text;
    if (message.kind == Message::Kind::Nudge) {
        const QString alias = m_session->roster().contact(m_contactId).alias;
        text = message.from == Message::From::Me ? tr("You have nudged %1.").arg(alias)
                                                 : tr("%1 has nudged you.").arg(alias);
    }
    return QStringLiteral(
                   "<p align=\"center\" style=\"margin-top:6px; margin-bottom:2px\"><i>%1</i></p>")
            .arg(quiet(text.toHtmlEscaped()));
}

QString ChatHistory::rowOf(const Message &message, bool isContinued) const
{
    const bool isMine = message.from == Message::From::Me;
    const QString alias =
            isMine ? m_session->account().name : m_session->roster().contact(m_contactId).alias;
    const QString time = QLocale().toString(message.time.time(), QLocale::ShortFormat);
    QString face;
    QString name;
    if (!isContinued) {
        face = QStringLiteral("<img src=\"%1\" width=\"%2\" height=\"%2\">")
                       .arg(faceName(message.from))
                       .arg(kFaceExtent);
        name = QStringLiteral("<b style=\"color:%1\">%2</b><br>")
                       .arg(nameColor(message.from), alias.toHtmlEscaped());
    }
    return QStringLiteral("<table width=\"100%\" cellspacing=\"0\" cellpadding=\"0\" "
                          "style=\"margin-top:%1px\"><tr>"
                          "<td width=\"42\">%2</td><td style=\"padding-left:6px; "
                          "padding-right:8px\">%3%4</td>"
                          "<td width=\"40\" align=\"right\">%5</td></tr></table>")
            .arg(QString::number(isContinued ? 2 : 8), face, name, bodyOf(message),
                 quiet(time.toHtmlEscaped()));
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
    QSize size = QImageReader(fileName).size();
    if (size.isEmpty())
        return quiet(tr("(a picture that is no longer there)"));
    if (size.boundedTo(kLargestPicture) != size)
        size.scale(kLargestPicture, Qt::KeepAspectRatio);
    return QStringLiteral("<img src=\"%1\" width=\"%2\" height=\"%3\">")
            .arg(QString::fromLatin1(QUrl::fromLocalFile(fileName).toEncoded()))
            .arg(size.width())
            .arg(size.height());
}

void ChatHistory::appendHtml(const QString &html)
{
    QScrollBar *bar = verticalScrollBar();
    const bool wasAtEnd = bar->value() >= bar->maximum() - 4;
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertHtml(html);
    if (wasAtEnd)
        bar->setValue(bar->maximum());
}

} // namespace messenger
