#include "contacts/PictureFile.h"

#include "widgets/PictureExtent.h"

#include <QtCore/QFileInfo>
#include <QtGui/QImageReader>

namespace ombrin {

PictureFile PictureFile::inspect(const QString &fileName)
{
    PictureFile file;
    // Opening anything else, a pipe say, could block for ever.
    if (!QFileInfo(fileName).isFile())
        return file;
    QImageReader reader(fileName);
    const QSize size = pictureExtent(&reader);
    file.isReadable = isSafeExtent(size);
    file.isAnimation = file.isReadable && reader.supportsAnimation();
    if (file.isAnimation && reader.imageCount() > 0)
        file.animationBytes = qint64(reader.imageCount()) * size.width() * size.height() * 4;
    return file;
}

} // namespace ombrin
