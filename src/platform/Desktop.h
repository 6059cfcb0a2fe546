#pragma once

namespace pelorin::platform {

/// What the program asks of the screen beyond its own windows.
class Desktop {
public:
    virtual ~Desktop() = default;

    /// Whether the keyboard's NumLock is on. False where nobody can tell.
    virtual bool NumLockOn() = 0;
};

} // namespace pelorin::platform
