#include "library/CatalogueEdits.h"

#include <algorithm>

namespace pelorin::library {

namespace {

template <class Test>
int FirstPosition(const Catalogue& catalogue, Test test)
{
    const auto hit = std::find_if(catalogue.begin(), catalogue.end(), test);
    return hit == catalogue.end() ? -1 : static_cast<int>(hit - catalogue.begin());
}

} // namespace

int PositionOf(const Catalogue& catalogue, const QString& folder)
{
    return FirstPosition(catalogue, [&](const GameEntry& entry) { return entry.Folder == folder; });
}

int PositionBySuffix(const Catalogue& catalogue, const QString& folder)
{
    if (folder.isEmpty()) {
        return -1;
    }
    return FirstPosition(
        catalogue, [&](const GameEntry& entry) { return entry.Folder.endsWith(folder); });
}

bool RemoveFromCatalogue(Catalogue& catalogue, IconSheet& icons, const QSet<QString>& folders)
{
    const std::size_t before = catalogue.size();
    std::size_t free = 0;
    std::vector<int> removed;
    for (std::size_t i = 0; i < before; ++i) {
        if (folders.contains(catalogue[i].Folder)) {
            removed.push_back(static_cast<int>(i));
            continue;
        }
        if (free != i) {
            catalogue[free] = std::move(catalogue[i]);
            catalogue[free].ListIndex = static_cast<std::int16_t>(free + 1);
        }
        ++free;
    }
    catalogue.resize(free);
    icons.Remove(removed);
    return free != before;
}

} // namespace pelorin::library
