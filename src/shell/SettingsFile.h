#pragma once

#include "platform/Outcome.h"
#include "shell/LauncherCfg.h"
#include "shell/Places.h"
#include "shell/RecentList.h"

#include <QString>
#include <QStringList>

namespace pelorin::shell {

/// What Launcher.cfg and the recent file gave. The roots are native absolute paths and exist; only a
/// default whose place holds a link that leads nowhere now (an unplugged disk) is left as it is.
struct LoadedSettings {
    LauncherCfg cfg;
    RecentList recent;
    QStringList lostRoots;     // as the file names them: not there now, so defaults stand in
    QString replacementReason; // why Launcher.cfg was replaced by the defaults; empty: it was not
};

/// Reads both files below `places.appDir`; the roots in `places` are not looked at. A missing file is
/// made. A Launcher.cfg that can't be read is kept as Launcher.cfg.bak, replaced by the defaults and
/// everything read once more; it is kept as well when a root in it is gone for the moment. Makes the
/// two root folders and `preset`.
/// Error, with the file's path: what the second reading failed at. The program can't start then.
platform::Outcome<LoadedSettings> LoadSettingsFiles(const Places& places);

/// Writes the recent file, then Launcher.cfg; the second also when the first failed. A minimized
/// window leaves the short form, which resets the next start, and the full one beside it as
/// Launcher.cfg.bak. Error: the first failure, with the path; Unencodable when a root can't be
/// written in code page 949.
platform::Done SaveSettingsFiles(
    const Places& places, const LauncherCfg& cfg, const RecentList& recent);

/// Writes Launcher.cfg as a first start has it and makes the two default root folders.
platform::Done WriteDefaultSettings(const Places& places);

} // namespace pelorin::shell
