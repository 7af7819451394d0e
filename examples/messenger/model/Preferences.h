#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>

namespace messenger {

/// What the user has chosen about the messenger.
struct Preferences
{
    bool checksSpelling = true;
    /// As OmSpelling::setDict() takes them; empty for the best guess.
    QString dictionaries;
    bool sendsTyping = true;
    bool showsBalloons = true;
    bool shakes = true;

    QJsonObject toJson() const;
    static Preferences fromJson(const QJsonObject &object);
};

} // namespace messenger
