#pragma once

#include "model/Contact.h"

#include <QtCore/QByteArray>

#include <optional>

/// \file
/// What two running copies of the messenger say to each other.
///
/// Each message is a line: a JSON object without line breaks in UTF-8, at most kLongestLine bytes
/// long, that ends in a line feed. Both sides begin with "hello" and then say what they like:
///
/// - "hello" says who is speaking: "version" (1), "id", "name", "status", "remark";
/// - "presence" says what of this has changed: "name", "status", "remark";
/// - "portrait" has the sender's picture in "data": a picture file in Base64, empty for none;
/// - "typing" says in "on" whether the sender is writing;
/// - "text" has plain "text";
/// - "picture" has a picture for the receiver in "data";
/// - "nudge" means: look here!
///
/// "id" is a contact id of at most kLongestPeerId characters, "status" a word of wordForStatus().
/// Types and values that a copy does not know it ignores, so that later versions may add some. To
/// everything else that is not as described it answers by closing the connection.

namespace messenger {

constexpr int kProtocolVersion = 1;
constexpr int kLongestLine = 4 << 20;
constexpr int kLongestText = 20000;
constexpr int kLongestPeerId = 40;
constexpr int kLongestName = 60;
constexpr int kLongestRemark = 120;

struct PeerMessage
{
    enum class Type { Hello, Presence, Portrait, Typing, Text, Picture, Nudge };

    Type type = Type::Nudge;
    QString id;
    QString name;
    ombrin::Om::ContactStatus status = ombrin::Om::Offline;
    QString remark;
    QString text;
    QByteArray data;
    bool isOn = false;
};

enum class Verdict {
    Understood,
    Unknown, ///< To be ignored.
    Hostile, ///< Reason to close the connection.
};

/// The line for \a message, with its line feed.
QByteArray encode(const PeerMessage &message);

/// Reads \a line, which is without its line feed, into \a message. Whatever the bytes are, a
/// message that was understood keeps to the limits above, and names and remarks are single lines.
Verdict decode(const QByteArray &line, PeerMessage *message);

/// Cuts the bytes that arrive into lines.
class LineReader
{
public:
    /// Takes \a bytes; false if a line is too long, after which the reader is of no more use.
    bool feed(const QByteArray &bytes);
    /// The next complete line.
    std::optional<QByteArray> nextLine();

private:
    QByteArray m_buffer;
    // In front of it there is no line feed.
    int m_searched = 0;
};

} // namespace messenger
