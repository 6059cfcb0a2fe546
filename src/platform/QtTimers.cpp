#include "platform/QtTimers.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace pelorin::platform {

Timers::Id QtTimers::Start(int ms, bool once, std::function<void()> fire)
{
    const Id id = ++m_lastId;
    auto* timer = new QTimer(&m_owner);
    m_timers[id] = timer;
    timer->setTimerType(Qt::PreciseTimer);
    timer->setSingleShot(once);
    QObject::connect(timer, &QTimer::timeout, timer, [this, id, once, fire = std::move(fire)] {
        // A copy: stopping the timer from the call ends the life of this closure.
        const auto call = fire;
        if (once) {
            Stop(id);
        }
        call();
    });
    timer->start(std::max(0, ms));
    return id;
}

Timers::Id QtTimers::StartSingleShot(int delayMs, std::function<void()> fire)
{
    return Start(delayMs, true, std::move(fire));
}

Timers::Id QtTimers::StartRepeating(int intervalMs, std::function<void()> fire)
{
    return Start(intervalMs, false, std::move(fire));
}

void QtTimers::Stop(Id id)
{
    const auto it = m_timers.find(id);
    if (it == m_timers.end()) {
        return;
    }
    // Not deleted at once: it may be in the middle of its own signal.
    it->second->stop();
    it->second->disconnect();
    it->second->deleteLater();
    m_timers.erase(it);
}

void QtTimers::RunPendingEvents()
{
    QCoreApplication::processEvents();
}

qint64 QtTimers::NowMs() const
{
    return m_clock.elapsed();
}

} // namespace pelorin::platform
