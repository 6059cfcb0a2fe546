#include "shell/SettingsFile.h"

#include "platform/PathWordings.h"
#include "platform/Paths.h"
#include "platform/TextFile.h"
#include "shell/RecentFile.h"
#include "shell/RootFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace pelorin::shell {

using platform::Done;
using platform::Error;
using platform::ErrorKind;
using platform::Outcome;
using platform::Wording;

namespace {

constexpr qsizetype kFirstWindowLine = 1; // counted from 0
constexpr qsizetype kWindowLines = 3;

QString CfgPath(const Places& places)
{
    return places.InAppDir(u"Launcher.cfg"_s);
}

QString BackupPath(const Places& places)
{
    return CfgPath(places) + u".bak"_s;
}

/// Whether something else than a folder stands at the path, or on the way there.
bool IsBlocked(const QString& path)
{
    for (QString part = path; part.size() > 1; part = QFileInfo(part).path()) {
        const QFileInfo info(part);
        if (info.exists() || info.isSymLink()) {
            return info.exists() && !info.isDir();
        }
    }
    return false;
}

Done MakeFolder(const QString& path)
{
    const QFileInfo info(path);
    // A link that leads nowhere is a disk that is not there now: nothing is made in its place.
    if (info.isDir() || (info.isSymLink() && !info.exists())) {
        return platform::Success();
    }
    if (!QDir().mkpath(path)) {
        return Error::Worded(ErrorKind::Unwritable, platform::FolderNotMade(path));
    }
    return platform::Success();
}

bool FitsALine(const QString& text)
{
    // A backslash would come back as a separator.
    return !text.contains(u'\r') && !text.contains(u'\n') && !text.contains(u'\\') &&
           platform::EncodeCp949(text).lost.isEmpty();
}

/// What is lost of other lines (a typed position) is not worth losing the file.
Done WriteCfgLines(const QString& path, const QStringList& lines)
{
    return platform::WriteBytes(
        path, platform::EncodeCp949(lines.join(u"\r\n"_s) + u"\r\n"_s).bytes);
}

QStringList DefaultLines(const Places& places)
{
    // Below AppDir the relative form always fits.
    const QString gamesRoot = places.DefaultGamesRoot();
    const QString exportRoot = places.DefaultExportRoot();
    return DefaultCfgLines(
        RootText(places, gamesRoot).ValueOr(QString()),
        RootText(places, exportRoot).ValueOr(QString()));
}

struct Root {
    QString bareName; // in lower case; written alone it means the default
    QString standard;
};

QString RepairedRoot(
    const Places& places, const QString& written, const Root& root, QStringList& lost)
{
    const QString native = platform::NativePath(written);
    if (QString(written).remove(u' ').isEmpty() || native.toLower() == root.bareName) {
        return root.standard;
    }
    QString found = RootPath(places, written);
    if (found != u"/" && QFileInfo(found).isDir()) {
        return found;
    }
    if (found != root.standard) {
        lost << written;
    }
    return root.standard;
}

/// A minimized window's short form adds nothing to the full one beside it.
bool IsShortFormOf(const QStringList& shortForm, QStringList full)
{
    full.remove(kFirstWindowLine, std::min(kWindowLines, full.size() - kFirstWindowLine));
    return shortForm == full;
}

bool BackupHoldsMore(const Places& places)
{
    const Outcome<QStringList> damaged = platform::ReadLines(CfgPath(places));
    const Outcome<QStringList> backup = platform::ReadLines(BackupPath(places));
    return damaged && backup && backup.Value().size() > kFirstWindowLine &&
           IsShortFormOf(damaged.Value(), backup.Value());
}

Done Rename(const QString& path, const QString& to)
{
    if (std::rename(QFile::encodeName(path).constData(), QFile::encodeName(to).constData()) != 0) {
        return Error::Worded(
            ErrorKind::Unwritable, Wording{472, u"<1> can't be kept as <2>."_s, {path, to}});
    }
    return platform::Success();
}

/// Of what can't be read no copy can be made: it is moved, and what was kept before as well.
Done MoveAside(const QString& path, const QString& backup)
{
    if (QFileInfo::exists(backup)) {
        if (Done kept = Rename(backup, backup + u'2'); !kept) {
            return kept;
        }
    }
    return Rename(path, backup);
}

/// Where Launcher.cfg is missing: what a first start writes.
Outcome<LauncherCfg> ReadCfg(const Places& places)
{
    const QString path = CfgPath(places);
    if (!QFileInfo::exists(path)) {
        return ParseLauncherCfg(DefaultLines(places));
    }
    const Outcome<QStringList> lines = platform::ReadLines(path);
    if (!lines) {
        return lines.Failure();
    }
    return ParseLauncherCfg(lines.Value(), path);
}

/// Everything that is read, once; writes nothing.
Outcome<LoadedSettings> ReadOnce(const Places& places, const Outcome<LauncherCfg>& cfg)
{
    if (!cfg) {
        return cfg.Failure();
    }
    Outcome<RecentList> recent = ReadRecentFile(places);
    if (!recent) {
        return recent.Failure();
    }
    LoadedSettings loaded;
    loaded.cfg = cfg.Value();
    loaded.recent = recent.Take();
    const Root games{u"games"_s, places.DefaultGamesRoot()};
    const Root exported{u"export"_s, places.DefaultExportRoot()};
    QString& gamesRoot = loaded.cfg.gamesRoot;
    QString& exportRoot = loaded.cfg.exportRoot;
    gamesRoot = RepairedRoot(places, gamesRoot, games, loaded.lostRoots);
    loaded.gamesRootReplaced = !loaded.lostRoots.isEmpty();
    exportRoot = RepairedRoot(places, exportRoot, exported, loaded.lostRoots);
    for (const QString& folder : {exportRoot, gamesRoot, places.InAppDir(u"preset"_s)}) {
        if (IsBlocked(folder)) {
            return Error::Worded(
                ErrorKind::Refused,
                Wording{473, u"<1>: a file is in the place of a folder"_s, {folder}});
        }
    }
    return loaded;
}

/// What a start makes or replaces. A disk that takes nothing is no reason not to start.
void WriteAtStart(const Places& places, LoadedSettings& loaded)
{
    const auto note = [&loaded](const Done& done) {
        if (!done) {
            loaded.unwritten << done.Failure().Told();
        }
        return done.Ok();
    };
    note(MakeRecentFile(places));
    const bool damaged = loaded.replacementReason.has_value();
    if (damaged || !loaded.lostRoots.isEmpty()) {
        loaded.oldCfgKept = note(KeepOldCfg(places));
    }
    if ((damaged && loaded.oldCfgKept) || !QFileInfo::exists(CfgPath(places))) {
        note(WriteDefaultSettings(places));
    }
    for (const QString& folder :
         {loaded.cfg.exportRoot, loaded.cfg.gamesRoot, places.InAppDir(u"preset"_s)}) {
        note(MakeFolder(folder));
    }
}

} // namespace

Outcome<LoadedSettings> LoadSettingsFiles(const Places& places)
{
    Outcome<LoadedSettings> loaded = ReadOnce(places, ReadCfg(places));
    if (!loaded) {
        // Once more with the settings of a first start; they replace a file only where that helps.
        const Wording reason = loaded.Failure().Told();
        loaded = ReadOnce(places, ParseLauncherCfg(DefaultLines(places)));
        if (!loaded) {
            return loaded;
        }
        loaded.Value().replacementReason = reason;
        loaded.Value().gamesRootReplaced = true;
    }
    WriteAtStart(places, loaded.Value());
    return loaded;
}

Done KeepOldCfg(const Places& places)
{
    const QString path = CfgPath(places);
    if (!QFileInfo::exists(path) || BackupHoldsMore(places)) {
        return platform::Success();
    }
    Done kept = platform::KeepBackup(path);
    const bool unreadable = !kept && kept.Failure().kind == ErrorKind::Unreadable;
    return unreadable ? MoveAside(path, BackupPath(places)) : kept;
}

Done SaveSettingsFiles(const Places& places, const LauncherCfg& cfg, const RecentList& recent)
{
    const Done recentWritten = WriteRecentFile(places, recent);
    LauncherCfg full = cfg;
    for (QString* root : {&full.gamesRoot, &full.exportRoot}) {
        Outcome<QString> text = RootText(places, *root);
        if (!text) {
            return text.Failure();
        }
        *root = text.Take();
    }
    const QStringList lines = LauncherCfgLines(full);
    if (cfg.state == MainFrame::State::Minimized) {
        full.state = MainFrame::State::Normal;
        Done kept = WriteCfgLines(BackupPath(places), LauncherCfgLines(full));
        if (!kept) {
            return kept;
        }
    }
    const Done cfgWritten = WriteCfgLines(CfgPath(places), lines);
    if (!recentWritten && !cfgWritten) {
        return Error{
            ErrorKind::Unwritable,
            recentWritten.Failure().text + u'\n' + cfgWritten.Failure().text};
    }
    return recentWritten ? cfgWritten : recentWritten;
}

Outcome<QString> RootText(const Places& places, const QString& root)
{
    if (FitsALine(root)) {
        return root;
    }
    QString relative = QDir(places.appDir).relativeFilePath(root);
    if (FitsALine(relative)) {
        return relative;
    }
    return Error::Worded(
        ErrorKind::Unencodable,
        Wording{474, u"<1>: code page 949 can't keep the path <2>."_s, {CfgPath(places), root}});
}

Done WriteDefaultSettings(const Places& places)
{
    for (const Done& done :
         {WriteCfgLines(CfgPath(places), DefaultLines(places)),
          MakeFolder(places.DefaultGamesRoot()),
          MakeFolder(places.DefaultExportRoot())}) {
        if (!done) {
            return done;
        }
    }
    return platform::Success();
}

} // namespace pelorin::shell
