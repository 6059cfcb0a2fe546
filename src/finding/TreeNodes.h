#pragma once

#include "finding/FilterTree.h"
#include "library/Catalogue.h"

#include <QString>
#include <QStringList>

namespace pelorin::shell {
class LangTable;
}

namespace pelorin::finding {

/// Nothing, or blanks alone: such a value has no node.
bool IsBlankValue(const QString& text);

/// The ten roots and their fixed children, one for each build name up to the first blank one among
/// them. All check marks are lost; which roots stand open is kept. Tells Nodes.
void BuildTreeSkeleton(
    FilterTree& tree, const shell::LangTable& lang, const QStringList& buildNames);

/// Makes the children of the six categories by value anew, unchecked: each distinct value once,
/// ascending by 16-bit code; values of blanks only are left out. Tells Nodes once.
void RefillValueNodes(FilterTree& tree, const library::Catalogue& catalogue);

/// The texts of a category's children, in order. None before the tree is built.
QStringList ChildTexts(const FilterTree& tree, Category category);

} // namespace pelorin::finding
