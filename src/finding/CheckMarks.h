#pragma once

#include "finding/FilterTree.h"

namespace pelorin::finding {

// What the user's two deeds on a node do to the marks. Nodes are told apart by their texts, so that
// those with the same text go together. Both tell Checks, and return whether the list is to be
// rebuilt: not after a deed on a category without children, or on a node that is not there.

/// The node's check box was toggled, to `checked`. At most one child of a category stays checked.
bool ToggleNode(FilterTree& tree, const NodePlace& place, bool checked);

/// The node's label was clicked, which toggles a child and clears a category.
bool ClickNode(FilterTree& tree, const NodePlace& place);

} // namespace pelorin::finding
