#include "dosboxconf/OptionTable.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using dosboxconf::OptionGrid;
using dosboxconf::OptionKind;
using dosboxconf::ParseOptionTable;

namespace {

OptionGrid Parsed(const QString& text)
{
    auto table = ParseOptionTable(text, u"option.dat"_s);
    EXPECT_TRUE(table) << (table ? std::string() : table.Failure().text.toStdString());
    return table.ValueOr(OptionGrid());
}

std::string ErrorOf(const QString& text)
{
    const auto table = ParseOptionTable(text, u"option.dat"_s);
    return table ? "no error" : table.Failure().text.toStdString();
}

TEST(OptionTableTest, TakesFieldsNotLines)
{
    const OptionGrid grid = Parsed(u"\n@TOne`two\n"
                                   "A|a;x|y`z;<INDEX>,  B|b;0;<TEXT>\n"
                                   "\"C, quoted|c;p,q|r;<NONE>\" is over,D|d|more;|x;<ODD>;e\n"
                                   "end,\nnever;read\n"_s);
    EXPECT_EQ(grid.GroupCaption, QStringList{u"One,two"_s});
    EXPECT_EQ(grid.Title({0, 0}), u"A"_s);
    EXPECT_EQ(grid.Values({0, 0}), (QStringList{u"x"_s, u"y,z"_s}));
    EXPECT_EQ(grid.Key({0, 1}), u"b"_s);
    EXPECT_EQ(grid.Values({0, 1}), QStringList{u"0"_s});
    EXPECT_EQ(grid.Title({0, 2}), u"C, quoted"_s);
    EXPECT_EQ(grid.Values({0, 2}), (QStringList{u"p,q"_s, u"r"_s}));
    EXPECT_EQ(grid.Key({0, 3}), u"d"_s);
    EXPECT_EQ(grid.Values({0, 3}), QStringList{u"|x"_s});
    EXPECT_EQ(grid.Kind({0, 3}), OptionKind::Other);
    EXPECT_TRUE(grid.Key({0, 4}).isEmpty());
}

TEST(OptionTableTest, ABacktickIsACommaInCaptionsAndValuesOnly)
{
    const OptionGrid grid = Parsed(u"\n@Ta`b\nt`t|k`k;v`v;<INDEX>\nend"_s);
    EXPECT_EQ(grid.GroupCaption.first(), u"a,b"_s);
    EXPECT_EQ(grid.Title({0, 0}), u"t`t"_s);
    EXPECT_EQ(grid.Key({0, 0}), u"k`k"_s);
    EXPECT_EQ(grid.ValueText({0, 0}, 0), u"v,v"_s);
}

TEST(OptionTableTest, AnEmptyFieldOpensAGroupAndTheCaptionRestartsItsItems)
{
    const OptionGrid grid = Parsed(u"\n@Tfirst\nA|a;0;<TEXT>\nB|b;0;<TEXT>\n"
                                   "\n"
                                   "C|c;0;<TEXT>\n" // no caption yet: goes on counting
                                   "@Tsecond\nD|d;0;<TEXT>\n"
                                   "   \n\nend"_s);
    EXPECT_EQ(grid.GroupCaption, (QStringList{u"first"_s, u"second"_s, u"temp"_s, u"temp"_s}));
    EXPECT_EQ(grid.Key({1, 2}), u"c"_s);
    EXPECT_EQ(grid.Key({1, 0}), u"d"_s);
}

TEST(OptionTableTest, AFaultNamesTheFileTheLineAndTheReason)
{
    struct Case {
        QString text;
        const char* error;
    };
    const QString group = u"\n@Tg\n"_s;
    const QString row = u"A|a;0;<TEXT>\n"_s;
    const QString values = u"v|"_s;
    const Case cases[] = {
        {u"@Tg\nend"_s, "line 1: a caption before the first group"},
        {u"A|a;0;<TEXT>\nend"_s, "line 1: an option before the first group"},
        {group + u"A|a;0\nend"_s, "line 3: an option needs title|key;values;kind"},
        {group + u"A;0;<TEXT>\nend"_s, "line 3: no \"|\" between title and key"},
        {group + row, "line 3: the file has no \"end\""},
        {QString(), "line 1: the file has no \"end\""},
        {group + u"END"_s, "line 3: an option needs"},
        {group + row + u"B|b;v|\uFFFD;<INDEX>\nend"_s, "line 4: bytes that are no text"},
        {u"\n"_s.repeated(42) + u"end"_s, "line 42: more than 41 groups"},
        {group + row.repeated(82) + u"end"_s, "line 84: more than 81 options"},
        {group + u"A|a;"_s + values.repeated(101) + u"v;<INDEX>\nend"_s, "line 3: more than 101"},
        {group + u"A|rate;0;<TEXT>\nB|b;0;<TEXT>\nC|rate;0;<TEXT>\nend"_s,
         "line 5: the key \"rate\" stands twice"},
    };
    for (const Case& c : cases) {
        const std::string error = ErrorOf(c.text);
        EXPECT_NE(error.find(c.error), std::string::npos) << error;
        EXPECT_EQ(error.rfind("option.dat", 0), 0U) << error;
    }
    // Just within the bounds.
    EXPECT_EQ(Parsed(u"\n"_s.repeated(41) + u"end"_s).GroupCaption.size(), 41);
    EXPECT_EQ(Parsed(group + row.repeated(81) + u"end"_s).Key({0, 80}), u"a"_s);
    const QString longest = group + u"A|a;"_s + values.repeated(100) + u"last;<INDEX>\nend"_s;
    EXPECT_EQ(Parsed(longest).ValueText({0, 0}, 100), u"last"_s);
}

TEST(OptionTableTest, ReadsCodePage949AndTellsWhatIsMissing)
{
    const test::TestFolder folder;
    folder.WriteText(
        u"option.dat"_s, u"\r\n@T화면\r\n전체 화면|fullscreen;false|true;<INDEX>\r\nend"_s);
    const auto table = dosboxconf::ReadOptionTable(folder.Path(u"option.dat"_s));
    ASSERT_TRUE(table);
    EXPECT_EQ(table.Value().GroupCaption, QStringList{u"화면"_s});
    EXPECT_EQ(table.Value().Title({0, 0}), u"전체 화면"_s);

    const auto missing = dosboxconf::ReadOptionTable(folder.Path(u"none.dat"_s));
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.Failure().kind, platform::ErrorKind::NotFound);
    EXPECT_EQ(
        missing.Failure().text, folder.Path(u"none.dat"_s) + u": line 1: the file is missing"_s);
}

TEST(OptionTableTest, AnIndexOffTheListHasNoText)
{
    const OptionGrid grid = Parsed(u"\n@Tg\nA|a;x|y;<INDEX>\nend"_s);
    for (const int index : {-1, 2, 100, 101, 2147483647}) {
        EXPECT_TRUE(grid.ValueText({0, 0}, index).isEmpty()) << index;
    }
    EXPECT_TRUE(grid.ValueText({40, 80}, 0).isEmpty());
}

} // namespace
