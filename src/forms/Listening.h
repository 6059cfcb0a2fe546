#pragma once

#include "platform/Notifier.h"

#include <utility>

namespace pelorin::forms {

/// Listens to a screen model as long as it stands. A widget that listens holds one, so that no
/// model tells a widget that is gone.
class Listening {
public:
    Listening(platform::Notifier& notifier, platform::Notifier::Listener listener)
        : m_notifier(notifier)
    {
        m_notifier.SetListener(std::move(listener));
    }
    ~Listening() { m_notifier.SetListener(nullptr); }
    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;

private:
    platform::Notifier& m_notifier;
};

} // namespace pelorin::forms
