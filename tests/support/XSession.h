#pragma once

#include "support/IsolatedHome.h"
#include "support/RunProgram.h"

#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <memory>

namespace pelorin::test {

/// An X server without a monitor on a free display, openbox as its window manager, and a home for
/// what runs in it. Up when the constructor is done (a failure fails the test: look at IsUp), gone
/// with the object or with the test process, and with it whatever still has a window there.
class XSession {
public:
    XSession()
        : m_environment(m_home.Environment())
    {
        m_isUp = StartServer() && StartWindowManager();
        EXPECT_TRUE(m_isUp) << "no X session; are xvfb and openbox installed? "
                            << m_server->Output().toStdString();
    }
    XSession(const XSession&) = delete;
    XSession& operator=(const XSession&) = delete;

    bool IsUp() const { return m_isUp; }
    const IsolatedHome& Home() const { return m_home; }
    /// The home's, with the display.
    QProcessEnvironment Environment() const { return m_environment; }

    /// How many different colours a part of the screen has. An empty window has a few, a picture
    /// hundreds.
    int ColourCount(const QRect& part) const
    {
        const auto taken = RunTool(
            QStringLiteral("import"), Words(QStringLiteral("-window root png:-")), m_environment);
        const QImage screen = QImage::fromData(taken.output, "PNG");
        EXPECT_FALSE(screen.isNull()) << taken.errors.toStdString();
        const QImage pixels = screen.copy(part).convertToFormat(QImage::Format_RGB32);
        QSet<QRgb> colours;
        for (int y = 0; y < pixels.height(); ++y) {
            for (int x = 0; x < pixels.width(); ++x) {
                colours.insert(pixels.pixel(x, y));
            }
        }
        return static_cast<int>(colours.size());
    }

private:
    static constexpr int kPatienceMs = 20'000;

    bool StartServer()
    {
        // It takes the first free display itself and prints its number when it is ready, behind
        // warnings at times. Without -noreset it would start anew each time its last client goes.
        const QString arguments = QStringLiteral("-displayfd 1 -noreset -screen 0 1280x1024x24");
        m_server =
            std::make_unique<RunProgram>(QStringLiteral("Xvfb"), Words(arguments), m_environment);
        static const QRegularExpression number(
            QStringLiteral("^(\\d+)$"), QRegularExpression::MultilineOption);
        QRegularExpressionMatch told;
        const bool ready = QTest::qWaitFor(
            [&] {
                const QString output = QString::fromUtf8(m_server->Output());
                told = number.match(output);
                return told.hasMatch() && output.endsWith(u'\n');
            },
            kPatienceMs);
        m_environment.insert(QStringLiteral("DISPLAY"), u':' + told.captured(1));
        return ready;
    }

    bool StartWindowManager()
    {
        // It announces itself before it manages windows, and one that is mapped in between is
        // forgotten. What it runs at its start comes after both.
        const QString ready = m_home.Path(QStringLiteral("openbox-is-up"));
        m_windowManager = std::make_unique<RunProgram>(
            QStringLiteral("openbox"),
            QStringList{
                QStringLiteral("--sm-disable"),
                QStringLiteral("--startup"),
                QStringLiteral("touch \"%1\"").arg(ready)},
            m_environment);
        return QTest::qWaitFor([&] { return QFile::exists(ready); }, kPatienceMs);
    }

    IsolatedHome m_home;
    QProcessEnvironment m_environment;
    std::unique_ptr<RunProgram> m_server; // outlives its client
    std::unique_ptr<RunProgram> m_windowManager;
    bool m_isUp = false;
};

} // namespace pelorin::test
