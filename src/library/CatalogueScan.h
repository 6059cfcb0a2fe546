#pragma once

#include "library/Catalogue.h"
#include "library/GameFiles.h"
#include "library/IconSheet.h"
#include "library/ScanProgress.h"
#include "library/TitleMarks.h"

namespace pelorin::shell {
struct Places;
}

namespace pelorin::library {

struct ScanResult {
    GameEntries catalogue;
    IconSheet icons;                  // as many as games
    int beyondBound = 0;              // folders left out behind the first kMostGames
    QList<platform::Wording> refused; // what is left out else, by name: folders that WhyNoGame
                                      // names, links that lead nowhere, folders that have vanished
    bool abandoned = false;           // the program is ending: the rest is not to be used
    Troubles troubles;
};

/// Reads GamesRoot anew: a first pass prepares each folder and takes its icon, a second one reads
/// it. Each folder is listed once and each file read once. Folders come in the order of their
/// lower-case names, hidden ones left out. A folder that vanishes before it is prepared is left
/// out; one that can't be read becomes a game that has its name only. `places`, `rules` and
/// `defaultIcon` must outlive the call.
ScanResult ScanCatalogue(
    const shell::Places& places,
    const ReadingRules& rules,
    const IconPixels& defaultIcon,
    ScanProgress& progress);

/// Prepares and reads one more folder and puts it at the end. False, with nothing changed, when
/// the Catalogue is full.
bool AddGame(
    GameFiles& files,
    const ReadingRules& rules,
    const IconPixels& defaultIcon,
    Catalogue& catalogue,
    IconSheet& icons,
    Troubles& troubles);

} // namespace pelorin::library
