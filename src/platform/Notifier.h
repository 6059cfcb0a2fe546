#pragma once

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace pelorin::platform {

class Notifier;

/// Holds back all notifiers that share it while a RedrawLock stands.
class RedrawGate {
public:
    bool Locked() const { return m_depth > 0; }

private:
    friend class Notifier;
    friend class RedrawLock;
    int m_depth = 0;
    std::vector<Notifier*> m_touched;
};

/// Tells the one listener of a screen model which of its parts have changed. The bits are the
/// model's own. Without a listener nothing happens.
class Notifier {
public:
    using Listener = std::function<void(std::uint32_t changed)>;

    explicit Notifier(RedrawGate* gate = nullptr)
        : m_gate(gate)
    {}
    Notifier(const Notifier&) = delete;
    Notifier& operator=(const Notifier&) = delete;

    void SetGate(RedrawGate* gate) { m_gate = gate; }
    void SetListener(Listener listener) { m_listener = std::move(listener); }

    void Tell(std::uint32_t changed)
    {
        if (m_gate != nullptr && m_gate->Locked()) {
            if (m_pending == 0) {
                m_gate->m_touched.push_back(this);
            }
            m_pending |= changed;
        } else if (m_listener) {
            m_listener(changed);
        }
    }

private:
    friend class RedrawLock;
    void Flush()
    {
        const std::uint32_t changed = std::exchange(m_pending, 0);
        if (changed != 0 && m_listener) {
            m_listener(changed);
        }
    }

    RedrawGate* m_gate;
    Listener m_listener;
    std::uint32_t m_pending = 0;
};

/// While one stands the models are changed without a repaint; the outermost one tells each touched
/// model's listener once. No prompt may be shown under it.
class RedrawLock {
public:
    explicit RedrawLock(RedrawGate& gate)
        : m_gate(gate)
    {
        ++m_gate.m_depth;
    }
    ~RedrawLock() { Release(); }
    RedrawLock(const RedrawLock&) = delete;
    RedrawLock& operator=(const RedrawLock&) = delete;

    /// Before the end of the scope, once.
    void Release()
    {
        if (!m_held) {
            return;
        }
        m_held = false;
        if (--m_gate.m_depth > 0) {
            return;
        }
        for (Notifier* touched : std::exchange(m_gate.m_touched, {})) {
            touched->Flush();
        }
    }

private:
    RedrawGate& m_gate;
    bool m_held = true;
};

} // namespace pelorin::platform
