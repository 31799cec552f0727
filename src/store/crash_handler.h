#pragma once

#include <QtCore/QString>

namespace zelvor {

// Where reports of crashes lie: in the user's state folder (XDG: $XDG_STATE_HOME/Zelvor/crash-reports).
QString crashReportFolder();

// What every report's file name begins with, whichever of the programs wrote it.
inline constexpr QStringView crashReportPrefix = u"Zelvor";

// Called once by main. From here on a crash writes a report into the folder before the process ends as it
// would have: the program and the versions it runs with, the signal, and where each function of the stack
// lies in its module. No paths, no names of a user's files, nothing of the books. A signal that somebody
// handles already is left to them. The ten newest reports are kept. False when reports cannot be written
// there.
bool installCrashHandler(const QString& program, const QString& version, const QString& folder);

} // namespace zelvor
