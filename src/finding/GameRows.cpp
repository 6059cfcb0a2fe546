#include "finding/GameRows.h"

namespace pelorin::finding {

void GameRows::push_back(const GameItem& item)
{
    m_order.push_back(static_cast<int>(m_kept.size()));
    m_kept.push_back(item);
}

void GameRows::clear()
{
    m_kept.clear();
    m_order.clear();
}

} // namespace pelorin::finding
