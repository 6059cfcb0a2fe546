#include "dosboxconf/AutoexecFile.h"

#include "dosboxconf/private/MetaFolder.h"
#include "library/GameFiles.h"
#include "platform/TextFile.h"

namespace pelorin::dosboxconf {

namespace {

QString AutoexecConfPath(const shell::Places& places, const QString& folder)
{
    return places.InMetaDir(folder, library::kStartFile.toString());
}

QStringList WithoutEmptyLines(QStringList lines)
{
    lines.removeAll(QString());
    return lines;
}

/// None without a file.
platform::Outcome<QStringList> ReadCommands(const QString& path)
{
    platform::Outcome<QStringList> lines = platform::ReadLines(path);
    if (!lines) {
        return lines.Failure().kind == platform::ErrorKind::NotFound
                   ? platform::Outcome<QStringList>(QStringList())
                   : lines;
    }
    return WithoutEmptyLines(lines.Take());
}

} // namespace

platform::Outcome<QStringList> ReadAutoexecConf(const shell::Places& places, const QString& folder)
{
    return ReadCommands(AutoexecConfPath(places, folder));
}

platform::Outcome<QStringList> ReadAutoexecConf(const library::GameFiles& files)
{
    return files.HasMetaFile(library::kStartFile)
               ? ReadCommands(files.MetaPath(library::kStartFile))
               : platform::Outcome<QStringList>(QStringList());
}

platform::Done WriteAutoexecConf(
    const shell::Places& places,
    const QString& folder,
    const QStringList& commands,
    platform::Loss loss)
{
    if (platform::Done made = MakeMetaDir(places, folder); !made) {
        return made;
    }
    return platform::WriteLines(
        AutoexecConfPath(places, folder), WithoutEmptyLines(commands), loss);
}

} // namespace pelorin::dosboxconf
