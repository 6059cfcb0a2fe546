#include "support/ManualTimers.h"

#include <algorithm>
#include <utility>

namespace pelorin::test {

ManualTimers::Id ManualTimers::Start(int delayMs, int interval, std::function<void()> fire)
{
    const Id id = ++m_lastId;
    m_timers[id] = {m_now + std::max(0, delayMs), interval, std::move(fire)};
    return id;
}

ManualTimers::Id ManualTimers::StartSingleShot(int delayMs, std::function<void()> fire)
{
    return Start(delayMs, 0, std::move(fire));
}

ManualTimers::Id ManualTimers::StartRepeating(int intervalMs, std::function<void()> fire)
{
    // An interval of nothing would never let Advance end.
    const int interval = std::max(1, intervalMs);
    return Start(interval, interval, std::move(fire));
}

void ManualTimers::Advance(qint64 ms)
{
    const qint64 end = m_now + ms;
    for (;;) {
        const auto next =
            std::min_element(m_timers.begin(), m_timers.end(), [](const auto& a, const auto& b) {
                return a.second.due < b.second.due;
            });
        if (next == m_timers.end() || next->second.due > end) {
            break;
        }
        // The clock may stand behind the moment when Advance runs inside another one.
        m_now = std::max(m_now, next->second.due);
        // A copy: the timer may be stopped from its own call.
        const auto fire = next->second.fire;
        if (next->second.interval > 0) {
            next->second.due += next->second.interval;
        } else {
            m_timers.erase(next);
        }
        fire();
    }
    m_now = std::max(m_now, end);
}

void ManualTimers::RunPendingEvents()
{
    ++m_pendingEventRuns;
    if (onPendingEvents) {
        onPendingEvents();
    }
}

} // namespace pelorin::test
