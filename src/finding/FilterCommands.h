#pragma once

#include "finding/GameList.h"

namespace pelorin::shell {
struct Launcher;
}

namespace pelorin::finding {

/// Rebuilds the list out of the Catalogue and gives it the keyboard with its first row selected;
/// the search box gets it while the list is hidden. With a row the panels can be used, at the end of
/// the job if one stands. Everybody calls this one.
void RefreshGameList(shell::Launcher& launcher);

/// A click on a column's header: sorts by it, upwards, or downwards if it was sorted by it upwards.
/// The selected game stays selected.
void LVGamelist_ColumnClick(shell::Launcher& launcher, int column);

/// optViewmode: shows the list in that view; a notice over it goes.
void SetView(shell::Launcher& launcher, View view);

} // namespace pelorin::finding
