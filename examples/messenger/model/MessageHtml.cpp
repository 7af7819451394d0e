#include "model/MessageHtml.h"

#include <ombrin/OmSafeHtml.h>
#include <ombrin/vhutilities.h>

#include <QtCore/QRegularExpression>

namespace messenger {

namespace {

using ombrin::OmSafeHtml;

/// What stands behind an address in a sentence and does not belong to it.
int lengthWithoutPunctuation(const QString &word)
{
    int length = static_cast<int>(word.size());
    while (length > 0 && QStringLiteral(".,;:!?)\"'").contains(word.at(length - 1)))
        --length;
    return length;
}

QString linkTarget(const QString &address)
{
    const bool isWeb = address.startsWith(QLatin1String("https://"), Qt::CaseInsensitive)
                       || address.startsWith(QLatin1String("http://"), Qt::CaseInsensitive);
    if (isWeb)
        return address;
    if (address.contains(QLatin1Char('@'))
        && ombrin::vhutilities::IsPossibleEMailAddress(address, true))
        return QStringLiteral("mailto:") + address;
    return QString();
}

QString wordToHtml(const QString &word)
{
    const int smiley = static_cast<int>(smileys().indexOf(word));
    if (smiley >= 0)
        return QStringLiteral("<img src=\"%1\" width=\"16\" height=\"16\" "
                              "style=\"vertical-align:middle\">")
                .arg(smileyName(word));
    const QString address = word.left(lengthWithoutPunctuation(word));
    const QString target = linkTarget(address);
    if (target.isEmpty())
        return OmSafeHtml::fromPlainText(word);
    const QString link = QStringLiteral("<a href=\"%1\">%2</a>")
                                 .arg(target.toHtmlEscaped(), address.toHtmlEscaped());
    return OmSafeHtml::fromHtml(link) + OmSafeHtml::fromPlainText(word.mid(address.size()));
}

} // namespace

QString messageToHtml(const QString &text)
{
    // Only words that could be more than words are looked at one by one.
    static const QRegularExpression special(
            QStringLiteral("\\S*(?:://|@)\\S*|(?<!\\S)[:;]-\\S(?!\\S)"));
    QString html;
    int plainStart = 0;
    QRegularExpressionMatchIterator matches = special.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const int start = static_cast<int>(match.capturedStart());
        html += OmSafeHtml::fromPlainText(text.mid(plainStart, start - plainStart));
        html += wordToHtml(match.captured());
        plainStart = static_cast<int>(match.capturedEnd());
    }
    return html + OmSafeHtml::fromPlainText(text.mid(plainStart));
}

const QStringList &smileys()
{
    static const QStringList all = {QStringLiteral(":-)"), QStringLiteral(";-)"),
                                    QStringLiteral(":-D"), QStringLiteral(":-o"),
                                    QStringLiteral(":-("), QStringLiteral(":-P")};
    return all;
}

QString smileyName(const QString &text)
{
    return QStringLiteral("smiley:%1").arg(smileys().indexOf(text));
}

} // namespace messenger
