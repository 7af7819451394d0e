#include "model/Preferences.h"

namespace messenger {

QJsonObject Preferences::toJson() const
{
    return {{QStringLiteral("checksSpelling"), checksSpelling},
            {QStringLiteral("dictionaries"), dictionaries},
            {QStringLiteral("sendsTyping"), sendsTyping},
            {QStringLiteral("showsBalloons"), showsBalloons},
            {QStringLiteral("shakes"), shakes}};
}

Preferences Preferences::fromJson(const QJsonObject &object)
{
    const Preferences usual;
    Preferences result;
    result.checksSpelling =
            object.value(QLatin1String("checksSpelling")).toBool(usual.checksSpelling);
    result.dictionaries = object.value(QLatin1String("dictionaries")).toString();
    result.sendsTyping = object.value(QLatin1String("sendsTyping")).toBool(usual.sendsTyping);
    result.showsBalloons = object.value(QLatin1String("showsBalloons")).toBool(usual.showsBalloons);
    result.shakes = object.value(QLatin1String("shakes")).toBool(usual.shakes);
    return result;
}

} // namespace messenger
