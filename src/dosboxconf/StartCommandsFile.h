#pragma once

#include "dosboxconf/StartCommands.h"
#include "platform/Outcome.h"
#include "platform/TextFile.h"
#include "shell/Places.h"

#include <QString>
#include <QStringList>

namespace pelorin::library {
struct GameFiles;
}

// autoexec.conf in a game's metadata folder: one start command a line, code page 949, CR LF, no
// header. Empty lines mean nothing: they are passed over on reading and not written.

namespace pelorin::dosboxconf {

/// The non-empty lines; none without a file. Error Unreadable.
platform::Outcome<QStringList> ReadAutoexecConf(const shell::Places& places, const QString& folder);
/// The same for a game whose folders are listed already.
platform::Outcome<QStringList> ReadAutoexecConf(const library::GameFiles& files);

/// Replaces the file by the non-empty lines, in order; makes the metadata folder if it is missing.
/// Error Unwritable, Refused for a game that is not there, or, where `loss` refuses that,
/// Unencodable with the characters that code page 949 can't keep; the old file stands then.
platform::Done WriteAutoexecConf(
    const shell::Places& places,
    const QString& folder,
    const QStringList& commands,
    platform::Loss loss = platform::Loss::Refuse);

/// The game's file holds `commands`: fills lstAutoexec and selects its first row, if there is any.
void FillStartCommands(StartCommands& start, const QStringList& commands);
/// The same where the game is shown already: lines that are not saved stay.
void RefillStartCommands(StartCommands& start, const QStringList& commands);

// What the buttons beside lstAutoexec do. All work in memory, and each tells what it changed.

/// cmdAddExec: the selected file of fileEXE goes behind the selected line (to the top without one)
/// and is selected. Without a file nothing happens.
void AddSelectedFile(StartCommands& start);
/// cmdAddEmpty: the same with the button's own caption.
void AddEmptyLine(StartCommands& start);
/// cmdDelete: the selected line, or the first. The selection keeps its place, or moves up one when
/// the last line went. An empty list stays as it is.
void DeleteLine(StartCommands& start);
/// cmdUp, cmdDown: swaps the selected line with its neighbour and follows it.
void MoveLineUp(StartCommands& start);
void MoveLineDown(StartCommands& start);
/// The reply to a double click: trimmed; a reply of blanks leaves the line, as does a row that is
/// not there (any more).
void ReplaceLine(StartCommands& start, int row, const QString& reply);

} // namespace pelorin::dosboxconf
