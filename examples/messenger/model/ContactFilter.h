#pragma once

#include "model/Contact.h"

#include <QtCore/QJsonObject>
#include <QtCore/QStringList>

namespace messenger {

/// Which contacts are shown.
struct ContactFilter
{
    /// Presence as people tell it apart.
    enum Presence { Online, Away, Busy, Offline, PresenceCount };

    static Presence presenceOf(const Contact &contact);

    /// Every word of it is in the alias, the remark or the group; upper and lower case are the
    /// same.
    QString words;
    QList<Presence> hiddenPresences;
    QStringList hiddenGroups;

    bool accepts(const Contact &contact) const;

    /// Without the words, which nobody expects to find again.
    QJsonObject toJson() const;
    static ContactFilter fromJson(const QJsonObject &object);
};

} // namespace messenger
