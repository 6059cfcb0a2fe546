#include "finding/TitleOrder.h"

#include "finding/ListSource.h"

#include <QSet>

#include <algorithm>
#include <numeric>

namespace pelorin::finding {

QString SearchForm(const QString& text)
{
    QString form = text.toUpper();
    form.remove(u' ');
    return form;
}

TitleOrder::TitleOrder(const QLocale& locale, bool titleLanguageKorean)
    : m_collator(locale)
    , m_titleLanguageKorean(titleLanguageKorean)
{}

const std::vector<int>& TitleOrder::Sorted(library::GamesView catalogue)
{
    const int oldCount = static_cast<int>(m_known.size());
    const int newCount = static_cast<int>(catalogue.size());
    const int both = std::min(oldCount, newCount);
    const auto same = [&](int oldPosition, int newPosition) {
        return Matches(
            m_known[static_cast<std::size_t>(oldPosition)],
            catalogue[static_cast<std::size_t>(newPosition)]);
    };
    int head = 0;
    while (head < both && same(head, head)) {
        ++head;
    }
    if (head == oldCount && head == newCount) {
        return m_sorted;
    }
    int tail = 0;
    while (tail < both - head && same(oldCount - 1 - tail, newCount - 1 - tail)) {
        ++tail;
    }
    Replace(head, oldCount - tail, newCount - tail, catalogue);
    DropTwins();
    return m_sorted;
}

const QString& TitleOrder::SearchText(int position)
{
    Known& known = m_known[static_cast<std::size_t>(position)];
    if (!known.searchText) {
        known.searchText = SearchForm(known.title);
    }
    return *known.searchText;
}

bool TitleOrder::Matches(const Known& known, const library::GameEntry& entry) const
{
    return known.title == TitleOf(entry, m_titleLanguageKorean) && known.folder == entry.Folder;
}

bool TitleOrder::Before(int a, int b) const
{
    const Known& left = m_known[static_cast<std::size_t>(a)];
    const Known& right = m_known[static_cast<std::size_t>(b)];
    if (const int byTitle = left.key.compare(right.key); byTitle != 0) {
        return byTitle < 0;
    }
    return left.folder != right.folder ? left.folder < right.folder : a < b;
}

/// The known positions head to oldEnd give way to the positions head to newEnd of `catalogue`; what
/// stands before and behind them is the same in both.
void TitleOrder::Replace(int head, int oldEnd, int newEnd, library::GamesView catalogue)
{
    QHash<QString, QCollatorSortKey> keys;
    for (auto old = m_known.begin() + head; old != m_known.begin() + oldEnd; ++old) {
        keys.insert(old->title, old->key);
        CountFolder(old->folder, -1);
    }
    std::vector<Known> fresh;
    fresh.reserve(static_cast<std::size_t>(newEnd - head));
    for (auto entry = catalogue.begin() + head; entry != catalogue.begin() + newEnd; ++entry) {
        const QString& title = TitleOf(*entry, m_titleLanguageKorean);
        // Without a title the key is that of the folder's name.
        const auto key = title.isEmpty() ? keys.cend() : keys.constFind(title);
        fresh.push_back(Known{
            title,
            entry->Folder,
            key != keys.cend() ? *key
                               : m_collator.sortKey(DisplayTitle(*entry, m_titleLanguageKorean)),
            std::nullopt});
        CountFolder(entry->Folder, 1);
    }
    m_known.erase(m_known.begin() + head, m_known.begin() + oldEnd);
    m_known.insert(
        m_known.begin() + head,
        std::make_move_iterator(fresh.begin()),
        std::make_move_iterator(fresh.end()));

    std::vector<int> kept;
    kept.reserve(m_known.size());
    for (const int position : m_everything) {
        if (position < head) {
            kept.push_back(position);
        } else if (position >= oldEnd) {
            kept.push_back(position + newEnd - oldEnd);
        }
    }
    std::vector<int> added(static_cast<std::size_t>(newEnd - head));
    std::iota(added.begin(), added.end(), head);
    const auto before = [this](int a, int b) { return Before(a, b); };
    std::sort(added.begin(), added.end(), before);
    m_everything.clear();
    std::merge(
        kept.begin(),
        kept.end(),
        added.begin(),
        added.end(),
        std::back_inserter(m_everything),
        before);
}

void TitleOrder::CountFolder(const QString& folder, int change)
{
    int& count = m_folders[folder];
    m_twins -= count > 1 ? 1 : 0;
    count += change;
    m_twins += count > 1 ? 1 : 0;
    if (count == 0) {
        m_folders.remove(folder);
    }
}

void TitleOrder::DropTwins()
{
    if (m_twins == 0) {
        m_sorted = m_everything;
        return;
    }
    QSet<QString> folders;
    folders.reserve(static_cast<qsizetype>(m_known.size()));
    std::vector<bool> twin(m_known.size());
    for (std::size_t i = 0; i < m_known.size(); ++i) {
        const qsizetype before = folders.size();
        folders.insert(m_known[i].folder);
        twin[i] = folders.size() == before;
    }
    m_sorted.clear();
    std::copy_if(
        m_everything.begin(), m_everything.end(), std::back_inserter(m_sorted), [&](int position) {
            return !twin[static_cast<std::size_t>(position)];
        });
}

} // namespace pelorin::finding
