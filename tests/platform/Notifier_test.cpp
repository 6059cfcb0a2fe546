#include "platform/Notifier.h"

#include <gtest/gtest.h>

#include <optional>

using namespace pelorin::platform;

namespace {

using Told = std::vector<std::uint32_t>;

void Collect(Notifier& notifier, Told& told)
{
    notifier.SetListener([&told](std::uint32_t changed) { told.push_back(changed); });
}

TEST(Notifier, TellsAtOnceWithoutALock)
{
    RedrawGate gate;
    Notifier notifier(&gate);
    notifier.Tell(1); // nobody listens
    Told told;
    Collect(notifier, told);
    notifier.Tell(1);
    notifier.Tell(2);
    EXPECT_EQ(told, (Told{1, 2}));
}

TEST(RedrawLock, OutermostTellsEachTouchedModelOnce)
{
    RedrawGate gate;
    Notifier list(&gate);
    Notifier tree(&gate);
    Notifier untouched(&gate);
    Notifier free;
    Told listTold;
    Told treeTold;
    Told untouchedTold;
    Told freeTold;
    Collect(list, listTold);
    Collect(tree, treeTold);
    Collect(untouched, untouchedTold);
    Collect(free, freeTold);
    {
        const RedrawLock outer(gate);
        list.Tell(1);
        {
            const RedrawLock inner(gate);
            list.Tell(4);
            tree.Tell(2);
            free.Tell(1);
        }
        EXPECT_TRUE(gate.Locked());
        EXPECT_EQ(listTold, Told());
        EXPECT_EQ(freeTold, Told{1});
        list.Tell(4);
    }
    EXPECT_FALSE(gate.Locked());
    EXPECT_EQ(listTold, Told{5});
    EXPECT_EQ(treeTold, Told{2});
    EXPECT_EQ(untouchedTold, Told());
}

TEST(RedrawLock, ReleasedEarlyItDoesNotReleaseTwice)
{
    RedrawGate gate;
    Notifier list(&gate);
    Told told;
    Collect(list, told);
    std::optional<RedrawLock> outer(std::in_place, gate);
    {
        RedrawLock inner(gate);
        list.Tell(1);
        inner.Release();
        inner.Release();
    }
    EXPECT_TRUE(gate.Locked());
    EXPECT_EQ(told, Told());
    outer->Release();
    EXPECT_EQ(told, Told{1});
    list.Tell(2);
    outer.reset();
    EXPECT_EQ(told, (Told{1, 2}));
}

TEST(RedrawLock, ListenerMayLockAndTellAgain)
{
    RedrawGate gate;
    Notifier list(&gate);
    Notifier details(&gate);
    Told detailsTold;
    Collect(details, detailsTold);
    int listTold = 0;
    list.SetListener([&](std::uint32_t) {
        ++listTold;
        const RedrawLock lock(gate);
        details.Tell(8);
        if (listTold == 1) {
            list.Tell(1);
        }
    });
    {
        const RedrawLock lock(gate);
        list.Tell(1);
        details.Tell(1);
    }
    EXPECT_EQ(listTold, 2);
    std::uint32_t all = 0;
    for (const std::uint32_t changed : detailsTold) {
        all |= changed;
    }
    EXPECT_EQ(all, 9U);
    EXPECT_FALSE(gate.Locked());
}

} // namespace
