#pragma once

#include "library/GameEntry.h"
#include "library/IconSheet.h"

#include <QSet>
#include <QString>

namespace pelorin::library {

/// The position of the game, -1 if there is none.
int PositionOf(const Catalogue& catalogue, const QString& folder);

/// The first position whose folder ends with that name. So "a" may hit "ba" when that comes first;
/// the details panel works that way. -1 if there is none, or the name is empty.
int PositionBySuffix(const Catalogue& catalogue, const QString& folder);

/// Takes the games out, with their icons, and closes the gaps: positions, ListIndex and icons agree
/// again. False when there is none of them.
bool RemoveFromCatalogue(Catalogue& catalogue, IconSheet& icons, const QSet<QString>& folders);

} // namespace pelorin::library
