#pragma once

#include <QtGlobal>

#include <functional>

namespace pelorin::platform {

/// The clock and the event loop. Everything fires on the one thread.
class Timers {
public:
    using Id = int; // 0 is no timer

    virtual ~Timers() = default;

    virtual Id StartSingleShot(int delayMs, std::function<void()> fire) = 0;
    virtual Id StartRepeating(int intervalMs, std::function<void()> fire) = 0;
    /// Unknown ids and 0 are ignored.
    virtual void Stop(Id id) = 0;

    /// Lets pending window events run once.
    virtual void RunPendingEvents() = 0;

    /// Milliseconds of a clock that never goes back; its zero is anywhere.
    virtual qint64 NowMs() const = 0;
};

} // namespace pelorin::platform
