#pragma once

#include <ombrin/Om.h>

#include <QtCore/QDate>
#include <QtCore/QString>
#include <QtCore/QUrl>

namespace messenger {

/// A person the user talks to.
struct Contact
{
    QString id;
    QString alias;
    ombrin::Om::ContactStatus status = ombrin::Om::Offline;
    QString statusText;
    /// Decides what can be done with the contact; see OmContactCard.
    int application = 0;
    QString group;
    QString phone;
    QString email;
    QString city;
    QDate birthday;
    QUrl web;
    /// The file that holds the picture; empty if there is none.
    QString picture;
    /// Half stars, given by the user.
    int rating = 0;
    bool isBlocked = false;
    /// Whether a script of the messenger answers for it.
    bool answers = false;
    /// Whether it is a running copy of the messenger.
    bool isPeer = false;
};

/// What can be done with peers: a value of Contact::application.
constexpr int kPeerApplication = 11;
/// The group of all peers, in the user's language.
QString peerGroup();

/// Whether mail can be written to \a contact.
bool hasMail(const Contact &contact);

/// Whether \a id may name a contact: one to 64 of the characters a to z, 0 to 9 and "-". Only such
/// ids become names of files.
bool isContactId(const QString &id);

/// The contact that the peer \a peerId is, and the other way round. No contact of a book has such
/// an id.
QString contactIdOfPeer(const QString &peerId);
QString peerIdOfContact(const QString &contactId);
bool isPeerContact(const QString &contactId);

/// The word that files and peers use for \a status.
QString wordForStatus(ombrin::Om::ContactStatus status);
/// The status that \a word stands for; Offline for anything that is no such word.
ombrin::Om::ContactStatus statusFromWord(const QString &word);

/// What is shown of a text from elsewhere where there is room for a line of \a length characters:
/// without line breaks and other characters that are no text.
QString asLine(const QString &text, int length);

} // namespace messenger
