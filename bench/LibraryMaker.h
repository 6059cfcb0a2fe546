#pragma once

#include "platform/Outcome.h"

#include <QString>

#include <cstdint>

// A library of games that nobody ever played: the same names, texts and pictures for the same seed.
// Titles stand in both languages; makers, genres, times, languages and countries repeat as they do
// in a collection; nine games in ten have an icon, one in five has options of its own. Every folder
// is as complete as a scan leaves it, so that scanning it again writes nothing.

namespace pelorin::bench {

struct LibraryPlan {
    int games = 0;
    std::uint64_t seed = 0;
    QString optionTable; // option.dat as the sources have it, in UTF-8
};

/// Makes the games below `gamesRoot`, which must be there and empty.
platform::Done MakeLibrary(const QString& gamesRoot, const LibraryPlan& plan);

} // namespace pelorin::bench
