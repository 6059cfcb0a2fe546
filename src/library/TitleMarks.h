#pragma once

#include "library/GameEntry.h"
#include "library/GameFiles.h"

#include <QString>

#include <cstdint>

namespace pelorin::shell {
class LangTable;
}

namespace pelorin::library {

/// What a title's marks tell.
struct MarkFacts {
    bool cd = false;        // CD.conf exists
    bool edited = false;    // edit.conf exists
    std::int16_t build = 0; // the game's build; gives a mark of its own only when `edited`
    bool stored = false;
};

MarkFacts MarkFactsOf(const GameFiles& files, std::int16_t build);

/// The title with its marks, each behind a blank: CD, own settings, build; then "] [" becomes ", "
/// everywhere; then the store mark without a blank.
QString MarkedTitle(const QString& title, const MarkFacts& facts, const shell::LangTable& lang);

/// What the reading of any game needs to know.
struct ReadingRules {
    const shell::LangTable& lang;
    std::int16_t defaultBuild = 0; // of Default.conf, for games without edit.conf
};

/// Fills an entry from the game's files; `position` is its place in the Catalogue, from 0. Makes
/// missing genre files. Never fails: what can't be read is empty, and told in `troubles`.
GameEntry ReadGameFolder(
    GameFiles& files, int position, const ReadingRules& rules, Troubles& troubles);

/// Takes titles, build and marks anew; the rest of the entry stays as it is.
void RefreshEntry(GameEntry& entry, const GameFiles& files, const ReadingRules& rules);

} // namespace pelorin::library
