#include "finding/BuildGameList.h"

#include <QHash>

#include <algorithm>
#include <numeric>

namespace pelorin::finding {

namespace {

/// Gives each position that is to be shown its row in the order of titles, the others -1.
std::vector<int> RowsByTitle(
    TitleOrder& order, const ListSource& source, const std::vector<int>& filterIndex, int& rowCount)
{
    const std::vector<int>& sorted = order.Sorted(source.catalogue);
    std::vector<bool> passing(source.catalogue.size());
    const QString term = SearchForm(source.txtFind);
    for (const int position : filterIndex) {
        if (term.isEmpty() || order.SearchText(position).contains(term)) {
            passing[static_cast<std::size_t>(position)] = true;
        }
    }
    std::vector<int> rows(source.catalogue.size(), -1);
    rowCount = 0;
    for (const int position : sorted) {
        if (passing[static_cast<std::size_t>(position)]) {
            rows[static_cast<std::size_t>(position)] = rowCount++;
        }
    }
    return rows;
}

/// Sorts rows by the texts of a column, each distinct text collated once. Rows with one text stay
/// in the order in which they come.
void SortByColumn(std::vector<GameItem>& items, ListSort sort, const QCollator& collator)
{
    const auto column = static_cast<std::size_t>(sort.column);
    QHash<QString, int> ranks;
    for (const GameItem& item : items) {
        ranks.insert(item.text[column], 0);
    }
    QStringList texts = ranks.keys();
    std::sort(texts.begin(), texts.end(), [&](const QString& a, const QString& b) {
        const int order = collator.compare(a, b);
        return order != 0 ? order < 0 : a < b;
    });
    for (int i = 0; i < texts.size(); ++i) {
        ranks[texts[i]] = sort.descending ? -i : i;
    }
    std::vector<std::pair<int, int>> rows; // rank and row
    rows.reserve(items.size());
    for (const GameItem& item : items) {
        rows.emplace_back(ranks.value(item.text[column]), static_cast<int>(rows.size()));
    }
    std::sort(rows.begin(), rows.end());
    std::vector<GameItem> sorted;
    sorted.reserve(items.size());
    for (const auto& [rank, row] : rows) {
        sorted.push_back(std::move(items[static_cast<std::size_t>(row)]));
    }
    items = std::move(sorted);
}

void SortItems(std::vector<GameItem>& items, ListSort sort, const QCollator& collator)
{
    if (sort.column > 0 && sort.column < kColumns) {
        SortByColumn(items, sort, collator);
    } else if (sort.descending) {
        std::reverse(items.begin(), items.end());
    }
}

} // namespace

std::vector<int> WholeIndex(const library::Catalogue& catalogue)
{
    std::vector<int> index(catalogue.size());
    std::iota(index.begin(), index.end(), 0);
    return index;
}

QString SearchForm(const QString& text)
{
    QString form = text.toUpper();
    form.remove(u' ');
    return form;
}

GameItem ItemOf(
    const library::GameEntry& entry, const QStringList& buildNames, bool titleLanguageKorean)
{
    GameItem item;
    item.folder = entry.Folder;
    item.tag = titleLanguageKorean ? entry.GenreK : entry.GenreE;
    item.listIndex = entry.ListIndex;
    item.text = {
        DisplayTitle(entry, titleLanguageKorean),
        item.tag,
        entry.Folder,
        buildNames.value(entry.DosboxVersion),
        entry.Maker,
        entry.Release,
        entry.GameLanguage,
        entry.Country};
    return item;
}

ListOutcome BuildGameList(
    GameList& list,
    TitleOrder& order,
    const ListSource& source,
    const std::vector<int>& filterIndex)
{
    int rowCount = 0;
    const std::vector<int> rows = RowsByTitle(order, source, filterIndex, rowCount);
    list.items.clear();
    list.items.resize(static_cast<std::size_t>(rowCount));
    // In the order of the Catalogue, which lies in memory like that: in the order of the rows each
    // entry would have to be fetched, and that is far slower.
    for (std::size_t position = 0; position < rows.size(); ++position) {
        if (rows[position] >= 0) {
            list.items[static_cast<std::size_t>(rows[position])] =
                ItemOf(source.catalogue[position], source.buildNames, source.TitleLanguageKorean);
        }
    }
    SortItems(list.items, list.sort, order.Collator());
    list.selected = list.items.empty() ? -1 : 0;
    list.selectedRows.assign(list.items.empty() ? 0 : 1, 0);
    list.changed.Tell(GameList::Reset | GameList::Selection);
    if (!list.items.empty()) {
        return ListOutcome::Items;
    }
    const bool filtered = filterIndex.empty() && !source.catalogue.empty();
    return filtered ? ListOutcome::NoFilterHit : ListOutcome::NoItem;
}

} // namespace pelorin::finding
