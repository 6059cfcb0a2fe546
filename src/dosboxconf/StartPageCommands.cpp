#include "dosboxconf/StartPageCommands.h"

#include "dosboxconf/AutoexecFile.h"
#include "dosboxconf/CdFile.h"
#include "library/CatalogueCommands.h"
#include "platform/Paths.h"
#include "platform/Prompts.h"
#include "platform/TextFile.h"
#include "shell/FolderCfgCommands.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"
#include "shell/LossCommands.h"

namespace pelorin::dosboxconf {

using shell::Launcher;

namespace {

constexpr auto kCategory = "pelorin.dosboxconf";

/// The game that the page shows. The selection may be a step ahead of it.
const QString& ShownGame(const Launcher& launcher)
{
    return launcher.screens.details.folder;
}

bool ShowsGame(const Launcher& launcher)
{
    return platform::IsPlainName(ShownGame(launcher));
}

/// The row of lstCD that stands for the game's own folder.
QString Placeholder(const Launcher& launcher)
{
    return launcher.lang.Text(172, {ShownGame(launcher)});
}

QStringList Images(const Launcher& launcher)
{
    return ReadCdFacts(launcher.places, ShownGame(launcher)).images;
}

} // namespace

void lstAutoexec_DblClick(Launcher& launcher, int row)
{
    StartCommands& start = launcher.screens.start;
    const QString folder = ShownGame(launcher);
    const QString old = start.lstAutoexec.value(row);
    const QString reply =
        launcher.ports.prompts.InputText(launcher.lang[184], launcher.lang[185], old);
    // Window events ran: the list may be another game's by now, or have other rows.
    if (ShownGame(launcher) == folder && start.lstAutoexec.value(row) == old) {
        ReplaceLine(start, row, reply);
    }
}

void WriteAutoexecConf(Launcher& launcher)
{
    if (!ShowsGame(launcher) || shell::ShowsFormerRoot(launcher)) {
        return;
    }
    const QString folder = ShownGame(launcher);
    const QStringList commands = launcher.screens.start.lstAutoexec;
    if (!shell::MayLose(launcher, platform::EncodeCp949(commands.join(QString())).lost)) {
        return;
    }
    const platform::Done written =
        WriteAutoexecConf(launcher.places, folder, commands, platform::Loss::Accept);
    if (!written) {
        shell::TellNote(launcher, kCategory, written.Failure());
    } else if (ShownGame(launcher) == folder) {
        launcher.screens.start.saved = commands;
    }
}

void FillCdList(Launcher& launcher, const library::GameFiles& files)
{
    ResetCdPanel(launcher.screens.cd);
    FillCdList(launcher.screens.cd, ReadCdFacts(files), Placeholder(launcher));
}

void RefillCdList(Launcher& launcher, const library::GameFiles& files)
{
    if (const CdFacts facts = ReadCdFacts(files); facts.hasFolder) {
        FillCdList(launcher.screens.cd, facts, Placeholder(launcher));
    }
}

void chkCD_Click(Launcher& launcher, bool checked)
{
    if (ShowsGame(launcher)) {
        ChkCdClicked(launcher.screens.cd, checked, Images(launcher), Placeholder(launcher));
    }
}

void chkMountCD_Click(Launcher& launcher, bool checked)
{
    if (ShowsGame(launcher)) {
        ChkMountCdClicked(launcher.screens.cd, checked, Images(launcher), Placeholder(launcher));
    }
}

shell::MenuModel CdMenu(const Launcher& launcher)
{
    return {{0, launcher.lang[51]}, {1, launcher.lang[52]}};
}

void mnuCD_Click(Launcher& launcher, int index)
{
    if (ShowsGame(launcher)) {
        ChooseCdMode(launcher.screens.cd, index, Images(launcher), Placeholder(launcher));
    }
}

void cmdSaveCD_Click(Launcher& launcher)
{
    if (!ShowsGame(launcher) || shell::ShowsFormerRoot(launcher)) {
        return;
    }
    const QString folder = ShownGame(launcher); // by value: the refresh may show another
    if (const platform::Done saved = SaveCdConf(launcher.places, folder, launcher.screens.cd);
        !saved) {
        shell::TellNote(launcher, kCategory, saved.Failure());
        return;
    }
    launcher.screens.cd.edited = false;
    library::RefreshGameEntry(launcher, folder);
}

} // namespace pelorin::dosboxconf
