#pragma once

#include "platform/Outcome.h"
#include "platform/Paths.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <array>
#include <optional>
#include <vector>

namespace pelorin::shell {
struct Places;
}

namespace pelorin::library {

// The files of a game that the program knows by name; all but the first lie in the metadata folder.
inline constexpr QStringView kStoreFile = u"Store.7z";
inline constexpr QStringView kInfoFile = u"info.txt";
inline constexpr QStringView kFactsFile = u"ExtraInfo.txt";
inline constexpr QStringView kGenreKFile = u"GenreK.dat";
inline constexpr QStringView kGenreEFile = u"GenreE.dat";
inline constexpr QStringView kOldGenreFile = u"Extra.dat"; // of older releases, instead of both
inline constexpr QStringView kOwnConfFile = u"edit.conf";
inline constexpr QStringView kCdConfFile = u"CD.conf";
inline constexpr QStringView kStartFile = u"autoexec.conf";
inline constexpr QStringView kIconFile = u"Icon.jpg";

/// A file that a GameEntry is made of.
struct EntryFile {
    QStringView name;
    int lines = 0; // how many of its first ones stand in the entry; 0: none
};

/// All of them. ReadGameFolder asks for no other, since a scan keeps no other's name.
inline constexpr std::array<EntryFile, 7> kEntryFiles{{
    {kInfoFile, 1},
    {kFactsFile, 4},
    {kGenreKFile, 1},
    {kGenreEFile, 1},
    {kOldGenreFile, 0},
    {kOwnConfFile, 0},
    {kCdConfFile, 0},
}};

/// What went wrong on the way of a job that goes on all the same. Only the first ones are kept in
/// words, so that a library on a read-only disk does not fill the memory.
struct Troubles {
    static constexpr int kMostKept = 200;

    std::vector<platform::Error> kept;
    int count = 0; // all of them

    void Add(const platform::Error& error);
    void AddIfFailed(const platform::Done& done);
};

/// A game's two folders as they were listed, once. Whoever makes or deletes a file of them says so
/// through the Note... procedures; nobody lists them again.
struct GameFiles {
    QString folder;  // name below GamesRoot
    QString gameDir; // native path
    QString metaDir; // native path in its spelling on disk; gameDir/DosBox while there is none
    platform::Listing game;
    platform::Listing
        meta; // exists is false while there is no metadata folder, or it is unreadable

    bool HasGameFile(QStringView name) const { return game.HasFile(name.toString()); }
    bool HasMetaFile(QStringView name) const { return meta.HasFile(name.toString()); }
    /// The path of an entry in its spelling on disk, or as given when there is none.
    QString GamePath(QStringView name) const;
    QString MetaPath(QStringView name) const;

    /// An entry was made or is gone. Known ones may be noted again.
    void NoteGameFile(QStringView name);
    void NoteMetaFile(QStringView name);
    void NoteMetaFolder(const QString& name);
    void ForgetMetaFile(const QString& name);
};

/// A game's folder that was there and is not any more, for the user.
platform::Wording FolderIsGone(const QString& folder);

/// Whether a sub-folder of GamesRoot can be a game: not when its name is no plain name or not in
/// the system's encoding, and not when it is a link to GamesRoot or to a folder above that, since
/// preparing it would put files among the games.
bool MayBeGame(const shell::Places& places, const QString& folder);
/// The reason for the user, which names the folder; none when it can be one.
std::optional<platform::Wording> WhyNoGame(const shell::Places& places, const QString& folder);

/// Lists the game's folder and its metadata folder, whatever case that is written in. A folder that
/// is missing or can't be read gives empty listings. `folder` must be a plain name.
GameFiles ListGame(const shell::Places& places, const QString& folder);

/// Makes the metadata folder where there is none; `files` tells. An existing one is a success, also
/// one that could not be listed. Error Refused when a file bears its name, Unwritable otherwise.
platform::Done MakeMetaDir(GameFiles& files);

/// Writes a file of the metadata folder, which is made where there is none; `files` tells.
platform::Done WriteMeta(GameFiles& files, QStringView name, const QByteArray& bytes);

/// Deletes the file of that name, in whatever case, from the metadata folder; `files` tells. None is a
/// success.
platform::Done DeleteMeta(GameFiles& files, QStringView name);

/// The game's files lie in its store archive.
bool IsGameStored(const GameFiles& files);

/// Names in GameDir that DOS can run (*.exe, *.com, *.bat), by name.
QStringList RunnableFiles(const GameFiles& files);
/// Names in MetaDir that are pictures (*.jpg, *.jpeg, *.png, *.gif, *.bmp), by name; the game's own
/// icon file comes last, so that it is not what the details show first.
QStringList PictureFiles(const GameFiles& files);
/// Names in MetaDir that are recordings (*.avi, *.wav, *.vgm), by name.
QStringList RecordingFiles(const GameFiles& files);
/// The folder Manual of MetaDir in its spelling on disk; empty if there is none.
QString ManualDir(const GameFiles& files);
/// Names in it, listed at each call.
QStringList ManualFiles(const GameFiles& files);

} // namespace pelorin::library
