#include "support/TestFolder.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using pelorin::test::TestFolder;

namespace {

struct Ended {
    int status = -1;
    QString complaint;
};

/// Runs stagetext in the folder, so that paths may be relative.
Ended Stage(const TestFolder& folder, const QStringList& arguments)
{
    QProcess process;
    process.setWorkingDirectory(folder.Path());
    process.start(QStringLiteral(PELORIN_STAGETEXT), arguments);
    EXPECT_TRUE(process.waitForFinished());
    return Ended{process.exitCode(), QString::fromUtf8(process.readAllStandardError())};
}

TEST(StageText, WritesCodePage949WithCrLf)
{
    const TestFolder folder;
    folder.WriteRaw(u"ko"_s, "펠로린 \n\n뷁\\n\x01\r\nend");
    EXPECT_EQ(Stage(folder, {u"ko"_s, u"a/b/Language.dat"_s}).status, 0);
    EXPECT_EQ(
        folder.ReadRaw(u"a/b/Language.dat"_s),
        "\xc6\xe7\xb7\xce\xb8\xb0 \r\n\r\n\x94\xee\\n\x01\r\nend");
    EXPECT_EQ(Stage(folder, {u"--lf"_s, u"ko"_s, u"lf"_s}).status, 0);
    EXPECT_EQ(folder.ReadRaw(u"lf"_s), "\xc6\xe7\xb7\xce\xb8\xb0 \n\n\x94\xee\\n\x01\nend");
}

TEST(StageText, LeavesAnEqualFileAlone)
{
    const TestFolder folder;
    folder.WriteRaw(u"source"_s, "text\n");
    folder.WriteRaw(u"dest"_s, "text\r\n");
    const QDateTime then = QDateTime::fromSecsSinceEpoch(800000000);
    {
        QFile dest(folder.Path(u"dest"_s));
        ASSERT_TRUE(dest.open(QIODevice::ReadWrite));
        ASSERT_TRUE(dest.setFileTime(then, QFileDevice::FileModificationTime));
    }
    EXPECT_EQ(Stage(folder, {u"source"_s, u"dest"_s}).status, 0);
    EXPECT_EQ(QFileInfo(folder.Path(u"dest"_s)).lastModified(), then);
    folder.WriteRaw(u"source"_s, "new\n");
    EXPECT_EQ(Stage(folder, {u"source"_s, u"dest"_s}).status, 0);
    EXPECT_EQ(folder.ReadRaw(u"dest"_s), "new\r\n");
}

TEST(StageText, NamesLineAndCharacters)
{
    struct Case {
        QByteArray source;
        QString complaint;
    };
    const Case cases[] = {
        {"ok\n가é\n₩", u"stagetext: source:2: code page 949 has no \"é\"\n"_s},
        {"😀é😀", u"stagetext: source:1: code page 949 has no \"😀é\"\n"_s},
        {"ok\n\xb0\xa1\n", u"stagetext: source:2: not UTF-8\n"_s},
    };
    for (const Case& one : cases) {
        const TestFolder folder;
        folder.WriteRaw(u"source"_s, one.source);
        const Ended ended = Stage(folder, {u"source"_s, u"new/dest"_s});
        EXPECT_EQ(ended.status, 1);
        EXPECT_EQ(ended.complaint.toStdString(), one.complaint.toStdString());
        EXPECT_EQ(folder.Tree(), QStringList{u"source"_s});
    }
}

TEST(StageText, TellsHowItIsCalledAndWhatCantBeReadOrMade)
{
    const TestFolder folder;
    folder.WriteRaw(u"source"_s, "text");
    EXPECT_EQ(Stage(folder, {u"source"_s}).status, 2);
    EXPECT_EQ(Stage(folder, {u"none"_s, u"dest"_s}).status, 1);
    EXPECT_EQ(Stage(folder, {u"source"_s, u"source/x/dest"_s}).status, 1);
    EXPECT_EQ(folder.Tree(), QStringList{u"source"_s});
}

} // namespace
