#pragma once

#include "finding/FilterTree.h"
#include "finding/ListSource.h"

#include <QString>

#include <optional>
#include <vector>

namespace pelorin::finding {

/// Positions in the Catalogue, ascending, of the games that the filters pass. Without a value the
/// filters passed none, which leaves the list empty and all else on the screen as it is.
using FilterIndex = std::optional<std::vector<int>>;

/// Whether the category filters: not all of its children have the same mark. So a category with all
/// children checked does not, and neither does one with a single child.
bool IsCategoryActive(const FilterRoot& root);

/// True for the title of a stored game: it holds the mark, wherever.
bool TitleHasStoreMark(const QString& title, const QString& storeMark);

/// The games that pass every active category; without one the whole Catalogue, be it empty. No value
/// as well when the category of builds has to judge a game whose build lies outside 0 to 100.
FilterIndex BuildFilterIndex(const FilterTree& tree, const ListSource& source);

} // namespace pelorin::finding
