#pragma once

#include "library/GameEntry.h"
#include "library/IconSheet.h"
#include "library/ScanProgress.h"
#include "platform/Outcome.h"

#include <QStringList>

// The cache of the Catalogue between two runs, in AppDir:
//   Gamelist.lst  one line in code page 949 ended by CR LF: records separated by U+0002, their nine
//                 fields by U+0001, the two titles in field 1 by U+0003
//   IconList.bmp  a sheet of the games' icons, see IconSheetFile.h
// What is damaged is refused whole; the caller scans then, and the next save heals it.

namespace pelorin::shell {
struct Places;
}

namespace pelorin::library {

struct CachedCatalogue {
    GameEntries catalogue;
    IconSheet icons; // as many as games
};

/// Both files are there.
bool HasCatalogueCache(const shell::Places& places);

/// Error NotFound or Unreadable; Malformed when a field is missing, a folder is no plain name or
/// stands twice, or the sheet's size is not that of the records; Abandoned when `progress` says so.
platform::Outcome<CachedCatalogue> ReadCatalogueCache(
    const shell::Places& places, ScanProgress& progress);

struct CacheReport {
    QStringList leftOut; // folders of games that the list can't hold as they are; both files lack
                         // them, and the next start reads them from their folders
    QList<platform::Wording> formerSheets; // why former forms of the sheet could not be deleted
};

/// Writes both files, and only then lets the sheet and the list take the place of the old ones; so
/// a full disk leaves the old ones whole. Deletes the former forms IconList.jpg and
/// SmallIconList.jpg. A sheet that already holds these icons is not written again; where one is,
/// the old list goes first, so that no list ever stands beside another one's icons.
/// Without a game the list is deleted and the sheet left alone. Goes on when `progress` wants to
/// give up: this is what the program does last. Error: Unwritable.
platform::Outcome<CacheReport> SaveCatalogueCache(
    const shell::Places& places,
    GamesView catalogue,
    const IconSheet& icons,
    ScanProgress& progress);

/// Deletes both files. Missing ones are a success.
platform::Done DeleteCatalogueCache(const shell::Places& places);

/// The folders of those games of `catalogue` that a save would leave out: code page 949 can't keep
/// their name or another text of their record.
QStringList GamesWithoutCache(GamesView catalogue);

/// The sub-folders of GamesRoot that a save has left out and that `catalogue` does not hold. Lists
/// GamesRoot, and opens only folders that are new there (none when the Catalogue is full); writes
/// nothing.
QStringList FoldersWithoutCache(const shell::Places& places, GamesView catalogue);

} // namespace pelorin::library
