#include "finding/CheckMarks.h"

namespace pelorin::finding {

namespace {

FilterNode* ChildAt(FilterRoot& root, int child)
{
    const auto row = static_cast<std::size_t>(child);
    return child >= 0 && row < root.children.size() ? &root.children[row] : nullptr;
}

void UncheckOthers(FilterRoot& root, const QString& text)
{
    for (FilterNode& node : root.children) {
        node.checked = node.checked && node.text == text;
    }
}

} // namespace

bool ToggleNode(FilterTree& tree, const NodePlace& place, bool checked)
{
    FilterRoot* const root = tree.Root(place.category);
    if (root == nullptr) {
        return false;
    }
    FilterNode* const child = ChildAt(*root, place.child);
    if (child == nullptr && place.child >= 0) {
        return false;
    }
    (child != nullptr ? child->checked : root->checked) = checked;
    UncheckOthers(*root, child != nullptr ? child->text : root->text);
    tree.changed.Tell(FilterTree::Checks);
    return !root->children.empty();
}

bool ClickNode(FilterTree& tree, const NodePlace& place)
{
    FilterRoot* const root = tree.Root(place.category);
    if (root == nullptr) {
        return false;
    }
    if (FilterNode* const child = ChildAt(*root, place.child)) {
        const bool wanted = !child->checked;
        UncheckOthers(*root, child->text);
        child->checked = wanted;
    } else if (place.child < 0) {
        for (FilterNode& node : root->children) {
            node.checked = false;
        }
        root->checked = false;
    } else {
        return false;
    }
    tree.changed.Tell(FilterTree::Checks);
    return !root->children.empty();
}

} // namespace pelorin::finding
