#pragma once

#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace pelorin::finding {

inline constexpr int kColumns = 8; // title, genre, folder, build, maker, release, language, country
inline constexpr std::size_t kFolderColumn = 2;

/// One row of LVGamelist.
struct GameItem {
    std::array<QString, kColumns> text; // text[0] is the title in use, also the tool tip
    std::int16_t listIndex = 0;         // number of its icon, from 1

    /// The genre in use.
    const QString& Tag() const { return text[1]; }
    /// Its key is "K" and this.
    const QString& Folder() const { return text[kFolderColumn]; }
};

/// The rows of the list. What a game shows is kept whether the game is shown or not, so that a
/// rebuild moves no texts: it compares those that it needs and writes the order. A row keeps its
/// texts until the next rebuild, whatever becomes of the game meanwhile.
class GameRows {
public:
    /// As much of an iterator as a loop over all rows needs.
    class Iterator {
    public:
        Iterator(const GameRows* rows, std::size_t row)
            : m_rows(rows)
            , m_row(row)
        {}
        const GameItem& operator*() const { return (*m_rows)[m_row]; }
        Iterator& operator++()
        {
            ++m_row;
            return *this;
        }
        bool operator==(const Iterator& other) const { return m_row == other.m_row; }

    private:
        const GameRows* m_rows;
        std::size_t m_row;
    };

    // Named as a standard container has them. NOLINTBEGIN(readability-identifier-naming)
    std::size_t size() const { return m_order.size(); }
    bool empty() const { return m_order.empty(); }
    const GameItem& operator[](std::size_t row) const { return m_kept[Place(m_order[row])]; }
    GameItem& operator[](std::size_t row) { return m_kept[Place(m_order[row])]; }
    const GameItem& at(std::size_t row) const { return m_kept.at(Place(m_order.at(row))); }
    Iterator begin() const { return {this, 0}; }
    Iterator end() const { return {this, size()}; }

    /// A row behind the others. Not for rows that were laid.
    void push_back(const GameItem& item);
    void clear();
    // NOLINTEND(readability-identifier-naming)

    /// The position in the Catalogue that each row was laid for.
    const std::vector<int>& Positions() const { return m_order; }

    /// Lays rows anew: row r shows the game at position order[r] of a Catalogue of `games` games.
    /// `update` is called with the position and the kept item of each of them, which holds what
    /// it held at the last rebuild, in the order of the positions: so they lie in memory, and any
    /// other order would be far slower.
    template <class Update>
    void Lay(std::vector<int> order, std::size_t games, const Update& update)
    {
        std::vector<bool> shown(games);
        for (const int position : order) {
            shown[static_cast<std::size_t>(position)] = true;
        }
        m_kept.resize(games);
        for (std::size_t position = 0; position < games; ++position) {
            if (shown[position]) {
                update(position, m_kept[position]);
            }
        }
        m_order = std::move(order);
    }

private:
    static std::size_t Place(int position) { return static_cast<std::size_t>(position); }

    std::vector<GameItem> m_kept; // by position
    std::vector<int> m_order;     // a position for each row
};

} // namespace pelorin::finding
