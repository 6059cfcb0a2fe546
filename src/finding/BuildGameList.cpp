#include "finding/BuildGameList.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace pelorin::finding {

namespace {

using library::GameEntry;

constexpr std::size_t kGenreColumn = 1;

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

QString ColumnText(
    const GameEntry& entry, const QStringList& buildNames, bool titleLanguageKorean, int column)
{
    switch (column) {
    case 0: return DisplayTitle(entry, titleLanguageKorean);
    case 1: return titleLanguageKorean ? entry.GenreK : entry.GenreE;
    case 2: return entry.Folder;
    case 3: return buildNames.value(entry.DosboxVersion);
    case 4: return entry.Maker;
    case 5: return entry.Release;
    case 6: return entry.GameLanguage;
    case 7: return entry.Country;
    default: return {};
    }
}

/// Sorts positions by the texts of a column. Those with one text stay in the order in which they
/// come, also when it goes downwards.
void SortByColumn(
    std::vector<int>& positions, TitleOrder& order, const ListSource& source, ListSort sort)
{
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(source.catalogue.size()));
    for (const GameEntry& entry : source.catalogue) {
        texts << ColumnText(entry, source.buildNames, source.TitleLanguageKorean, sort.column);
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

void FillItems(GameList& list, const ListSource& source, const std::vector<int>& positions)
{
    std::vector<int> rows(source.catalogue.size(), -1);
    int row = 0;
    for (const int position : positions) {
        rows[static_cast<std::size_t>(position)] = row++;
    }
    list.items.resize(positions.size());
    // In the order of the Catalogue, which lies in memory like that: in the order of the rows each
    // entry would have to be fetched, and that is far slower.
    for (std::size_t position = 0; position < rows.size(); ++position) {
        if (rows[position] >= 0) {
            list.items[static_cast<std::size_t>(rows[position])] =
                ItemOf(source.catalogue[position], source.buildNames, source.TitleLanguageKorean);
        }
    }
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

QString SearchForm(const QString& text)
{
    QString form = text.toUpper();
    form.remove(u' ');
    return form;
}

GameItem ItemOf(const GameEntry& entry, const QStringList& buildNames, bool titleLanguageKorean)
{
    GameItem item;
    item.folder = entry.Folder;
    item.listIndex = entry.ListIndex;
    for (int column = 0; column < kColumns; ++column) {
        item.text[static_cast<std::size_t>(column)] =
            ColumnText(entry, buildNames, titleLanguageKorean, column);
    }
    item.tag = item.text[kGenreColumn];
    return item;
}

void BuildGameList(
    GameList& list, TitleOrder& order, const ListSource& source, const FilterIndex& index)
{
    std::vector<int> shown;
    if (index) {
        shown = ShownByTitle(order, source, *index);
    }
    if (list.sort.column > 0 && list.sort.column < kColumns) {
        SortByColumn(shown, order, source, list.sort);
    } else if (list.sort.descending) {
        std::reverse(shown.begin(), shown.end());
    }
    FillItems(list, source, shown);
    list.outcome = OutcomeOf(list, source, index);
    list.selected = list.items.empty() ? -1 : 0;
    list.selectedRows.assign(list.items.empty() ? 0 : 1, 0);
    list.changed.Tell(GameList::Reset | GameList::Selection);
}

} // namespace pelorin::finding
