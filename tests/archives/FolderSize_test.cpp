#include "archives/FolderSize.h"

#include "support/DiskTroubles.h"
#include "support/TestFolder.h"

using namespace Qt::StringLiterals;
using namespace pelorin;
using archives::FolderSize;
using test::TestFolder;

namespace {

TEST(FolderSizeTest, CountsFilesAndFollowsNoLink)
{
    const TestFolder folder;
    folder.WriteRaw(u"game/a"_s, "12345");
    folder.WriteRaw(u"game/.hidden/b"_s, "123");
    folder.WriteRaw(u"elsewhere/huge"_s, QByteArray(100'000, 'x'));
    folder.MakeLink(u"game/link"_s, u"../elsewhere"_s);
    folder.MakeLink(u"game/loop"_s, u"."_s);
    FolderSize size;
    const auto goOn = [] { return true; };
    archives::AddFolderSize(size, folder.Path(u"game"_s), goOn);
    EXPECT_EQ(size, (FolderSize{4, 8, true}));
    archives::AddFolderSize(size, folder.Path(u"gone"_s), goOn);
    EXPECT_EQ(size, (FolderSize{4, 8, true}));
    archives::AddFolderSize(size, folder.Path(u"elsewhere"_s), goOn);
    EXPECT_EQ(size, (FolderSize{5, 100'008, true}));
}

TEST(FolderSizeTest, StopsWhenAskedAndSaysThatThereIsMore)
{
    const TestFolder folder;
    for (int i = 0; i < 20; ++i) {
        folder.WriteRaw(u"game/%1"_s.arg(i), "1");
    }
    int calls = 0;
    FolderSize size;
    archives::AddFolderSize(size, folder.Path(u"game"_s), [&] { return ++calls < 5; });
    EXPECT_EQ(size, (FolderSize{3, 3, false}));
}

TEST(FolderSizeTest, AFolderThatCantBeReadLeavesTheRest)
{
    const TestFolder folder;
    folder.WriteRaw(u"closed/sub/a"_s, "1");
    folder.WriteRaw(u"open/b"_s, "12");
    const test::OrdinaryUser user(folder);
    test::SetMode(folder.Path(u"closed/sub"_s), 0);
    FolderSize size;
    for (const QString& name : {u"closed"_s, u"open"_s}) {
        archives::AddFolderSize(size, folder.Path(name), [] { return true; });
    }
    test::SetMode(folder.Path(u"closed/sub"_s), 0700);
    EXPECT_EQ(size, (FolderSize{1, 2, false}));
}

} // namespace
