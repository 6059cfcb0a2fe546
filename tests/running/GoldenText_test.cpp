#include "dosboxconf/ConfCompose.h"
#include "dosboxconf/OptionTable.h"
#include "running/GuestWindows.h"
#include "running/RunPlan.h"
#include "support/TestFolder.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using dosboxconf::OptionGrid;
using platform::PathForm;
using running::RunMode;
using test::Words;

namespace {

QStringList Strings(const QJsonValue& array)
{
    QStringList strings;
    const QJsonArray values = array.toArray();
    for (const auto& value : values) {
        strings << value.toString();
    }
    return strings;
}

RunMode ModeOf(const QString& name)
{
    // In the order of RunMode.
    const qsizetype at = Words(u"RunGame RunDosPrompt RunNetHost RunNetClient RunLibraryShell "
                               "RunFileWithArgs"_s)
                             .indexOf(name);
    EXPECT_GE(at, 0) << name;
    return static_cast<RunMode>(at);
}

running::RunRequest RequestOf(const QJsonObject& row)
{
    running::RunRequest request;
    request.mode = ModeOf(row[u"mode"_s].toString());
    request.folder = row[u"folder"_s].toString();
    request.title = row[u"title"_s].toString();
    request.startCommands = Strings(row[u"commands"_s]);
    request.ipxAddress = row[u"address"_s].toString();
    request.typedLine = row[u"typed"_s].toString();
    request.serverPort = row[u"port"_s].toInt();
    request.cd = dosboxconf::CdChoice{
        row[u"chkCD"_s].toBool(),
        row[u"chkMountCD"_s].toBool(),
        Strings(row[u"lstCD"_s]),
        row[u"CdMountMode"_s].toInt()};
    return request;
}

void SetByKey(OptionGrid& grid, const QJsonObject& sets)
{
    grid.OptionSelection.fill(0);
    for (std::size_t at = 0; at < grid.OptionKey.size(); ++at) {
        if (!grid.OptionKey[at].isEmpty()) {
            grid.OptionSelection[at] = sets[grid.OptionKey[at]].toInt(0);
        }
    }
}

/// Runs the other composer, which makes an installation below the folder and tells what each start
/// has to look like.
QJsonObject RunOtherComposer(const QString& root)
{
    QProcess python;
    python.start(
        QString::fromUtf8(PELORIN_PYTHON),
        {QString::fromUtf8(PELORIN_SOURCE_DIR) + u"/tests/golden/compose.py"_s, root});
    EXPECT_TRUE(python.waitForFinished(60'000));
    EXPECT_EQ(python.exitCode(), 0) << python.readAllStandardError().toStdString();
    QFile file(root + u"/expected.json"_s);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QJsonDocument::fromJson(file.readAll()).object();
}

/// Where two texts part, for a message that can be read.
std::string Around(const QByteArray& bytes, const QByteArray& other)
{
    qsizetype at = 0;
    while (at < bytes.size() && at < other.size() && bytes[at] == other[at]) {
        ++at;
    }
    return bytes.mid(std::max<qsizetype>(0, at - 80), 160).toStdString();
}

void ExpectSame(const QByteArray& ours, const QJsonValue& base64)
{
    const QByteArray theirs = QByteArray::fromBase64(base64.toString().toLatin1());
    EXPECT_TRUE(ours == theirs) << "ours:   ..." << Around(ours, theirs) << "\ntheirs: ..."
                                << Around(theirs, ours);
}

TEST(GoldenTextTest, EveryStartEqualsTheOtherComposersByteForByte)
{
    const test::TestFolder folder;
    const QJsonObject expected = RunOtherComposer(folder.Path());
    const shell::Places places{
        expected[u"appDir"_s].toString(),
        expected[u"gamesRoot"_s].toString(),
        expected[u"exportRoot"_s].toString()};
    auto table = dosboxconf::ReadOptionTable(places.InAppDir(u"option.dat"_s));
    ASSERT_TRUE(table) << table.Failure().text.toStdString();
    OptionGrid& grid = table.Value();
    const QJsonArray rows = expected[u"rows"_s].toArray();
    ASSERT_EQ(rows.size(), 20 * 3 * 6 * 6); // builds, log, CDs, modes

    for (const auto& value : rows) {
        const QJsonObject row = value.toObject();
        const QString build = row[u"build"_s].toString();
        SCOPED_TRACE(u"%1, %2, CD: %3, log %4"_s
                         .arg(build, row[u"mode"_s].toString(), row[u"cd"_s].toString())
                         .arg(row[u"sets"_s].toObject()[u"log"_s].toInt()));
        const running::RunRequest request = RequestOf(row);
        SetByKey(grid, row[u"sets"_s].toObject());
        const dosboxconf::ConfText composed = dosboxconf::ComposeDosboxConf(
            dosboxconf::LoadRunFacts(places, running::ConfRequestOf(request, build)), grid);
        EXPECT_EQ(composed.glideOn, row[u"glide"_s].toBool());

        running::RunEnding ending;
        ending.mode = request.mode;
        ending.startCommands = request.startCommands;
        ending.typedLine = request.typedLine;
        ending.addkey = row[u"addkey"_s].toBool();
        if (running::BranchOf(request.mode, build, request.startCommands.size()) ==
            running::RunBranch::GuestWindows) {
            ending.guestLines = running::GuestWindowsLines(request, build, places);
        }
        const bool whole = row[u"finished"_s].toBool(); // guests run no single files
        const platform::HostText text =
            whole ? running::FinishRunText(composed.text, ending) : composed.text;
        ExpectSame(text.Print(PathForm::Windows), row[u"windows"_s]);
        ExpectSame(text.Print(PathForm::Posix), row[u"posix"_s]);
        if (HasFailure()) {
            return; // one text says enough
        }
    }
}

} // namespace
