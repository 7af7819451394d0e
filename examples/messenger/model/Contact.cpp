#include "model/Contact.h"

#include <ombrin/vhutilities.h>

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>

namespace messenger {

namespace {

namespace Om = ombrin::Om;

constexpr int kLongestId = 64;
constexpr char kPeerPrefix[] = "peer-";

struct StatusWord
{
    Om::ContactStatus status;
    const char *word;
};

constexpr std::array<StatusWord, 8> kStatusWords = {{
        {Om::Offline, "offline"},
        {Om::Online, "online"},
        {Om::Away, "away"},
        {Om::ExtendedAway, "extended-away"},
        {Om::Busy, "busy"},
        {Om::DoNotDisturb, "do-not-disturb"},
        {Om::Invisible, "invisible"},
        {Om::InvisibleForEveryone, "invisible-for-everyone"},
}};

bool isIdCharacter(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z'))
           || (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('-');
}

} // namespace

QString peerGroup()
{
    return QCoreApplication::translate("Contact", "On this machine");
}

bool hasMail(const Contact &contact)
{
    return ombrin::vhutilities::IsPossibleEMailAddress(contact.email, false);
}

bool isContactId(const QString &id)
{
    return !id.isEmpty() && id.size() <= kLongestId
           && std::all_of(id.cbegin(), id.cend(), isIdCharacter);
}

QString contactIdOfPeer(const QString &peerId)
{
    return QLatin1String(kPeerPrefix) + peerId;
}

QString peerIdOfContact(const QString &contactId)
{
    return isPeerContact(contactId) ? contactId.mid(QLatin1String(kPeerPrefix).size()) : QString();
}

bool isPeerContact(const QString &contactId)
{
    return contactId.startsWith(QLatin1String(kPeerPrefix));
}

QString wordForStatus(Om::ContactStatus status)
{
    for (const StatusWord &entry : kStatusWords) {
        if (entry.status == status)
            return QString::fromLatin1(entry.word);
    }
    return QString::fromLatin1(kStatusWords.front().word);
}

Om::ContactStatus statusFromWord(const QString &word)
{
    for (const StatusWord &entry : kStatusWords) {
        if (word == QLatin1String(entry.word))
            return entry.status;
    }
    return Om::Offline;
}

QString asLine(const QString &text, int length)
{
    QString line;
    for (const QChar c : text.left(4 * length).simplified()) {
        if (c.category() != QChar::Other_Control && c.category() != QChar::Other_Format)
            line.append(c);
    }
    line.truncate(length);
    if (!line.isEmpty() && line.at(line.size() - 1).isHighSurrogate())
        line.chop(1); // half a character
    return line;
}

} // namespace messenger
