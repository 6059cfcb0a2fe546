#pragma once

#include "platform/Timers.h"

#include <functional>
#include <map>

namespace pelorin::test {

/// A clock that stands still until a test turns it.
class ManualTimers : public platform::Timers {
public:
    /// What the person does when pending events run; called each time, may be empty.
    std::function<void()> onPendingEvents;

    /// Turns the clock; what falls due fires in order of time, then of start, also timers that are
    /// started meanwhile and fall due within the time. The clock shows each one's own moment.
    void Advance(qint64 ms);

    int Running() const { return static_cast<int>(m_timers.size()); }
    bool IsRunning(Id id) const { return m_timers.contains(id); }
    int PendingEventRuns() const { return m_pendingEventRuns; }

    Id StartSingleShot(int delayMs, std::function<void()> fire) override;
    Id StartRepeating(int intervalMs, std::function<void()> fire) override;
    void Stop(Id id) override { m_timers.erase(id); }
    void RunPendingEvents() override;
    qint64 NowMs() const override { return m_now; }

private:
    struct Timer {
        qint64 due = 0;
        int interval = 0; // 0: single shot
        std::function<void()> fire;
    };
    Id Start(int delayMs, int interval, std::function<void()> fire);

    std::map<Id, Timer> m_timers;
    Id m_lastId = 0;
    qint64 m_now = 1'000'000; // away from zero: a moment that was never set must not look recent
    int m_pendingEventRuns = 0;
};

} // namespace pelorin::test
