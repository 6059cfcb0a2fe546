#pragma once

#include "finding/FilterIndex.h"
#include "finding/GameList.h"
#include "finding/ListSource.h"
#include "finding/TitleOrder.h"

#include <QString>
#include <QStringList>

namespace pelorin::finding {

/// Rebuilds the rows from the games of `index` that the search term passes, sorted by list.sort. One
/// reset is told, list.outcome is set, the first row is selected. `order` must be that of the title language. A game of an
/// index outside the build names has an empty build column.
void BuildGameList(
    GameList& list, TitleOrder& order, const ListSource& source, const FilterIndex& index);

/// Puts the rows that were built in the order of list.sort; what is selected stays selected. One
/// reset is told.
void SortGameList(GameList& list, TitleOrder& order, const ListSource& source);

/// The row of one game.
GameItem ItemOf(
    const library::GameEntry& entry, const QStringList& buildNames, bool titleLanguageKorean);

} // namespace pelorin::finding
