#include "model/ContactFilter.h"

#include <QtCore/QJsonArray>

#include <algorithm>

namespace messenger {

namespace {

namespace Om = ombrin::Om;

QString presencesKey()
{
    return QStringLiteral("hiddenPresences");
}

QString groupsKey()
{
    return QStringLiteral("hiddenGroups");
}

} // namespace

ContactFilter::Presence ContactFilter::presenceOf(const Contact &contact)
{
    switch (contact.status) {
    case Om::Online:
        return Online;
    case Om::Away:
    case Om::ExtendedAway:
        return Away;
    case Om::Busy:
    case Om::DoNotDisturb:
        return Busy;
    case Om::Offline:
    case Om::Invisible:
    case Om::InvisibleForEveryone:
        break;
    }
    return Offline;
}

bool ContactFilter::accepts(const Contact &contact) const
{
    if (hiddenPresences.contains(presenceOf(contact)) || hiddenGroups.contains(contact.group))
        return false;
    const QString text = contact.alias + QLatin1Char('\n') + contact.statusText + QLatin1Char('\n')
                         + contact.group;
    const QStringList wanted = words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return std::all_of(wanted.cbegin(), wanted.cend(), [&text](const QString &word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
}

QJsonObject ContactFilter::toJson() const
{
    QJsonArray presences;
    for (const Presence presence : hiddenPresences)
        presences.append(static_cast<int>(presence));
    return {{presencesKey(), presences}, {groupsKey(), QJsonArray::fromStringList(hiddenGroups)}};
}

ContactFilter ContactFilter::fromJson(const QJsonObject &object)
{
    ContactFilter filter;
    const QJsonArray presences = object.value(presencesKey()).toArray();
    for (const QJsonValue presence : presences) {
        const int number = presence.toInt(-1);
        if (number >= 0 && number < PresenceCount)
            filter.hiddenPresences.append(static_cast<Presence>(number));
    }
    const QJsonArray groups = object.value(groupsKey()).toArray();
    for (const QJsonValue group : groups)
        filter.hiddenGroups.append(group.toString());
    return filter;
}

} // namespace messenger
