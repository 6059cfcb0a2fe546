#include "shell/LauncherCfg.h"

#include "shell/SettingsScreens.h"
#include "support/Values.h"

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::shell;
using test::ErrorOf;

namespace {

// A file in one text: a bar ends a line, # parts the widths.
const QString kRoots = u"0|/mnt/게임|/mnt/out|0|"_s;
const QString kWidths = u"4500#1200#1620#1200#735#570#930#915"_s;
const QString kHead = u"3|1500.5|-300|12000,9000.25|"_s + kRoots; // up to line 8
const QString kPlacement = u" 12px||1|9|"_s;
const QString kWhole = kHead + kPlacement + u"1#2#3.5#0#5#6#7#8|1"_s;

QStringList LinesOf(const QString& text)
{
    QStringList lines = QString(text).replace(u'#', QChar(1)).split(u'|');
    if (lines.last().isEmpty()) {
        lines.removeLast();
    }
    return lines;
}

QString TextOf(const QStringList& lines)
{
    return lines.join(u'|').replace(QChar(1), u'#');
}

LauncherCfg Parsed(const QString& text)
{
    const auto cfg = ParseLauncherCfg(LinesOf(text));
    EXPECT_TRUE(cfg.Ok()) << ErrorOf(cfg);
    return cfg.ValueOr(LauncherCfg());
}

/// The whole file with another text in lines first, first + 1 ...
QString With(qsizetype first, const QString& text)
{
    QStringList lines = LinesOf(kWhole);
    const QStringList others = text.split(u'|');
    std::copy(others.begin(), others.end(), lines.begin() + first - 1);
    return TextOf(lines);
}

TEST(LauncherCfg, ReadsNewOldAndOddFilesAndWritesThemAnew)
{
    const QString noPlacement = u"0|0|0|4|"_s;
    const std::pair<QString, QString> cases[] = {
        {kWhole, kWhole},
        // Old forms end earlier.
        {kHead + kPlacement + u"1#2#3#4#5#6#7#8"_s, kHead + kPlacement + u"1#2#3#4#5#6#7#8|0"_s},
        {kHead + kPlacement, kHead + kPlacement + kWidths + u"|0"_s},
        {kHead, kHead + noPlacement + kWidths + u"|0"_s},
        {u"3|2|5|7,8|0|"_s, u"3|2|5|7,8|0|||0|"_s + noPlacement + kWidths + u"|0"_s},
        // A left edge of 0 is a maximized window, whatever stands in its other lines.
        {With(2, u"0|300|12000,9000"_s), With(2, u"0|0|0"_s)},
        {With(2, u"none|300|12000,9000"_s), With(2, u"0|0|0"_s)},
        {With(2, u"|x|y"_s), With(2, u"0|0|0"_s)},
        {With(2, u"100|300|0"_s), With(2, u"100|300|0,0"_s)},
        {With(2, u" -15 left|300|1200, 900,7"_s), With(2, u"-15|300|1200,900"_s)},
        {With(2, u"1e2|300|,900"_s), With(2, u"100|300|0,900"_s)},
        {With(2, u"0.4|300|-5,-6"_s), With(2, u"0.4|300|0,0"_s)},
        // What is no number is 0, and more widths than columns are ignored.
        {With(1, u"list"_s), With(1, u"0"_s)},
        {With(1, u"3.4"_s), With(1, u"3"_s)},
        {With(12, u"-1"_s), With(12, u"-1"_s)},
        {With(13, u"1#2#3#x#5#6#7#-8#9"_s), With(13, u"1#2#3#0#5#6#7#0"_s)},
        // Only a zero means the Korean title.
        {With(14, u"0"_s), With(14, u"0"_s)},
        {With(14, u" 0"_s), kWhole},
        {With(14, u"00"_s), kWhole},
        {With(14, u"-1"_s), kWhole},
    };
    for (const auto& [read, written] : cases) {
        EXPECT_EQ(TextOf(LauncherCfgLines(Parsed(read))), written) << read;
    }
}

TEST(LauncherCfg, RefusesWhatNoControlHasAndAFileThatEndsElsewhere)
{
    struct Case {
        qsizetype line;
        QString text;
        QString fault;
    };
    const Case cases[] = {
        {1, u"4"_s, u"line 1: 4 is not among 0 to 3"_s},
        {1, u"-1"_s, u"line 1: -1 is not among 0 to 3"_s},
        {2, u"1e99"_s, u"line 2: a number that is too large"_s},
        {2, u"1e999"_s, u"line 2: a number that is too large"_s},
        {12, u"10"_s, u"line 12: 10 is not among -1 to 9"_s},
        {12, u"-2"_s, u"line 12: -2 is not among -1 to 9"_s},
        {13, u"1,2,3,4,5,6,7,8"_s, u"line 13: 1 column widths, 8 are needed"_s},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(
            ErrorOf(ParseLauncherCfg(LinesOf(With(one.line, one.text)))),
            u"Launcher.cfg: "_s + one.fault);
    }
    for (const int count : {0, 1, 2, 3, 4, 6, 9, 10, 11}) {
        EXPECT_EQ(
            ErrorOf(ParseLauncherCfg(LinesOf(kWhole).mid(0, count))),
            u"Launcher.cfg: line %1: missing"_s.arg(count + 1));
    }
}

TEST(LauncherCfg, AWindowsStateSurvivesTheFile)
{
    LauncherCfg cfg = Parsed(kWhole);
    for (const double left : {0.0, -0.0, 0.0001, -0.0001}) {
        cfg.left = left;
        EXPECT_EQ(LauncherCfgLines(cfg)[1], u"1"_s) << "a normal window at the edge: " << left;
    }
    cfg.state = MainFrame::State::Minimized;
    const QStringList shortForm = LauncherCfgLines(cfg);
    EXPECT_EQ(TextOf(shortForm), u"3|"_s + kRoots + kPlacement + u"1#2#3.5#0#5#6#7#8|1"_s);
    EXPECT_EQ(ErrorOf(ParseLauncherCfg(shortForm)), u"Launcher.cfg: line 12: missing"_s);

    const QStringList first = DefaultCfgLines(u"/mnt/게임"_s, u"/mnt/out"_s);
    EXPECT_EQ(TextOf(first), u"1|100|100|0|"_s + kRoots + u"100|100|0|4|"_s + kWidths);
    const LauncherCfg untouched;
    EXPECT_EQ(Parsed(TextOf(first)).view, untouched.view);
    EXPECT_EQ(Parsed(TextOf(first)).txtDosboxPos, untouched.txtDosboxPos);
}

TEST(SettingsScreens, WhatIsShownIsCollectedAgain)
{
    Screens screens;
    Settings settings;
    Places places;
    std::uint32_t listTold = 0;
    screens.list.changed.SetListener([&](std::uint32_t changed) { listTold |= changed; });
    ShowSettings(Parsed(kWhole), SettingsTargets{screens, settings, places});
    EXPECT_EQ(screens.list.view, finding::View::Details);
    EXPECT_EQ(listTold, finding::GameList::ViewMode | finding::GameList::Columns);
    EXPECT_EQ(places.gamesRoot, u"/mnt/게임"_s);
    EXPECT_EQ(screens.placement.cmbDosboxMove, 9);
    EXPECT_FALSE(settings.TitleLanguageKorean);
    EXPECT_EQ(TextOf(LauncherCfgLines(CollectSettings(screens, settings, places))), kWhole);
}

} // namespace
