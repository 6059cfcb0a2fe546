#include "platform/Numbers.h"

#include <QString>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using namespace pelorin::platform;

namespace {

TEST(NumericPrefix, StopsWhereTheNumberEnds)
{
    struct Case {
        QString text;
        double value;
    };
    const Case cases[] = {
        {QString(), 0}, {u"x1"_s, 0},   {u"  12px"_s, 12}, {u"\t-3.5.6"_s, -3.5},
        {u"+7"_s, 7},   {u".5"_s, 0.5}, {u"5."_s, 5},      {u"."_s, 0},
        {u"-"_s, 0},    {u"--1"_s, 0},  {u"1e3"_s, 1000},  {u"1E-2x"_s, 0.01},
        {u"1e"_s, 1},   {u"1e+"_s, 1},  {u"2exe"_s, 2},    {u"1,5"_s, 1},
        {u"007"_s, 7},  {u"１２"_s, 0}, {u"\n5"_s, 0},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(NumericPrefix(one.text), one.value) << one.text.toStdString();
    }
}

TEST(RoundHalfEven, TiesGoToTheEvenNeighbour)
{
    constexpr double kHuge = 1e300;
    struct Case {
        double value;
        std::int32_t rounded;
    };
    const Case cases[] = {
        {0.5, 0},
        {1.5, 2},
        {2.5, 2},
        {-0.5, 0},
        {-1.5, -2},
        {-2.5, -2},
        {2.4999, 2},
        {2.5001, 3},
        {-2.5001, -3},
        {kHuge, std::numeric_limits<std::int32_t>::max()},
        {-kHuge, std::numeric_limits<std::int32_t>::min()},
        {std::nan(""), 0},
        {std::numeric_limits<double>::infinity(), std::numeric_limits<std::int32_t>::max()},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(RoundHalfEven(one.value), one.rounded) << one.value;
    }
    EXPECT_EQ(IntegerPrefix(u"2.5 seconds"), 2);
    EXPECT_EQ(IntegerPrefix(u"99999999999"), std::numeric_limits<std::int32_t>::max());
}

TEST(NumberText, HoldsNoMoreThanItMust)
{
    struct Case {
        double value;
        QString text;
    };
    const Case cases[] = {
        {4500, u"4500"_s},
        {12.5, u"12.5"_s},
        {-7.25, u"-7.25"_s},
        {100000000, u"100000000"_s},
        {0.0004, u"0"_s},
        {-0.0004, u"0"_s},
        {-0.0, u"0"_s},
        {0.1 + 0.2, u"0.3"_s},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(NumberText(one.value), one.text) << one.value;
    }
}

} // namespace
