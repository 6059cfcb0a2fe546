#pragma once

#include "platform/Outcome.h"
#include "shell/Places.h"

#include <QString>
#include <QStringList>

// Which folders may become GamesRoot and ExportRoot. What lies directly below GamesRoot is taken
// for a game and may be packed, moved and deleted, so a wrong choice costs more than a question.

namespace pelorin::shell {

enum class Root { Games, Export };

/// What is known of a folder that is to become a root. All but `text` are paths without links.
struct RootFacts {
    Root root = Root::Games;
    QString text;            // absolute, as it will be kept
    QString path;            // the same folder
    QString other;           // the other root; empty: not looked at
    QString appDir;          // where the program lies
    QStringList mountPoints; // of this machine
    bool fitsLauncherCfg = true;
};

enum class RootFault {
    None,
    Unnamed,      // nothing was typed
    DriveRoot,    // a file system's root, or a path shorter than the shortest that is taken
    InOneAnother, // both roots are one folder, or one lies in the other
    HoldsProgram, // the program itself would be a game
    Unencodable,  // Launcher.cfg can't keep it
};

/// The first that applies, in that order.
RootFault FaultOf(const RootFacts& facts);

/// The absolute native path that a text means: parts that exist take their spelling on disk, a
/// relative path lies below AppDir. Empty for an empty text.
QString RootPath(const Places& places, const QString& text);

/// Without links, as far as the path leads to something.
QString WithoutLinks(const QString& path);

/// Makes the folder if it is missing. Error Unwritable, worded.
platform::Done MakeRoot(const QString& path);

} // namespace pelorin::shell
