#include "dosboxconf/EditorCommands.h"

#include "dosboxconf/ConfCopies.h"
#include "dosboxconf/ConfDefaults.h"
#include "dosboxconf/ConfReportCommands.h"
#include "library/CatalogueCommands.h"
#include "platform/Paths.h"
#include "platform/Prompts.h"
#include "platform/TextFile.h"
#include "running/PreviewCommands.h"
#include "shell/FolderCfgCommands.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace pelorin::dosboxconf {

using platform::Outcome;
using shell::Launcher;

namespace {

constexpr auto kCategory = "pelorin.dosboxconf";

ConfigTab TabOf(const Launcher& launcher)
{
    return launcher.screens.frame.tabInfo == kGameTab ? ConfigTab::Game : ConfigTab::Global;
}

/// The game that the page shows. The selection may be a step ahead of it.
QString ShownGame(const Launcher& launcher)
{
    return launcher.screens.details.folder;
}

bool HasGame(const Launcher& launcher)
{
    return platform::IsPlainName(ShownGame(launcher));
}

/// A title that no file can be named after has no description.
QString DescriptionOf(const Launcher& launcher, const QString& title)
{
    if (!platform::IsPlainName(title)) {
        return QString();
    }
    const QString path = launcher.places.InAppDir(u"Descript/"_s + title + u".txt"_s);
    return platform::ReadText(path).ValueOr(QString()).replace(u"\r\n"_s, u"\n"_s);
}

void ShowDescription(Launcher& launcher)
{
    ConfigEditor& editor = launcher.screens.config;
    QString title;
    if (editor.page.picEdit) {
        title = editor.lstEdit[1].value(editor.editRow);
    } else if (editor.page.lists) {
        title = editor.lstConfigTitle.value(editor.titleRow);
    }
    editor.txtDesc = DescriptionOf(launcher, title);
    editor.changed.Tell(ConfigEditor::Description);
}

bool IsSaved(const Launcher& launcher)
{
    return launcher.screens.config.saved == launcher.options.OptionSelection;
}

/// By the grid as it is, without a state.
ConfPreview ComposedPreview(const Launcher& launcher)
{
    const Outcome<QString> text = running::PreviewGameText(launcher);
    ConfPreview preview;
    preview.text = text.ValueOr(QString());
    preview.refusal = text ? QString() : launcher.lang.Told(text.Failure().Told());
    return preview;
}

ConfPreview::State PreviewState(const Launcher& launcher)
{
    using State = ConfPreview::State;
    const ConfigEditor& editor = launcher.screens.config;
    const bool same = editor.preview.text == editor.savedPreview.text;
    if (!editor.preview.refusal.isEmpty()) {
        return IsSaved(launcher) ? State::None : State::WillBeNone;
    }
    if (editor.preview.text.isEmpty()) {
        return same ? State::None : State::WillBeNone;
    }
    if (IsSaved(launcher)) {
        return State::Saved;
    }
    return same ? State::Unsaved : State::Differs;
}

void ShowPreview(Launcher& launcher)
{
    ConfigEditor& editor = launcher.screens.config;
    if (editor.page.message) {
        // What is on this page is not what the game starts with.
        editor.preview = ConfPreview();
    } else {
        editor.preview = IsSaved(launcher) ? editor.savedPreview : ComposedPreview(launcher);
        editor.preview.state = PreviewState(launcher);
    }
    editor.changed.Tell(ConfigEditor::Preview);
}

/// What the grid holds now is what the files hold.
void TakeAsSaved(Launcher& launcher, bool hasConf)
{
    ConfigEditor& editor = launcher.screens.config;
    editor.hasConf = hasConf;
    editor.saved = launcher.options.OptionSelection;
    if (ShowsConfigPage(launcher)) {
        editor.savedPreview = ComposedPreview(launcher);
    }
    ++editor.loads;
}

void Load(Launcher& launcher)
{
    const LoadedConf loaded = LoadGameConf(launcher.places, ShownGame(launcher), launcher.options);
    TellReport(launcher, loaded.report);
    TakeAsSaved(launcher, loaded.hasOwn);
}

void ShowRows(Launcher& launcher)
{
    ShowGroupAgain(launcher.screens.config, launcher.options);
    launcher.screens.config.changed.Tell(ConfigEditor::Rows | ConfigEditor::Combo);
    ShowDescription(launcher);
    ShowPreview(launcher);
}

/// A value of the group shown has changed, in the grid and in its row, which it may get by that.
void SetValue(Launcher& launcher, int item, const NumberEdit& edit)
{
    ConfigEditor& editor = launcher.screens.config;
    const Cell cell{editor.cmbConfigSub, item};
    launcher.options.OptionSelection[OptionGrid::Index(cell)] = edit.selection;
    const int row = RowOfItem(editor, item);
    if (row < 0) {
        ShowRows(launcher);
        return;
    }
    editor.lstConfig[row] = edit.text;
    editor.changed.Tell(ConfigEditor::Values);
    ShowPreview(launcher);
}

void AskForNumber(Launcher& launcher, int item, OptionKind kind)
{
    ConfigEditor& editor = launcher.screens.config;
    const shell::LangTable& lang = launcher.lang;
    const bool cycles = kind == OptionKind::CpuCycle;
    const QString question =
        cycles ? QStringList{lang[187], lang[188], lang[189], lang[190]}.join(u"\r\n"_s)
               : lang[192];
    const int loads = editor.loads;
    const int group = editor.cmbConfigSub;
    const QString reply = launcher.ports.prompts.InputText(
        question, cycles ? lang[191] : lang[193], editor.lstConfig.value(RowOfItem(editor, item)));
    // Window events ran: other settings may be loaded by now.
    if (editor.loads != loads || editor.cmbConfigSub != group) {
        return;
    }
    if (const std::optional<NumberEdit> edit = cycles ? CyclesOf(reply) : NumberOf(reply)) {
        SetValue(launcher, item, *edit);
    }
}

void ShowOptionCombo(Launcher& launcher, int row, Cell cell)
{
    ConfigEditor& editor = launcher.screens.config;
    const QStringList& values = launcher.options.Values(cell);
    const qsizetype end = values.indexOf(QString());
    OptionCombo combo{true, cell, row, end < 0 ? values : values.mid(0, end), -1};
    const std::int32_t selected = launcher.options.Selected(cell);
    combo.index = selected >= 0 && selected < combo.items.size() ? selected : -1;
    editor.cmbConfig = std::move(combo);
    editor.changed.Tell(ConfigEditor::Combo);
}

void HideCombo(Launcher& launcher)
{
    ConfigEditor& editor = launcher.screens.config;
    if (editor.cmbConfig.visible) {
        editor.cmbConfig = OptionCombo();
        editor.changed.Tell(ConfigEditor::Combo);
    }
}

/// Whether the file that the page edits was written.
bool TellWritten(Launcher& launcher, const Outcome<ConfReport>& written)
{
    if (!written) {
        shell::TellNote(launcher, kCategory, written.Failure());
        return false;
    }
    TellReport(launcher, written.Value());
    return true;
}

bool Agrees(Launcher& launcher, const QString& korean, const QString& english)
{
    const platform::Answer answer = launcher.ports.prompts.Ask(platform::MessageBox{
        launcher.lang.IsKorean() ? korean : english,
        launcher.lang[1],
        platform::Buttons::OkCancel,
        platform::BoxIcon::Question});
    return answer == platform::Answer::Ok && !launcher.flags.JobHeld;
}

/// The page is loaded anew, and the game's entry with it.
void ShowSaved(Launcher& launcher, const QString& folder)
{
    if (library::PositionOf(launcher.catalogue, folder) >= 0) {
        library::RefreshGameEntry(launcher, folder);
    } else {
        ShowConfigPage(launcher);
    }
}

void RestoreDefaults(Launcher& launcher)
{
    const QString folder = ShownGame(launcher);
    if (!Agrees(launcher, u"전역 설정을 초기화 합니다"_s, u"Restore Default Setting"_s)) {
        return;
    }
    // What was set is kept, since there is no way back from here.
    if (const platform::Done kept = KeepDefaultConf(launcher.places); !kept) {
        shell::TellNote(launcher, kCategory, kept.Failure());
        return;
    }
    SetFactoryDefaults(launcher.options);
    const bool written = TellWritten(launcher, WriteDefaultConf(launcher.places, launcher.options));
    ShowRows(launcher);
    if (written) {
        ShowSaved(launcher, folder);
    }
}

void DeleteGameConf(Launcher& launcher)
{
    const QString folder = ShownGame(launcher);
    if (!Agrees(launcher, u"설정을 삭제합니다"_s, u"Delete Setting"_s) ||
        shell::ShowsFormerRoot(launcher)) {
        return;
    }
    // By name: another game may be shown by now.
    if (const platform::Done gone = RemoveGameConf(launcher.places, folder); !gone) {
        shell::TellNote(launcher, kCategory, gone.Failure());
        return;
    }
    launcher.screens.frame.tabInfo = kGameTab;
    launcher.screens.frame.changed.Tell(shell::MainFrame::Tab);
    ShowSaved(launcher, folder);
}

} // namespace

bool ShowsConfigPage(const Launcher& launcher)
{
    const int tab = launcher.screens.frame.tabInfo;
    return tab == kGlobalTab || tab == kGameTab;
}

void ShowConfigPage(Launcher& launcher, const LoadedConf& loaded)
{
    ConfigEditor& editor = launcher.screens.config;
    TakeAsSaved(launcher, loaded.hasOwn);
    if (!ShowsConfigPage(launcher)) {
        return;
    }
    editor.page = StateOf(TabOf(launcher), HasGame(launcher), editor.hasConf, EditCheck::Arranged);
    editor.chkEditConfig = false;
    ShowDifferences(editor, loaded.differences);
    editor.changed.Tell(ConfigEditor::State | ConfigEditor::Differences);
    ShowRows(launcher);
}

void ShowConfigPage(Launcher& launcher)
{
    const LoadedConf loaded = LoadGameConf(launcher.places, ShownGame(launcher), launcher.options);
    TellReport(launcher, loaded.report);
    ShowConfigPage(launcher, loaded);
}

std::optional<Selection> UnsavedEdits(const Launcher& launcher)
{
    const bool some = ShowsConfigPage(launcher) && !IsSaved(launcher);
    return some ? std::optional(launcher.options.OptionSelection) : std::nullopt;
}

void ShowEdits(Launcher& launcher, const Selection& edits)
{
    launcher.options.OptionSelection = edits;
    ShowRows(launcher);
}

void chkEditConfig_Click(Launcher& launcher, bool checked)
{
    ConfigEditor& editor = launcher.screens.config;
    editor.chkEditConfig = checked;
    editor.page = StateOf(
        TabOf(launcher),
        HasGame(launcher),
        editor.hasConf,
        checked ? EditCheck::Checked : EditCheck::Unchecked);
    if (checked) {
        Load(launcher);
    }
    editor.changed.Tell(ConfigEditor::State);
    editor.titleRow = 0;
    ShowRows(launcher);
    if (checked) {
        editor.changed.Tell(ConfigEditor::FocusTitles);
    }
}

void cmbConfigSub_Click(Launcher& launcher, int group)
{
    ShowGroup(launcher.screens.config, launcher.options, group);
    launcher.screens.config.changed.Tell(ConfigEditor::Rows | ConfigEditor::Combo);
    ShowDescription(launcher);
}

void lstConfigTitle_CtrlTab(Launcher& launcher, GroupStep step)
{
    const ConfigEditor& editor = launcher.screens.config;
    const int groups = static_cast<int>(launcher.options.GroupCaption.size());
    const int group = GroupAfter(editor.cmbConfigSub, step, groups);
    if (group != editor.cmbConfigSub) {
        cmbConfigSub_Click(launcher, group);
    }
}

void lstConfigTitle_Click(Launcher& launcher, int row)
{
    ConfigEditor& editor = launcher.screens.config;
    HideCombo(launcher);
    ChooseOption(editor, row);
    editor.changed.Tell(ConfigEditor::Row);
    ShowDescription(launcher);
}

void lstConfig_Row(Launcher& launcher, int row)
{
    const ConfigEditor& editor = launcher.screens.config;
    if (row >= 0 && row < static_cast<int>(editor.configItems.size())) {
        lstConfigTitle_Click(launcher, editor.configItems[static_cast<std::size_t>(row)]);
    }
}

void lstConfig_Click(Launcher& launcher, int row)
{
    const ConfigEditor& editor = launcher.screens.config;
    if (row >= 0 && row < static_cast<int>(editor.configItems.size())) {
        lstConfigTitle_DblClick(launcher, editor.configItems[static_cast<std::size_t>(row)]);
    }
}

void lstConfigTitle_DblClick(Launcher& launcher, int item)
{
    const ConfigEditor& editor = launcher.screens.config;
    if (launcher.flags.JobHeld || item < 0 || item >= editor.lstConfigTitle.size()) {
        return;
    }
    lstConfigTitle_Click(launcher, item);
    const Cell cell{editor.cmbConfigSub, item};
    const int row = RowOfItem(editor, item);
    switch (const OptionKind kind = launcher.options.Kind(cell)) {
    case OptionKind::Index:
    case OptionKind::Mapper:
        if (row >= 0) {
            ShowOptionCombo(launcher, row, cell);
        }
        break;
    case OptionKind::Text:
    case OptionKind::CpuCycle: AskForNumber(launcher, item, kind); break;
    default: break;
    }
}

void cmbConfig_Click(Launcher& launcher, int index)
{
    ConfigEditor& editor = launcher.screens.config;
    if (!editor.cmbConfig.visible) {
        return;
    }
    const int item = editor.cmbConfig.cell.item;
    const QString text = editor.cmbConfig.items.value(index);
    HideCombo(launcher);
    if (!text.isEmpty()) {
        SetValue(launcher, item, {text, index});
    }
    editor.changed.Tell(ConfigEditor::FocusTitles);
}

void cmbConfig_Leave(Launcher& launcher)
{
    HideCombo(launcher);
}

void lstEdit_Click(Launcher& launcher, int row)
{
    launcher.screens.config.editRow = row;
    launcher.screens.config.changed.Tell(ConfigEditor::EditRow);
    ShowDescription(launcher);
}

void cmdSaveConfig_Click(Launcher& launcher)
{
    const ConfigEditor& editor = launcher.screens.config;
    const QString folder = ShownGame(launcher);
    const bool global = TabOf(launcher) == ConfigTab::Global;
    if (launcher.flags.JobHeld || (!global && shell::ShowsFormerRoot(launcher))) {
        return;
    }
    // Beside a game with settings of its own the grid holds those, and nothing is saved.
    const bool saves = !global || (!editor.hasConf && !HasGameConf(launcher.places, folder));
    const bool saved =
        !saves || TellWritten(
                      launcher,
                      global ? WriteDefaultConf(launcher.places, launcher.options)
                             : SaveGameConf(launcher.places, folder, launcher.options));
    // What could not be saved stays to be saved again; a part of it may have been.
    if (saved) {
        ShowSaved(launcher, folder);
    } else if (!global) {
        launcher.screens.config.hasConf = HasGameConf(launcher.places, folder);
        library::RereadGameEntry(launcher, folder);
    }
}

void cmdDeleteConfig_Click(Launcher& launcher)
{
    if (launcher.flags.JobHeld) {
        return;
    }
    if (!launcher.screens.config.page.deletesGame) {
        RestoreDefaults(launcher);
    } else if (!shell::ShowsFormerRoot(launcher)) {
        DeleteGameConf(launcher);
    }
}

} // namespace pelorin::dosboxconf
