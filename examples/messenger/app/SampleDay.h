#pragma once

#include <QtCore/QString>

namespace messenger {

class ProfileFolder;
class Session;

/// The name of somebody whose windows are photographed.
QString sampleName();

/// Gives \a session, which lives in \a folder, an account and what is said in a morning.
void livePartOfDay(Session *session, const ProfileFolder &folder);

} // namespace messenger
