#include "support/TestFolder.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

using namespace Qt::StringLiterals;
using namespace pelorin::test;

namespace {

/// Runs stagetext in the folder, so that paths may be relative; its status and what it complained.
QString Stage(const TestFolder& folder, const QString& arguments)
{
    QProcess process;
    process.setWorkingDirectory(folder.Path());
    process.start(QStringLiteral(PELORIN_STAGETEXT), Words(arguments));
    EXPECT_TRUE(process.waitForFinished());
    const QString complaint = QString::fromUtf8(process.readAllStandardError());
    return QString::number(process.exitCode()) + u' ' + complaint.section(u'\n', 0, 0);
}

TEST(StageText, WritesCodePage949WithCrLfAndLeavesAnEqualFileAlone)
{
    const TestFolder folder;
    folder.WriteRaw(u"ko"_s, "펠로린 \n\n뷁\\n\x01\r\nend");
    EXPECT_EQ(Stage(folder, u"ko a/b/dest"_s), u"0 "_s);
    EXPECT_EQ(
        folder.ReadRaw(u"a/b/dest"_s), "\xc6\xe7\xb7\xce\xb8\xb0 \r\n\r\n\x94\xee\\n\x01\r\nend");
    EXPECT_EQ(Stage(folder, u"--lf ko lf"_s), u"0 "_s);
    EXPECT_EQ(folder.ReadRaw(u"lf"_s), "\xc6\xe7\xb7\xce\xb8\xb0 \n\n\x94\xee\\n\x01\nend");

    const QDateTime then = QDateTime::fromSecsSinceEpoch(800000000);
    QFile dest(folder.Path(u"a/b/dest"_s));
    ASSERT_TRUE(dest.open(QIODevice::ReadWrite));
    ASSERT_TRUE(dest.setFileTime(then, QFileDevice::FileModificationTime));
    dest.close();
    EXPECT_EQ(Stage(folder, u"ko a/b/dest"_s), u"0 "_s);
    EXPECT_EQ(QFileInfo(dest).lastModified(), then);
    folder.WriteRaw(u"ko"_s, "new\n");
    EXPECT_EQ(Stage(folder, u"ko a/b/dest"_s), u"0 "_s);
    EXPECT_EQ(folder.ReadRaw(u"a/b/dest"_s), "new\r\n");
}

TEST(StageText, TellsWhatIsWrongAndWritesNothing)
{
    struct Case {
        QByteArray source;
        QString arguments;
        QString told;
    };
    const QString plain = u"source new/dest"_s;
    const Case cases[] = {
        {"ok\n가é\n₩", plain, u"1 stagetext: source:2: code page 949 has no \"é\""_s},
        {"😀é😀", plain, u"1 stagetext: source:1: code page 949 has no \"😀é\""_s},
        {"ok\n\xb0\xa1\n", plain, u"1 stagetext: source:2: not UTF-8"_s},
        {"text", u"source"_s, u"2 "_s},
        {"text", u"none dest"_s, u"1 "_s},
        {"text", u"source source/x/dest"_s, u"1 "_s},
    };
    for (const Case& one : cases) {
        const TestFolder folder;
        folder.WriteRaw(u"source"_s, one.source);
        const QString told = Stage(folder, one.arguments);
        EXPECT_TRUE(told.startsWith(one.told)) << told << one.arguments;
        EXPECT_EQ(folder.TreeText(), u"source"_s);
    }
}

} // namespace
