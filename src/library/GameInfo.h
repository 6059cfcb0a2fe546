#pragma once

#include "library/GameFiles.h"
#include "platform/Outcome.h"
#include "platform/TextFile.h"

#include <QString>

#include <cstdint>

// The texts of a game's metadata folder, all in code page 949 with CR LF:
//   info.txt       line 1 first title, U+0003, second title; then the description
//   ExtraInfo.txt  four lines: maker, release, language, country
//   GenreK.dat     one line; GenreE.dat likewise
//   Extra.dat      one line, a genre code of old folders; replaced by the two above when found

namespace pelorin::library {

struct Titles {
    QString first;  // Korean, by habit
    QString second; // English
};

/// How much of info.txt the boxes hold.
enum class InfoState {
    Whole,
    Cut,        // the beginning of a file that is too large to be edited
    Unreadable, // nothing
};

/// The bytes of an info.txt that can be edited, and the characters of its title line.
inline constexpr qsizetype kMostInfo = qsizetype{256} * 1024;
inline constexpr qsizetype kMostTitleLine = 4096;
/// The characters of each title: two of them always fit in their line.
inline constexpr int kMostTitle = 1000;

/// What the title and description boxes show.
struct InfoText {
    Titles titles;       // empty if there is no info.txt; one title alone stands in both, trimmed
    QString description; // lines joined by CR LF
    InfoState state = InfoState::Whole;
};

/// What is to be saved of the boxes.
struct InfoChange {
    InfoText text;
    bool titles = true; // what is not touched stays in the file byte by byte
    bool description = true;
};

struct Facts {
    QString Maker;
    QString Release;
    QString GameLanguage;
    QString Country;
};

struct Genres {
    QString korean;
    QString english;
};

/// The same code of an old folder has two English words: "@SHT" is "Shooter" to a scan and
/// "Shooting" to the details panel.
enum class GenreForm { Scan, Panel };

enum class GenreFile { Korean, English };

using platform::Loss;

/// U+0001 to U+0003 separate the fields of the catalogue's file and line ends its lines, so no
/// field may hold one: they are dropped.
QString CleanField(const QString& text);

/// The titles of a title line. A line with nothing but blanks and U+0003 gives the folder's name
/// twice; a line without U+0003 gives the same title twice; what follows a second U+0003 is
/// ignored. Both titles are clean fields.
Titles SplitTitleLine(const QString& line, const QString& folder);

/// The titles for the Catalogue: reads only the first line of info.txt. Without a readable one the
/// folder's name. Here and below, a file that is there and can't be read is told in `troubles`.
Titles ReadTitles(const GameFiles& files, Troubles* troubles = nullptr);

/// info.txt for the boxes. Missing: empty and whole, since it can be written.
InfoText ReadInfo(const GameFiles& files);

/// What code page 949 can't keep of the change, each character once; empty if all is well.
QString LostInInfo(const InfoChange& change);

/// Replaces info.txt; makes the metadata folder if it is missing. Line ends of a touched description
/// become CR LF; control characters 1 to 3 and line ends in touched titles are dropped. Where there
/// is no file both are written; where nothing is touched, nothing. Error Unencodable, with nothing
/// written, if characters would be lost and `loss` refuses that; Refused for a file that is too
/// large to be edited; Unreadable.
platform::Done WriteInfo(GameFiles& files, const InfoChange& change, Loss loss = Loss::Refuse);

/// Missing lines, or no file, read as empty.
Facts ReadFacts(const GameFiles& files, Troubles* troubles = nullptr);
platform::Done WriteFacts(GameFiles& files, const Facts& facts);
/// No file is a success.
platform::Done DeleteFacts(GameFiles& files);

/// Reads the genres. A missing file is written with the word for "other", and an old folder's code
/// is turned into both files. Nothing is written when the metadata folder could not be listed. The
/// old file goes only when both new ones stand.
Genres ReadGenres(GameFiles& files, GenreForm form, Troubles& troubles);
platform::Done WriteGenre(GameFiles& files, GenreFile which, const QString& genre);

/// The index of a build as a settings file has it, kept within 16 bits. 0 for no number.
std::int16_t BuildOf(const QString& line);

/// Line 2 of edit.conf as a number, which is the index of the game's build; `defaultBuild` without
/// a readable edit.conf. A missing line counts as 0; beyond 16 bits the value is clamped.
std::int16_t ReadBuild(
    const GameFiles& files, std::int16_t defaultBuild, Troubles* troubles = nullptr);

} // namespace pelorin::library
