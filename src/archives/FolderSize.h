#pragma once

#include <QString>

#include <functional>

namespace pelorin::archives {

/// What lies in folders, as far as it was counted.
struct FolderSize {
    qint64 files = 0;  // whatever is no folder; links count and are not followed
    qint64 bytes = 0;  // of files
    bool whole = true; // false: there is more, since counting stopped or something can't be read

    friend bool operator==(const FolderSize&, const FolderSize&) = default;
};

/// Adds what lies in a folder, or the file or link that the path is. `keepCounting` is asked before
/// each thing; false stops. Nothing there adds nothing.
void AddFolderSize(
    FolderSize& size, const QString& path, const std::function<bool()>& keepCounting);

} // namespace pelorin::archives
