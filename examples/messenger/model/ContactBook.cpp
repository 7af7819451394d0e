#include "model/ContactBook.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>

namespace messenger {

namespace {

constexpr qint64 kLargestBook = 4 << 20;
constexpr int kLongestLine = 120;
// A contact card has no actions for programs beyond this one.
constexpr int kLastApplication = 19;

QString line(const QJsonObject &entry, const char *key)
{
    return asLine(entry.value(QLatin1String(key)).toString(), kLongestLine);
}

/// The file \a name in \a folder or below it; empty where it would lead out of there.
QString pictureFile(const QString &folder, const QString &name)
{
    const QString path = QDir::cleanPath(name);
    const bool leadsOut = QDir::isAbsolutePath(path) || path.startsWith(QLatin1String(".."))
                          || path.contains(QLatin1Char(':'));
    return name.isEmpty() || leadsOut ? QString() : QDir(folder).filePath(path);
}

QUrl webAddress(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    const bool isWeb =
            url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http");
    return isWeb && !url.host().isEmpty() ? url : QUrl();
}

} // namespace

ContactBook ContactBook::load(const QString &fileName)
{
    ContactBook book;
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly)) {
        book.m_problems.append(tr("The contact book '%1' cannot be read.").arg(fileName));
        return book;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.read(kLargestBook), &error);
    if (error.error != QJsonParseError::NoError) {
        book.m_problems.append(tr("The contact book is damaged at byte %1: %2")
                                       .arg(error.offset)
                                       .arg(error.errorString()));
        return book;
    }
    const QString folder = QFileInfo(fileName).absolutePath();
    const QJsonArray entries = document.object().value(QLatin1String("contacts")).toArray();
    for (const QJsonValue entry : entries)
        book.addEntry(entry, folder);
    return book;
}

void ContactBook::addEntry(const QJsonValue &value, const QString &folder)
{
    const QJsonObject entry = value.toObject();
    Contact contact;
    contact.id = entry.value(QLatin1String("id")).toString();
    contact.alias = line(entry, "alias");
    if (!isContactId(contact.id) || isPeerContact(contact.id) || contact.alias.isEmpty()) {
        m_problems.append(tr("A contact without a usable id and alias was left out."));
        return;
    }
    const auto hasId = [&contact](const Contact &other) { return other.id == contact.id; };
    if (std::any_of(m_contacts.cbegin(), m_contacts.cend(), hasId)) {
        m_problems.append(
                tr("There are two contacts '%1'; the second was left out.").arg(contact.id));
        return;
    }
    contact.status = statusFromWord(line(entry, "status"));
    contact.statusText = line(entry, "statusText");
    contact.application =
            qBound(0, entry.value(QLatin1String("application")).toInt(), kLastApplication);
    contact.group = line(entry, "group");
    contact.phone = line(entry, "phone");
    contact.email = line(entry, "email");
    contact.city = line(entry, "city");
    contact.birthday = QDate::fromString(line(entry, "birthday"), Qt::ISODate);
    contact.web = webAddress(line(entry, "web"));
    contact.picture = pictureFile(folder, line(entry, "picture"));
    contact.isBlocked = entry.value(QLatin1String("blocked")).toBool();
    contact.answers = entry.value(QLatin1String("answers")).toBool();
    m_contacts.append(contact);
}

} // namespace messenger
