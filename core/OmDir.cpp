#include <ombrin/OmDir.h>

#include <QtCore/QDir>
#include <QtCore/QStandardPaths>

namespace ombrin {

QString OmDir::myPicturesPath()
{
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return pictures.isEmpty() ? QDir::homePath() : pictures;
}

QString OmDir::smileysPath(bool create)
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    const QString path = QDir(data).filePath(QStringLiteral("smileys"));
    if (create)
        QDir().mkpath(path);
    return path;
}

} // namespace ombrin
