#include "platform/QtTimers.h"
#include "support/ManualTimers.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using pelorin::platform::QtTimers;
using pelorin::platform::Timers;
using pelorin::test::ManualTimers;

namespace {

constexpr int kPatienceMs = 5'000;

TEST(QtTimersTest, SingleShotFiresOnceAndRepeatingUntilStopped)
{
    QtTimers timers;
    int once = 0;
    int ticks = 0;
    int never = 0;
    const Timers::Id stopped = timers.StartSingleShot(1, [&] { ++never; });
    timers.Stop(stopped);
    timers.Stop(stopped);
    timers.Stop(0);
    timers.StartSingleShot(0, [&] { ++once; });
    Timers::Id repeating = 0;
    repeating = timers.StartRepeating(1, [&] {
        // Stopping itself and starting another one from the call are both common.
        if (++ticks == 3) {
            timers.Stop(repeating);
            repeating = timers.StartSingleShot(1, [&] { ticks = 100; });
        }
    });
    EXPECT_EQ(once, 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return ticks >= 100; }, kPatienceMs));
    QTest::qWait(20);
    EXPECT_EQ(ticks, 100);
    EXPECT_EQ(once, 1);
    EXPECT_EQ(never, 0);
}

TEST(QtTimersTest, ClockGoesOnAndPendingEventsRun)
{
    QtTimers timers;
    bool fired = false;
    const qint64 before = timers.NowMs();
    timers.StartSingleShot(0, [&] { fired = true; });
    QTest::qSleep(15);
    EXPECT_FALSE(fired);
    timers.RunPendingEvents();
    EXPECT_TRUE(fired);
    EXPECT_GE(timers.NowMs() - before, 15);
}

TEST(ManualTimersTest, FiresInOrderOfTimeAndKeepsTheMoment)
{
    ManualTimers timers;
    QStringList log;
    const qint64 start = timers.NowMs();
    const auto note = [&](const QString& what) {
        return [&, what] { log << what + QString::number(timers.NowMs() - start); };
    };
    timers.StartSingleShot(30, note(u"late "_s));
    Timers::Id tick = 0;
    tick = timers.StartRepeating(10, [&] {
        note(u"tick "_s)();
        if (timers.NowMs() - start >= 20) {
            timers.Stop(tick);
            timers.StartSingleShot(5, note(u"nested "_s));
        }
    });
    timers.Advance(9);
    EXPECT_TRUE(log.isEmpty());
    timers.Advance(100);
    EXPECT_EQ(log, (QStringList{u"tick 10"_s, u"tick 20"_s, u"nested 25"_s, u"late 30"_s}));
    EXPECT_EQ(timers.Running(), 0);
    EXPECT_EQ(timers.NowMs() - start, 109);
}

} // namespace
