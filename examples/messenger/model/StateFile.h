#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>

namespace messenger {

/// What the messenger remembers between its runs, apart from conversations: values by name in a
/// JSON file.
///
/// Each change is in the file before setValue() returns, and the file is only ever replaced as a
/// whole: whenever the program is killed, the file holds the state before or after the change. What
/// could not be written, on a full disk for example, is written with the next change. A file that
/// cannot be read counts as empty and is kept under another name.
class StateFile
{
public:
    explicit StateFile(const QString &fileName);

    QJsonValue value(const QString &key) const;
    /// Does nothing if the value is in the file already. An undefined value takes it out.
    void setValue(const QString &key, const QJsonValue &value);

private:
    void read();
    bool write() const;
    void keepAside() const;

    QString m_fileName;
    QJsonObject m_values;
    bool m_isWritten = true;
};

} // namespace messenger
