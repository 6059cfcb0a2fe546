#include "dosboxconf/StartList.h"

#include "support/TestFolder.h"

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::dosboxconf;
using namespace pelorin::test;

namespace {

TEST(StartListTest, EachDeedLeavesTheRightLinesAndRow)
{
    struct List {
        QString lines;
        int row = -1;
    };
    struct Case {
        void (*deed)(StartCommands&) = nullptr;
        List before;
        List after;
    };
    constexpr auto kAddFile = [](StartCommands& start) {
        start.fileRow = 0;
        AddSelectedFile(start);
    };
    constexpr auto kAddNone = [](StartCommands& start) {
        for (const int row : {1, -1, 9}) { // blanks, none, gone
            start.fileRow = row;
            AddSelectedFile(start);
        }
    };
    constexpr auto kReplace = [](StartCommands& start) { ReplaceLine(start, 1, u"  X  "_s); };
    constexpr auto kReplaceNone = [](StartCommands& start) {
        ReplaceLine(start, 1, u"   "_s);
        ReplaceLine(start, 3, u"x"_s);
        ReplaceLine(start, -1, u"x"_s);
    };
    const Case cases[] = {
        {kAddFile, {u"a b c"_s, 1}, {u"a b GAME.EXE c"_s, 2}},
        {kAddFile, {u"a b c"_s, -1}, {u"GAME.EXE a b c"_s, 0}},
        {kAddNone, {u"a b c"_s, 1}, {u"a b c"_s, 1}},
        {AddEmptyLine, {QString(), -1}, {u"REM"_s, 0}},
        {AddEmptyLine, {u"a b c"_s, 2}, {u"a b c REM"_s, 3}},
        {DeleteLine, {u"a b c"_s, 1}, {u"a c"_s, 1}}, // keeps the place
        {DeleteLine, {u"a c"_s, 1}, {u"a"_s, 0}},     // and moves up at the end
        {DeleteLine, {u"a"_s, 0}, {QString(), -1}},
        {DeleteLine, {QString(), -1}, {QString(), -1}},
        {DeleteLine, {u"a b c"_s, -1}, {u"b c"_s, 0}},
        {MoveLineUp, {u"a b c"_s, 1}, {u"b a c"_s, 0}},
        {MoveLineUp, {u"a b c"_s, 0}, {u"a b c"_s, 0}},
        {MoveLineDown, {u"a b c"_s, 1}, {u"a c b"_s, 2}},
        {MoveLineDown, {u"a b c"_s, 2}, {u"a b c"_s, 2}},
        {MoveLineDown, {u"a b c"_s, -1}, {u"a b c"_s, -1}},
        {kReplace, {u"a b c"_s, 0}, {u"a X c"_s, 0}},
        {kReplaceNone, {u"a b c"_s, 0}, {u"a b c"_s, 0}},
    };
    int number = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(
            testing::Message() << "case " << number++ << ": " << c.before.lines << ' '
                               << c.before.row);
        StartCommands start;
        start.cmdAddEmpty = u"REM"_s;
        start.fileEXE = QStringList{u"  GAME.EXE "_s, u"   "_s};
        start.lstAutoexec = Words(c.before.lines);
        start.commandRow = c.before.row;
        std::uint32_t told = 0;
        start.changed.SetListener([&told](std::uint32_t bits) { told |= bits; });
        c.deed(start);
        EXPECT_EQ(start.lstAutoexec.join(u' '), c.after.lines);
        EXPECT_EQ(start.commandRow, c.after.row);
        EXPECT_EQ((told & StartCommands::Commands) != 0, c.after.lines != c.before.lines);
        EXPECT_FALSE(c.before.row != c.after.row && (told & StartCommands::CommandRow) == 0);
    }
    StartCommands start;
    FillStartCommands(start, {u"x"_s});
    EXPECT_EQ(start.lstAutoexec, QStringList{u"x"_s});
    EXPECT_EQ(start.commandRow, 0);
    FillStartCommands(start, {});
    EXPECT_EQ(start.commandRow, -1);
}

} // namespace
