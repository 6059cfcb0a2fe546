#pragma once

namespace pelorin::bench {

struct BenchInstallation;

// What the figures are about; `installation` outlives their run.

/// The catalogue's cache, its scan and its saving.
void AddCatalogueFigures(const BenchInstallation& installation);

/// The rows of the list and the nodes of the tree.
void AddListFigures(const BenchInstallation& installation);

} // namespace pelorin::bench
