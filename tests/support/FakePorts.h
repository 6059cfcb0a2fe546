#pragma once

#include "platform/Ports.h"
#include "support/FakeBin.h"
#include "support/FakeDesktop.h"
#include "support/FakeProcesses.h"
#include "support/FakeShellVerbs.h"
#include "support/ManualTimers.h"
#include "support/ScriptedPrompts.h"

namespace pelorin::test {

/// A fake of each port, and the ports that show them.
struct FakePorts {
    FakeProcesses processes;
    FakeShellVerbs shell;
    FakeBin bin;
    ScriptedPrompts prompts;
    ManualTimers timers;
    FakeDesktop desktop;
    platform::Ports ports{processes, shell, bin, prompts, timers, desktop};

    FakePorts() = default;
    FakePorts(const FakePorts&) = delete; // `ports` points into this one
    FakePorts& operator=(const FakePorts&) = delete;
};

} // namespace pelorin::test
