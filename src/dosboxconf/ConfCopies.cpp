#include "dosboxconf/ConfCopies.h"

#include "dosboxconf/ConfFiles.h"
#include "dosboxconf/private/ConfPaths.h"
#include "dosboxconf/private/MetaFolder.h"
#include "dosboxconf/private/StoredConf.h"
#include "platform/TextFile.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace pelorin::dosboxconf {

namespace {

/// Far more than 41 groups of 81 numbers need.
constexpr qint64 kMostPresetBytes = qint64{1024} * 1024;

platform::Done Replace(const QString& path, const QByteArray& bytes)
{
    platform::Done kept = platform::KeepBackup(path);
    return kept ? platform::WriteBytes(path, bytes) : kept;
}

} // namespace

platform::Done KeepDefaultConf(const shell::Places& places)
{
    return platform::KeepBackup(DefaultConfPath(places));
}

platform::Done RemoveGameConf(const shell::Places& places, const QString& folder)
{
    if (!HasGameConf(places, folder)) {
        return platform::Success();
    }
    const QString path = GameConfPath(places, folder);
    if (platform::Done kept = platform::KeepBackup(path); !kept) {
        return kept;
    }
    QFile file(path);
    return file.remove()
               ? platform::Success()
               : platform::Done(platform::Error{
                     platform::ErrorKind::Unwritable, u"%1: %2"_s.arg(path, file.errorString())});
}

platform::Outcome<QByteArray> ReadPreset(const QString& path)
{
    platform::Outcome<QByteArray> bytes = platform::ReadPlainFile(path, kMostPresetBytes);
    if (!bytes) {
        return bytes;
    }
    const QStringList lines = platform::SplitLines(platform::DecodeCp949(bytes.Value()));
    const StoredConf stored = ParseConf(lines);
    // A file without a mark begins with a number.
    const QRegularExpression number(u"^\\s*[+-]?[0-9]+\\s*$"_s);
    const bool begins =
        stored.layout != ConfLayout::Groups11 || number.match(lines.value(0)).hasMatch();
    if (!begins || !stored.whole) {
        return platform::Error::Worded(
            platform::ErrorKind::Malformed,
            platform::Wording{458, u"<1> is not a saved configuration."_s, {path}});
    }
    return bytes;
}

platform::Done ReplaceDefaultConf(const shell::Places& places, const QByteArray& bytes)
{
    return Replace(DefaultConfPath(places), bytes);
}

platform::Done ReplaceGameConf(
    const shell::Places& places, const QString& folder, const QByteArray& bytes)
{
    platform::Done made = MakeMetaDir(places, folder);
    return made ? Replace(GameConfPath(places, folder), bytes) : made;
}

platform::Done SavePreset(const shell::Places& places, const QString& folder, const QString& path)
{
    const QString source =
        HasGameConf(places, folder) ? GameConfPath(places, folder) : DefaultConfPath(places);
    const platform::Outcome<QByteArray> bytes = platform::ReadBytes(source);
    return bytes ? Replace(path, bytes.Value()) : platform::Done(bytes.Failure());
}

} // namespace pelorin::dosboxconf
