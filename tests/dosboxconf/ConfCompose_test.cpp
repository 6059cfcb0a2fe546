#include "dosboxconf/ConfCompose.h"

#include "dosboxconf/OptionTable.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using dosboxconf::ConfRequest;
using dosboxconf::ConfText;
using dosboxconf::OptionGrid;
using dosboxconf::RunFacts;
using platform::PathForm;

namespace {

RunFacts Facts(const QString& build)
{
    const platform::HostPath games{u"D:\\Games"_s, u"/srv/games"_s};
    RunFacts facts;
    facts.request.build = build;
    facts.safeTitle = u"Star"_s;
    facts.gamesRoot = games;
    facts.gameDir = games.Below(u"Star 7"_s);
    facts.metaDir = facts.gameDir.Below(u"dosbox"_s, u"DosBox"_s);
    facts.cdFolder = facts.metaDir.Below(u"CD"_s);
    facts.ownMapper = facts.metaDir.Below(u"mapper.txt"_s);
    facts.mapperFolder = platform::HostPath{u"D:\\App\\mapper"_s, u"/srv/app/mapper"_s};
    facts.exportRoot = platform::HostPath{u"D:\\Export"_s, u"/srv/export"_s};
    facts.utilities = platform::HostPath{u"..\\..\\Dos\\Util"_s, u"../../Dos/Util"_s};
    facts.gravis = platform::HostPath{u"..\\..\\DOS\\GUS"_s, u"../../Dos/GUS"_s};
    return facts;
}

OptionGrid Grid(const QString& rows)
{
    auto table =
        dosboxconf::ParseOptionTable(u"\n@Tlauncher\n\n"_s + rows + u"\nend"_s, u"table"_s);
    EXPECT_TRUE(table);
    return table.ValueOr(OptionGrid());
}

QByteArray WindowsText(const RunFacts& facts, const OptionGrid& grid)
{
    return ComposeDosboxConf(facts, grid).text.Print(PathForm::Windows);
}

/// What stands before the blank lines of the groups that are not used.
QByteArray Sections(const RunFacts& facts, const OptionGrid& grid)
{
    const QByteArray text = WindowsText(facts, grid);
    return text.left(text.indexOf("\r\n\r\n\r\n"));
}

QByteArray BehindTheDrive(const RunFacts& facts)
{
    const QByteArray text = WindowsText(facts, OptionGrid());
    const QByteArray last = "SET PROPATS=Y:\\PPL161\r\n";
    return text.mid(text.indexOf(last) + last.size());
}

TEST(ConfComposeTest, AnEmptyTableGivesABlankLineAGroupAndTheEnvironment)
{
    const QByteArray expected = QByteArray("\r\n").repeated(40) +
                                "[ipx]\r\n"
                                "ipx=false\r\n"
                                "\r\n"
                                "[autoexec]\r\n"
                                "SET SOUND=X:\\SB16\r\n"
                                "SET MIDI=SYNTH:1 MAP:E\r\n"
                                "SET GAMEROOT=D:\\Games\\Star 7\r\n"
                                "Mount x ..\\..\\Dos\\Util\r\n"
                                "PATH X:\\MDIR;Y:\\ULTRASND;Z:\\\r\n"
                                "X:\\SB16\\DIAGNOSE /S\r\n"
                                "X:\\SB16\\MIXERSET /P /Q\r\n"
                                "MIXER \r\n"
                                "Mount c \"D:\\Games\\Star 7\"\r\n"
                                "Mount Y ..\\..\\DOS\\GUS\r\n"
                                "SET PROPATS=Y:\\PPL161\r\n"
                                "c:";
    EXPECT_EQ(WindowsText(Facts(u"0.74"_s), OptionGrid()), expected);

    RunFacts shell = Facts(u"0.74"_s);
    shell.request.mountRoot = true;
    EXPECT_TRUE(WindowsText(shell, OptionGrid()).contains("\r\nMount c \"D:\\Games\r\nMount Y "));
}

TEST(ConfComposeTest, EachKindWritesItsLine)
{
    OptionGrid grid = Grid(u"@Tall\n"
                           "1|index;a|b;<INDEX>\n"
                           "2|capture;-;<CAPTURE>\n"
                           "3|doc;-;<DOCPATH>\n"
                           "4|none;first|second;<NONE>\n"
                           "5|text;0;<TEXT>\n"
                           "6|logfile;-;<LOGFILE>\n"
                           "7|ultra;Y:\\ULTRASND;<GUSULTRA>\n"
                           "8|own;x|mapper_user.txt;<MAPPER>\n"
                           "9|shared;x|mapper_user.txt;<MAPPER>\n"
                           "10|save;-;<SAVEPATH>\n"
                           "11|odd;-;<ODD>\n"
                           "12|off;a|b;<INDEX>"_s);
    grid.OptionSelection[OptionGrid::Index({1, 0})] = 1;
    grid.OptionSelection[OptionGrid::Index({1, 3})] = 1;
    grid.OptionSelection[OptionGrid::Index({1, 4})] = -20;
    grid.OptionSelection[OptionGrid::Index({1, 7})] = 1;
    grid.OptionSelection[OptionGrid::Index({1, 11})] = 100;
    EXPECT_EQ(
        Sections(Facts(u"0.74"_s), grid),
        "[all]\r\n"
        "index=b\r\n"
        "capture=D:\\Games\\Star 7\\dosbox\r\n"
        "doc=D:\\Games\\Star 7\\dosbox\r\n"
        "none=first\r\n"
        "text=-20\r\n"
        "logfile=D:\\Export\\Star.txt\r\n"
        "ultra = Y:\\ULTRASND\r\n"
        "own=D:\\Games\\Star 7\\dosbox\\mapper.txt\r\n"
        "shared=D:\\App\\mapper\\x\r\n"
        "off=");
}

TEST(ConfComposeTest, LoggingForcesWaitonerrorInWhatStandsBeforeIt)
{
    OptionGrid grid = Grid(u"@Tsdl\nW|waitonerror;false|true;<INDEX>\n"
                           "\n@Tlog\nL|log;false|true|all;<INDEX>\nF|logfile;-;<LOGFILE>\n"
                           "V|vga;0;<TEXT>\n"
                           "\n@Tlast\nW|waitonerror2;0;<TEXT>"_s);
    EXPECT_EQ(
        Sections(Facts(u"0.74"_s), grid),
        "[sdl]\r\nwaitonerror=false\r\n\r\n[log]\r\nvga=0\r\n\r\n[last]\r\nwaitonerror2=0");
    for (const int on : {1, 2, 50}) {
        grid.OptionSelection[OptionGrid::Index(dosboxconf::kLogCell)] = on;
        EXPECT_EQ(
            Sections(Facts(u"0.74"_s), grid),
            "[sdl]\r\nwaitonerror=true\r\n\r\n[log]\r\nlogfile=D:\\Export\\Star.txt\r\n"
            "vga=0\r\n\r\n[last]\r\nwaitonerror2=0");
        EXPECT_EQ(grid.Selected({1, 0}), 0) << "the setting itself stays";
    }
}

TEST(ConfComposeTest, VolumesGoToTheMixerLineAndLeaveTheHeader)
{
    const OptionGrid grid =
        Grid(u"@Tvolumes\nM|MASTER;90:90;<INDEX>\nS|SPKR;1:1;<INDEX>\nR|MT32;70:70;<INDEX>\n"
             "\n@Tglide\nG|glide;true;<INDEX>"_s);
    const ConfText composed = ComposeDosboxConf(Facts(u"0.74"_s), grid);
    EXPECT_EQ(composed.mixerLine, u"MIXER MASTER 90:90 SPKR 1:1 MT32 70:70"_s);
    EXPECT_TRUE(composed.glideOn);
    const QByteArray text = composed.text.Print(PathForm::Windows);
    EXPECT_TRUE(text.startsWith("[volumes]\r\n\r\n[glide]\r\n\r\n"));
    EXPECT_TRUE(text.contains("/Q\r\nMIXER MASTER 90:90 SPKR 1:1 MT32 70:70\r\nMount c"));
}

TEST(ConfComposeTest, CyclesFollowTheSelectionButForWindows98)
{
    OptionGrid grid = Grid(u"@Tcpu\nC|cycles;-;<CPUCYCLE>"_s);
    struct Case {
        const char* build;
        int selected;
        QByteArray text;
    };
    const Case cases[] = {
        {"0.74", -1, "[cpu]"},
        {"0.74", 0, "[cpu]"},
        {"0.74", 1, "[cpu]\r\ncycles=max"},
        {"0.74", 2, "[cpu]\r\ncycles=auto"},
        {"0.74", 3, "[cpu]\r\ncycles=3"},
        {"0.74", 12000, "[cpu]\r\ncycles=12000"},
        {"Win98", 0, "[cpu]\r\ncycles=max 105%"},
        {"Win98", 12000, "[cpu]\r\ncycles=max 105%"},
        {"Win98_LCD", 12000, "[cpu]\r\ncycles=12000"},
        {"Win31KOR", 0, "[cpu]"},
    };
    for (const Case& c : cases) {
        grid.OptionSelection[OptionGrid::Index({1, 0})] = c.selected;
        EXPECT_EQ(Sections(Facts(QString::fromLatin1(c.build)), grid), c.text)
            << c.build << ' ' << c.selected;
    }
}

TEST(ConfComposeTest, MountsTheCdByModeAndFamily)
{
    const QStringList three{u"a.iso"_s, u"b.iso"_s, u"c.cue"_s};
    const QByteArray a = " \"D:\\Games\\Star 7\\dosbox\\CD\\a.iso\"";
    const QByteArray b = " \"D:\\Games\\Star 7\\dosbox\\CD\\b.iso\"";
    const QByteArray c = " \"D:\\Games\\Star 7\\dosbox\\CD\\c.cue\"";
    struct Case {
        const char* build;
        dosboxconf::CdChoice cd;
        QByteArray text;
    };
    const Case cases[] = {
        {"0.74", {false, true, three, 1}, "c:"},
        {"0.74", {true, false, {u"row"_s}, 0}, "c:\r\nMount D: \"D:\\Games\\Star 7\" -t cdrom"},
        {"Win98", {true, false, {u"row"_s}, 0}, "c:"},
        {"0.74", {true, true, {}, 1}, "c:"},
        {"0.74", {true, false, {}, 1}, "c:"},
        {"0.74",
         {true, true, three, 1},
         "c:\r\nimgmount D:" + a + " -t iso\r\n\r\nimgmount E:" + b +
             " -t iso\r\n\r\nimgmount F:" + c + " -t iso\r\n"},
        {"Win98",
         {true, true, three, 1},
         "c:\r\nimgmount E" + a + " -t iso -fs iso -ide 2m\r\n\r\nimgmount F" + b +
             " -t iso -fs iso -ide 2s\r\n\r\nimgmount G" + c + " -t iso -fs iso -ide \r\n"},
        {"0.74", {true, false, three, 1}, "c:\r\nimgmount D:" + a + b + c + " -t iso\r\n"},
        {"Win98_LCD",
         {true, false, three, 1},
         "c:\r\nimgmount E" + a + b + c + " -t iso -fs iso -ide 2m\r\n"},
        {"Win31KOR", {true, false, {u"a.iso"_s}, 1}, "c:\r\nimgmount D:" + a + " -t iso\r\n"},
    };
    for (const Case& each : cases) {
        RunFacts facts = Facts(QString::fromLatin1(each.build));
        facts.request.cd = each.cd;
        EXPECT_EQ(BehindTheDrive(facts), each.text) << each.build;
    }
}

TEST(ConfComposeTest, TheNetworkLineComesLast)
{
    RunFacts facts = Facts(u"0.74"_s);
    facts.request.ipx = true;
    facts.request.cd = {true, false, {u"row"_s}, 0};
    EXPECT_EQ(
        BehindTheDrive(facts),
        "c:\r\nMount D: \"D:\\Games\\Star 7\" -t cdrom\r\nipxnet startserver\r\n");
    EXPECT_TRUE(WindowsText(facts, OptionGrid()).contains("[ipx]\r\nipx=true\r\n\r\n[auto"));
    facts.request.cd = {};
    facts.request.serverPort = dosboxconf::kIpxFallbackPort;
    EXPECT_EQ(BehindTheDrive(facts), "c:\r\nipxnet startserver 19900\r\n");
    facts.request.ipxAddress = u"host 19900"_s;
    EXPECT_EQ(BehindTheDrive(facts), "c:\r\nipxnet connect host 19900\r\n");
}

TEST(ConfComposeTest, APercentSignIsDoubledInBatchLinesOnly)
{
    RunFacts facts = Facts(u"0.74"_s);
    facts.metaDir = platform::HostPath{u"D:\\50%"_s, u"/srv/50%"_s};
    facts.gameDir = facts.metaDir;
    const OptionGrid grid = Grid(u"@Tdosbox\nC|captures;-;<CAPTURE>"_s);
    const QByteArray posix = ComposeDosboxConf(facts, grid).text.Print(PathForm::Posix);
    EXPECT_TRUE(posix.contains("\r\ncaptures=/srv/50%\r\n"));
    EXPECT_TRUE(posix.contains("\r\nSET GAMEROOT=/srv/50%%\r\n"));
    EXPECT_TRUE(posix.contains("\r\nMount c \"/srv/50%%\"\r\n"));
    EXPECT_TRUE(WindowsText(facts, grid).contains("\r\nMount c \"D:\\50%\"\r\n"));
}

TEST(RunFactsTest, ATitleLosesWhatNoFileNameMayHold)
{
    EXPECT_EQ(dosboxconf::SafeTitle(u"A/B: C?"_s), u"AB C"_s);
    EXPECT_EQ(dosboxconf::SafeTitle(u"\\|:\"<>/?*"_s), QString());
    EXPECT_EQ(dosboxconf::SafeTitle(u"별 [CD, 편집] 100%"_s), u"별 [CD, 편집] 100%"_s);
}

TEST(RunFactsTest, NamesKeepTheFormatsSpellingInTheReferenceAndTheirOwnInTheNativeForm)
{
    const test::TestFolder folder;
    folder.MakeTree(
        {u"app/DOS/util/"_s,
         u"app/DOS/gus/"_s,
         u"app/Mapper/MAPPER.txt"_s,
         u"games/Star/DOSBOX/cd/"_s,
         u"games/Star/DOSBOX/Mapper.TXT"_s,
         u"games/Bare/"_s});
    const shell::Places places{
        folder.Path(u"app"_s), folder.Path(u"games"_s), folder.Path(u"export"_s)};
    ConfRequest request;
    request.folder = u"Star"_s;
    const RunFacts star = LoadRunFacts(places, request);
    const QString games = u"Z:"_s + QString(places.gamesRoot).replace(u'/', u'\\');
    EXPECT_EQ(star.metaDir.reference, games + u"\\Star\\dosbox"_s);
    EXPECT_EQ(star.metaDir.native, folder.Path(u"games/Star/DOSBOX"_s));
    EXPECT_EQ(star.cdFolder.reference, games + u"\\Star\\dosbox\\CD"_s);
    EXPECT_EQ(star.cdFolder.native, folder.Path(u"games/Star/DOSBOX/cd"_s));
    EXPECT_EQ(star.ownMapper.native, folder.Path(u"games/Star/DOSBOX/Mapper.TXT"_s));
    EXPECT_EQ(star.mapperFolder.native, folder.Path(u"app/Mapper"_s));
    EXPECT_EQ(star.utilities.reference, u"..\\..\\Dos\\Util"_s);
    EXPECT_EQ(star.utilities.native, u"../../DOS/util"_s);
    EXPECT_EQ(star.gravis.reference, u"..\\..\\DOS\\GUS"_s);
    EXPECT_EQ(star.gravis.native, u"../../DOS/gus"_s);

    request.folder = u"Bare"_s;
    EXPECT_EQ(LoadRunFacts(places, request).metaDir.native, folder.Path(u"games/Bare/DosBox"_s));
}

} // namespace
