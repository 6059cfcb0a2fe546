#include "platform/QtTimers.h"

#include <QTest>

#include <gtest/gtest.h>

using pelorin::platform::QtTimers;
using pelorin::platform::Timers;

namespace {

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
    const qint64 before = timers.NowMs();
    QTest::qSleep(15);
    EXPECT_GE(timers.NowMs() - before, 15);
    EXPECT_EQ(once, 0);
    timers.RunPendingEvents();
    EXPECT_EQ(once, 1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return ticks >= 100; }, 5'000));
    QTest::qWait(20);
    EXPECT_EQ(ticks, 100);
    EXPECT_EQ(once, 1);
    EXPECT_EQ(never, 0);
}

} // namespace
