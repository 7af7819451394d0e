#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QString>

namespace ombrin {

/// Folders of the user that the library reads and writes. Holds static functions only.
///
/// \code
/// const QString file = QFileDialog::getOpenFileName(this, tr("Choose a picture"),
///                                                   ombrin::OmDir::myPicturesPath());
/// \endcode
///
/// \ingroup core
class OMBRIN_CORE_EXPORT OmDir
{
public:
    /// The user's picture folder; the home folder where the system names none. No trailing slash.
    static QString myPicturesPath();

    /// The folder of the user's own smileys, below the application's data folder. No trailing
    /// slash. With \a create the folder is made when it is missing; when that fails, the path is
    /// returned all the same and saving into it fails as for any missing folder.
    static QString smileysPath(bool create);

    OmDir() = delete;
};

} // namespace ombrin
