#include "finding/FilterTree.h"

#include <algorithm>

namespace pelorin::finding {

FilterRoot* FilterTree::Root(const QString& key)
{
    const auto hit =
        std::find_if(roots.begin(), roots.end(), [&](const FilterRoot& r) { return r.key == key; });
    return hit == roots.end() ? nullptr : &*hit;
}

const FilterRoot* FilterTree::Root(const QString& key) const
{
    const auto hit =
        std::find_if(roots.begin(), roots.end(), [&](const FilterRoot& r) { return r.key == key; });
    return hit == roots.end() ? nullptr : &*hit;
}

} // namespace pelorin::finding
