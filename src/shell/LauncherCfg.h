#pragma once

#include "finding/GameList.h"
#include "platform/Outcome.h"
#include "shell/Screens.h"

#include <QString>
#include <QStringList>

#include <array>

// Launcher.cfg: lines without names, told apart by their place. Old releases wrote fewer lines.
//
//    1  view, 0 to 3                    8  "0", a former setting
//    2  left edge; 0 means maximized    9  txtDosboxPos(0)
//    3  top edge                       10  txtDosboxPos(1)
//    4  width "," height               11  chkDosboxMove
//    5  "0"                            12  cmbDosboxMove
//    6  GamesRoot                      13  eight column widths, joined by character 1
//    7  ExportRoot                     14  "0" shows the Korean title, "1" the other
//
// Lines 2 to 4 are "0" for a maximized window and left out for a minimized one.

namespace pelorin::shell {

inline constexpr std::array<double, finding::kColumns> kDefaultColumnWidths{
    4500, 1200, 1620, 1200, 735, 570, 930, 915};

/// Items of cmbDosboxMove.
inline constexpr int kMoveDelays = 10;

/// Launcher.cfg, value by value. Geometry and widths are form units, 15 to a pixel.
struct LauncherCfg {
    int view = 1;
    MainFrame::State state = MainFrame::State::Normal; // never Minimized when read
    double left = 100;                                 // of the window when it is Normal
    double top = 100;
    double width = 0; // 0: as designed
    double height = 0;
    QString gamesRoot; // as written, empty when the file has none; see LoadSettingsFiles
    QString exportRoot;
    std::array<QString, 2> txtDosboxPos{QStringLiteral("100"), QStringLiteral("100")};
    bool chkDosboxMove = false;
    int cmbDosboxMove = 4; // -1 (none selected) to kMoveDelays - 1
    std::array<double, finding::kColumns> columnWidths = kDefaultColumnWidths;
    bool titleLanguageKorean = true;
};

/// Reads what the program or one of its old releases wrote. Error Malformed, with `name` in the place
/// of the path ("Launcher.cfg: line 12: ..."), for a line that is missing where no old release ended,
/// fewer than eight widths, and a choice that has no such item.
platform::Outcome<LauncherCfg> ParseLauncherCfg(
    const QStringList& lines, const QString& name = QStringLiteral("Launcher.cfg"));

/// The lines to write: 14, or 11 for a minimized window, which the next start can't read.
QStringList LauncherCfgLines(const LauncherCfg& cfg);

/// The 13 lines of a first start.
QStringList DefaultCfgLines(const QString& gamesRoot, const QString& exportRoot);

} // namespace pelorin::shell
