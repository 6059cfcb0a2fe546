#include "running/PlacementCommands.h"
#include "running/RunCommands.h"
#include "support/Installation.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;

namespace {

class Placement : public testing::Test {
protected:
    Placement()
    {
        m_app.AddGame(u"하나"_s);
        m_launcher = m_app.Start();
    }

    /// A window of that class with a frame of 4 and 20 pixels.
    void OpenWindow(const QString& className)
    {
        m_app.fakes.desktop.windows.push_back({className, {{96, 80}, {100, 100}}});
    }
    QPoint ClientOf(std::size_t window) const
    {
        return m_app.fakes.desktop.windows.at(window).place.client;
    }
    shell::PlacementPanel& Panel() const { return m_launcher->screens.placement; }
    QString Typed() const { return Panel().txtDosboxPos[0] + u' ' + Panel().txtDosboxPos[1]; }

    test::Installation m_app;
    std::unique_ptr<shell::Launcher> m_launcher;
};

} // namespace

TEST_F(Placement, WhatTheWindowPaintsComesToLieOnThePoint)
{
    struct Case {
        QString x;
        QString y;
        QPoint client;
    };
    const Case cases[] = {
        {u"30"_s, u"40"_s, {30, 40}},
        {u"-12"_s, u"0"_s, {-12, 0}},
        {u"abc"_s, u""_s, {0, 0}},
        {u"10.5x"_s, u" 7"_s, {10, 7}},
        {u"-3e9"_s, u"1"_s, {-99'999, 1}},
        {u"10"_s, u"7"_s, {10, 7}},
    };
    OpenWindow(u"dosbox"_s);
    for (const Case& c : cases) {
        Panel().txtDosboxPos = {c.x, c.y};
        running::cmdSetPos_Click(*m_launcher);
        EXPECT_EQ(ClientOf(0), c.client) << c.x.toStdString();
    }
    EXPECT_EQ(m_app.fakes.desktop.brought.size(), std::size(cases));
    for (int index = 0; index < 4; ++index) {
        running::cmdMoveDosbox_Click(*m_launcher, index);
    }
    EXPECT_EQ(Typed(), u"10 7"_s) << "up, left, right and down";
    running::cmdMoveDosbox_Click(*m_launcher, 3);
    EXPECT_EQ(ClientOf(0), QPoint(10, 8));
    running::txtDosboxPos_Step(*m_launcher, 0, -1);
    EXPECT_EQ(Typed(), u"9 8"_s);
    EXPECT_EQ(ClientOf(0), QPoint(10, 8)) << "a key in the box moves no window";
    Panel().txtDosboxPos = {u"10.4"_s, u"abc"_s};
    running::txtDosboxPos_Step(*m_launcher, 0, 1);
    EXPECT_EQ(Typed(), u"11.4 abc"_s) << "the other box is left alone";
}

TEST_F(Placement, OfTwoEmulatorsTheFirstKindIsMovedAndTheTopmostOfAKind)
{
    Panel().txtDosboxPos = {u"1"_s, u"2"_s};
    running::cmdSetPos_Click(*m_launcher); // there is none
    OpenWindow(u"KegaClass"_s);
    OpenWindow(u"zwxwnd"_s);
    OpenWindow(u"zwxwnd"_s);
    OpenWindow(u"dosbox"_s);
    running::cmdSetPos_Click(*m_launcher);
    EXPECT_EQ(ClientOf(2), QPoint(1, 2));
    for (const std::size_t other : {std::size_t{0}, std::size_t{1}, std::size_t{3}}) {
        EXPECT_EQ(ClientOf(other), QPoint(100, 100));
    }
    EXPECT_TRUE(m_app.fakes.desktop.brought.empty());
}

TEST_F(Placement, SomeCanBeMovedAndNotRemembered)
{
    Panel().txtDosboxPos = {u"1"_s, u"2"_s};
    OpenWindow(u"NP2-MainWindow"_s);
    running::cmdRememberPos_Click(*m_launcher);
    EXPECT_EQ(Typed(), u"1 2"_s);
    running::cmdSetPos_Click(*m_launcher);
    EXPECT_EQ(ClientOf(0), QPoint(1, 2));
    OpenWindow(u"SDL_app"_s);
    running::cmdRememberPos_Click(*m_launcher);
    EXPECT_EQ(Typed(), u"100 100"_s);
}

TEST_F(Placement, AStartPlacesItsWindowOnceAfterTheTimeSet)
{
    Panel().txtDosboxPos = {u"5"_s, u"6"_s};
    Panel().cmbDosboxMove = 1;
    running::RunGame(*m_launcher);
    EXPECT_EQ(Panel().tmrDosboxPos, 0) << "not asked for";
    Panel().chkDosboxMove = true;
    running::RunGame(*m_launcher);
    m_app.fakes.timers.Advance(1999);
    OpenWindow(u"dosbox"_s);
    EXPECT_EQ(ClientOf(0), QPoint(100, 100));
    m_app.fakes.timers.Advance(1);
    EXPECT_EQ(ClientOf(0), QPoint(5, 6));

    // A window that opens late is missed.
    m_app.fakes.desktop.windows.clear();
    running::RunGame(*m_launcher);
    m_app.fakes.timers.Advance(2000);
    OpenWindow(u"dosbox"_s);
    m_app.fakes.timers.Advance(60'000);
    EXPECT_EQ(ClientOf(0), QPoint(100, 100));
}
