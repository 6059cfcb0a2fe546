#include "platform/X11Desktop.h"

#include <QList>

#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <algorithm>
#include <array>

namespace pelorin::platform {

namespace {

/// Windows go while we ask about them; Xlib would end the program for that.
class ErrorTrap {
public:
    explicit ErrorTrap(Display* display)
        : m_display(display)
        , m_former(XSetErrorHandler([](Display*, XErrorEvent*) { return 0; }))
    {}
    ~ErrorTrap()
    {
        XSync(m_display, False);
        XSetErrorHandler(m_former);
    }
    ErrorTrap(const ErrorTrap&) = delete;
    ErrorTrap& operator=(const ErrorTrap&) = delete;

private:
    Display* m_display;
    XErrorHandler m_former;
};

constexpr long kFromPager = 2; // as if the user had asked for it
constexpr long kNorthWest = 1;

} // namespace

class X11Desktop::Connection {
public:
    explicit Connection(Display* display)
        : m_display(display)
        , m_root(DefaultRootWindow(display))
    {}
    ~Connection() { XCloseDisplay(m_display); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    Display* Server() const { return m_display; }
    Window Root() const { return m_root; }
    Atom AtomOf(const char* name) const { return XInternAtom(m_display, name, False); }

    /// The numbers of a property of 32 bits an item; none where it is missing.
    QList<long> Numbers(Window window, const char* property, Atom type) const
    {
        Atom found = None;
        int format = 0;
        unsigned long count = 0;
        unsigned long left = 0;
        unsigned char* data = nullptr;
        constexpr long kMost = 4096;
        const int failed = XGetWindowProperty(
            m_display,
            window,
            AtomOf(property),
            0,
            kMost,
            False,
            type,
            &found,
            &format,
            &count,
            &left,
            &data);
        QList<long> numbers;
        if (failed == Success && data != nullptr && format == 32) {
            const auto* const items = reinterpret_cast<const long*>(data);
            numbers = QList<long>(items, items + count);
        }
        if (data != nullptr) {
            XFree(data);
        }
        return numbers;
    }

    /// Asks the window manager for something about a window.
    void Ask(Window window, const char* message, const std::array<long, 5>& values) const
    {
        XEvent event{};
        event.xclient.type = ClientMessage;
        event.xclient.window = window;
        event.xclient.message_type = AtomOf(message);
        event.xclient.format = 32;
        for (std::size_t i = 0; i < values.size(); ++i) {
            event.xclient.data.l[i] = values[i];
        }
        constexpr long kMask = SubstructureRedirectMask | SubstructureNotifyMask;
        XSendEvent(m_display, m_root, False, kMask, &event);
    }

    bool IsOfClass(Window window, const QString& name) const
    {
        XClassHint hint{};
        if (XGetClassHint(m_display, window, &hint) == 0) {
            return false;
        }
        const bool is =
            name.compare(QString::fromLocal8Bit(hint.res_class), Qt::CaseInsensitive) == 0 ||
            name.compare(QString::fromLocal8Bit(hint.res_name), Qt::CaseInsensitive) == 0;
        XFree(hint.res_class);
        XFree(hint.res_name);
        return is;
    }

private:
    Display* m_display;
    Window m_root;
};

X11Desktop::X11Desktop()
{
    if (Display* const display = XOpenDisplay(nullptr)) {
        m_connection = std::make_unique<Connection>(display);
    }
}

X11Desktop::~X11Desktop() = default;

bool X11Desktop::NumLockOn()
{
    if (!m_connection) {
        return false;
    }
    Display* const display = m_connection->Server();
    const ErrorTrap trap(display);
    Bool on = False;
    return XkbGetNamedIndicator(
               display, m_connection->AtomOf("Num Lock"), nullptr, &on, nullptr, nullptr) !=
               False &&
           on != False;
}

std::optional<WindowId> X11Desktop::FindWindow(const QString& className)
{
    if (!m_connection) {
        return std::nullopt;
    }
    const ErrorTrap trap(m_connection->Server());
    QList<long> windows =
        m_connection->Numbers(m_connection->Root(), "_NET_CLIENT_LIST_STACKING", XA_WINDOW);
    std::reverse(windows.begin(), windows.end()); // the topmost stands last there
    for (const long window : windows) {
        const auto id = static_cast<WindowId>(window);
        if (m_connection->IsOfClass(id, className)) {
            return id;
        }
    }
    return std::nullopt;
}

std::optional<WindowPlace> X11Desktop::PlaceOf(WindowId window)
{
    if (!m_connection) {
        return std::nullopt;
    }
    const ErrorTrap trap(m_connection->Server());
    int x = 0;
    int y = 0;
    Window child = None;
    if (XTranslateCoordinates(
            m_connection->Server(), window, m_connection->Root(), 0, 0, &x, &y, &child) == False) {
        return std::nullopt;
    }
    // Left, right, top, bottom.
    const QList<long> frame = m_connection->Numbers(window, "_NET_FRAME_EXTENTS", XA_CARDINAL);
    const QPoint client(x, y);
    const QPoint corner(static_cast<int>(frame.value(0)), static_cast<int>(frame.value(2)));
    return WindowPlace{client - corner, client};
}

void X11Desktop::Move(WindowId window, QPoint outer)
{
    if (m_connection) {
        const ErrorTrap trap(m_connection->Server());
        constexpr long kX = 1 << 8;
        constexpr long kY = 1 << 9;
        const long flags = kNorthWest | kX | kY | (kFromPager << 12);
        m_connection->Ask(window, "_NET_MOVERESIZE_WINDOW", {flags, outer.x(), outer.y(), 0, 0});
    }
}

void X11Desktop::BringToFront(WindowId window)
{
    if (m_connection) {
        const ErrorTrap trap(m_connection->Server());
        m_connection->Ask(window, "_NET_ACTIVE_WINDOW", {kFromPager, CurrentTime, 0, 0, 0});
    }
}

} // namespace pelorin::platform
