#pragma once

#include "platform/Timers.h"

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

namespace pelorin::test {

/// A clock that stands still until a test turns it.
class ManualTimers : public platform::Timers {
public:
    /// What the person does when pending events run; called each time, may be empty.
    std::function<void()> onPendingEvents;

    /// Turns the clock; what falls due fires in order of time, then of start, also timers that are
    /// started meanwhile and fall due within the time. The clock shows each one's own moment.
    void Advance(qint64 ms)
    {
        const qint64 end = m_now + ms;
        const auto sooner = [](const auto& a, const auto& b) {
            return a.second.due < b.second.due;
        };
        for (;;) {
            const auto next = std::min_element(m_timers.begin(), m_timers.end(), sooner);
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

    int Running() const { return static_cast<int>(m_timers.size()); }

    Id StartSingleShot(int delayMs, std::function<void()> fire) override
    {
        m_timers[++m_lastId] = {m_now + std::max(0, delayMs), 0, std::move(fire)};
        return m_lastId;
    }
    Id StartRepeating(int intervalMs, std::function<void()> fire) override
    {
        // An interval of nothing would never let Advance end.
        const int interval = std::max(1, intervalMs);
        m_timers[++m_lastId] = {m_now + interval, interval, std::move(fire)};
        return m_lastId;
    }
    void Stop(Id id) override { m_timers.erase(id); }
    void RunPendingEvents() override
    {
        if (onPendingEvents) {
            onPendingEvents();
        }
    }
    qint64 NowMs() const override { return m_now; }

private:
    struct Timer {
        qint64 due = 0;
        int interval = 0; // 0: single shot
        std::function<void()> fire;
    };

    std::map<Id, Timer> m_timers;
    Id m_lastId = 0;
    qint64 m_now = 1'000'000; // away from zero: a moment that was never set must not look recent
};

} // namespace pelorin::test
