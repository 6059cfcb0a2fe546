#pragma once

#include "finding/GameList.h"
#include "finding/TitleOrder.h"
#include "library/GameEntry.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace pelorin::finding {

/// What a rebuild of the list left.
enum class ListOutcome {
    NoFilterHit, // the filters passed no game: the list is empty, all else keeps what it showed
    NoItem,      // the search or an empty Catalogue left nothing
    Items,       // the first row is selected
};

/// What the list is built from. All of it must outlive the call.
struct ListSource {
    const library::Catalogue& catalogue;
    const QStringList& buildNames; // value list of the first option cell
    bool TitleLanguageKorean = true;
    QString txtFind; // as typed
};

/// All positions of the Catalogue, which is what the filters start from and narrow down.
std::vector<int> WholeIndex(const library::Catalogue& catalogue);

/// Rebuilds the rows from the games at `filterIndex` (ascending positions) that the search term
/// passes, sorted by list.sort. One reset is told; the first row is selected. `order` must be that
/// of the title language. A game of an index outside the build names has an empty build column.
ListOutcome BuildGameList(
    GameList& list,
    TitleOrder& order,
    const ListSource& source,
    const std::vector<int>& filterIndex);

/// The row of one game.
GameItem ItemOf(
    const library::GameEntry& entry, const QStringList& buildNames, bool titleLanguageKorean);

/// A text as the search compares it: without blanks, in upper case.
QString SearchForm(const QString& text);

} // namespace pelorin::finding
