#include "platform/LibraryFile.h"

#include <QtCore/QFile>

#include <dlfcn.h>

namespace ombrin {

QString libraryFile()
{
    // Any address of the library will do.
    static const char inLibrary = 0;
    Dl_info info{};
    if (!dladdr(&inLibrary, &info) || !info.dli_fname)
        return QString();
    return QFile::decodeName(info.dli_fname);
}

} // namespace ombrin
