#include "platform/Notifier.h"

#include <gtest/gtest.h>

#include <optional>

using namespace pelorin::platform;

namespace {

using Told = std::vector<std::uint32_t>;

struct NotifierTest : testing::Test {
    NotifierTest()
    {
        list.SetListener([this](std::uint32_t changed) { listTold.push_back(changed); });
        tree.SetListener([this](std::uint32_t changed) { treeTold.push_back(changed); });
    }

    RedrawGate gate;
    Notifier list{&gate};
    Notifier tree{&gate};
    Told listTold;
    Told treeTold;
};

TEST_F(NotifierTest, TheOutermostLockTellsEachTouchedModelOnce)
{
    Notifier(&gate).Tell(1); // nobody listens
    list.Tell(1);
    list.Tell(2);
    EXPECT_EQ(listTold, (Told{1, 2})) << "at once without a lock";
    listTold.clear();

    std::optional<RedrawLock> outer(std::in_place, gate);
    list.Tell(1);
    {
        RedrawLock inner(gate);
        list.Tell(4);
        tree.SetGate(nullptr);
        tree.Tell(2);
        EXPECT_EQ(treeTold, Told{2}) << "under no gate";
        inner.Release();
        inner.Release();
    }
    EXPECT_TRUE(gate.Locked());
    EXPECT_EQ(listTold, Told());
    list.Tell(4);
    outer->Release();
    EXPECT_FALSE(gate.Locked());
    EXPECT_EQ(listTold, Told{5});
    EXPECT_EQ(treeTold, Told{2});
    list.Tell(2);
    outer.reset();
    EXPECT_EQ(listTold, (Told{5, 2})) << "a lock is released once";
}

TEST_F(NotifierTest, AListenerMayLockAndTellAgain)
{
    list.SetListener([this](std::uint32_t changed) {
        listTold.push_back(changed);
        const RedrawLock lock(gate);
        tree.Tell(8);
        if (listTold.size() == 1) {
            list.Tell(1);
        }
    });
    {
        const RedrawLock lock(gate);
        list.Tell(1);
        tree.Tell(1);
    }
    EXPECT_EQ(listTold, (Told{1, 1}));
    EXPECT_EQ(treeTold, Told{9}) << "what was touched before is told once, with the news";
    EXPECT_FALSE(gate.Locked());
}

} // namespace
