// The pictures that the user chooses, pastes and drops.

#include "model/PictureFiles.h"
#include "windows/Pictures.h"

#include <ombrin/OmDir.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QMimeData>
#include <QtCore/QUrl>
#include <QtWidgets/QFileDialog>

#include <algorithm>

namespace messenger {

namespace {

// More at once is a mistake of the hand.
constexpr int kMostPictures = 20;

QList<QUrl> localFiles(const QMimeData *data)
{
    QList<QUrl> urls = data->urls();
    const auto isElsewhere = [](const QUrl &url) { return !url.isLocalFile(); };
    urls.erase(std::remove_if(urls.begin(), urls.end(), isElsewhere), urls.end());
    return urls;
}

} // namespace

QString choosePictureFile(QWidget *parent, const QString &title)
{
    return QFileDialog::getOpenFileName(
            parent, title, ombrin::OmDir::myPicturesPath(),
            QCoreApplication::translate("Pictures",
                                        "Pictures (*.png *.jpg *.jpeg *.gif *.bmp *.webp)"));
}

// Programs that copy text offer a picture of it as well.
bool holdsPictures(const QMimeData *data)
{
    return !localFiles(data).isEmpty() || (data->hasImage() && !data->hasText());
}

QVector<QImage> picturesIn(const QMimeData *data)
{
    QVector<QImage> pictures;
    const QList<QUrl> files = localFiles(data).mid(0, kMostPictures);
    for (const QUrl &file : files)
        pictures.append(readPicture(file.toLocalFile()));
    if (files.isEmpty() && data->hasImage())
        pictures.append(qvariant_cast<QImage>(data->imageData()));
    return pictures;
}

} // namespace messenger
