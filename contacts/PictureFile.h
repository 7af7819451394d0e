#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QString>

namespace ombrin {

/// What a look at the header of a picture file tells. Files come from other people: decode none
/// that is not readable.
struct OMBRIN_AUTOTEST_EXPORT PictureFile
{
    /// Decodes nothing. An animation is counted through, which costs no more than reading it.
    static PictureFile inspect(const QString &fileName);

    /// An ordinary file or resource that holds a picture of a size which can be taken in.
    bool isReadable = false;
    bool isAnimation = false;
    /// The memory that all frames of the animation take; -1 where this is not known.
    qint64 animationBytes = -1;
};

} // namespace ombrin
