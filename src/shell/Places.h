#pragma once

#include <QString>

namespace pelorin::shell {

/// The folders that everything else lies in: native absolute paths without a trailing separator.
struct Places {
    QString appDir;     // the folder of the executable, also the current directory
    QString gamesRoot;  // each direct sub-folder is a game
    QString exportRoot; // exported archives and logs

    QString DefaultGamesRoot() const;
    QString DefaultExportRoot() const;

    /// Below AppDir, each part found without regard to case; as given where it doesn't exist.
    QString InAppDir(const QString& relative) const;
    /// The game's folder. `folder` must be a plain name.
    QString GameDir(const QString& folder) const;
    /// The game's metadata folder, in its spelling on disk; "DosBox" where it doesn't exist yet.
    QString MetaDir(const QString& folder) const;
    /// A path below the game's metadata folder, each part without regard to case.
    QString InMetaDir(const QString& folder, const QString& relative) const;
};

} // namespace pelorin::shell
