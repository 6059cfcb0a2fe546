#pragma once

#include "archives/KeepGoing.h"
#include "platform/Outcome.h"

#include <QString>

// The file layer of all rooms. Paths are native and absolute; a part that doesn't exist in the given
// spelling is looked for without regard to case. Every error names the path and the reason. Links are
// moved, copied and removed as links and never followed.

namespace pelorin::archives {

/// False for a folder, and on any failure. A link counts as what it leads to.
bool FileExists(const QString& path);
/// False for a file, and on any failure.
bool FolderExists(const QString& path);

/// Removes a file, a read-only one too; in the last part "*" and "?" stand for any text and any one
/// character, and "*.*" for every file, hidden ones and ones without a point too. Folders and links
/// to folders stay. Finding nothing is a success with wildcards, without them NotFound. A file whose name
/// really is the given text is taken alone.
platform::Done DeleteFile(const QString& path);

/// DeleteFile for what may be gone already: finding nothing is a success.
platform::Done DeleteFileIfThere(const QString& path);

/// Removes a folder with all it holds, read-only things too; a link to a folder as a link. Refused
/// for a file system's root, a relative path, one that ends with a separator, "." or "..", and for
/// whatever holds another file system; nothing is removed then.
/// Stops at the first thing that can't be removed.
platform::Done DeleteFolder(const QString& path);

/// Moves a folder to the path `destination`, or into it when that ends with a separator. To another
/// file system all is copied, each file's length checked, and only then the source deleted. Refused
/// when something stands at the destination, or when it lies in the source.
platform::Done MoveFolderQuiet(
    const QString& source, const QString& destination, const KeepGoing& keepGoing = {});

/// Moves a file to the path `destination`, or into that folder when it ends with a separator or is a
/// folder. Refused when a file stands there already.
platform::Done MoveFile(
    const QString& source, const QString& destination, const KeepGoing& keepGoing = {});

/// As MoveFile, but the source stays, and a file that stands there is replaced in one step once the
/// copy is whole.
platform::Done CopyFile(
    const QString& source, const QString& destination, const KeepGoing& keepGoing = {});

/// The outside tools that copy and move where that is not built in.
struct MissingTools {
    bool copyFile = false;
    bool moveFile = false;
};

/// The report for frmOutput at the start; empty when none is missing.
QString CheckFileTools(const MissingTools& missing);
/// The report's caption.
QString MissingToolsTitle();

} // namespace pelorin::archives
