#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>

namespace messenger {

/// One line of a conversation.
struct Message
{
    enum class From {
        Me,
        Contact,
        Messenger, ///< A remark of the messenger itself.
    };
    enum class Kind {
        Text,    ///< \c text is plain.
        Html,    ///< \c text is a stranger's HTML, to be made safe before it is shown.
        Picture, ///< \c text is the name of a file in the folder of pictures.
        Nudge,
    };

    QDateTime time;
    From from = From::Me;
    Kind kind = Kind::Text;
    QString text;
};

} // namespace messenger
