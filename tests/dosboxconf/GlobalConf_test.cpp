#include "dosboxconf/ConfFilesTest.h"
#include "dosboxconf/ConfUpgrade.h"

using namespace Qt::StringLiterals;

namespace pelorin::dosboxconf {

namespace {

using GlobalConfTest = ConfFilesTest;

TEST_F(GlobalConfTest, AMissingFileIsMadeWithFactoryValues)
{
    At(kNewKey) = 7;
    const ConfReport report = ReadDefaultConf(places, grid);
    EXPECT_TRUE(report.created);
    EXPECT_EQ(At(kRate), 3);
    EXPECT_EQ(At(kCycles), 1);
    EXPECT_EQ(At(kNewKey), 0);
    // Drive controllers stay off whatever their key says; "glide" is none.
    EXPECT_EQ(At(kIde), 0);
    EXPECT_EQ(At(kFdc), 0);
    EXPECT_EQ(At(kGlideTitle), 5);
    EXPECT_EQ(At(kSbtype), 4);

    const QByteArray bytes = folder.ReadRaw(defaultConf);
    EXPECT_EQ(bytes.count("\r\n"), kLines);
    EXPECT_EQ(bytes.count('\n'), kLines);
    EXPECT_TRUE(bytes.startsWith("ver.15.02.01\r\n0\r\n1\r\n0\r\n")) << "build, DirectX, Menu";
    EXPECT_EQ(folder.ReadLines(defaultConf)[LineOf(kCycles)], u"1"_s);
}

TEST_F(GlobalConfTest, EveryCellHasItsLineGroupsOutside)
{
    for (int group = 0; group < kGroups; ++group) {
        for (int item = 0; item < kItems; ++item) {
            At({group, item}) = group * 1000 + item - 5;
        }
    }
    const Selection before = grid.OptionSelection;
    ASSERT_TRUE(WriteDefaultConf(places, grid));
    const QStringList lines = folder.ReadLines(defaultConf);
    EXPECT_EQ(lines[1], u"-5"_s);
    EXPECT_EQ(lines[2], u"-4"_s);
    EXPECT_EQ(lines[82], u"995"_s);
    EXPECT_EQ(lines.last(), u"40075"_s);

    const QByteArray bytes = folder.ReadRaw(defaultConf);
    grid.OptionSelection.fill(0);
    const ConfReport report = ReadDefaultConf(places, grid);
    EXPECT_FALSE(report.upgraded || report.fellBack || report.created);
    EXPECT_EQ(grid.OptionSelection, before);
    EXPECT_EQ(folder.ReadRaw(defaultConf), bytes);
}

TEST_F(GlobalConfTest, NumbersAreReadByTheirPrefixAndTheFileUnderAnyCase)
{
    folder.WriteLines(
        u"app/DEFAULT.CONF"_s,
        Current(
            {{kRate, u" 2 # two"_s},
             {kOverscan, u"-7"_s},
             {kTimeout, u"2.5"_s},
             {kNewKey, u"none"_s},
             {kCycles, u"99999999999"_s}}));
    EXPECT_FALSE(ReadDefaultConf(places, grid).created);
    EXPECT_EQ(At(kRate), 2);
    EXPECT_EQ(At(kOverscan), -7);
    EXPECT_EQ(At(kTimeout), 2);
    EXPECT_EQ(At(kNewKey), 0);
    EXPECT_EQ(At(kCycles), 2147483647);
    EXPECT_TRUE(WriteDefaultConf(places, grid));
    EXPECT_FALSE(folder.Exists(defaultConf)) << "the spelling on disk stays";
}

TEST_F(GlobalConfTest, ACutOffFileGivesFactoryValuesAndIsKept)
{
    const QStringList cuts[] = {
        Current({}).mid(0, kLines - 1),
        Old(true, {}).mid(0, 231),
        Old(false, {}).mid(0, 120),
        QStringList()};
    for (const QStringList& cut : cuts) {
        folder.WriteLines(defaultConf, cut);
        const QByteArray bytes = folder.ReadRaw(defaultConf);
        At(kRate) = 1;
        const ConfReport report = ReadDefaultConf(places, grid);
        EXPECT_TRUE(report.fellBack);
        EXPECT_EQ(report.notes.size(), 1);
        EXPECT_EQ(At(kRate), 3);
        EXPECT_EQ(folder.ReadRaw(defaultConf), bytes);

        const auto written = WriteDefaultConf(places, grid);
        ASSERT_TRUE(written);
        EXPECT_TRUE(written.Value().backupKept);
        EXPECT_EQ(folder.ReadRaw(defaultConf + u".bak"_s), bytes);
        EXPECT_EQ(folder.ReadLines(defaultConf).size(), kLines);
        EXPECT_FALSE(WriteDefaultConf(places, grid).Value().backupKept) << "only the first time";
    }
}

struct Upgraded {
    Cell old;
    QString value;
    Cell now;
    std::int32_t result;
};

TEST_F(GlobalConfTest, BothOldLayoutsAreUpgradedAndTranslated)
{
    const Upgraded cases[] = {
        {{0, 5}, u"1"_s, kAutolock, 1},
        {{0, 6}, u"10"_s, kSensitivity, 0},
        {{0, 6}, u"9"_s, kSensitivity, 10},
        {{0, 6}, u"3"_s, kSensitivity, 4},
        {{0, 8}, u"9"_s, kPriority, 11},
        {{0, 8}, u"3"_s, kPriority, 4},
        {{0, 8}, u"2147483647"_s, kPriority, 2147483647},
        {{1, 4}, u"2"_s, kVersionCell, 2},
        {{2, 5}, u"6"_s, kMultiscan, 6},
        {{2, 5}, u"6"_s, kDoublescan, 6},
        {{3, 2}, u"12000"_s, kCycles, 12000},
        {{4, 1}, u"5"_s, kRate, 3},
        {{4, 1}, u"4"_s, kRate, 4},
        {{7, 7}, u"0"_s, kSampleRate, 3},
        {{7, 7}, u"2"_s, kSampleRate, 2},
        {{7, 2}, u"1"_s, kIde, 0},
        {{7, 3}, u"1"_s, kFdc, 0},
        {{0, 4}, u"4"_s, kGlideTitle, 0},
        {{6, 0}, u"2"_s, kSbtype, 2},
    };
    for (const bool marked : {true, false}) {
        for (const Upgraded& c : cases) {
            SCOPED_TRACE(testing::Message() << marked << ": " << c.old.group << ',' << c.old.item);
            folder.WriteLines(defaultConf, Old(marked, {{c.old, c.value}}));
            grid.OptionSelection.fill(0);
            At(kNewKey) = 5;
            const ConfReport report = ReadDefaultConf(places, grid);
            EXPECT_TRUE(report.upgraded);
            EXPECT_EQ(At(c.now), c.result);
            EXPECT_EQ(At(kNewKey), 5) << "the old files did not know it";
            EXPECT_EQ(folder.ReadLines(defaultConf)[LineOf(c.now)], QString::number(c.result));
            EXPECT_EQ(report.backupKept, !marked) << "without a mark it may be any file";
        }
    }
}

TEST_F(GlobalConfTest, TheSmallerLayoutLacksTheItemsBehindItsEleven)
{
    folder.WriteLines(defaultConf, Old(true, {{{10, 12}, u"77"_s}}));
    ReadDefaultConf(places, grid);
    EXPECT_EQ(At(kTimeout), 77);
    folder.WriteLines(defaultConf, Old(false, {}));
    ReadDefaultConf(places, grid);
    EXPECT_EQ(At(kTimeout), 0);
}

TEST_F(GlobalConfTest, AnUpgradeClearsDriveControllersInTheGridWhateverItsTarget)
{
    Selection old{};
    Selection target{};
    target.fill(9);
    At(kIde) = 1;
    At(kSbtype) = 1;
    UpgradeOldGrid(grid, old, target);
    EXPECT_EQ(At(kIde), 0);
    EXPECT_EQ(At(kSbtype), 1);
    EXPECT_EQ(target[OptionGrid::Index(kIde)], 9);
    EXPECT_EQ(target[OptionGrid::Index(kSbtype)], 0);
    EXPECT_EQ(old[OptionGrid::Index({0, 6})], 1) << "translated in the old table itself";
}

} // namespace

} // namespace pelorin::dosboxconf
