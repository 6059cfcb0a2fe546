#pragma once

#include <functional>

namespace pelorin::archives {

/// Called between the files and blocks of a long copy, so that the caller can let window events run.
/// False gives up: the error is Abandoned and the source is whole.
using KeepGoing = std::function<bool()>;

} // namespace pelorin::archives
