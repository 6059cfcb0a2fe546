#pragma once

#include "platform/Desktop.h"

#include <vector>

namespace pelorin::test {

/// A screen as a test sets it: windows from the lowest to the topmost.
class FakeDesktop : public platform::Desktop {
public:
    struct Opened {
        QString className;
        platform::WindowPlace place;
    };

    bool NumLockOn() override { return numLockOn; }
    std::optional<platform::WindowId> FindWindow(const QString& className) override
    {
        for (std::size_t i = windows.size(); i > 0; --i) {
            if (windows[i - 1].className.compare(className, Qt::CaseInsensitive) == 0) {
                return i;
            }
        }
        return std::nullopt;
    }
    std::optional<platform::WindowPlace> PlaceOf(platform::WindowId window) override
    {
        return window > 0 && window <= windows.size() ? std::optional(windows[window - 1].place)
                                                      : std::nullopt;
    }
    void Move(platform::WindowId window, QPoint outer) override
    {
        platform::WindowPlace& place = windows.at(window - 1).place;
        place.client += outer - place.outer;
        place.outer = outer;
    }
    void BringToFront(platform::WindowId window) override { brought.push_back(window); }

    bool numLockOn = false;
    std::vector<Opened> windows;
    std::vector<platform::WindowId> brought;
};

} // namespace pelorin::test
