#pragma once

#include "model/Message.h"

#include <QtCore/QVector>

namespace messenger {

/// The conversation with one contact, in a file with a JSON object in each line.
///
/// A message is handed to the system before append() returns, so that it survives the program's
/// being killed. A line that was torn, because the machine went down for example, costs that line
/// and no other.
class History
{
public:
    explicit History(const QString &fileName);

    /// Whether \a message was stored.
    bool append(const Message &message) const;

    /// The newest messages, at most \a count, in the order in which they came. Reads no more of a
    /// long history than it needs.
    QVector<Message> newest(int count) const;

private:
    QString m_fileName;
};

} // namespace messenger
