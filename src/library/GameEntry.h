#pragma once

#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace pelorin::library {

/// One game of the Catalogue. Its folder is the truth, this a cache of it.
struct GameEntry {
    QString Folder;             // folder name below GamesRoot, the game's identity
    QString TitleK;             // first title with its marks
    QString TitleE;             // second title with its marks
    std::int16_t ListIndex = 0; // position in the Catalogue plus 1, and the number of its icon
    QString GenreK;
    QString GenreE;
    std::int16_t DosboxVersion = 0; // index of the build in the value list of cell (0,0)
    QString Maker;
    QString GameLanguage;
    QString Release;
    QString Country;
};

/// The stored title in that language, which may be empty.
inline const QString& TitleOf(const GameEntry& entry, bool titleLanguageKorean)
{
    return titleLanguageKorean ? entry.TitleK : entry.TitleE;
}

/// The title in use, or the folder's name for a game without one.
inline const QString& DisplayTitle(const QString& title, const QString& folder)
{
    return title.isEmpty() ? folder : title;
}
inline const QString& DisplayTitle(const GameEntry& entry, bool titleLanguageKorean)
{
    return DisplayTitle(TitleOf(entry, titleLanguageKorean), entry.Folder);
}

/// The facts that many games share.
enum class Fact { GenreK, GenreE, Maker, Release, GameLanguage, Country };

/// Where they stand, by Fact.
inline constexpr std::array<QString GameEntry::*, 6> kSharedFacts{
    &GameEntry::GenreK,
    &GameEntry::GenreE,
    &GameEntry::Maker,
    &GameEntry::Release,
    &GameEntry::GameLanguage,
    &GameEntry::Country,
};

constexpr QString GameEntry::*FieldOf(Fact fact)
{
    return kSharedFacts[static_cast<std::size_t>(fact)];
}

/// Positions are 16-bit signed, so that is the bound.
inline constexpr int kMostGames = 32767;

using GameEntries = std::vector<GameEntry>;
using GamesView = std::span<const GameEntry>;

} // namespace pelorin::library
