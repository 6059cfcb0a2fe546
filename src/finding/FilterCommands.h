#pragma once

#include "finding/FilterTree.h"
#include "finding/GameList.h"

namespace pelorin::shell {
struct Launcher;
}

namespace pelorin::finding {

/// A list of large icons shows plain rows for as long as this stands: icons take longer to place.
class ShownAsRows {
public:
    explicit ShownAsRows(shell::Launcher& launcher);
    ~ShownAsRows();
    ShownAsRows(const ShownAsRows&) = delete;
    ShownAsRows& operator=(const ShownAsRows&) = delete;

private:
    GameList& m_list;
    bool m_icons = false;
};

/// Rebuilds the list out of the games that the tree's marks and the search box pass, and gives it the
/// keyboard with its first row selected; the search box gets it while the list is hidden. With a row
/// the panels can be used, at the end of the job if one stands. When the marks pass no game, nothing
/// but the list changes. Everybody calls this one.
void RefreshGameList(shell::Launcher& launcher);

// The tree: each rebuilds the list and shows the first game, if there is one.

/// The user toggled a node's check box, to `checked`.
void TreeView1_NodeCheck(shell::Launcher& launcher, const NodePlace& place, bool checked);
/// The user clicked a node's label.
void TreeView1_NodeClick(shell::Launcher& launcher, const NodePlace& place);

// The search. Each ends with the list rebuilt and the first game shown, if there is one; Esc on the
// button shows the current game anew even if there is none.

/// cmdFind, or Enter in the box.
void cmdFind_Click(shell::Launcher& launcher);
/// Esc in the box empties it.
void txtFind_Esc(shell::Launcher& launcher);
/// Esc on the button empties the box as well.
void cmdFind_Esc(shell::Launcher& launcher);

/// A click on a column's header: sorts by it, upwards, or downwards if it was sorted by it upwards.
/// What is selected stays selected; nothing is searched or shown anew.
void LVGamelist_ColumnClick(shell::Launcher& launcher, int column);

/// optViewmode: shows the list in that view; a notice over it goes.
void SetView(shell::Launcher& launcher, View view);

} // namespace pelorin::finding
