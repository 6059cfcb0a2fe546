#include "finding/GameList.h"

#include <algorithm>

namespace pelorin::finding {

int GameList::RowOf(const QString& folder) const
{
    const auto hit = std::find_if(
        items.begin(), items.end(), [&](const GameItem& item) { return item.folder == folder; });
    return hit == items.end() ? -1 : static_cast<int>(hit - items.begin());
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
