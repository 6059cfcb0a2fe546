#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <vector>

namespace pelorin::dosboxconf {

inline constexpr int kGroups = 41;
inline constexpr int kItems = 81;
inline constexpr int kValues = 101; // value index 0 to 100
inline constexpr int kCells = kGroups * kItems;

/// What an option is: what its selection means, how it is shown, edited and written.
enum class OptionKind {
    Other,    // any other mark: listed by its title, writes nothing
    Index,    // <INDEX>
    Mapper,   // <MAPPER>
    CpuCycle, // <CPUCYCLE>
    Text,     // <TEXT>
    None,     // <NONE>
    SavePath, // <SAVEPATH>
    Capture,  // <CAPTURE>
    DocPath,  // <DOCPATH>
    LogFile,  // <LOGFILE>
    GusUltra, // <GUSULTRA>
};

struct Cell {
    int group = 0; // 0 to 40
    int item = 0;  // 0 to 80
    friend bool operator==(const Cell&, const Cell&) = default;
};

constexpr int Position(Cell cell)
{
    return cell.group + kGroups * cell.item;
}

// Cells that the program reaches by their place; option.dat has to put these rows there.
inline constexpr Cell kVersionCell{0, 0};
inline constexpr Cell kDirectXCell{0, 1};
inline constexpr Cell kMenuCell{0, 2};
inline constexpr Cell kSavePathCell{0, 3};
inline constexpr Cell kFullscreenCell{1, 0};
inline constexpr Cell kFullresolutionCell{1, 2};
inline constexpr Cell kWindowresolutionCell{1, 3};
inline constexpr Cell kWaitonerrorCell{1, 7};
inline constexpr Cell kLogCell{2, 0};
inline constexpr Cell kSplashCell{19, 3};

/// The selected values of one configuration, by Position.
using Selection = std::array<std::int32_t, kCells>;

/// The texts of all options, written once by ReadOptionTable, and the one current configuration.
struct OptionGrid {
    std::vector<QString> OptionTitle = std::vector<QString>(kCells);
    std::vector<QString> OptionKey = std::vector<QString>(kCells);
    std::vector<OptionKind> OptionKinds = std::vector<OptionKind>(kCells, OptionKind::Other);
    std::vector<QStringList> OptionValue = std::vector<QStringList>(kCells); // at most kValues
    QStringList GroupCaption; // one a group, also the section's name in dosbox.conf
    Selection OptionSelection{};

    const QString& Title(Cell cell) const { return OptionTitle[Index(cell)]; }
    const QString& Key(Cell cell) const { return OptionKey[Index(cell)]; }
    OptionKind Kind(Cell cell) const { return OptionKinds[Index(cell)]; }
    const QStringList& Values(Cell cell) const { return OptionValue[Index(cell)]; }
    std::int32_t Selected(Cell cell) const { return OptionSelection[Index(cell)]; }
    /// Empty outside the list.
    QString ValueText(Cell cell, int index) const { return Values(cell).value(index); }
    QString SelectedText(Cell cell) const { return ValueText(cell, Selected(cell)); }
    QStringList BuildNames() const { return Values(kVersionCell); }

    static std::size_t Index(Cell cell) { return static_cast<std::size_t>(Position(cell)); }
};

/// A selection of the option "cycles" as it is shown and written; empty for none.
inline QString CyclesText(std::int32_t selected)
{
    if (selected < 1) {
        return QString();
    }
    if (selected == 1) {
        return QStringLiteral("max");
    }
    return selected == 2 ? QStringLiteral("auto") : QString::number(selected);
}

} // namespace pelorin::dosboxconf
