#pragma once

#include "support/XSession.h"
#include "support/Xdotool.h"

namespace pelorin::test {

/// The installation as the build stages it, in a folder that is hard on programs.
inline void Stage(const TestFolder& folder, const XSession& session)
{
    constexpr int kStageMs = 60'000;
    const QStringList stage{
        QStringLiteral("--install"),
        QStringLiteral(PELORIN_BUILD_DIR),
        QStringLiteral("--prefix"),
        folder.Path()};
    const auto staged = RunTool(QStringLiteral("cmake"), stage, session.Environment(), kStageMs);
    ASSERT_EQ(staged.exitCode, 0) << staged.errors.toStdString();
}

/// What the system gives a program on a desktop and nothing that we made up for it.
inline QProcessEnvironment PlainEnvironment(const XSession& session)
{
    QProcessEnvironment plain;
    for (const QString& name : session.Environment().keys()) {
        if (!name.startsWith(QStringLiteral("QT_"))) {
            plain.insert(name, session.Environment().value(name));
        }
    }
    return plain;
}

/// A screen and a person before it.
class RealTest : public testing::Test {
protected:
    static constexpr int kStepMs = 10'000;

    void SetUp() override { ASSERT_TRUE(m_session.IsUp()); }
    bool ShowsColours(const Xdotool::WindowId& window, int moreThan) const
    {
        return QTest::qWaitFor(
            [&] { return m_session.ColourCount(m_person.Geometry(window)) > moreThan; }, kStepMs);
    }

    const XSession m_session;
    const Xdotool m_person{m_session};
    static QString MainWindow() { return QStringLiteral("펠로린 Ver\\."); }
};

} // namespace pelorin::test
