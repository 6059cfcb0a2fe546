#pragma once

#include <QCollator>
#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

namespace pelorin::finding {

/// The order of the texts of one column. Collating is costly, so the keys are made once for each
/// distinct text and kept as long as a row has it.
class TextRanks {
public:
    /// A number for each text, in order from 0; equal texts have one number. Valid until the next call.
    const std::vector<int>& Of(const QStringList& texts, const QCollator& collator);
    /// How many numbers there are.
    int Count() const { return static_cast<int>(m_keys.size()); }

private:
    QStringList m_texts; // those of the last call
    std::vector<int> m_ranks;
    QHash<QString, QCollatorSortKey> m_keys; // of the distinct ones among them
};

} // namespace pelorin::finding
