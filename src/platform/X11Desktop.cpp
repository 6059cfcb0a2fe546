#include "platform/X11Desktop.h"

#include <X11/XKBlib.h>
#include <X11/Xlib.h>

namespace pelorin::platform {

struct X11Desktop::Connection {
    Display* display = XOpenDisplay(nullptr);

    Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection()
    {
        if (display != nullptr) {
            XCloseDisplay(display);
        }
    }
};

X11Desktop::X11Desktop()
    : m_connection(std::make_unique<Connection>())
{}

X11Desktop::~X11Desktop() = default;

bool X11Desktop::NumLockOn()
{
    Display* const display = m_connection->display;
    if (display == nullptr) {
        return false;
    }
    const Atom name = XInternAtom(display, "Num Lock", True);
    Bool on = False;
    return name != None &&
           XkbGetNamedIndicator(display, name, nullptr, &on, nullptr, nullptr) != False &&
           on != False;
}

} // namespace pelorin::platform
