#pragma once

#include "support/IsolatedHome.h"
#include "support/RunProgram.h"

#include <QImage>
#include <QProcessEnvironment>
#include <QSize>
#include <QString>

#include <memory>

namespace pelorin::test {

struct XSessionOptions {
    QSize screen = {1280, 1024};
    int fontDpi = 0; // Xft.dpi, as a desktop sets it for a dense screen; 0: not set
};

/// An X server without a monitor on a free display, openbox as its window manager, and a home for
/// what runs in it. Up when the constructor is done (a failure fails the test: look at IsUp), gone
/// with the object or with the test process, and with it whatever still has a window there.
class XSession {
public:
    explicit XSession(const XSessionOptions& options = XSessionOptions());
    XSession(const XSession&) = delete;
    XSession& operator=(const XSession&) = delete;

    bool IsUp() const { return m_isUp; }
    const IsolatedHome& Home() const { return m_home; }
    /// The home's, with the display.
    QProcessEnvironment Environment() const { return m_environment; }

    /// The whole screen. Null when it can't be taken, which fails the test.
    QImage Screenshot() const;

private:
    bool StartServer(const QSize& screen);
    bool StartWindowManager();
    bool SetFontDpi(int dpi);

    IsolatedHome m_home;
    QProcessEnvironment m_environment;
    std::unique_ptr<RunProgram> m_server; // outlives its client
    std::unique_ptr<RunProgram> m_windowManager;
    bool m_isUp = false;
};

/// How many different colours a part of a picture has, all of it when no part is given. An empty
/// window has a few, a picture hundreds.
int ColourCount(const QImage& image, const QRect& part = QRect());

} // namespace pelorin::test
