#pragma once

#include "library/GameEntry.h"

#include <QCollator>
#include <QLocale>
#include <QString>

#include <optional>
#include <vector>

namespace pelorin::finding {

/// The title in use, or the folder's name for a game without one.
QString DisplayTitle(const library::GameEntry& entry, bool titleLanguageKorean);

/// The order of titles in one title language, and the titles as the search compares them. Both
/// are costly, so they are kept from one rebuild of the list to the next: only titles that differ
/// from those of the last call are worked on.
class TitleOrder {
public:
    /// `titleLanguageKorean` chooses the title; the order is that of `locale`.
    TitleOrder(const QLocale& locale, bool titleLanguageKorean);

    /// Positions in the Catalogue by title, ties by folder. Of entries with one folder only the
    /// first is in it. Valid until the next call.
    const std::vector<int>& Sorted(const library::Catalogue& catalogue);

    /// The title without blanks in upper case, empty for an empty title. Sorted must have been
    /// called with the Catalogue that the position belongs to.
    const QString& SearchText(int position);

private:
    struct Known {
        QString title; // as stored, may be empty
        QString folder;
        std::optional<QCollatorSortKey> key;
        std::optional<QString> searchText;
    };

    bool Matches(const Known& known, const library::GameEntry& entry) const;

    QCollator m_collator;
    bool m_titleLanguageKorean;
    std::vector<Known> m_known; // by position
    std::vector<int> m_sorted;
};

} // namespace pelorin::finding
