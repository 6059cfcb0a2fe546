#include "dosboxconf/AutoexecFile.h"

#include "support/TestFolder.h"

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::dosboxconf;
using namespace pelorin::test;

namespace {

TEST(AutoexecFileTest, KeepsLinesThatAreNotEmptyAndTheOldFileWhenItCant)
{
    const TestFolder folder;
    const shell::Places places{folder.Path(), folder.Path(), folder.Path()};
    EXPECT_TRUE(ReadAutoexecConf(places, u"Star"_s).Value().isEmpty()) << "no file";
    const QString file = u"Star/dosbox/AUTOEXEC.CONF"_s;
    folder.WriteRaw(file, "\r\nplay.bat\r\n\r\n \ngo.exe -x");
    EXPECT_EQ(
        ReadAutoexecConf(places, u"Star"_s).Value(),
        (QStringList{u"play.bat"_s, u" "_s, u"go.exe -x"_s}));
    ASSERT_TRUE(WriteAutoexecConf(places, u"Star"_s, {u""_s, u"시작.bat"_s, u""_s, u"b"_s}));
    EXPECT_EQ(folder.ReadText(file), u"시작.bat\r\nb\r\n"_s);

    const auto done = WriteAutoexecConf(places, u"Star"_s, {u"a"_s, u"żółw.bat"_s});
    EXPECT_EQ(KindOf(done), platform::ErrorKind::Unencodable);
    EXPECT_EQ(folder.ReadText(file), u"시작.bat\r\nb\r\n"_s);
    for (const QString& name : {u"Gone"_s, u""_s}) {
        EXPECT_FALSE(WriteAutoexecConf(places, name, {u"a"_s}));
    }
    EXPECT_EQ(folder.Tree().size(), 3) << "no folder is made for what is no game";

    folder.MakeAll(u"Bare/GO.EXE"_s);
    ASSERT_TRUE(WriteAutoexecConf(places, u"Bare"_s, {u"go"_s}));
    EXPECT_EQ(folder.ReadRaw(u"Bare/DosBox/autoexec.conf"_s), "go\r\n");
}

} // namespace
