#pragma once

#include <QStringList>

#include <optional>

namespace pelorin::shell {
struct Launcher;
}

// Titles and description: typed in place, kept as a draft until they are saved. All of it is about
// the game that the details show (DetailsPanel::folder), wherever the selection is.

namespace pelorin::library {

struct GameFiles;

/// Shows the texts of info.txt, or the draft that lies over them.
void ShowInfo(shell::Launcher& launcher, const GameFiles& files);

/// The user has typed into one of the boxes: kept as a draft as long as it is not what the file has.
void Info_Change(shell::Launcher& launcher);

/// Esc in a box (0 and 1 the titles, 2 the description): it takes back what the file has.
void Info_Esc(shell::Launcher& launcher, int box);

/// Writes info.txt from the boxes; what was not typed into stays byte by byte. Asks first when the
/// file can't hold all of it; a No leaves it as it is.
void WriteGameInfo(shell::Launcher& launcher);

/// Ctrl+S as well: WriteGameInfo, and the entry is read anew. Nothing while the list is empty.
void cmdSaveInfo_Click(shell::Launcher& launcher);

/// Before the drafts go with the program or with the root of their games: asks once for all of them
/// whether to save them. nullopt: all is to stay as it is. Else what could not be saved, one line
/// each. Drafts that are not saved are kept.
std::optional<QStringList> SettleDrafts(shell::Launcher& launcher);
/// What was typed and not saved is no more.
void ForgetDrafts(shell::Launcher& launcher);

} // namespace pelorin::library
