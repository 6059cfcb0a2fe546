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

bool RemoveFromCatalogue(Catalogue& catalogue, IconSheet& icons, const QString& folder)
{
    const std::size_t before = catalogue.size();
    std::size_t free = 0;
    for (std::size_t i = 0; i < before; ++i) {
        if (catalogue[i].Folder == folder) {
            if (static_cast<int>(free) < icons.Count()) {
                icons.Remove(static_cast<int>(free));
            }
            continue;
        }
        if (free != i) {
            catalogue[free] = std::move(catalogue[i]);
            catalogue[free].ListIndex = static_cast<std::int16_t>(free + 1);
        }
        ++free;
    }
    catalogue.resize(free);
    return free != before;
}

} // namespace pelorin::library
