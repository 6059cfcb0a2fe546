#include "shell/LauncherCfg.h"

#include "shell/SettingsScreens.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace pelorin;
using namespace pelorin::shell;

namespace {

const QString kMark = QString(QChar(1));
const QString kWidths =
    QStringList{u"4500"_s, u"1200"_s, u"1620"_s, u"1200"_s, u"735"_s, u"570"_s, u"930"_s, u"915"_s}
        .join(kMark);

QStringList WholeFile()
{
    return {
        u"3"_s,
        u"1500.5"_s,
        u"-300"_s,
        u"12000,9000.25"_s,
        u"0"_s,
        u"/mnt/게임"_s,
        u"/mnt/out"_s,
        u"0"_s,
        u" 12px"_s,
        QString(),
        u"1"_s,
        u"9"_s,
        QStringList{u"1"_s, u"2"_s, u"3.5"_s, u"x"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s}.join(kMark),
        u"1"_s};
}

LauncherCfg Parsed(const QStringList& lines)
{
    const auto cfg = ParseLauncherCfg(lines);
    EXPECT_TRUE(cfg.Ok()) << cfg.Failure().text.toStdString();
    return cfg.ValueOr(LauncherCfg());
}

QString FaultOf(const QStringList& lines)
{
    const auto cfg = ParseLauncherCfg(lines);
    return cfg.Ok() ? u"none"_s : cfg.Failure().text;
}

TEST(LauncherCfg, ReadsEveryLine)
{
    const LauncherCfg cfg = Parsed(WholeFile());
    EXPECT_EQ(cfg.view, 3);
    EXPECT_EQ(cfg.state, MainFrame::State::Normal);
    EXPECT_EQ(cfg.left, 1500.5);
    EXPECT_EQ(cfg.top, -300);
    EXPECT_EQ(cfg.width, 12000);
    EXPECT_EQ(cfg.height, 9000.25);
    EXPECT_EQ(cfg.gamesRoot, u"/mnt/게임"_s);
    EXPECT_EQ(cfg.exportRoot, u"/mnt/out"_s);
    EXPECT_EQ(cfg.txtDosboxPos[0], u" 12px"_s);
    EXPECT_EQ(cfg.txtDosboxPos[1], QString());
    EXPECT_TRUE(cfg.chkDosboxMove);
    EXPECT_EQ(cfg.cmbDosboxMove, 9);
    EXPECT_EQ(cfg.columnWidths[2], 3.5);
    EXPECT_EQ(cfg.columnWidths[3], 0);
    EXPECT_FALSE(cfg.titleLanguageKorean);
}

TEST(LauncherCfg, WritesWhatItRead)
{
    QStringList lines = WholeFile();
    lines[12].replace(u'x', u'0');
    EXPECT_EQ(LauncherCfgLines(Parsed(lines)), lines);
    lines[1] = lines[2] = lines[3] = u"0"_s;
    EXPECT_EQ(LauncherCfgLines(Parsed(lines)), lines);
}

TEST(LauncherCfg, OldFormsEndEarlier)
{
    const LauncherCfg withoutLanguage = Parsed(WholeFile().mid(0, 13));
    EXPECT_TRUE(withoutLanguage.titleLanguageKorean);
    EXPECT_EQ(withoutLanguage.columnWidths[1], 2);

    const LauncherCfg withoutWidths = Parsed(WholeFile().mid(0, 12));
    EXPECT_EQ(withoutWidths.columnWidths, kDefaultColumnWidths);
    EXPECT_TRUE(withoutWidths.titleLanguageKorean);
    EXPECT_EQ(withoutWidths.cmbDosboxMove, 9);

    const LauncherCfg withoutPlacement = Parsed(WholeFile().mid(0, 8));
    EXPECT_EQ(withoutPlacement.gamesRoot, WholeFile().at(5));
    EXPECT_EQ(withoutPlacement.txtDosboxPos, (std::array<QString, 2>{u"0"_s, u"0"_s}));
    EXPECT_FALSE(withoutPlacement.chkDosboxMove);
    EXPECT_EQ(withoutPlacement.cmbDosboxMove, 4);

    const LauncherCfg withoutRoots = Parsed(WholeFile().mid(0, 5));
    EXPECT_TRUE(withoutRoots.gamesRoot.isEmpty());
    EXPECT_EQ(withoutRoots.left, Parsed(WholeFile()).left);
}

TEST(LauncherCfg, FileThatEndsElsewhereNamesTheFirstMissingLine)
{
    for (const int count : {0, 1, 2, 3, 4, 6, 9, 10, 11}) {
        EXPECT_EQ(FaultOf(WholeFile().mid(0, count)), u"line %1: missing"_s.arg(count + 1));
    }
}

TEST(LauncherCfg, WindowLines)
{
    struct Case {
        QStringList window; // lines 2 to 4
        bool maximized = false;
        double left = 0;
        double width = 0;
        double height = 0;
    };
    const Case cases[] = {
        {{u"0"_s, u"300"_s, u"12000,9000"_s}, true, 100, 0, 0},
        {{u"none"_s, u"300"_s, u"12000,9000"_s}, true, 100, 0, 0},
        {{QString(), u"x"_s, u"y"_s}, true, 100, 0, 0},
        {{u"100"_s, u"300"_s, u"0"_s}, false, 100, 0, 0},
        {{u" -15 left"_s, u"300"_s, u"1200, 900,7"_s}, false, -15, 1200, 900},
        {{u"1e2"_s, u"300"_s, u",900"_s}, false, 100, 0, 900},
        {{u"0.4"_s, u"300"_s, u"-5,-6"_s}, false, 0.4, 0, 0},
    };
    for (const Case& one : cases) {
        QStringList lines = WholeFile();
        std::copy(one.window.begin(), one.window.end(), lines.begin() + 1);
        const LauncherCfg cfg = Parsed(lines);
        EXPECT_EQ(cfg.state == MainFrame::State::Maximized, one.maximized);
        EXPECT_EQ(cfg.left, one.left);
        EXPECT_EQ(cfg.width, one.width);
        EXPECT_EQ(cfg.height, one.height);
    }
}

TEST(LauncherCfg, RefusesWhatNoControlHas)
{
    struct Case {
        int line; // counted from 1
        QString text;
        QString fault;
    };
    const Case cases[] = {
        {1, u"4"_s, u"line 1: 4 is not among 0 to 3"_s},
        {1, u"-1"_s, u"line 1: -1 is not among 0 to 3"_s},
        {1, u"3.4"_s, u"none"_s},
        {1, u"list"_s, u"none"_s},
        {2, u"1e99"_s, u"line 2: a number that is too large"_s},
        {2, u"1e999"_s, u"line 2: a number that is too large"_s},
        {12, u"10"_s, u"line 12: 10 is not among -1 to 9"_s},
        {12, u"-1"_s, u"none"_s},
        {13, u"1,2,3,4,5,6,7,8"_s, u"line 13: 1 column widths, 8 are needed"_s},
        {13, kWidths + kMark + u"9"_s, u"none"_s},
    };
    for (const Case& one : cases) {
        QStringList lines = WholeFile();
        lines[one.line - 1] = one.text;
        EXPECT_EQ(FaultOf(lines), one.fault) << one.line << one.text.toStdString();
    }
}

TEST(LauncherCfg, OnlyAZeroMeansTheKoreanTitle)
{
    for (const QString& text : {u"1"_s, u"-1"_s, QString(), u" 0"_s, u"00"_s}) {
        QStringList lines = WholeFile();
        lines[13] = text;
        EXPECT_FALSE(Parsed(lines).titleLanguageKorean) << text.toStdString();
    }
}

TEST(LauncherCfg, NormalWindowAtTheScreensEdgeIsNotTakenForAMaximizedOne)
{
    for (const double left : {0.0, -0.0, 0.0001, -0.0001}) {
        LauncherCfg cfg;
        cfg.left = left;
        EXPECT_EQ(LauncherCfgLines(cfg)[1], u"1"_s) << left;
    }
}

TEST(LauncherCfg, MinimizedWindowLeavesTheShortForm)
{
    LauncherCfg cfg = Parsed(WholeFile());
    cfg.state = MainFrame::State::Minimized;
    QStringList expected = WholeFile();
    expected[12].replace(u'x', u'0');
    expected.remove(1, 3);
    EXPECT_EQ(LauncherCfgLines(cfg), expected);
    EXPECT_EQ(FaultOf(expected), u"line 12: missing"_s);
}

TEST(LauncherCfg, FirstStartsLines)
{
    const QStringList lines = DefaultCfgLines(u"/p/Games"_s, u"/p/Export"_s);
    EXPECT_EQ(
        lines,
        (QStringList{
            u"1"_s,
            u"100"_s,
            u"100"_s,
            u"0"_s,
            u"0"_s,
            u"/p/Games"_s,
            u"/p/Export"_s,
            u"0"_s,
            u"100"_s,
            u"100"_s,
            u"0"_s,
            u"4"_s,
            kWidths}));
    LauncherCfg untouched;
    const LauncherCfg cfg = Parsed(lines);
    EXPECT_EQ(cfg.view, untouched.view);
    EXPECT_EQ(cfg.txtDosboxPos, untouched.txtDosboxPos);
    EXPECT_EQ(cfg.width, 0);
    EXPECT_TRUE(cfg.titleLanguageKorean);
}

TEST(SettingsScreens, WhatIsShownIsCollectedAgain)
{
    Screens screens;
    Settings settings;
    Places places;
    const LauncherCfg shown = Parsed(WholeFile());
    std::uint32_t listTold = 0;
    screens.list.changed.SetListener([&](std::uint32_t changed) { listTold |= changed; });
    ShowSettings(shown, SettingsTargets{screens, settings, places});
    EXPECT_EQ(screens.list.view, finding::View::Details);
    EXPECT_EQ(listTold, finding::GameList::ViewMode | finding::GameList::Columns);
    EXPECT_EQ(places.gamesRoot, u"/mnt/게임"_s);
    EXPECT_EQ(screens.placement.cmbDosboxMove, 9);
    EXPECT_FALSE(settings.TitleLanguageKorean);
    EXPECT_EQ(
        LauncherCfgLines(CollectSettings(screens, settings, places)), LauncherCfgLines(shown));
}

} // namespace
