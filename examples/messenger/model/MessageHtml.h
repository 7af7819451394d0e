#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace messenger {

/// The text of a plain message as rich text that is safe to show: web addresses and e-mail
/// addresses are links, and smileys are pictures named as by smileyName().
QString messageToHtml(const QString &text);

/// What the user types for the smileys there are.
const QStringList &smileys();
/// The name of the picture of the smiley \a text, for a document's resources.
QString smileyName(const QString &text);

} // namespace messenger
