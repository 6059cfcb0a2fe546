#pragma once

#include "library/IconSheet.h"
#include "library/ScanProgress.h"
#include "platform/Outcome.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

// The sheet of icons: a Windows bitmap of 24 bits a pixel, not compressed, rows from the bottom.
// Icon n stands in cell (n mod 512, n div 512) of 32 x 32 pixels. The bytes are those that
// FreeImage writes for the same picture. Read and written row of cells by row of cells, so that a
// sheet of 100 MB needs 1.5 MB of memory.

namespace pelorin::library {

struct SheetSize {
    int width = 0; // pixels
    int height = 0;
};

/// The sheet of `count` icons, which is at least 1.
SheetSize SheetSizeOf(int count);

/// Error Malformed when the file is not a sheet of exactly that many icons' size. Tells the
/// progress of LoadingIcons; Abandoned when it says so.
platform::Outcome<IconSheet> ReadIconSheet(const QString& path, int count, ScanProgress& progress);

/// The rows of cells in which the file does not hold just these icons; `positions` are indices into
/// `icons`. nullopt when it is no sheet of that many, or when more than a few rows are stale.
std::optional<std::vector<int>> StaleBands(
    const QString& path, const IconSheet& icons, const std::vector<int>& positions);

/// Writes these rows of cells over those of the file, which StaleBands has told of. The disk needs no
/// more room for that. After a failure the sheet is neither the old one nor the new one.
platform::Done RewriteBands(
    const QString& path,
    const IconSheet& icons,
    const std::vector<int>& positions,
    const std::vector<int>& bands);

/// `positions` must not be empty. Cells behind the last icon are black. `beforeReplacing` runs when
/// the new sheet is written and about to take the place of the old one; its failure is ours.
/// `afterRow` runs behind each row of cells.
platform::Done WriteIconSheet(
    const QString& path,
    const IconSheet& icons,
    const std::vector<int>& positions,
    const std::function<platform::Done()>& beforeReplacing,
    const std::function<void()>& afterRow = [] {});

} // namespace pelorin::library
