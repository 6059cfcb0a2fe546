#include "library/Catalogue.h"

#include <QHash>

#include <algorithm>

namespace pelorin::library {

namespace {

ValueCounts CountValues(const GameEntries& games, QString GameEntry::*fact)
{
    // Most games share their facts with others, also in memory: then the place tells them apart,
    // and few texts have to be compared.
    struct Shared {
        const QString* text = nullptr;
        int games = 0;
    };
    QHash<const QChar*, Shared> places;
    for (const GameEntry& game : games) {
        const QString& value = game.*fact;
        Shared& shared = places[value.constData()];
        shared.text = &value;
        ++shared.games;
    }
    ValueCounts counts;
    for (const Shared& shared : std::as_const(places)) {
        counts[*shared.text] += shared.games;
    }
    return counts;
}

template <class Test>
int FirstPosition(const Catalogue& catalogue, const Test& test)
{
    const auto hit = std::find_if(catalogue.begin(), catalogue.end(), test);
    return hit == catalogue.end() ? -1 : static_cast<int>(hit - catalogue.begin());
}

} // namespace

Catalogue::Catalogue(GameEntries games)
    : m_games(std::move(games))
{
    for (std::size_t i = 0; i < kSharedFacts.size(); ++i) {
        m_values[i] = CountValues(m_games, kSharedFacts[i]);
    }
}

void Catalogue::Append(GameEntry game)
{
    Count(game, 1);
    m_games.push_back(std::move(game));
}

std::vector<int> Catalogue::Remove(const QSet<QString>& folders)
{
    std::vector<int> removed;
    std::size_t free = 0;
    for (std::size_t i = 0; i < m_games.size(); ++i) {
        if (folders.contains(m_games[i].Folder)) {
            Count(m_games[i], -1);
            removed.push_back(static_cast<int>(i));
            continue;
        }
        if (free != i) {
            m_games[free] = std::move(m_games[i]);
            m_games[free].ListIndex = static_cast<std::int16_t>(free + 1);
        }
        ++free;
    }
    m_games.resize(free);
    return removed;
}

void Catalogue::Count(const GameEntry& game, int change)
{
    for (std::size_t i = 0; i < kSharedFacts.size(); ++i) {
        const auto value = m_values[i].try_emplace(game.*kSharedFacts[i], 0).first;
        value->second += change;
        if (value->second == 0) {
            m_values[i].erase(value);
        }
    }
}

int PositionOf(const Catalogue& catalogue, const QString& folder)
{
    return FirstPosition(catalogue, [&](const GameEntry& game) { return game.Folder == folder; });
}

int PositionBySuffix(const Catalogue& catalogue, const QString& folder)
{
    if (folder.isEmpty()) {
        return -1;
    }
    return FirstPosition(
        catalogue, [&](const GameEntry& game) { return game.Folder.endsWith(folder); });
}

} // namespace pelorin::library
