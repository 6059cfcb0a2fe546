#include "platform/DesktopShellVerbs.h"

#include "support/FakeProcesses.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin::platform;
using pelorin::test::FakeProcesses;
using pelorin::test::TestFolder;

namespace {

TEST(DesktopShellVerbsTest, OpensPathsAsTheyAreAndAddressesOfTheWebOnly)
{
    const TestFolder folder(u"게임 #1 50%41"_s);
    folder.WriteScript(u"bin/xdg-open"_s, QString());
    folder.WriteRaw(u"docs/Read me.txt"_s, "text");
    FakeProcesses processes;
    DesktopShellVerbs shell(processes, {folder.Path(u"bin"_s)});

    ASSERT_TRUE(shell.Open(folder.Path(u"docs"_s)));
    ASSERT_TRUE(shell.Open(folder.Path(u"docs/Read me.txt"_s)));
    ASSERT_TRUE(shell.OpenUrl(u"https://example.org/스타?a=1&b=2#c"_s));
    const QString opener = folder.Path(u"bin/xdg-open"_s) + u' ';
    EXPECT_EQ(
        processes.CommandLines(),
        (QStringList{
            opener + folder.Path(u"docs"_s),
            opener + folder.Path(u"docs/Read me.txt"_s),
            opener + u"https://example.org/%EC%8A%A4%ED%83%80?a=1&b=2#c"_s}));
    EXPECT_EQ(processes.Starts()[1].request.workingFolder, folder.Path(u"docs"_s));

    EXPECT_EQ(shell.Open(folder.Path(u"none"_s)).Failure().kind, ErrorKind::NotFound);
    EXPECT_EQ(shell.Open(u"docs"_s).Failure().kind, ErrorKind::NotFound);
    for (const QString& url :
         {u"file:///etc/passwd"_s,
          u"/etc/passwd"_s,
          u"javascript:alert(1)"_s,
          u"http://"_s,
          u"--help"_s,
          QString()}) {
        EXPECT_EQ(shell.OpenUrl(url).Failure().kind, ErrorKind::Refused) << url.toStdString();
    }
    EXPECT_EQ(processes.Starts().size(), 3U);

    processes.RefuseNext(ErrorKind::Refused, u"no"_s);
    EXPECT_FALSE(shell.Open(folder.Path(u"docs"_s)));
    const Done without = DesktopShellVerbs(processes, {}).Open(folder.Path(u"docs"_s));
    ASSERT_FALSE(without);
    EXPECT_TRUE(without.Failure().text.contains(u"xdg-open"));
}

} // namespace
