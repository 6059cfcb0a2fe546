#pragma once

#include "shell/LangTable.h"

#include <QString>

namespace pelorin::forms {

/// A text of the window that has no number below kLastEntry; `english` stands in where the
/// language file ends before it.
struct OwnEntry {
    int entry = 0;
    const char16_t* english = u"";
};

inline QString Own(const shell::LangTable& lang, const OwnEntry& own)
{
    return lang.OwnText(own.entry, QString::fromUtf16(own.english));
}

// The numbers that the forms use: 370 to 399.
inline constexpr OwnEntry kOwnYes{370, u"Yes"};
inline constexpr OwnEntry kOwnNo{371, u"No"};
inline constexpr OwnEntry kOwnOk{372, u"OK"};
inline constexpr OwnEntry kOwnCancel{373, u"Cancel"};
inline constexpr OwnEntry kOwnRun{374, u"Run"};
inline constexpr OwnEntry kOwnMoreRuns{375, u"More ways to run"};
inline constexpr OwnEntry kOwnSite{376, u"Open the site in the browser"};
inline constexpr OwnEntry kOwnFindHint{377, u"Search titles"};
inline constexpr OwnEntry kOwnAddGame{378, u"Add games"};
inline constexpr OwnEntry kOwnFilter{379, u"Filter"};
inline constexpr OwnEntry kOwnGames{380, u"Games"};
inline constexpr OwnEntry kOwnNoGames{381, u"No games to show"};
inline constexpr OwnEntry kOwnTitleK{382, u"Korean title"};
inline constexpr OwnEntry kOwnTitleE{383, u"English title"};
inline constexpr OwnEntry kOwnRunnable{384, u"Programs in the game's folder"};
inline constexpr OwnEntry kOwnCdImages{385, u"CD images"};
inline constexpr OwnEntry kOwnOptions{386, u"Options"};
inline constexpr OwnEntry kOwnValues{387, u"Values"};
inline constexpr OwnEntry kOwnGroup{388, u"Group of options"};
inline constexpr OwnEntry kOwnPlacement{389, u"Place of the DOSBox window"};
inline constexpr OwnEntry kOwnDelay{390, u"Wait before moving"};
inline constexpr OwnEntry kOwnKeys{391, u"Keys"};
inline constexpr OwnEntry kOwnUpkeep{392, u"Library and program"};
inline constexpr OwnEntry kOwnLeft{393, u"Left"};
inline constexpr OwnEntry kOwnRight{394, u"Right"};
inline constexpr OwnEntry kOwnNotes{395, u"Notes"};
inline constexpr OwnEntry kOwnPages{396, u"Pages"};
inline constexpr OwnEntry kOwnMedia{397, u"Pictures, recordings and manuals"};

} // namespace pelorin::forms
