#include "shell/MinimumSize.h"

#include <gtest/gtest.h>

using namespace pelorin::shell;

TEST(MinimumSize, AddsThePartsAndTheFrameAndRoundsTiesToEven)
{
    struct Case {
        double more; // form units on top of whole pixels
        int width;
        int height;
    };
    const Case cases[] = {
        {0, 742, 604}, // 11130 / 15 and 9060 / 15
        {7.4, 742, 604},
        {7.5, 742, 604},
        {7.6, 743, 605},
        {22.5, 744, 606},
        {-7.5, 742, 604},
    };
    for (const Case& one : cases) {
        FrameParts parts;
        parts.cmdVespraLeft = 6000 + one.more;
        parts.cmdVespraWidth = 450;
        parts.picBack1Width = 4500;
        parts.picInfo0Left = 60;
        parts.outerWidth = 12120;
        parts.innerWidth = 12000;
        parts.tabInfoHeight = 8100 + one.more;
        parts.sbDirectoryHeight = 375;
        parts.outerHeight = 9450;
        parts.innerHeight = 9000;
        EXPECT_EQ(MinimumSize(parts).width, one.width) << one.more;
        EXPECT_EQ(MinimumSize(parts).height, one.height) << one.more;
    }
}
