#pragma once

#include "platform/Notifier.h"

#include <QString>
#include <QStringList>

#include <cstdint>

namespace pelorin::dosboxconf {

/// The start page's upper half: the selected game's start commands and its runnable files.
struct StartCommands {
    enum Changed : std::uint32_t { Commands = 1, CommandRow = 2, Files = 4, FileRow = 8 };

    QStringList lstAutoexec;
    QStringList saved;   // the lines that the game's file holds
    int commandRow = -1; // selected row; -1 none
    QStringList fileEXE; // names in GameDir
    int fileRow = -1;
    QString cmdAddEmpty; // the button's caption, which is itself the line that it inserts

    platform::Notifier changed;
};

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
