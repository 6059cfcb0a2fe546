#include "finding/GameList.h"

namespace pelorin::finding {

int GameList::RowOf(const QString& folder) const
{
    for (std::size_t row = 0; row < items.size(); ++row) {
        if (items[row].Folder() == folder) {
            return static_cast<int>(row);
        }
    }
    return -1;
}

void GameList::Select(int row)
{
    selected = row;
    selectedRows.clear();
    if (row >= 0) {
        selectedRows.push_back(row);
    }
    changed.Tell(Selection);
}

} // namespace pelorin::finding
