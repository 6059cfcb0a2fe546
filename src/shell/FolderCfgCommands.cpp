#include "shell/FolderCfgCommands.h"

#include "library/InfoCommands.h"
#include "platform/MountTable.h"
#include "platform/Prompts.h"
#include "platform/ShellVerbs.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"
#include "shell/SettingsFile.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace pelorin::shell {

namespace {

constexpr auto kCategory = "pelorin.shell";

QString& BoxOf(Launcher& launcher, Root root)
{
    FolderCfg& boxes = launcher.screens.folderCfg;
    return root == Root::Games ? boxes.txtGames : boxes.txtExport;
}

void Show(Launcher& launcher, Root root, const QString& path)
{
    BoxOf(launcher, root) = path;
    launcher.screens.folderCfg.changed.Tell(FolderCfg::All);
}

QString WordsOf(const Launcher& launcher, RootFault fault, const QString& path)
{
    const LangTable& lang = launcher.lang;
    switch (fault) {
    case RootFault::None: break;
    case RootFault::Unnamed: return lang.OwnText(446, u"Please name a folder."_s);
    case RootFault::DriveRoot: return lang[107];
    case RootFault::InOneAnother:
        return lang.OwnText(
            447,
            u"The games root and the export folder can't be the same folder, and neither can lie in the other."_s);
    case RootFault::HoldsProgram:
        return lang.OwnText(
            448,
            u"<1>: the program itself lies there; games need a folder of their own."_s,
            {path});
    case RootFault::Unencodable:
        return lang.OwnText(
            449, u"<1>: the settings file can't hold this name. Please choose another."_s, {path});
    }
    return {};
}

void TellRefusal(Launcher& launcher, const QString& text)
{
    launcher.ports.prompts.Ask(platform::MessageBox{
        text, launcher.lang[108], platform::Buttons::Ok, platform::BoxIcon::Exclamation});
}

/// True for a path that may be a root; else the reason has been told.
bool Allows(Launcher& launcher, Root root, const QString& path, const QString& other)
{
    RootFacts facts;
    facts.root = root;
    facts.text = path;
    facts.path = WithoutLinks(path);
    facts.other = other.isEmpty() ? QString() : WithoutLinks(other);
    facts.appDir = WithoutLinks(launcher.places.appDir);
    facts.mountPoints = platform::MountPoints();
    facts.fitsLauncherCfg = RootText(launcher.places, path).Ok();
    const RootFault fault = FaultOf(facts);
    if (fault != RootFault::None) {
        TellRefusal(launcher, WordsOf(launcher, fault, path));
    }
    return fault == RootFault::None;
}

bool Makes(Launcher& launcher, const QString& path)
{
    const platform::Done made = MakeRoot(path);
    if (!made) {
        TellRefusal(launcher, launcher.lang.Told(made.Failure().Told()));
    }
    return made.Ok();
}

/// The folder that a dialog can start in: the path, or the nearest one above it that exists.
QString NearestFolder(const QString& path)
{
    QString folder = path;
    while (folder.size() > 1 && !QFileInfo(folder).isDir()) {
        folder = QFileInfo(folder).path();
    }
    return folder;
}

/// What was typed into games of this root is saved or given up. False: neither, so it must stay.
bool LeavesDrafts(Launcher& launcher)
{
    const std::optional<QStringList> unsaved = library::SettleDrafts(launcher);
    if (unsaved && !unsaved->isEmpty()) {
        TellNote(launcher, kCategory, unsaved->first(), unsaved->join(u'\n'));
    }
    return unsaved && unsaved->isEmpty();
}

} // namespace

void frmFolderCFG_Load(Launcher& launcher)
{
    Show(launcher, Root::Games, launcher.places.gamesRoot);
    Show(launcher, Root::Export, launcher.places.exportRoot);
}

void ChooseRoot(Launcher& launcher, Root root)
{
    const int title = root == Root::Games ? 210 : 211;
    const QString& current =
        root == Root::Games ? launcher.places.gamesRoot : launcher.places.exportRoot;
    const QString typed = RootPath(launcher.places, BoxOf(launcher, root));
    const QString start = NearestFolder(typed.isEmpty() ? current : typed);
    const QString chosen = launcher.ports.prompts.ChooseFolder(launcher.lang[title], start);
    if (chosen.isEmpty()) {
        return;
    }
    // The other box may change yet, so the two are held against each other when they are accepted.
    const QString path = RootPath(launcher.places, chosen);
    if (Allows(launcher, root, path, QString())) {
        Show(launcher, root, path);
    }
}

void TakeDefaultRoot(Launcher& launcher, Root root)
{
    const Places& places = launcher.places;
    Show(
        launcher,
        root,
        root == Root::Games ? places.DefaultGamesRoot() : places.DefaultExportRoot());
}

void OpenRoot(Launcher& launcher, Root root)
{
    const QString path = RootPath(launcher.places, BoxOf(launcher, root));
    if (!path.isEmpty()) {
        TellIfFailed(launcher, kCategory, launcher.ports.shell.Open(path));
    }
}

bool AcceptRoots(Launcher& launcher)
{
    const QString games = RootPath(launcher.places, BoxOf(launcher, Root::Games));
    const QString exported = RootPath(launcher.places, BoxOf(launcher, Root::Export));
    if (!Allows(launcher, Root::Games, games, exported) ||
        !Allows(launcher, Root::Export, exported, games)) {
        return false;
    }
    const bool moves = games != launcher.places.gamesRoot;
    if ((moves && !LeavesDrafts(launcher)) || !Makes(launcher, games) ||
        !Makes(launcher, exported)) {
        return false;
    }
    launcher.places.exportRoot = exported;
    if (moves) {
        launcher.places.gamesRoot = games;
        launcher.settings.rootsChanged = games != launcher.settings.listedRoot;
        library::ForgetDrafts(launcher); // a namesake below the new root is another game
        ShowsFormerRoot(launcher);
        launcher.screens.details.changed.Tell(DetailsPanel::Texts); // whether they may be edited
    }
    return true;
}

bool ShowsFormerRoot(Launcher& launcher)
{
    if (launcher.settings.rootsChanged) {
        TellNote(
            launcher,
            kCategory,
            launcher.lang.OwnText(
                450, u"The list still shows the former folder's games. F5 reads the new one."_s));
    }
    return launcher.settings.rootsChanged;
}

} // namespace pelorin::shell
