#include <QCoreApplication>

#include <gtest/gtest.h>

// The tests drive programs from outside, so they need no window of their own. They also must not
// find the developer's display, where an outside program would show itself.
int main(int argc, char** argv)
{
    for (const char* name :
         {"DISPLAY", "WAYLAND_DISPLAY", "XAUTHORITY", "DBUS_SESSION_BUS_ADDRESS"}) {
        qunsetenv(name);
    }
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
