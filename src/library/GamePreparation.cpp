#include "library/GamePreparation.h"

#include "library/IconImages.h"
#include "library/private/NewFile.h"
#include "platform/PathWordings.h"

#include <QDir>

#include <array>

using namespace Qt::StringLiterals;

namespace pelorin::library {

namespace {

void MakeMetaSubFolder(GameFiles& files, const QString& name, Troubles& troubles)
{
    if (!files.meta.Find(name).isEmpty()) {
        return;
    }
    const QString path = files.MetaPath(name);
    if (QDir().mkdir(path)) {
        files.NoteMetaFolder(name);
    } else {
        troubles.Add(platform::Error::Worded(
            platform::ErrorKind::Unwritable, platform::FolderNotMade(path)));
    }
}

void WriteStartFile(GameFiles& files, Troubles& troubles)
{
    if (files.HasMetaFile(kStartFile)) {
        return;
    }
    const platform::Done written = WriteNewMeta(files, kStartFile, {DetectStartFile(files)});
    troubles.AddIfFailed(written);
    if (!written && written.Failure().kind == platform::ErrorKind::Unencodable) {
        // DOS could not be told that name either.
        troubles.AddIfFailed(WriteNewMeta(files, kStartFile, {QString()}));
    }
}

IconPixels IconFromIco(
    GameFiles& files, const QString& ico, const IconPixels& defaultIcon, Troubles& troubles)
{
    const platform::Outcome<IconPixels> icon = LoadIco(files.MetaPath(ico));
    if (!icon) {
        troubles.Add(icon.Failure());
        return defaultIcon;
    }
    const platform::Done saved = SaveIcon(files.MetaPath(kIconFile), icon.Value());
    troubles.AddIfFailed(saved);
    if (saved) {
        files.NoteMetaFile(kIconFile);
    }
    return icon.Value();
}

IconPixels IconOfGame(GameFiles& files, const IconPixels& defaultIcon, Troubles& troubles)
{
    if (files.HasMetaFile(kIconFile)) {
        const platform::Outcome<IconPixels> icon = LoadIcon(files.MetaPath(kIconFile));
        if (!icon) {
            troubles.Add(icon.Failure());
        }
        return icon.ValueOr(defaultIcon);
    }
    const QStringList icos = platform::FilesWithEndings(files.meta, {u".ico"});
    return icos.isEmpty() ? defaultIcon : IconFromIco(files, icos[0], defaultIcon, troubles);
}

void DeleteSmallIcon(GameFiles& files, Troubles& troubles)
{
    const QString name = u"smallicon.jpg"_s;
    if (files.HasMetaFile(name)) {
        troubles.AddIfFailed(DeleteMeta(files, name));
    }
}

} // namespace

QString DetectStartFile(const GameFiles& files)
{
    const std::array<QString, 5> names{u"play"_s, u"game"_s, u"start"_s, u"go"_s, files.folder};
    for (const QString& ending : {u".bat"_s, u".exe"_s, u".com"_s}) {
        for (const QString& name : names) {
            QString candidate = name + ending;
            if (files.HasGameFile(candidate)) {
                return candidate;
            }
        }
    }
    return QString();
}

IconPixels PrepareGameFolder(GameFiles& files, const IconPixels& defaultIcon, Troubles& troubles)
{
    // What can't be listed is left alone: nobody knows what a write would replace there.
    const platform::Done made = files.game.exists ? MakeMetaDir(files) : platform::Success();
    if (!made || !files.meta.exists) {
        const QString& unreadable = files.game.exists ? files.metaDir : files.gameDir;
        troubles.Add(
            made ? platform::Error::Worded(
                       platform::ErrorKind::Unreadable,
                       platform::Wording{471, u"<1>: the folder can't be read."_s, {unreadable}})
                 : made.Failure());
        return defaultIcon;
    }
    MakeMetaSubFolder(files, u"CD"_s, troubles);
    MakeMetaSubFolder(files, u"Manual"_s, troubles);
    WriteStartFile(files, troubles);
    IconPixels icon = IconOfGame(files, defaultIcon, troubles);
    DeleteSmallIcon(files, troubles);
    return icon;
}

} // namespace pelorin::library
