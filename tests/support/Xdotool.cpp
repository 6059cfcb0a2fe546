#include "support/Xdotool.h"

#include "support/RunProgram.h"
#include "support/XSession.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace pelorin::test {

Xdotool::Xdotool(const XSession& session)
    : m_environment(session.Environment())
{}

QByteArray Xdotool::Run(const QStringList& arguments) const
{
    const auto done = RunTool(u"xdotool"_s, arguments, m_environment);
    EXPECT_EQ(done.exitCode, 0) << "xdotool " << arguments.join(u' ').toStdString() << ": "
                                << done.errors.toStdString();
    return done.output.trimmed();
}

void Xdotool::Key(const QString& stroke) const
{
    Run({u"key"_s, u"--clearmodifiers"_s, stroke});
}

void Xdotool::Type(const QString& text) const
{
    // Characters that the keyboard lacks are laid on a spare key first, which clients must notice.
    Run({u"type"_s, u"--delay"_s, u"30"_s, u"--"_s, text});
}

void Xdotool::Click(const QPoint& point, int button) const
{
    Run(
        {u"mousemove"_s,
         QString::number(point.x()),
         QString::number(point.y()),
         u"click"_s,
         QString::number(button)});
}

void Xdotool::DoubleClick(const QPoint& point) const
{
    Run(
        {u"mousemove"_s,
         QString::number(point.x()),
         QString::number(point.y()),
         u"click"_s,
         u"--repeat"_s,
         u"2"_s,
         u"--delay"_s,
         u"60"_s,
         u"1"_s});
}

std::optional<Xdotool::WindowId> Xdotool::Search(const QString& by, const QString& pattern) const
{
    // It ends with 1 when there is none, or when a window goes while it looks.
    const auto done =
        RunTool(u"xdotool"_s, {u"search"_s, u"--onlyvisible"_s, by, pattern}, m_environment);
    const QByteArray first = done.output.split('\n').constFirst().trimmed();
    return first.isEmpty() ? std::nullopt : std::optional(first);
}

std::optional<Xdotool::WindowId> Xdotool::FindWindow(const QString& title) const
{
    return Search(u"--name"_s, title);
}

std::optional<Xdotool::WindowId> Xdotool::WaitForWindow(const QString& title, int timeoutMs) const
{
    std::optional<WindowId> window;
    std::ignore = QTest::qWaitFor(
        [&] { return (window = Search(u"--name"_s, title)).has_value(); }, timeoutMs);
    return window;
}

std::optional<Xdotool::WindowId> Xdotool::WaitForWindowOfClass(
    const QString& windowClass, int timeoutMs) const
{
    std::optional<WindowId> window;
    std::ignore = QTest::qWaitFor(
        [&] { return (window = Search(u"--class"_s, windowClass)).has_value(); }, timeoutMs);
    return window;
}

bool Xdotool::WaitUntilGone(const QString& title, int timeoutMs) const
{
    return QTest::qWaitFor([&] { return !FindWindow(title); }, timeoutMs);
}

QString Xdotool::Title(const WindowId& window) const
{
    return QString::fromUtf8(Run({u"getwindowname"_s, QString::fromLatin1(window)}));
}

QRect Xdotool::Geometry(const WindowId& window) const
{
    // Lines "X=10", "Y=20", "WIDTH=640", "HEIGHT=480" among others.
    QMap<QByteArray, int> values;
    const QByteArray text =
        Run({u"getwindowgeometry"_s, u"--shell"_s, QString::fromLatin1(window)});
    for (const QByteArray& line : text.split('\n')) {
        const qsizetype equals = line.indexOf('=');
        values[line.left(equals)] = line.mid(equals + 1).toInt();
    }
    return {values["X"], values["Y"], values["WIDTH"], values["HEIGHT"]};
}

bool Xdotool::Activate(const WindowId& window, int timeoutMs) const
{
    Run({u"windowactivate"_s, QString::fromLatin1(window)});
    return QTest::qWaitFor(
        [&] {
            // It fails while nothing at all has the focus.
            return RunTool(u"xdotool"_s, {u"getactivewindow"_s}, m_environment).output.trimmed() ==
                   window;
        },
        timeoutMs);
}

void Xdotool::Close(const WindowId& window) const
{
    // xdotool's "windowclose" would destroy the window under the program's feet, and openbox misses
    // an Alt+F4 that comes as the first key of a session.
    const QString number = u"0x"_s + QString::number(window.toULongLong(), 16);
    const auto done = RunTool(u"wmctrl"_s, {u"-i"_s, u"-c"_s, number}, m_environment);
    EXPECT_EQ(done.exitCode, 0) << "wmctrl: " << done.errors.toStdString();
}

} // namespace pelorin::test
