#pragma once

#include "finding/GameList.h"
#include "finding/TextRanks.h"
#include "library/GameEntry.h"

#include <QCollator>
#include <QHash>
#include <QLocale>
#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace pelorin::finding {

/// A text as the search compares it: without blanks, in upper case.
QString SearchForm(const QString& text);

/// The order of titles in one title language, and the titles as the search compares them. Both
/// are costly, so they are kept from one rebuild of the list to the next: only titles that differ
/// from those of the last call are worked on.
class TitleOrder {
public:
    /// `titleLanguageKorean` chooses the title; the order is that of `locale`.
    TitleOrder(const QLocale& locale, bool titleLanguageKorean);

    /// Positions in the Catalogue by title, ties by folder. Of entries with one folder only the
    /// first is in it. Valid until the next call.
    const std::vector<int>& Sorted(library::GamesView catalogue);

    /// The title without blanks in upper case, empty for an empty title. Sorted must have been
    /// called with the Catalogue that the position belongs to.
    const QString& SearchText(int position);

    /// Compares texts the way the titles are.
    const QCollator& Collator() const { return m_collator; }
    /// What is kept of the order by another column, 0 to kColumns - 1.
    TextRanks& Column(int column) { return m_columns[static_cast<std::size_t>(column)]; }
    bool IsOfKoreanTitles() const { return m_titleLanguageKorean; }

private:
    struct Known {
        QString title; // as stored, may be empty
        QString folder;
        QCollatorSortKey key; // of the title that is shown
        std::optional<QString> searchText;
    };

    bool Matches(const Known& known, const library::GameEntry& entry) const;
    bool Before(int a, int b) const;
    void Replace(int head, int oldEnd, int newEnd, library::GamesView catalogue);
    void CountFolder(const QString& folder, int change);
    void DropTwins();

    QCollator m_collator;
    bool m_titleLanguageKorean;
    std::vector<Known> m_known;    // by position
    std::vector<int> m_everything; // all positions, sorted
    QHash<QString, int> m_folders; // how often each stands in m_known
    int m_twins = 0;               // folders that stand more than once
    std::vector<int> m_sorted;     // without those whose folder stands before
    std::array<TextRanks, kColumns> m_columns;
};

} // namespace pelorin::finding
