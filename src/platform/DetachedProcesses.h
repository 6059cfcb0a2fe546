#pragma once

#include "platform/Processes.h"

#include <QObject>

#include <functional>
#include <memory>

namespace pelorin::platform {

/// The real Processes. A program runs in a session of its own, with nothing on its standard input
/// and none of our descriptors; what it prints goes to an unnamed temporary file. Needs a running
/// event loop to notice ends; ended programs are reaped then. When this object goes, programs go
/// on and no `ended` is called any more.
class DetachedProcesses : public Processes {
public:
    /// `isEnding` tells whether our own program has begun to end; asked in each round of a wait's
    /// events. Without it no wait is abandoned but by QCoreApplication::quit.
    explicit DetachedProcesses(std::function<bool()> isEnding = nullptr);
    ~DetachedProcesses() override;

    Done StartDetached(
        const ProcessRequest& request, std::function<void(const ProcessEnd&)> ended) override;
    Outcome<ProcessEnd> RunAndWait(const ProcessRequest& request) override;

private:
    bool IsEnding() const { return m_isEnding && m_isEnding(); }

    std::function<bool()> m_isEnding;
    std::unique_ptr<QObject> m_watches; // parent of what watches the running programs
};

} // namespace pelorin::platform
