#include "finding/FilterTree.h"

#include <algorithm>

namespace pelorin::finding {

FilterRoot* FilterTree::Root(Category category)
{
    const auto hit = std::find_if(roots.begin(), roots.end(), [&](const FilterRoot& root) {
        return root.category == category;
    });
    return hit == roots.end() ? nullptr : &*hit;
}

const FilterRoot* FilterTree::Root(Category category) const
{
    const auto hit = std::find_if(roots.begin(), roots.end(), [&](const FilterRoot& root) {
        return root.category == category;
    });
    return hit == roots.end() ? nullptr : &*hit;
}

} // namespace pelorin::finding
