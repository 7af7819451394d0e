#include "model/History.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <array>
#include <optional>

namespace messenger {

namespace {

// What is read at most, however long the history is.
constexpr qint64 kLongestTail = 2 << 20;

constexpr std::array<const char *, 3> kSenders = {"me", "contact", "messenger"};
constexpr std::array<const char *, 4> kKinds = {"text", "html", "picture", "nudge"};

template <typename Enum, std::size_t Count>
QString word(const std::array<const char *, Count> &words, Enum value)
{
    return QString::fromLatin1(words[static_cast<std::size_t>(value)]);
}

template <typename Enum, std::size_t Count>
std::optional<Enum> valueOf(const std::array<const char *, Count> &words, const QJsonValue &json)
{
    const QString text = json.toString();
    const auto found = std::find_if(words.begin(), words.end(), [&text](const char *candidate) {
        return text == QLatin1String(candidate);
    });
    if (found == words.end())
        return std::nullopt;
    return static_cast<Enum>(found - words.begin());
}

QByteArray toLine(const Message &message)
{
    const QJsonObject object = {
            {QStringLiteral("at"), message.time.toUTC().toString(Qt::ISODateWithMs)},
            {QStringLiteral("from"), word(kSenders, message.from)},
            {QStringLiteral("kind"), word(kKinds, message.kind)},
            {QStringLiteral("text"), message.text},
    };
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<Message> fromLine(const QByteArray &line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const auto from = valueOf<Message::From>(kSenders, object.value(QLatin1String("from")));
    const auto kind = valueOf<Message::Kind>(kKinds, object.value(QLatin1String("kind")));
    const QDateTime time =
            QDateTime::fromString(object.value(QLatin1String("at")).toString(), Qt::ISODateWithMs);
    if (!from || !kind || !time.isValid())
        return std::nullopt;
    return Message{time.toLocalTime(), *from, *kind,
                   object.value(QLatin1String("text")).toString()};
}

bool endsInTornLine(QFile *file)
{
    char last = '\n';
    if (file->size() > 0 && file->seek(file->size() - 1))
        file->getChar(&last);
    return last != '\n';
}

} // namespace

History::History(const QString &fileName)
    : m_fileName(fileName)
{}

bool History::append(const Message &message) const
{
    QFile file(m_fileName);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Append))
        return false;
    QByteArray line = toLine(message);
    if (endsInTornLine(&file))
        line.prepend('\n');
    // One write, so that no reader and no kill sees half of it.
    return file.write(line) == line.size() && file.flush();
}

QVector<Message> History::newest(int count) const
{
    QVector<Message> messages;
    QFile file(m_fileName);
    if (!QFileInfo(m_fileName).isFile() || !file.open(QIODevice::ReadOnly))
        return messages;
    if (file.size() > kLongestTail) {
        file.seek(file.size() - kLongestTail);
        file.readLine(); // the rest of a line
    }
    const QList<QByteArray> lines = file.read(kLongestTail).split('\n');
    for (auto line = lines.crbegin(); line != lines.crend() && messages.size() < count; ++line) {
        if (const std::optional<Message> message = fromLine(*line))
            messages.append(*message);
    }
    std::reverse(messages.begin(), messages.end());
    return messages;
}

} // namespace messenger
