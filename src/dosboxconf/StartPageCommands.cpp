#include "dosboxconf/StartPageCommands.h"

#include "dosboxconf/CdFile.h"
#include "dosboxconf/StartCommandsFile.h"
#include "library/CatalogueCommands.h"
#include "platform/Paths.h"
#include "platform/Prompts.h"
#include "platform/TextFile.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"
#include "shell/LossCommands.h"

namespace pelorin::dosboxconf {

using shell::Launcher;

namespace {

constexpr auto kCategory = "pelorin.dosboxconf";

bool HasGame(const Launcher& launcher)
{
    return platform::IsPlainName(launcher.current.CurrentFolder);
}

/// The row of lstCD that stands for the game's own folder.
QString Placeholder(const Launcher& launcher)
{
    return launcher.lang.Text(172, {launcher.current.CurrentFolder});
}

QStringList Images(const Launcher& launcher)
{
    return ReadCdFacts(launcher.places, launcher.current.CurrentFolder).images;
}

} // namespace

void lstAutoexec_DblClick(Launcher& launcher, int row)
{
    const QString old = launcher.screens.start.lstAutoexec.value(row);
    const QString reply =
        launcher.ports.prompts.InputText(launcher.lang[184], launcher.lang[185], old);
    ReplaceLine(launcher.screens.start, row, reply);
}

void WriteAutoexecConf(Launcher& launcher)
{
    if (!HasGame(launcher)) {
        return;
    }
    const QString folder = launcher.current.CurrentFolder;
    const QStringList commands = launcher.screens.start.lstAutoexec;
    if (!shell::MayLose(launcher, platform::EncodeCp949(commands.join(QString())).lost)) {
        return;
    }
    const platform::Done written =
        WriteAutoexecConf(launcher.places, folder, commands, platform::Loss::Accept);
    if (!written) {
        shell::TellNote(launcher, kCategory, written.Failure().text);
    }
}

void FillCdList(Launcher& launcher)
{
    ResetCdPanel(launcher.screens.cd);
    FillCdList(
        launcher.screens.cd,
        ReadCdFacts(launcher.places, launcher.current.CurrentFolder),
        Placeholder(launcher));
}

void chkCD_Click(Launcher& launcher, bool checked)
{
    if (HasGame(launcher)) {
        ChkCdClicked(launcher.screens.cd, checked, Images(launcher), Placeholder(launcher));
    }
}

void chkMountCD_Click(Launcher& launcher, bool checked)
{
    if (HasGame(launcher)) {
        ChkMountCdClicked(launcher.screens.cd, checked, Images(launcher), Placeholder(launcher));
    }
}

void mnuCD_Click(Launcher& launcher, int index)
{
    if (HasGame(launcher)) {
        ChooseCdMode(launcher.screens.cd, index, Images(launcher), Placeholder(launcher));
    }
}

void cmdSaveCD_Click(Launcher& launcher)
{
    if (!HasGame(launcher)) {
        return;
    }
    const QString folder = launcher.current.CurrentFolder;
    if (const platform::Done saved = SaveCdConf(launcher.places, folder, launcher.screens.cd);
        !saved) {
        shell::TellNote(launcher, kCategory, saved.Failure().text);
        return;
    }
    library::RefreshGameEntry(launcher, folder);
}

} // namespace pelorin::dosboxconf
