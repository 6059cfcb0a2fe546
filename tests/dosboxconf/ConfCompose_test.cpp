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
