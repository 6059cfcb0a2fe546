#include "platform/X11Desktop.h"
#include "running/Placement.h"
#include "support/TestFolder.h"
#include "support/XSession.h"
#include "support/Xdotool.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::test;

namespace {

constexpr int kStepMs = 10'000;

/// DOSBox on a screen of its own, and our eyes on that screen.
class RealDesktop : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_session.IsUp());
        m_former = qgetenv("DISPLAY");
        qputenv("DISPLAY", m_session.Environment().value(u"DISPLAY"_s).toUtf8());
        m_desktop = std::make_unique<platform::X11Desktop>();
        m_folder.WriteLines(u"dosbox.conf"_s, {u"[sdl]"_s, u"output=surface"_s});
    }
    void TearDown() override
    {
        m_former.isEmpty() ? qunsetenv("DISPLAY") : qputenv("DISPLAY", m_former);
    }

    std::optional<platform::WindowId> Find() const
    {
        std::optional<platform::WindowId> window;
        std::ignore = QTest::qWaitFor(
            [&] { return (window = m_desktop->FindWindow(u"dosbox"_s)).has_value(); }, kStepMs);
        return window;
    }
    /// Where the painted part lies, by another program.
    QPoint Client(platform::WindowId window) const
    {
        return m_person.Corner(QByteArray::number(qulonglong{window}));
    }
    bool Puts(platform::WindowId window, QPoint client) const
    {
        const auto place = m_desktop->PlaceOf(window);
        if (!place) {
            return false;
        }
        m_desktop->Move(window, running::OuterFor(*place, client));
        return QTest::qWaitFor([&] { return Client(window) == client; }, kStepMs);
    }

    const XSession m_session;
    const Xdotool m_person{m_session};
    TestFolder m_folder;
    QByteArray m_former;
    std::unique_ptr<platform::X11Desktop> m_desktop;
};

TEST_F(RealDesktop, WhatDosboxPaintsLiesOnThePointWithAndWithoutAFrame)
{
    EXPECT_FALSE(m_desktop->FindWindow(u"dosbox"_s));
    RunProgram dosbox(
        u"dosbox"_s, {u"-conf"_s, m_folder.Path(u"dosbox.conf"_s)}, m_session.Environment());
    const auto window = Find();
    ASSERT_TRUE(window) << dosbox.Output().toStdString();
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            const auto place = m_desktop->PlaceOf(*window);
            return place && place->client != place->outer;
        },
        kStepMs))
        << "the window manager gives it a frame";
    EXPECT_TRUE(Puts(*window, {123, 77}));
    EXPECT_TRUE(Puts(*window, {-40, 50})) << "partly off the screen";
    // Another window manager, which gives it none.
    m_folder.WriteText(
        u"rc.xml"_s,
        u"<openbox_config xmlns=\"http://openbox.org/3.4/rc\"><theme><keepBorder>no</keepBorder></theme><applications><application "
        "class=\"*\"><decor>no</decor></application></applications></openbox_config>"_s);
    RunProgram bare(
        u"openbox"_s,
        {u"--replace"_s,
         u"--sm-disable"_s,
         u"--config-file"_s,
         m_folder.Path(u"rc.xml"_s),
         u"--startup"_s,
         u"touch \"%1\""_s.arg(m_folder.Path(u"up"_s))},
        m_session.Environment());
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_folder.Exists(u"up"_s); }, kStepMs));
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            const auto place = m_desktop->PlaceOf(*window);
            return place && place->client == place->outer;
        },
        kStepMs));
    EXPECT_TRUE(Puts(*window, {200, 100})) << Client(*window).x() << " " << Client(*window).y();

    // Of two, the topmost; and one that is gone is no error.
    RunProgram second(
        u"dosbox"_s, {u"-conf"_s, m_folder.Path(u"dosbox.conf"_s)}, m_session.Environment());
    ASSERT_TRUE(QTest::qWaitFor([&] { return Find() != window; }, kStepMs));
    m_desktop->BringToFront(*window);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Find() == window; }, kStepMs));
    const QStringList kill{u"windowkill"_s, QString::number(*window)};
    ASSERT_EQ(RunTool(u"xdotool"_s, kill, m_session.Environment()).exitCode, 0);
    ASSERT_TRUE(dosbox.WaitForEnd(kStepMs));
    EXPECT_FALSE(m_desktop->PlaceOf(*window));
    m_desktop->Move(*window, {0, 0});
    m_desktop->BringToFront(*window);
    EXPECT_TRUE(Find().has_value());
}

TEST_F(RealDesktop, NumLockIsAsThePersonLeftIt)
{
    EXPECT_FALSE(m_desktop->NumLockOn());
    m_person.Key(u"Num_Lock"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_desktop->NumLockOn(); }, kStepMs));
    m_person.Key(u"Num_Lock"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !m_desktop->NumLockOn(); }, kStepMs));
}

} // namespace
