#include "model/StateFile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QSaveFile>

namespace messenger {

namespace {

constexpr qint64 kLargestFile = 16 << 20;
constexpr int kMostKept = 10;

} // namespace

StateFile::StateFile(const QString &fileName)
    : m_fileName(fileName)
{
    read();
}

void StateFile::read()
{
    if (!QFileInfo::exists(m_fileName))
        return;
    QFile file(m_fileName);
    const bool isOpen = QFileInfo(m_fileName).isFile() && file.open(QIODevice::ReadOnly);
    QJsonParseError error;
    const QJsonDocument document =
            QJsonDocument::fromJson(isOpen ? file.read(kLargestFile) : QByteArray(), &error);
    file.close();
    if (error.error == QJsonParseError::NoError && document.isObject())
        m_values = document.object();
    else
        keepAside();
}

// An older one is not written over: it may be what the user is looking for.
void StateFile::keepAside() const
{
    QString kept = m_fileName + QStringLiteral(".damaged");
    for (int number = 2; QFileInfo::exists(kept) && number < kMostKept; ++number)
        kept = m_fileName + QStringLiteral(".damaged-%1").arg(number);
    QFile::rename(m_fileName, kept);
}

QJsonValue StateFile::value(const QString &key) const
{
    return m_values.value(key);
}

void StateFile::setValue(const QString &key, const QJsonValue &value)
{
    if (m_isWritten && m_values.value(key) == value)
        return;
    m_values.insert(key, value);
    m_isWritten = write();
}

bool StateFile::write() const
{
    QSaveFile file(m_fileName);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(QJsonDocument(m_values).toJson());
    return file.commit();
}

} // namespace messenger
