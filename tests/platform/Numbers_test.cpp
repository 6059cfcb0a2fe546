#include "platform/Numbers.h"

#include "support/Values.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using namespace pelorin::platform;

namespace {

TEST(Numbers, APrefixEndsWhereTheNumberDoes)
{
    const std::pair<QString, double> cases[] = {
        {QString(), 0}, {u"x1"_s, 0},   {u"  12px"_s, 12}, {u"\t-3.5.6"_s, -3.5},
        {u"+7"_s, 7},   {u".5"_s, 0.5}, {u"5."_s, 5},      {u"."_s, 0},
        {u"-"_s, 0},    {u"--1"_s, 0},  {u"1e3"_s, 1000},  {u"1E-2x"_s, 0.01},
        {u"1e"_s, 1},   {u"1e+"_s, 1},  {u"2exe"_s, 2},    {u"1,5"_s, 1},
        {u"007"_s, 7},  {u"１２"_s, 0}, {u"\n5"_s, 0},
    };
    for (const auto& [text, value] : cases) {
        EXPECT_EQ(NumericPrefix(text), value) << text;
    }
    EXPECT_EQ(IntegerPrefix(u"2.5 seconds"), 2);
    EXPECT_EQ(IntegerPrefix(u"99999999999"), std::numeric_limits<std::int32_t>::max());
}

TEST(Numbers, TiesGoToTheEvenNeighbour)
{
    constexpr auto kMost = std::numeric_limits<std::int32_t>::max();
    constexpr auto kLeast = std::numeric_limits<std::int32_t>::min();
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const std::pair<double, std::int32_t> cases[] = {
        {0.5, 0},
        {1.5, 2},
        {2.5, 2},
        {-0.5, 0},
        {-1.5, -2},
        {-2.5, -2},
        {2.4999, 2},
        {2.5001, 3},
        {-2.5001, -3},
        {1e300, kMost},
        {-1e300, kLeast},
        {std::nan(""), 0},
        {kInfinity, kMost},
    };
    for (const auto& [value, rounded] : cases) {
        EXPECT_EQ(RoundHalfEven(value), rounded) << value;
    }
}

TEST(Numbers, ATextHoldsNoMoreThanItMust)
{
    const std::pair<double, QString> cases[] = {
        {4500, u"4500"_s},
        {12.5, u"12.5"_s},
        {-7.25, u"-7.25"_s},
        {100000000, u"100000000"_s},
        {0.0004, u"0"_s},
        {-0.0004, u"0"_s},
        {-0.0, u"0"_s},
        {0.1 + 0.2, u"0.3"_s},
    };
    for (const auto& [value, text] : cases) {
        EXPECT_EQ(NumberText(value), text) << value;
    }
}

} // namespace
