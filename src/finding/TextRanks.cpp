#include "finding/TextRanks.h"

#include <algorithm>

namespace pelorin::finding {

const std::vector<int>& TextRanks::Of(const QStringList& texts, const QCollator& collator)
{
    if (texts == m_texts) {
        return m_ranks;
    }
    m_texts = texts;
    QHash<QString, QCollatorSortKey> keys;
    std::vector<QString> distinct;
    for (const QString& text : texts) {
        if (keys.contains(text)) {
            continue;
        }
        const auto known = m_keys.constFind(text);
        keys.insert(text, known != m_keys.cend() ? *known : collator.sortKey(text));
        distinct.push_back(text);
    }
    m_keys = std::move(keys);
    std::vector<std::pair<QCollatorSortKey, QString>> order;
    order.reserve(distinct.size());
    for (const QString& text : distinct) {
        order.emplace_back(*m_keys.constFind(text), text);
    }
    std::sort(order.begin(), order.end(), [](const auto& a, const auto& b) {
        const int byKey = a.first.compare(b.first);
        return byKey != 0 ? byKey < 0 : a.second < b.second;
    });
    QHash<QString, int> ranks;
    ranks.reserve(static_cast<qsizetype>(order.size()));
    for (const auto& [key, text] : order) {
        ranks.insert(text, static_cast<int>(ranks.size()));
    }
    m_ranks.clear();
    m_ranks.reserve(static_cast<std::size_t>(texts.size()));
    for (const QString& text : texts) {
        m_ranks.push_back(*ranks.constFind(text));
    }
    return m_ranks;
}

} // namespace pelorin::finding
