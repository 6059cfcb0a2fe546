#pragma once

#include <QString>

#include <array>

namespace pelorin::shell {

inline constexpr int kRecentGames = 15;

/// The last started games, newest first. An empty folder ends the list for every reader.
struct RecentList {
    std::array<QString, kRecentGames> RecentFolders;
    std::array<QString, kRecentGames> RecentTitles;
};

} // namespace pelorin::shell
