#include "library/GameFiles.h"

#include "archives/FileOperations.h"
#include "platform/PathWordings.h"
#include "platform/TextFile.h"
#include "shell/Places.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace pelorin::library {

using platform::Error;
using platform::ErrorKind;
using platform::Wording;

namespace {

/// The metadata folder's name when one is made.
constexpr QStringView kMetaDirName = u"DosBox";

void NoteName(platform::Listing& listing, QStringList& kind, const QString& name)
{
    if (!kind.contains(name)) {
        kind << name;
        listing.all << name;
    }
    const QString lower = name.toLower();
    if (!listing.byLowerCase.contains(lower)) {
        listing.byLowerCase.insert(lower, name);
    }
}

/// The folder of that name without regard to case, the exact one first; empty if there is none.
QString FindFolder(const platform::Listing& listing, QStringView name)
{
    if (listing.folders.contains(name)) {
        return name.toString();
    }
    const auto hit =
        std::find_if(listing.folders.begin(), listing.folders.end(), [&](const QString& folder) {
            return folder.compare(name, Qt::CaseInsensitive) == 0;
        });
    return hit == listing.folders.end() ? QString() : *hit;
}

QString PathOf(const QString& folder, const platform::Listing& listing, const QString& name)
{
    const QString found = listing.Find(name);
    return folder + u'/' + (found.isEmpty() ? name : found);
}

} // namespace

void Troubles::Add(const platform::Error& error)
{
    ++count;
    if (kept.size() < kMostKept) {
        kept.push_back(error);
    }
}

void Troubles::AddIfFailed(const platform::Done& done)
{
    if (!done) {
        Add(done.Failure());
    }
}

QString GameFiles::GamePath(QStringView name) const
{
    return PathOf(gameDir, game, name.toString());
}

QString GameFiles::MetaPath(QStringView name) const
{
    return PathOf(metaDir, meta, name.toString());
}

void GameFiles::NoteGameFile(QStringView name)
{
    NoteName(game, game.files, name.toString());
}

void GameFiles::NoteMetaFile(QStringView name)
{
    NoteName(meta, meta.files, name.toString());
}

void GameFiles::NoteMetaFolder(const QString& name)
{
    NoteName(meta, meta.folders, name);
}

void GameFiles::ForgetMetaFile(const QString& name)
{
    meta.files.removeAll(name);
    meta.all.removeAll(name);
    const QString lower = name.toLower();
    if (meta.byLowerCase.value(lower) != name) {
        return;
    }
    meta.byLowerCase.remove(lower);
    const auto twin = std::find_if(meta.all.begin(), meta.all.end(), [&](const QString& other) {
        return other.toLower() == lower;
    });
    if (twin != meta.all.end()) {
        meta.byLowerCase.insert(lower, *twin);
    }
}

Wording FolderIsGone(const QString& folder)
{
    return Wording{342, u"<1>: the game's folder is gone."_s, {folder}};
}

std::optional<Wording> WhyNoGame(const shell::Places& places, const QString& folder)
{
    if (!platform::IsPlainName(folder)) {
        return Wording{436, u"<1>: the name holds a backslash."_s, {folder}};
    }
    if (folder.contains(QChar::ReplacementCharacter)) {
        return Wording{445, u"<1>: the name is in another encoding."_s, {folder}};
    }
    const QFileInfo info(places.GameDir(folder));
    if (!info.isSymLink()) {
        return std::nullopt;
    }
    const QString root = QFileInfo(places.gamesRoot).canonicalFilePath() + u'/';
    const QString target = info.canonicalFilePath();
    const bool leadsBack = root.startsWith(target.endsWith(u'/') ? target : target + u'/');
    if (!leadsBack) {
        return std::nullopt;
    }
    return Wording{462, u"<1>: the link leads to where the games lie."_s, {folder}};
}

bool MayBeGame(const shell::Places& places, const QString& folder)
{
    return !WhyNoGame(places, folder);
}

GameFiles ListGame(const shell::Places& places, const QString& folder)
{
    GameFiles files;
    files.folder = folder;
    files.gameDir = places.GameDir(folder);
    files.game = platform::ListFolder(files.gameDir);
    const QString name = FindFolder(files.game, kMetaDirName);
    files.metaDir = files.gameDir + u'/' + (name.isEmpty() ? kMetaDirName.toString() : name);
    if (!name.isEmpty()) {
        files.meta = platform::ListFolder(files.metaDir);
    }
    return files;
}

platform::Done MakeMetaDir(GameFiles& files)
{
    if (files.meta.exists || QFileInfo(files.metaDir).isDir()) {
        return platform::Success();
    }
    const QString name = kMetaDirName.toString();
    if (!files.game.Find(name).isEmpty()) {
        return Error::Worded(ErrorKind::Refused, platform::NoFolder(files.GamePath(name)));
    }
    // Not with the folders above it: a game folder that has vanished must not come back.
    if (!QDir().mkdir(files.metaDir)) {
        return Error::Worded(ErrorKind::Unwritable, platform::FolderNotMade(files.metaDir));
    }
    NoteName(files.game, files.game.folders, name);
    files.meta = platform::Listing();
    files.meta.exists = true;
    return platform::Success();
}

platform::Done WriteMeta(GameFiles& files, QStringView name, const QByteArray& bytes)
{
    platform::Done made = MakeMetaDir(files);
    if (!made) {
        return made;
    }
    platform::Done written = platform::WriteBytes(files.MetaPath(name), bytes);
    if (written && !files.HasMetaFile(name)) {
        files.NoteMetaFile(name);
    }
    return written;
}

platform::Done DeleteMeta(GameFiles& files, QStringView name)
{
    const QString found = files.meta.Find(name.toString());
    if (found.isEmpty()) {
        return platform::Success();
    }
    platform::Done gone = archives::DeleteFileIfThere(files.MetaPath(found));
    if (gone) {
        files.ForgetMetaFile(found);
    }
    return gone;
}

bool IsGameStored(const GameFiles& files)
{
    return files.HasGameFile(kStoreFile);
}

QStringList RunnableFiles(const GameFiles& files)
{
    return platform::FilesWithEndings(files.game, {u".exe", u".com", u".bat"});
}

QStringList PictureFiles(const GameFiles& files)
{
    QStringList pictures =
        platform::FilesWithEndings(files.meta, {u".jpg", u".jpeg", u".png", u".gif", u".bmp"});
    std::stable_partition(pictures.begin(), pictures.end(), [](const QString& name) {
        return name.compare(kIconFile, Qt::CaseInsensitive) != 0;
    });
    return pictures;
}

QStringList RecordingFiles(const GameFiles& files)
{
    return platform::FilesWithEndings(files.meta, {u".avi", u".wav", u".vgm"});
}

QString ManualDir(const GameFiles& files)
{
    const QString name = FindFolder(files.meta, u"Manual");
    return name.isEmpty() ? QString() : files.metaDir + u'/' + name;
}

QStringList ManualFiles(const GameFiles& files)
{
    const QString folder = ManualDir(files);
    return folder.isEmpty() ? QStringList() : platform::ListFolder(folder).files;
}

} // namespace pelorin::library
