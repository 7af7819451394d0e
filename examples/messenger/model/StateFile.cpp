#include "model/StateFile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QSaveFile>

namespace messenger {

namespace {

constexpr qint64 kLargestFile = 16 << 20;

} // namespace

StateFile::StateFile(const QString &fileName)
    : m_fileName(fileName)
{
    read();
}

void StateFile::read()
{
    QFile file(m_fileName);
    if (!QFileInfo(m_fileName).isFile() || !file.open(QIODevice::ReadOnly))
        return;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.read(kLargestFile), &error);
    file.close();
    if (error.error == QJsonParseError::NoError && document.isObject()) {
        m_values = document.object();
        return;
    }
    const QString kept = m_fileName + QStringLiteral(".damaged");
    QFile::remove(kept);
    QFile::rename(m_fileName, kept);
}

QJsonValue StateFile::value(const QString &key) const
{
    return m_values.value(key);
}

void StateFile::setValue(const QString &key, const QJsonValue &value)
{
    if (m_values.value(key) == value)
        return;
    m_values.insert(key, value);
    write();
}

void StateFile::write() const
{
    QSaveFile file(m_fileName);
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write(QJsonDocument(m_values).toJson());
    file.commit();
}

} // namespace messenger
