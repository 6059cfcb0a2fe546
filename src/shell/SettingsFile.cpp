#include "shell/SettingsFile.h"

#include "platform/Paths.h"
#include "platform/TextFile.h"
#include "shell/RecentFile.h"

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

Done MakeFolder(const QString& path)
{
    const QFileInfo info(path);
    // A link that leads nowhere is a disk that is not there now: nothing is made in its place.
    if (info.isDir() || (info.isSymLink() && !info.exists())) {
        return platform::Success();
    }
    if (!QDir().mkpath(path)) {
        return Error{ErrorKind::Unwritable, u"%1: the folder can't be made"_s.arg(path)};
    }
    return platform::Success();
}

Done MakeFolders(const QStringList& paths)
{
    for (const QString& path : paths) {
        Done made = MakeFolder(path);
        if (!made) {
            return made;
        }
    }
    return platform::Success();
}

bool FitsALine(const QString& text)
{
    return !text.contains(u'\r') && !text.contains(u'\n') &&
           platform::EncodeCp949(text).lost.isEmpty();
}

/// The root as Launcher.cfg can hold it: whole, or below AppDir where code page 949 can't keep the
/// way there.
Outcome<QString> RootText(const Places& places, const QString& root)
{
    if (FitsALine(root)) {
        return root;
    }
    QString relative = QDir(places.appDir).relativeFilePath(root);
    if (FitsALine(relative)) {
        return relative;
    }
    return Error{
        ErrorKind::Unencodable,
        u"%1: code page 949 can't keep the path %2"_s.arg(CfgPath(places), root)};
}

/// What is lost of other lines (a typed position) is not worth losing the file.
Done WriteCfgLines(const QString& path, const QStringList& lines)
{
    return platform::WriteBytes(
        path, platform::EncodeCp949(lines.join(u"\r\n"_s) + u"\r\n"_s).bytes);
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
    const QString absolute = QDir::isAbsolutePath(native) ? native : places.appDir + u'/' + native;
    const QString found = platform::ResolvePath(QString(), absolute);
    if (QFileInfo(found).isDir()) {
        return QDir::cleanPath(found);
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

/// By renaming, since the file may be one that can't be read.
Done KeepDamaged(const Places& places)
{
    const QString path = CfgPath(places);
    if (!QFileInfo::exists(path) || BackupHoldsMore(places)) {
        return platform::Success();
    }
    const QByteArray from = QFile::encodeName(path);
    const QByteArray to = QFile::encodeName(BackupPath(places));
    if (std::rename(from.constData(), to.constData()) != 0) {
        return Error{
            ErrorKind::Unwritable, u"%1: can't be kept as %2"_s.arg(path, BackupPath(places))};
    }
    return platform::Success();
}

Outcome<LauncherCfg> ReadCfg(const Places& places)
{
    const QString path = CfgPath(places);
    if (!QFileInfo::exists(path)) {
        const Done made = WriteDefaultSettings(places);
        if (!made) {
            return made.Failure();
        }
    }
    const Outcome<QStringList> lines = platform::ReadLines(path);
    if (!lines) {
        return lines.Failure();
    }
    Outcome<LauncherCfg> cfg = ParseLauncherCfg(lines.Value());
    if (!cfg) {
        return Error{cfg.Failure().kind, u"%1: %2"_s.arg(path, cfg.Failure().text)};
    }
    return cfg;
}

Outcome<LoadedSettings> LoadOnce(const Places& places)
{
    Outcome<RecentList> recent = ReadRecentFile(places);
    if (!recent) {
        return recent.Failure();
    }
    Outcome<LauncherCfg> cfg = ReadCfg(places);
    if (!cfg) {
        return cfg.Failure();
    }
    LoadedSettings loaded{cfg.Take(), recent.Take(), {}, {}};
    const Root games{u"games"_s, places.DefaultGamesRoot()};
    const Root exported{u"export"_s, places.DefaultExportRoot()};
    QString& gamesRoot = loaded.cfg.gamesRoot;
    QString& exportRoot = loaded.cfg.exportRoot;
    gamesRoot = RepairedRoot(places, gamesRoot, games, loaded.lostRoots);
    exportRoot = RepairedRoot(places, exportRoot, exported, loaded.lostRoots);
    if (!loaded.lostRoots.isEmpty()) {
        const Done kept = platform::KeepBackup(CfgPath(places));
        if (!kept) {
            return kept.Failure();
        }
    }
    const Done made = MakeFolders({exportRoot, gamesRoot, places.InAppDir(u"preset"_s)});
    if (!made) {
        return made.Failure();
    }
    return loaded;
}

} // namespace

Outcome<LoadedSettings> LoadSettingsFiles(const Places& places)
{
    Outcome<LoadedSettings> first = LoadOnce(places);
    if (first) {
        return first;
    }
    const Done kept = KeepDamaged(places);
    if (!kept) {
        return kept.Failure();
    }
    const Done written = WriteDefaultSettings(places);
    if (!written) {
        return written.Failure();
    }
    Outcome<LoadedSettings> second = LoadOnce(places);
    if (second) {
        second.Value().replacementReason = first.Failure().text;
    }
    return second;
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
    return recentWritten ? cfgWritten : recentWritten;
}

Done WriteDefaultSettings(const Places& places)
{
    const QString gamesRoot = places.DefaultGamesRoot();
    const QString exportRoot = places.DefaultExportRoot();
    const Outcome<QString> gamesText = RootText(places, gamesRoot);
    const Outcome<QString> exportText = RootText(places, exportRoot);
    // Below AppDir the relative form always fits.
    Done written = WriteCfgLines(
        CfgPath(places),
        DefaultCfgLines(gamesText.ValueOr(QString()), exportText.ValueOr(QString())));
    return written ? MakeFolders({gamesRoot, exportRoot}) : written;
}

} // namespace pelorin::shell
