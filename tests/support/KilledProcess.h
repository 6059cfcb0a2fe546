#pragma once

#include <functional>

namespace pelorin::test {

/// Runs `work` in a process of its own that shares no memory with this one, and kills it, as if the
/// power went, at the system call number `call` (from 0) that changes a file or its name: before
/// it is done. True when it was killed there; false when `work` came to its end before.
bool KillAtFileCall(int call, const std::function<void()>& work);

} // namespace pelorin::test
