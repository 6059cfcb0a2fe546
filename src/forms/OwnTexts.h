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

// The numbers that the forms use: 355 to 382, and some from 408 on.
inline constexpr OwnEntry kOwnYes{355, u"Yes"};
inline constexpr OwnEntry kOwnNo{356, u"No"};
inline constexpr OwnEntry kOwnOk{357, u"OK"};
inline constexpr OwnEntry kOwnCancel{358, u"Cancel"};
inline constexpr OwnEntry kOwnRun{359, u"Run"};
inline constexpr OwnEntry kOwnMoreRuns{360, u"More ways to run"};
inline constexpr OwnEntry kOwnSite{361, u"Open the site in the browser"};
inline constexpr OwnEntry kOwnFindHint{362, u"Search titles"};
inline constexpr OwnEntry kOwnAddGame{363, u"Add games"};
inline constexpr OwnEntry kOwnFilter{364, u"Filter"};
inline constexpr OwnEntry kOwnGames{365, u"Games"};
inline constexpr OwnEntry kOwnNoGames{366, u"No games to show"};
inline constexpr OwnEntry kOwnTitleK{367, u"Korean title"};
inline constexpr OwnEntry kOwnTitleE{368, u"English title"};
inline constexpr OwnEntry kOwnRunnable{369, u"Programs in the game's folder"};
inline constexpr OwnEntry kOwnCdImages{370, u"CD images"};
inline constexpr OwnEntry kOwnOptions{371, u"Options"};
inline constexpr OwnEntry kOwnValues{372, u"Values"};
inline constexpr OwnEntry kOwnGroup{373, u"Group of options"};
inline constexpr OwnEntry kOwnPlacement{374, u"Place of the DOSBox window"};
inline constexpr OwnEntry kOwnDelay{375, u"Wait before moving"};
inline constexpr OwnEntry kOwnKeys{376, u"Keys"};
inline constexpr OwnEntry kOwnUpkeep{377, u"Library and program"};
inline constexpr OwnEntry kOwnLeft{378, u"Left"};
inline constexpr OwnEntry kOwnRight{379, u"Right"};
inline constexpr OwnEntry kOwnNotes{380, u"Notes"};
inline constexpr OwnEntry kOwnPages{381, u"Pages"};
inline constexpr OwnEntry kOwnMedia{382, u"Pictures, recordings and manuals"};
inline constexpr OwnEntry kOwnNoMatch{408, u"No game matches"};
inline constexpr OwnEntry kOwnSearchHint{409, u"Press Esc in the search box to empty it."};
inline constexpr OwnEntry kOwnFilterHint{
    410, u"Take a check mark off on the left to see more games."};
inline constexpr OwnEntry kOwnAddHint{
    411, u"Put each game in a folder of its own in the games root, then press F5."};
inline constexpr OwnEntry kOwnSave{430, u"Save"};
inline constexpr OwnEntry kOwnDiscard{431, u"Discard"};
inline constexpr OwnEntry kOwnDraft{432, u"Not saved"};
inline constexpr OwnEntry kOwnInfoCut{
    433, u"Too large to be edited here. Only the beginning is shown."};
inline constexpr OwnEntry kOwnInfoUnreadable{
    434, u"The file of titles and description can't be read."};
inline constexpr OwnEntry kOwnNoPicture{438, u"No pictures"};
inline constexpr OwnEntry kOwnNotAPicture{439, u"This file is not a picture that can be shown."};
inline constexpr OwnEntry kOwnPictureBroken{440, u"This picture is damaged."};
inline constexpr OwnEntry kOwnPictureLarge{
    442, u"This picture is too large to be shown: <1> x <2>"};
inline constexpr OwnEntry kOwnNoSite{
    451, u"No site is set. A line site=ADDRESS in Endpoints.cfg sets one."};
inline constexpr OwnEntry kOwnPicture{452, u"Picture shown"};
inline constexpr OwnEntry kOwnPreview{453, u"What a start writes"};
inline constexpr OwnEntry kOwnPreviewSaved{454, u"A start writes this:"};
inline constexpr OwnEntry kOwnPreviewDiffers{455, u"Not saved. Once saved, a start writes this:"};
inline constexpr OwnEntry kOwnPreviewUnsaved{
    456, u"Not saved. A start writes the same either way:"};
inline constexpr OwnEntry kOwnPreviewNone{457, u"A start from here writes no dosbox.conf."};
inline constexpr OwnEntry kOwnPreviewWillBeNone{
    468, u"Not saved. Once saved, a start writes no dosbox.conf."};
inline constexpr OwnEntry kOwnDifferentGroups{459, u"Groups of what differs"};
inline constexpr OwnEntry kOwnDifferentOptions{460, u"Options that differ"};
inline constexpr OwnEntry kOwnDifferentValues{461, u"Values that differ"};

} // namespace pelorin::forms
