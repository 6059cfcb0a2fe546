#include "shell/MinimumSize.h"

#include <gtest/gtest.h>

using pelorin::shell::FrameParts;
using pelorin::shell::MinimumSize;
using pelorin::shell::PixelSize;

namespace {

FrameParts Parts()
{
    FrameParts parts;
    parts.cmdVespraLeft = 6000;
    parts.cmdVespraWidth = 450;
    parts.picBack1Width = 4500;
    parts.picInfo0Left = 60;
    parts.outerWidth = 12120;
    parts.innerWidth = 12000;
    parts.tabInfoHeight = 8100;
    parts.sbDirectoryHeight = 375;
    parts.outerHeight = 9450;
    parts.innerHeight = 9000;
    return parts;
}

TEST(MinimumSize, AddsThePartsAndTheFrame)
{
    const PixelSize size = MinimumSize(Parts());
    EXPECT_EQ(size.width, 742);  // 11130 / 15
    EXPECT_EQ(size.height, 604); // 9060 / 15
}

TEST(MinimumSize, RoundsTiesToEven)
{
    struct Case {
        double more; // form units on top of whole pixels
        int width;
        int height;
    };
    const Case cases[] = {
        {7.4, 742, 604}, {7.5, 742, 604}, {7.6, 743, 605}, {22.5, 744, 606}, {-7.5, 742, 604}};
    for (const Case& one : cases) {
        FrameParts parts = Parts();
        parts.cmdVespraLeft += one.more;
        parts.tabInfoHeight += one.more;
        const PixelSize size = MinimumSize(parts);
        EXPECT_EQ(size.width, one.width) << one.more;
        EXPECT_EQ(size.height, one.height) << one.more;
    }
}

} // namespace
