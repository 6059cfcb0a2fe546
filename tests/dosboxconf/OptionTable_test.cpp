#include "dosboxconf/OptionTable.h"

#include "support/TestFolder.h"

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::test;
using dosboxconf::OptionGrid;
using dosboxconf::OptionKind;
using dosboxconf::ParseOptionTable;

namespace {

OptionGrid Parsed(const QString& text)
{
    auto table = ParseOptionTable(text, u"option.dat"_s);
    EXPECT_TRUE(table) << ErrorOf(table);
    return table.ValueOr(OptionGrid());
}

TEST(OptionTableTest, TakesFieldsNotLines)
{
    const OptionGrid grid = Parsed(u"\n@TOne`two\n"
                                   "A|a;x|y`z;<INDEX>,  B`B|b`b;0;<TEXT>\n"
                                   "\"C, quoted|c;p,q|r;<NONE>\" is over,D|d|more;|x;<ODD>;e\n"
                                   "end,\nnever;read\n"_s);
    EXPECT_EQ(grid.GroupCaption, QStringList{u"One,two"_s});
    EXPECT_EQ(grid.Title({0, 0}), u"A"_s);
    EXPECT_EQ(grid.Values({0, 0}), Words(u"x y,z"_s));
    EXPECT_EQ(grid.Title({0, 1}), u"B`B"_s) << "a comma in captions and values only";
    EXPECT_EQ(grid.Key({0, 1}), u"b`b"_s);
    EXPECT_EQ(grid.Values({0, 1}), QStringList{u"0"_s});
    EXPECT_EQ(grid.Title({0, 2}), u"C, quoted"_s);
    EXPECT_EQ(grid.Values({0, 2}), Words(u"p,q r"_s));
    EXPECT_EQ(grid.Key({0, 3}), u"d"_s);
    EXPECT_EQ(grid.Values({0, 3}), QStringList{u"|x"_s});
    EXPECT_EQ(grid.Kind({0, 3}), OptionKind::Other);
    EXPECT_TRUE(grid.Key({0, 4}).isEmpty());
    for (const int index : {-1, 2, 100, 101, 2147483647}) {
        EXPECT_TRUE(grid.ValueText({0, 0}, index).isEmpty()) << index;
    }
    EXPECT_TRUE(grid.ValueText({40, 80}, 0).isEmpty());
    EXPECT_EQ(Parsed(u"\n@Tg\nt|k;v`v;<INDEX>\nend"_s).ValueText({0, 0}, 0), u"v,v"_s);
}

TEST(OptionTableTest, AnEmptyFieldOpensAGroupAndTheCaptionRestartsItsItems)
{
    const OptionGrid grid = Parsed(u"\n@Tfirst\nA|a;0;<TEXT>\nB|b;0;<TEXT>\n"
                                   "\n"
                                   "C|c;0;<TEXT>\n" // no caption yet: goes on counting
                                   "@Tsecond\nD|d;0;<TEXT>\n"
                                   "   \n\nend"_s);
    EXPECT_EQ(grid.GroupCaption, Words(u"first second temp temp"_s));
    EXPECT_EQ(grid.Key({1, 2}), u"c"_s);
    EXPECT_EQ(grid.Key({1, 0}), u"d"_s);
}

TEST(OptionTableTest, AFaultNamesTheFileTheLineAndTheReason)
{
    const QString group = u"\n@Tg\n"_s;
    const QString row = u"A|a;0;<TEXT>\n"_s;
    const QString values = u"v|"_s;
    const std::pair<QString, QString> cases[] = {
        {u"@Tg\nend"_s, u"line 1: a caption before the first group"_s},
        {u"A|a;0;<TEXT>\nend"_s, u"line 1: an option before the first group"_s},
        {group + u"A|a;0\nend"_s, u"line 3: an option needs title|key;values;kind"_s},
        {group + u"A;0;<TEXT>\nend"_s, u"line 3: no \"|\" between title and key"_s},
        {group + row, u"line 3: the file has no \"end\""_s},
        {QString(), u"line 1: the file has no \"end\""_s},
        {group + u"END"_s, u"line 3: an option needs"_s},
        {group + row + u"B|b;v|\uFFFD;<INDEX>\nend"_s, u"line 4: bytes that are no text"_s},
        {u"\n"_s.repeated(42) + u"end"_s, u"line 42: more than 41 groups"_s},
        {group + row.repeated(82) + u"end"_s, u"line 84: more than 81 options"_s},
        {group + u"A|a;"_s + values.repeated(101) + u"v;<INDEX>\nend"_s,
         u"line 3: more than 101"_s},
        {group + u"A|rate;0;<TEXT>\nB|b;0;<TEXT>\nC|rate;0;<TEXT>\nend"_s,
         u"line 5: the key \"rate\" stands twice"_s},
    };
    for (const auto& [text, fault] : cases) {
        const QString error = ErrorOf(ParseOptionTable(text, u"option.dat"_s));
        EXPECT_TRUE(error.startsWith(u"option.dat: "_s + fault)) << error;
    }
    // Just within the bounds.
    EXPECT_EQ(Parsed(u"\n"_s.repeated(41) + u"end"_s).GroupCaption.size(), 41);
    EXPECT_EQ(Parsed(group + row.repeated(81) + u"end"_s).Key({0, 80}), u"a"_s);
    const QString longest = group + u"A|a;"_s + values.repeated(100) + u"last;<INDEX>\nend"_s;
    EXPECT_EQ(Parsed(longest).ValueText({0, 0}, 100), u"last"_s);

    const TestFolder folder;
    const auto missing = dosboxconf::ReadOptionTable(folder.Path(u"none"_s));
    EXPECT_EQ(KindOf(missing), platform::ErrorKind::NotFound);
    EXPECT_EQ(ErrorOf(missing), folder.Path(u"none"_s) + u": line 1: the file is missing"_s);
}

} // namespace
