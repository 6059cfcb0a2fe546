#pragma once

#include "platform/Outcome.h"
#include "shell/LauncherCfg.h"
#include "shell/Places.h"
#include "shell/RecentList.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace pelorin::shell {

/// What Launcher.cfg and the recent file gave. The roots are native absolute paths and exist; only a
/// default may be missing: one that could not be made, or whose place holds a link that leads
/// nowhere now (an unplugged disk).
struct LoadedSettings {
    LauncherCfg cfg;
    RecentList recent;
    QStringList lostRoots; // as the file names them: not there now, so defaults stand in
    std::optional<platform::Wording> replacementReason; // why the defaults replaced Launcher.cfg
    bool oldCfgKept = false;            // as Launcher.cfg.bak, because of one of these
    bool gamesRootReplaced = false;     // by the default, because of one of these
    QList<platform::Wording> unwritten; // what could not be made or replaced, with the paths
};

/// Reads both files below `places.appDir`; the roots in `places` are not looked at. A Launcher.cfg
/// that can't be read is kept as Launcher.cfg.bak and replaced by the defaults; it is kept as well
/// when a root in it is gone for the moment. Makes missing files, the two root folders and `preset`.
/// Error, with the path, when something can't be read with the default settings either: the recent
/// file, or a file stands in the place of a folder. Nothing is written then, and the program can't
/// start. What can't be written holds back no start.
platform::Outcome<LoadedSettings> LoadSettingsFiles(const Places& places);

/// Copies Launcher.cfg to Launcher.cfg.bak, or moves it there when it can't be read. An older .bak
/// goes, unless it is the full form of this short one. A missing file is a success.
platform::Done KeepOldCfg(const Places& places);

/// Writes the recent file, then Launcher.cfg; the second also when the first failed. A minimized
/// window leaves the short form, which resets the next start, and the full one beside it as
/// Launcher.cfg.bak. Error: the failures, a line for each with its path; Unencodable when a root
/// can't be written in code page 949.
platform::Done SaveSettingsFiles(
    const Places& places, const LauncherCfg& cfg, const RecentList& recent);

/// The root as Launcher.cfg can hold it: whole, or below AppDir where code page 949 can't keep the
/// way there. Error Unencodable when it can hold neither.
platform::Outcome<QString> RootText(const Places& places, const QString& root);

/// Writes Launcher.cfg as a first start has it and makes the two default root folders.
platform::Done WriteDefaultSettings(const Places& places);

} // namespace pelorin::shell
