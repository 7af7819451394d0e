#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QString>
#include <QtGui/QImage>

#include <functional>

class QWidget;

namespace ombrin {

/// How a picture is to be saved. Texts are translated by the class whose picture it is.
struct PictureSaving
{
    QString title;
    QString formatName;
    /// Where the folder used last is kept, in the library's group of settings.
    QString settingsKey;
    /// The first of these of which something is left as a file name is proposed. They may come from
    /// other people.
    QString proposedName;
    QString otherName = QString();
};

/// Asks the user for a file and saves a picture into it as JPEG.
///
/// \a picture is called once the file is known and may return a null image, for which no file is
/// written; it is not called when the user cancels or \a parent dies while the dialog is open, so
/// what it captures may belong to \a parent. A file that cannot be written is left as it was,
/// which is not reported. A file that exists is only replaced when the user says so, even if the
/// suffix is missing from what was typed.
OMBRIN_AUTOTEST_EXPORT void savePictureAsJpeg(QWidget *parent, const PictureSaving &saving,
                                              const std::function<QImage()> &picture);

/// What is left of \a name, which may come from other people, as the name of a file in a folder
/// that the user chooses: without separators, control characters and what file dialogs or systems
/// take for something else, and no longer than a file system takes. Empty if there is nothing to
/// see in \a name.
OMBRIN_AUTOTEST_EXPORT QString proposedFileName(const QString &name);

} // namespace ombrin
