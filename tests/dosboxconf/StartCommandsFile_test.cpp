#include "dosboxconf/StartCommandsFile.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using dosboxconf::ReadAutoexecConf;
using dosboxconf::StartCommands;
using dosboxconf::WriteAutoexecConf;

namespace {

TEST(StartCommandsFileTest, EmptyLinesAreNeitherReadNorWritten)
{
    const test::TestFolder folder;
    const shell::Places places{folder.Path(), folder.Path(), folder.Path()};
    EXPECT_TRUE(ReadAutoexecConf(places, u"Star"_s).Value().isEmpty()) << "no file";
    folder.WriteRaw(u"Star/dosbox/AUTOEXEC.CONF"_s, "\r\nplay.bat\r\n\r\n \ngo.exe -x");
    EXPECT_EQ(
        ReadAutoexecConf(places, u"Star"_s).Value(),
        (QStringList{u"play.bat"_s, u" "_s, u"go.exe -x"_s}));

    ASSERT_TRUE(WriteAutoexecConf(places, u"Star"_s, {u""_s, u"시작.bat"_s, u""_s, u"b"_s}));
    EXPECT_EQ(folder.ReadText(u"Star/dosbox/AUTOEXEC.CONF"_s), u"시작.bat\r\nb\r\n"_s);
    folder.MakeTree({u"Bare/GO.EXE"_s});
    ASSERT_TRUE(WriteAutoexecConf(places, u"Bare"_s, {u"go"_s}));
    EXPECT_EQ(folder.ReadLines(u"Bare/DosBox/autoexec.conf"_s), QStringList{u"go"_s});
}

TEST(StartCommandsFileTest, WhatTheCodePageCantKeepIsRefusedAndTheOldFileStands)
{
    const test::TestFolder folder;
    const shell::Places places{folder.Path(), folder.Path(), folder.Path()};
    folder.WriteLines(u"Star/DosBox/autoexec.conf"_s, {u"old"_s});
    const auto done = WriteAutoexecConf(places, u"Star"_s, {u"a"_s, u"żółw.bat"_s});
    ASSERT_FALSE(done);
    EXPECT_EQ(done.Failure().kind, platform::ErrorKind::Unencodable);
    EXPECT_EQ(folder.ReadLines(u"Star/DosBox/autoexec.conf"_s), QStringList{u"old"_s});
    for (const QString& name : {u"Gone"_s, u""_s}) {
        EXPECT_FALSE(WriteAutoexecConf(places, name, {u"a"_s}));
    }
    EXPECT_EQ(folder.Tree().size(), 3) << "no folder is made for what is no game";
}

struct StartListTest : testing::Test {
    void Set(const QStringList& lines, int row)
    {
        start.lstAutoexec = lines;
        start.commandRow = row;
        told = 0;
    }

    void Expect(const QStringList& lines, int row) const
    {
        EXPECT_EQ(start.lstAutoexec, lines);
        EXPECT_EQ(start.commandRow, row);
    }

    StartListTest()
    {
        start.changed.SetListener([this](std::uint32_t bits) { told |= bits; });
        start.cmdAddEmpty = u"REM"_s;
        start.fileEXE = QStringList{u"  GAME.EXE "_s, u"   "_s};
    }

    StartCommands start;
    std::uint32_t told = 0;
    const QStringList abc{u"a"_s, u"b"_s, u"c"_s};
};

TEST_F(StartListTest, AFileGoesBehindTheSelectedLine)
{
    start.fileRow = 0;
    Set(abc, 1);
    AddSelectedFile(start);
    Expect({u"a"_s, u"b"_s, u"GAME.EXE"_s, u"c"_s}, 2);
    EXPECT_NE(told & StartCommands::Commands, 0U);
    EXPECT_NE(told & StartCommands::CommandRow, 0U);
    Set(abc, -1);
    AddSelectedFile(start);
    Expect({u"GAME.EXE"_s, u"a"_s, u"b"_s, u"c"_s}, 0);
    for (const int row : {1, -1, 9}) { // blanks, none, gone
        start.fileRow = row;
        Set(abc, 1);
        AddSelectedFile(start);
        Expect(abc, 1);
        EXPECT_EQ(told, 0U);
    }
}

TEST_F(StartListTest, AnEmptyLineIsTheButtonsCaption)
{
    Set({}, -1);
    AddEmptyLine(start);
    Expect({u"REM"_s}, 0);
    Set(abc, 2);
    AddEmptyLine(start);
    Expect({u"a"_s, u"b"_s, u"c"_s, u"REM"_s}, 3);
}

TEST_F(StartListTest, DeletingKeepsThePlaceAndMovesUpAtTheEnd)
{
    Set(abc, 1);
    DeleteLine(start);
    Expect({u"a"_s, u"c"_s}, 1);
    DeleteLine(start);
    Expect({u"a"_s}, 0);
    DeleteLine(start);
    Expect({}, -1);
    DeleteLine(start);
    Expect({}, -1);
    Set(abc, -1);
    DeleteLine(start);
    Expect({u"b"_s, u"c"_s}, 0);
}

TEST_F(StartListTest, LinesSwapWithTheirNeighboursUpToTheEnds)
{
    Set(abc, 1);
    MoveLineUp(start);
    Expect({u"b"_s, u"a"_s, u"c"_s}, 0);
    MoveLineUp(start);
    Expect({u"b"_s, u"a"_s, u"c"_s}, 0);
    Set(abc, 1);
    MoveLineDown(start);
    Expect({u"a"_s, u"c"_s, u"b"_s}, 2);
    MoveLineDown(start);
    Expect({u"a"_s, u"c"_s, u"b"_s}, 2);
    Set(abc, -1);
    MoveLineDown(start);
    Expect(abc, -1);
}

TEST_F(StartListTest, AReplyOfBlanksLeavesTheLine)
{
    Set(abc, 0);
    ReplaceLine(start, 1, u"  play.exe -q  "_s);
    Expect({u"a"_s, u"play.exe -q"_s, u"c"_s}, 0);
    ReplaceLine(start, 1, u"   "_s);
    ReplaceLine(start, 3, u"x"_s);
    ReplaceLine(start, -1, u"x"_s);
    Expect({u"a"_s, u"play.exe -q"_s, u"c"_s}, 0);
}

TEST_F(StartListTest, FillingSelectsTheFirstLine)
{
    FillStartCommands(start, {u""_s, u"x"_s});
    Expect({u"x"_s}, 0);
    FillStartCommands(start, {});
    Expect({}, -1);
}

} // namespace
