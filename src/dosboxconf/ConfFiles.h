#pragma once

#include "dosboxconf/OptionGrid.h"
#include "platform/Outcome.h"
#include "shell/Places.h"

#include <QString>
#include <QStringList>

#include <vector>

// The stored configurations: Default.conf in AppDir, which all games share, and edit.conf in the
// metadata folder of a game that has its own. One number a line, CR LF, behind a line with the
// mark "ver.15.02.01"; groups outside, items inside, so line 2 is the build. ConfUpgrade.h names
// the older layouts. Both files are found without regard to case.
//
// There is one current configuration, the grid's OptionSelection; loading one loses the other.

namespace pelorin::library {
struct GameFiles;
}

namespace pelorin::dosboxconf {

/// What happened on the way. `notes` are for the user, each naming its file; whoever
/// calls again and again (a selection does) shows a note once.
struct ConfReport {
    bool created = false;  // there was no file; factory values were written
    bool upgraded = false; // an older layout was read, and the file rewritten in the current one
    bool fellBack = false; // the file could not be read whole; factory values stand in
    bool linesMissing = false; // edit.conf was too short; what was missing reads as 0
    bool backupKept = false;   // the old file lies beside the new one as .bak
    QList<platform::Wording> notes;
};

/// One row of lstEdit(0..2): an option that a game sets differently from the global settings.
struct Difference {
    Cell cell;
    QString group; // GroupCaption
    QString title; // OptionTitle
    QString value; // as the editor shows it; empty for a cycle count that is not set
};

struct LoadedConf {
    bool hasOwn = false; // the game has an edit.conf
    ConfReport report;
    std::vector<Difference> differences; // groups outside, items inside
};

/// Whether the game overrides the global settings. False without a folder.
bool HasGameConf(const shell::Places& places, const QString& folder);

/// Fills the grid from Default.conf. A missing file is created with factory values, an older
/// layout is rewritten. A file that can't be read whole gives factory values and stays as it is.
/// Always leaves a whole configuration; what could not be written is a note, and so are selections
/// that no list of values has.
ConfReport ReadDefaultConf(const shell::Places& places, OptionGrid& grid);

/// Writes the grid's selection to Default.conf. A file there that could not be read whole, or a
/// selection of which the list of values has none and that is written over, is kept as .bak first.
/// Error Unwritable.
platform::Outcome<ConfReport> WriteDefaultConf(const shell::Places& places, const OptionGrid& grid);

/// Writes a table as the game's edit.conf, with the same care. Makes the metadata folder if it
/// is missing. Error Unwritable, or Refused for a folder that is no game here.
platform::Outcome<ConfReport> WriteGameConf(
    const shell::Places& places,
    const QString& folder,
    const OptionGrid& grid,
    const Selection& table);

/// The global settings overlaid with the game's file, except for the global-only keys, and what
/// differs from the global settings. An edit.conf of an older layout is rewritten; one without a
/// mark is replaced by values of the global file and kept as .bak. Without an edit.conf this is
/// ReadDefaultConf.
LoadedConf LoadGameConf(const shell::Places& places, const QString& folder, OptionGrid& grid);
/// The same for a game whose folders are listed already.
LoadedConf LoadGameConf(
    const shell::Places& places, const library::GameFiles& files, OptionGrid& grid);

/// Saves the grid as the game's file and its global-only keys into Default.conf. Without a
/// Default.conf one with factory values is made, and the grid then holds those. Error Unwritable;
/// the game's file may have been written then.
platform::Outcome<ConfReport> SaveGameConf(
    const shell::Places& places, const QString& folder, OptionGrid& grid);

/// The build of all games: the number in line 2 of Default.conf, which is generated with factory
/// values if it is missing. 0 where it can't be read. Reads the disk, so an unsaved choice does not
/// count, and leaves the grid's selection alone.
std::int16_t ReadDefaultBuild(const shell::Places& places, const OptionGrid& grid);

/// The same of a game: line 2 of its edit.conf, or that of all games where there is none or it can't
/// be read.
std::int16_t ReadBuildIndex(
    const shell::Places& places, const QString& folder, const OptionGrid& grid);

/// The build's name; empty where the index lies outside the list of builds.
QString ReadGameBuild(const shell::Places& places, const QString& folder, const OptionGrid& grid);

/// What the editor and the list of differences show for a selection of one cell; empty for a kind
/// that shows nothing and for a cycle count below 1.
QString ShownValue(const OptionGrid& grid, Cell cell, std::int32_t selected);

} // namespace pelorin::dosboxconf
