#pragma once

#include <ombrin/OmGlobal.h>

#include <QtCore/QMetaType>
#include <QtCore/QObject>

namespace ombrin {

/// Enumerations that the library shares with its host.
namespace Om {

Q_NAMESPACE_EXPORT(OMBRIN_GUI_EXPORT)

/// The presence of a contact.
enum ContactStatus : int {
    Offline = 0,
    Online = 1,
    Away = 2,
    ExtendedAway = 3,
    Busy = 4,
    DoNotDisturb = 5,
    Invisible = 6,
    InvisibleForEveryone = 7
};
Q_ENUM_NS(ContactStatus)

/// The program through which a contact is reached. It decides what can be done with the contact.
///
/// The host has names for the programs; the library knows them by their numbers. OmContactCard
/// lists those that it has actions for. 0 stands for no program.
///
/// \code
/// card->setGeneralApp(static_cast<ombrin::Om::ClientApplication>(11));
/// \endcode
enum ClientApplication : int {};

} // namespace Om

} // namespace ombrin

Q_DECLARE_METATYPE(ombrin::Om::ClientApplication)
