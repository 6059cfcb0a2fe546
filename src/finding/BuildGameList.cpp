#include "finding/BuildGameList.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace pelorin::finding {

namespace {

using library::GameEntry;

/// The positions of the games that are to be shown, by title.
std::vector<int> ShownByTitle(
    TitleOrder& order, const ListSource& source, const std::vector<int>& index)
{
    const std::vector<int>& sorted = order.Sorted(source.catalogue);
    std::vector<bool> passing(source.catalogue.size());
    const QString term = SearchForm(source.txtFind);
    for (const int position : index) {
        if (term.isEmpty() || order.SearchText(position).contains(term)) {
            passing[static_cast<std::size_t>(position)] = true;
        }
    }
    std::vector<int> shown;
    shown.reserve(index.size());
    std::copy_if(sorted.begin(), sorted.end(), std::back_inserter(shown), [&](int position) {
        return passing[static_cast<std::size_t>(position)];
    });
    return shown;
}

/// What a row shows of a game, without a copy. Outlived by what it is made of.
class RowTexts {
public:
    explicit RowTexts(const QStringList& buildNames, bool titleLanguageKorean)
        : m_buildNames(buildNames)
        , m_korean(titleLanguageKorean)
    {}

    const QString& Of(const GameEntry& entry, int column) const
    {
        switch (column) {
        case 0: return DisplayTitle(entry, m_korean);
        case 1: return m_korean ? entry.GenreK : entry.GenreE;
        case 2: return entry.Folder;
        case 3: return BuildOf(entry);
        case 4: return entry.Maker;
        case 5: return entry.Release;
        case 6: return entry.GameLanguage;
        case 7: return entry.Country;
        default: return m_none;
        }
    }

    /// Few texts of a row differ from what it showed before, and most are the same in memory too;
    /// those are not touched.
    void Fill(GameItem& item, const GameEntry& entry) const
    {
        item.listIndex = entry.ListIndex;
        for (int column = 0; column < kColumns; ++column) {
            QString& kept = item.text[static_cast<std::size_t>(column)];
            const QString& now = Of(entry, column);
            if (kept.constData() != now.constData() || kept.size() != now.size()) {
                kept = now;
            }
        }
    }

private:
    const QString& BuildOf(const GameEntry& entry) const
    {
        const int build = entry.DosboxVersion;
        return build >= 0 && build < m_buildNames.size() ? m_buildNames[build] : m_none;
    }

    const QStringList& m_buildNames;
    bool m_korean;
    QString m_none;
};

/// Sorts positions by the texts of a column. Those with one text stay in the order in which they
/// come, also when it goes downwards.
void SortByColumn(
    std::vector<int>& positions, TitleOrder& order, const ListSource& source, ListSort sort)
{
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(source.catalogue.size()));
    const RowTexts rows(source.buildNames, source.TitleLanguageKorean);
    for (const GameEntry& entry : source.catalogue) {
        texts << rows.Of(entry, sort.column);
    }
    TextRanks& column = order.Column(sort.column);
    const std::vector<int>& ranks = column.Of(texts, order.Collator());
    const int last = column.Count() - 1;
    const auto rankOf = [&](int position) {
        const int rank = ranks[static_cast<std::size_t>(position)];
        return static_cast<std::size_t>(sort.descending ? last - rank : rank);
    };
    // By counting: there are no more ranks than games.
    std::vector<std::size_t> starts(static_cast<std::size_t>(column.Count()) + 1);
    for (const int position : positions) {
        ++starts[rankOf(position) + 1];
    }
    std::partial_sum(starts.begin(), starts.end(), starts.begin());
    std::vector<int> sorted(positions.size());
    for (const int position : positions) {
        sorted[starts[rankOf(position)]++] = position;
    }
    positions = std::move(sorted);
}

/// Lays the rows of these positions, which come by title, in the order that list.sort asks for.
void LayByTitle(GameList& list, std::vector<int> shown, TitleOrder& order, const ListSource& source)
{
    if (list.sort.column > 0 && list.sort.column < kColumns) {
        SortByColumn(shown, order, source, list.sort);
    } else if (list.sort.descending) {
        std::reverse(shown.begin(), shown.end());
    }
    const RowTexts rows(source.buildNames, source.TitleLanguageKorean);
    list.items.Lay(
        std::move(shown), source.catalogue.size(), [&](std::size_t position, GameItem& item) {
            rows.Fill(item, source.catalogue[position]);
        });
}

ListOutcome OutcomeOf(const GameList& list, const ListSource& source, const FilterIndex& index)
{
    if (!list.items.empty()) {
        return ListOutcome::Items;
    }
    if (!index) {
        return ListOutcome::NoFilterHit;
    }
    return source.catalogue.empty() ? ListOutcome::NoGames : ListOutcome::NoSearchHit;
}

} // namespace

GameItem ItemOf(const GameEntry& entry, const QStringList& buildNames, bool titleLanguageKorean)
{
    GameItem item;
    RowTexts(buildNames, titleLanguageKorean).Fill(item, entry);
    return item;
}

void BuildGameList(
    GameList& list, TitleOrder& order, const ListSource& source, const FilterIndex& index)
{
    LayByTitle(
        list, index ? ShownByTitle(order, source, *index) : std::vector<int>(), order, source);
    list.outcome = OutcomeOf(list, source, index);
    list.selected = list.items.empty() ? -1 : 0;
    list.selectedRows.assign(list.items.empty() ? 0 : 1, 0);
    list.changed.Tell(GameList::Reset | GameList::Selection);
}

void SortGameList(GameList& list, TitleOrder& order, const ListSource& source)
{
    const std::vector<int> before = list.items.Positions();
    std::vector<bool> isShown(source.catalogue.size());
    std::vector<bool> isSelected(source.catalogue.size());
    for (const int position : before) {
        isShown.at(static_cast<std::size_t>(position)) = true;
    }
    for (const int row : list.selectedRows) {
        isSelected[static_cast<std::size_t>(before[static_cast<std::size_t>(row)])] = true;
    }
    const int current = list.selected < 0 ? -1 : before[static_cast<std::size_t>(list.selected)];
    std::vector<int> shown;
    shown.reserve(before.size());
    for (const int position : order.Sorted(source.catalogue)) {
        if (isShown[static_cast<std::size_t>(position)]) {
            shown.push_back(position);
        }
    }
    LayByTitle(list, std::move(shown), order, source);
    list.selected = -1;
    list.selectedRows.clear();
    const std::vector<int>& now = list.items.Positions();
    for (int row = 0; row < static_cast<int>(now.size()); ++row) {
        const int position = now[static_cast<std::size_t>(row)];
        if (isSelected[static_cast<std::size_t>(position)]) {
            list.selectedRows.push_back(row);
        }
        list.selected = position == current ? row : list.selected;
    }
    list.changed.Tell(GameList::Reset | GameList::Selection);
}

} // namespace pelorin::finding
