#pragma once

#include "platform/Desktop.h"

namespace pelorin::test {

/// A screen as a test sets it.
class FakeDesktop : public platform::Desktop {
public:
    bool NumLockOn() override { return numLockOn; }

    bool numLockOn = false;
};

} // namespace pelorin::test
