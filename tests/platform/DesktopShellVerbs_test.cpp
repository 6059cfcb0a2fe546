#include "platform/DesktopShellVerbs.h"

#include "support/FakeProcesses.h"
#include "support/TestFolder.h"

using namespace Qt::StringLiterals;
using namespace pelorin::platform;
using namespace pelorin::test;

namespace {

TEST(DesktopShellVerbsTest, OpensPathsAsTheyAreAndAddressesOfTheWebOnly)
{
    const TestFolder folder(u"게임 #1 50%41"_s);
    folder.WriteScript(u"bin/xdg-open"_s, QString());
    folder.WriteRaw(u"docs/Read me.txt"_s, "text");
    FakeProcesses processes;
    DesktopShellVerbs shell(processes, {folder.Path(u"bin"_s)});

    const auto started = [&] { return processes.CommandLines().last().section(u"xdg-open "_s, 1); };
    for (const QString& path : {folder.Path(u"docs"_s), folder.Path(u"docs/Read me.txt"_s)}) {
        ASSERT_TRUE(shell.Open(path));
        EXPECT_EQ(started(), path);
        EXPECT_EQ(processes.Starts().back().request.workingFolder, folder.Path(u"docs"_s));
    }
    ASSERT_TRUE(shell.OpenUrl(u"https://example.org/스타?a=1&b=2#c"_s));
    EXPECT_EQ(started(), u"https://example.org/%EC%8A%A4%ED%83%80?a=1&b=2#c"_s);

    EXPECT_EQ(KindOf(shell.Open(folder.Path(u"none"_s))), ErrorKind::NotFound);
    EXPECT_EQ(KindOf(shell.Open(u"docs"_s)), ErrorKind::NotFound);
    QStringList refused =
        Words(u"file:///etc/passwd /etc/passwd javascript:alert(1) http:// --help"_s);
    refused << QString();
    for (const QString& url : refused) {
        EXPECT_EQ(KindOf(shell.OpenUrl(url)), ErrorKind::Refused) << url;
    }
    EXPECT_EQ(processes.Starts().size(), 3U);

    QStringList failures;
    shell.failed = [&](const Error& failure, const QString& output) {
        failures << failure.text + u" / "_s + output;
    };
    processes.End(0, 10, "done");
    processes.End(1, 10, "gio: no application\n", 4);
    EXPECT_EQ(
        failures,
        QStringList{
            folder.Path(u"docs/Read me.txt"_s) +
            u": no program could open it. / gio: no application"_s});

    processes.RefuseNext(ErrorKind::Refused, u"no"_s);
    EXPECT_FALSE(shell.Open(folder.Path(u"docs"_s)));
    const Done without = DesktopShellVerbs(processes, {}).Open(folder.Path(u"docs"_s));
    EXPECT_TRUE(ErrorOf(without).contains(u"xdg-open"));
}

} // namespace
