#include "peers/PeerProtocol.h"

#include "model/PictureFiles.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <array>

namespace messenger {

namespace {

using Type = PeerMessage::Type;

constexpr std::array<const char *, 7> kTypes = {"hello", "presence", "portrait", "typing",
                                                "text",  "picture",  "nudge"};

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

void writePresence(const PeerMessage &message, QJsonObject *object)
{
    object->insert(key("name"), message.name);
    object->insert(key("status"), wordForStatus(message.status));
    object->insert(key("remark"), message.remark);
}

bool readPresence(const QJsonObject &object, PeerMessage *message)
{
    message->name = asLine(object.value(key("name")).toString(), kLongestName);
    message->status = statusFromWord(object.value(key("status")).toString());
    message->remark = asLine(object.value(key("remark")).toString(), kLongestRemark);
    return !message->name.isEmpty();
}

bool readHello(const QJsonObject &object, PeerMessage *message)
{
    message->id = object.value(key("id")).toString();
    return object.value(key("version")).toInt() >= kProtocolVersion && isContactId(message->id)
           && message->id.size() <= kLongestPeerId && readPresence(object, message);
}

bool readData(const QJsonObject &object, PeerMessage *message)
{
    const QJsonValue value = object.value(key("data"));
    message->data = QByteArray::fromBase64(value.toString().toLatin1());
    return value.isString() && message->data.size() <= kLargestPicture;
}

bool readText(const QJsonObject &object, PeerMessage *message)
{
    message->text = object.value(key("text")).toString();
    return !message->text.isEmpty() && message->text.size() <= kLongestText;
}

bool readValues(const QJsonObject &object, PeerMessage *message)
{
    switch (message->type) {
    case Type::Hello:
        return readHello(object, message);
    case Type::Presence:
        return readPresence(object, message);
    case Type::Portrait:
    case Type::Picture:
        return readData(object, message);
    case Type::Typing:
        message->isOn = object.value(key("on")).toBool();
        return true;
    case Type::Text:
        return readText(object, message);
    case Type::Nudge:
        break;
    }
    return true;
}

} // namespace

QByteArray encode(const PeerMessage &message)
{
    QJsonObject object = {{key("type"), key(kTypes[static_cast<std::size_t>(message.type)])}};
    switch (message.type) {
    case Type::Hello:
        object.insert(key("version"), kProtocolVersion);
        object.insert(key("id"), message.id);
        writePresence(message, &object);
        break;
    case Type::Presence:
        writePresence(message, &object);
        break;
    case Type::Portrait:
    case Type::Picture:
        object.insert(key("data"), QString::fromLatin1(message.data.toBase64()));
        break;
    case Type::Typing:
        object.insert(key("on"), message.isOn);
        break;
    case Type::Text:
        object.insert(key("text"), message.text);
        break;
    case Type::Nudge:
        break;
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

Verdict decode(const QByteArray &line, PeerMessage *message)
{
    const QJsonDocument document = QJsonDocument::fromJson(line);
    const QJsonObject object = document.object();
    const QString type = object.value(key("type")).toString();
    if (!document.isObject() || type.isEmpty())
        return Verdict::Hostile;
    const auto known = std::find_if(kTypes.begin(), kTypes.end(), [&type](const char *name) {
        return type == QLatin1String(name);
    });
    if (known == kTypes.end())
        return Verdict::Unknown;
    message->type = static_cast<Type>(known - kTypes.begin());
    return readValues(object, message) ? Verdict::Understood : Verdict::Hostile;
}

bool LineReader::feed(const QByteArray &bytes)
{
    m_buffer += bytes;
    const int firstEnd = static_cast<int>(m_buffer.indexOf('\n', m_searched));
    if (firstEnd < 0)
        m_searched = static_cast<int>(m_buffer.size());
    return (firstEnd < 0 ? m_searched : firstEnd) <= kLongestLine;
}

std::optional<QByteArray> LineReader::nextLine()
{
    const int end = static_cast<int>(m_buffer.indexOf('\n', m_searched));
    if (end < 0) {
        m_searched = static_cast<int>(m_buffer.size());
        return std::nullopt;
    }
    const QByteArray line = m_buffer.left(end);
    m_buffer.remove(0, end + 1);
    m_searched = 0;
    return line;
}

} // namespace messenger
