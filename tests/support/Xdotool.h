#pragma once

#include <QByteArray>
#include <QPoint>
#include <QProcessEnvironment>
#include <QRect>
#include <QString>

#include <optional>

namespace pelorin::test {

class XSession;

/// Hands and eyes of the person before the screen. A tool that fails or hangs fails the test.
class Xdotool {
public:
    using WindowId = QByteArray; // its number, decimal

    explicit Xdotool(const XSession& session);

    /// One stroke, "ctrl+f", "Return", to the window that has the focus.
    void Key(const QString& stroke) const;
    void Type(const QString& text) const;
    /// A point of the screen; button 1 is the left one.
    void Click(const QPoint& point, int button = 1) const;
    void DoubleClick(const QPoint& point) const;

    /// A shown window whose title, or class, matches the regular expression.
    std::optional<WindowId> FindWindow(const QString& title) const;
    std::optional<WindowId> WaitForWindow(const QString& title, int timeoutMs) const;
    std::optional<WindowId> WaitForWindowOfClass(const QString& windowClass, int timeoutMs) const;
    bool WaitUntilGone(const QString& title, int timeoutMs) const;

    QString Title(const WindowId& window) const;
    /// Of the screen, without the frame.
    QRect Geometry(const WindowId& window) const;
    /// Raises it and gives it the focus; false when it has not got it in time.
    bool Activate(const WindowId& window, int timeoutMs) const;
    /// Asks the window manager, as its frame's close button does.
    void Close(const WindowId& window) const;

private:
    QByteArray Run(const QStringList& arguments) const;
    std::optional<WindowId> Search(const QString& by, const QString& pattern) const;

    QProcessEnvironment m_environment;
};

} // namespace pelorin::test
