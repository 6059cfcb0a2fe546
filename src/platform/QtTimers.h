#pragma once

#include "platform/Timers.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <map>

namespace pelorin::platform {

/// The real Timers, over the thread's event loop. Accurate to the millisecond as far as the
/// system is.
class QtTimers : public Timers {
public:
    QtTimers() { m_clock.start(); }

    Id StartSingleShot(int delayMs, std::function<void()> fire) override;
    Id StartRepeating(int intervalMs, std::function<void()> fire) override;
    void Stop(Id id) override;
    void RunPendingEvents() override;
    qint64 NowMs() const override;

private:
    Id Start(int ms, bool once, std::function<void()> fire);

    QObject m_owner; // of the timers, stopped ones that wait for their deletion too
    std::map<Id, QTimer*> m_timers;
    Id m_lastId = 0;
    QElapsedTimer m_clock;
};

} // namespace pelorin::platform
