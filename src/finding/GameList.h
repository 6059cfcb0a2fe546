#pragma once

#include "finding/GameRows.h"
#include "platform/Notifier.h"

#include <QString>

#include <array>
#include <cstdint>
#include <vector>

namespace pelorin::finding {

/// What a rebuild of the list left.
enum class ListOutcome {
    NotBuilt,    // there was none yet
    NoFilterHit, // the filters passed no game: the list is empty, all else keeps what it showed
    NoSearchHit, // the search passed none of those that the filters passed
    NoGames,     // the Catalogue is empty
    Items,       // the first row is selected
};

enum class View { LargeIcons = 0, SmallIcons = 1, List = 2, Details = 3 };

/// How the list is sorted: by title at the start, else by the column whose header was clicked.
struct ListSort {
    int column = 0;
    bool descending = false;
};

/// What LVGamelist holds: rows, selection, view. The form's two views show it through one adapter.
struct GameList {
    enum Changed : std::uint32_t {
        Reset = 1,     // all rows
        Rows = 2,      // texts of single rows
        Selection = 4, // by the program, not by the user
        ViewMode = 8,
        Focus = 16, // the list is to take the keyboard
        Icons = 32,
        Columns = 64, // widths and captions
    };

    GameRows items;
    int selected = -1;             // the row that the commands work on; -1 none
    std::vector<int> selectedRows; // all selected rows, ascending; holds `selected`
    ListOutcome outcome = ListOutcome::NotBuilt;
    View view = View::SmallIcons;
    ListSort sort;
    std::array<double, kColumns> columnWidths{}; // form units, 15 a pixel
    std::array<QString, kColumns> columnCaptions;
    bool visible = false; // written by the form

    platform::Notifier changed;

    /// -1 if there is none.
    int RowOf(const QString& folder) const;
    /// Selects that row alone; -1 selects nothing. Tells Selection.
    void Select(int row);
};

} // namespace pelorin::finding
