#pragma once

#include "support/XSession.h"

#include <QMap>
#include <QRect>

#include <optional>

namespace pelorin::test {

/// Hands and eyes of the person before the screen. A tool that fails or hangs fails the test.
class Xdotool {
public:
    using WindowId = QByteArray; // its number, decimal

    explicit Xdotool(const XSession& session)
        : m_environment(session.Environment())
    {}

    /// One stroke, "ctrl+f", "Return", to the window that has the focus.
    void Key(const QString& stroke) const { Run(QStringLiteral("key --clearmodifiers"), {stroke}); }
    void Type(const QString& text) const
    {
        // Characters that the keyboard lacks are laid on a spare key first, which clients must
        // notice.
        Run(QStringLiteral("type --delay 30 --"), {text});
    }

    /// The left button at a place of the screen, so many times.
    void Click(QPoint place, int times = 1) const
    {
        Run(QStringLiteral("mousemove"), {QString::number(place.x()), QString::number(place.y())});
        Run(QStringLiteral("click --delay 80 --repeat %1 1").arg(times), {});
    }

    /// The left button, held from one place of the screen to another.
    void Drag(QPoint from, QPoint to) const
    {
        const auto move = [this](QPoint place) {
            const QStringList at{QString::number(place.x()), QString::number(place.y())};
            Run(QStringLiteral("mousemove --sync"), at);
        };
        move(from);
        Run(QStringLiteral("mousedown 1"), {});
        move((from + to) / 2);
        move(to);
        Run(QStringLiteral("mouseup 1"), {});
    }

    /// A shown window whose title matches the regular expression.
    std::optional<WindowId> FindWindow(const QString& title) const
    {
        // It ends with 1 when there is none, or when a window goes while it looks.
        const QStringList search = Words(QStringLiteral("search --onlyvisible --name"));
        const auto done = RunTool(m_tool, QStringList(search) << title, m_environment);
        const QByteArray first = done.output.split('\n').constFirst().trimmed();
        return first.isEmpty() ? std::nullopt : std::optional(first);
    }
    std::optional<WindowId> WaitForWindow(const QString& title, int timeoutMs) const
    {
        std::optional<WindowId> window;
        std::ignore =
            QTest::qWaitFor([&] { return (window = FindWindow(title)).has_value(); }, timeoutMs);
        return window;
    }
    bool WaitUntilGone(const QString& title, int timeoutMs) const
    {
        return QTest::qWaitFor([&] { return !FindWindow(title); }, timeoutMs);
    }

    QString Title(const WindowId& window) const
    {
        const QByteArray title =
            Run(QStringLiteral("getwindowname"), {QString::fromLatin1(window)});
        return QString::fromUtf8(title);
    }
    /// Of the screen, without the frame.
    QRect Geometry(const WindowId& window) const
    {
        // Lines "X=10", "Y=20", "WIDTH=640", "HEIGHT=480" among others.
        QMap<QByteArray, int> values;
        const QByteArray text =
            Run(QStringLiteral("getwindowgeometry --shell"), {QString::fromLatin1(window)});
        for (const QByteArray& line : text.split('\n')) {
            const qsizetype equals = line.indexOf('=');
            values[line.left(equals)] = line.mid(equals + 1).toInt();
        }
        return {values["X"], values["Y"], values["WIDTH"], values["HEIGHT"]};
    }
    /// The top left corner of what a window paints. xdotool itself counts frames twice at times.
    QPoint Corner(const WindowId& window) const
    {
        const QStringList ask{QStringLiteral("-id"), QString::fromLatin1(window)};
        const QByteArray text = RunTool(QStringLiteral("xwininfo"), ask, m_environment).output;
        const auto behind = [&](const QByteArray& heading) {
            const qsizetype at = text.indexOf(heading);
            const QByteArray rest = at < 0 ? QByteArray() : text.mid(at + heading.size());
            return rest.left(rest.indexOf('\n')).trimmed().toInt();
        };
        return {behind("Absolute upper-left X:"), behind("Absolute upper-left Y:")};
    }
    void Resize(const WindowId& window, QSize size) const
    {
        Run(QStringLiteral("windowsize"),
            {QString::fromLatin1(window),
             QString::number(size.width()),
             QString::number(size.height())});
    }
    /// Raises it and gives it the focus; false when it has not got it in time.
    bool Activate(const WindowId& window, int timeoutMs) const
    {
        Run(QStringLiteral("windowactivate"), {QString::fromLatin1(window)});
        // It fails while nothing at all has the focus.
        const QStringList ask{QStringLiteral("getactivewindow")};
        return QTest::qWaitFor(
            [&] { return RunTool(m_tool, ask, m_environment).output.trimmed() == window; },
            timeoutMs);
    }
    /// Asks the window manager, as its frame's close button does.
    void Close(const WindowId& window) const
    {
        // xdotool's "windowclose" would destroy the window under the program's feet, and openbox
        // misses an Alt+F4 that comes as the first key of a session.
        const QString number = QStringLiteral("0x") + QString::number(window.toULongLong(), 16);
        const QStringList close = Words(QStringLiteral("-i -c ") + number);
        const auto done = RunTool(QStringLiteral("wmctrl"), close, m_environment);
        EXPECT_EQ(done.exitCode, 0) << "wmctrl: " << done.errors.toStdString();
    }

private:
    QByteArray Run(const QString& command, const QStringList& more) const
    {
        const auto done = RunTool(m_tool, Words(command) + more, m_environment);
        EXPECT_EQ(done.exitCode, 0) << command << more.join(u' ') << done.errors.toStdString();
        return done.output.trimmed();
    }

    const QString m_tool = QStringLiteral("xdotool");
    QProcessEnvironment m_environment;
};

} // namespace pelorin::test
