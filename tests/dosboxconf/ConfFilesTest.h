#pragma once

#include "dosboxconf/ConfFiles.h"
#include "dosboxconf/OptionTable.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace pelorin::dosboxconf {

/// An AppDir, a game "Star" with a metadata folder and a game "Bare" without, and a small table of
/// options whose cells stand below.
struct ConfFilesTest : testing::Test {
    using Values = std::initializer_list<std::pair<Cell, QString>>;

    static constexpr int kLines = 1 + kCells;
    static constexpr Cell kAutolock{1, 0};
    static constexpr Cell kSensitivity{1, 1};
    static constexpr Cell kPriority{1, 2};
    static constexpr Cell kMapper{1, 3};
    static constexpr Cell kWait{1, 4};
    static constexpr Cell kOverscan{1, 5};
    static constexpr Cell kCycles{2, 0};
    static constexpr Cell kMultiscan{2, 1};
    static constexpr Cell kDoublescan{2, 2};
    static constexpr Cell kRate{3, 0};
    static constexpr Cell kSampleRate{3, 1};
    static constexpr Cell kMaster{3, 2};
    static constexpr Cell kTimeout{3, 3};
    static constexpr Cell kNewKey{3, 4};
    static constexpr Cell kIde{4, 0};
    static constexpr Cell kFdc{4, 1};
    static constexpr Cell kGlideTitle{4, 2};
    static constexpr Cell kSbtype{4, 3};

    ConfFilesTest();

    std::int32_t& At(Cell cell) { return grid.OptionSelection[OptionGrid::Index(cell)]; }

    /// Where a current file has a value; the mark is line 0.
    static qsizetype LineOf(Cell cell) { return 1 + cell.group * kItems + cell.item; }
    /// A whole file in the current layout, zeros but for these cells.
    static QStringList Current(Values values);
    /// A whole file of an older layout, with cells of that layout.
    static QStringList Old(bool marked, Values values);

    test::TestFolder folder;
    shell::Places places{
        folder.Path(QStringLiteral("app")),
        folder.Path(QStringLiteral("games")),
        folder.Path(QStringLiteral("export"))};
    OptionGrid grid;
    const QString defaultConf = QStringLiteral("app/Default.conf");
    const QString editConf = QStringLiteral("games/Star/DosBox/edit.conf");
};

} // namespace pelorin::dosboxconf
