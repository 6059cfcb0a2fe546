#pragma once

#include "library/GameEntry.h"

#include <QSet>
#include <QString>

#include <array>
#include <map>
#include <utility>
#include <vector>

namespace pelorin::library {

/// How many games have each value of one fact, by 16-bit code. Values that no game has are not in it.
using ValueCounts = std::map<QString, int>;

/// All games, and the distinct values of the facts that they share. Games change through Edit only,
/// so that the values follow without a look at the other games.
class Catalogue {
public:
    Catalogue() = default;
    explicit Catalogue(GameEntries games);

    // Named as a standard container has them. NOLINTBEGIN(readability-identifier-naming)
    const GameEntry& operator[](std::size_t position) const { return m_games[position]; }
    const GameEntry& at(std::size_t position) const { return m_games.at(position); }
    std::size_t size() const { return m_games.size(); }
    bool empty() const { return m_games.empty(); }
    auto begin() const { return m_games.begin(); }
    auto end() const { return m_games.end(); }
    // NOLINTEND(readability-identifier-naming)

    /// Calls `change` with the game at that position, 0 to size() - 1.
    template <class Change>
    void Edit(int position, const Change& change)
    {
        GameEntry& game = m_games[static_cast<std::size_t>(position)];
        Count(game, -1);
        change(game);
        Count(game, 1);
    }
    void Append(GameEntry game);
    /// Takes the games of these folders out and closes the gaps, so that positions and ListIndex
    /// agree again. Returns the positions that they had, ascending.
    std::vector<int> Remove(const QSet<QString>& folders);

    /// Valid until the next change.
    const ValueCounts& Values(Fact fact) const { return m_values[static_cast<std::size_t>(fact)]; }

private:
    void Count(const GameEntry& game, int change);

    GameEntries m_games;
    std::array<ValueCounts, kSharedFacts.size()> m_values; // by Fact
};

/// The position of the game, -1 if there is none.
int PositionOf(const Catalogue& catalogue, const QString& folder);

/// The first position whose folder ends with that name. So "a" may hit "ba" when that comes first;
/// the details panel works that way. -1 if there is none, or the name is empty.
int PositionBySuffix(const Catalogue& catalogue, const QString& folder);

} // namespace pelorin::library
