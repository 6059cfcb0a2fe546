#pragma once

#include "dosboxconf/ConfFiles.h"
#include "dosboxconf/OptionGrid.h"
#include "platform/Notifier.h"

#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

// The configuration page: what its controls hold, and the rules of it that need neither a file nor
// a person. The commands are in EditorCommands.h.

namespace pelorin::dosboxconf {

/// The two tabs that the page serves, as tabInfo counts them.
inline constexpr int kGlobalTab = 3;
inline constexpr int kGameTab = 4;
enum class ConfigTab { Global = kGlobalTab, Game = kGameTab };

/// chkEditConfig: as the page is arranged, or as the user last clicked it since.
enum class EditCheck { Arranged, Checked, Unchecked };

/// What of the page can be seen, and what its two captions with two meanings say.
struct ConfigPageState {
    bool lists = false;         // cmbConfigSub, lstConfigTitle, lstConfig
    bool picEdit = false;       // the list of a game's differences
    bool message = false;       // picConfigMessage
    bool chkEditConfig = false; // the check box itself
    bool commands = false;      // cmdSaveConfig, cmdDeleteConfig, cmdOpenPreset, cmdSavePreset
    bool deletesGame = false; // cmdDeleteConfig deletes the game's settings, else restores defaults
    bool editsExisting = false; // chkEditConfig edits an edit.conf, else makes one

    friend bool operator==(const ConfigPageState&, const ConfigPageState&) = default;
};

/// `hasGame`: there is a game, and `hasConf`: with an edit.conf.
ConfigPageState StateOf(ConfigTab tab, bool hasGame, bool hasConf, EditCheck check);

/// cmbConfig, which lies over a row of lstConfig while one of an option's values is chosen.
struct OptionCombo {
    bool visible = false;
    Cell cell;
    int row = -1; // of lstConfig
    QStringList items;
    int index = -1; // -1: the selection is none of them
};

/// The text that a start would write once the edits are saved.
struct ConfPreview {
    enum class State {
        None,       // a start writes no such text
        WillBeNone, // the same, once the edits are saved
        Saved,      // it would write the same now
        Unsaved,    // there are edits, and they change nothing in it
        Differs,    // now it would write another one
    };

    State state = State::None;
    QString text;
    QString refusal; // why a start would not write it; empty: it would
};

struct ConfigEditor {
    enum Changed : std::uint32_t {
        State = 1,  // page, chkEditConfig
        Rows = 2,   // cmbConfigSub, titles, values and their rows
        Values = 4, // texts of lstConfig
        Row = 8,    // the rows of both lists
        Differences = 16,
        EditRow = 32,
        Combo = 64,
        Description = 128,
        Preview = 256,
        FocusTitles = 512, // lstConfigTitle is to take the keyboard
        All = State | Rows | Differences | Combo | Description | Preview,
    };

    ConfigPageState page;
    bool chkEditConfig = false;
    int cmbConfigSub = 0; // the group shown
    QStringList lstConfigTitle;
    int titleRow = -1; // its rows are the items of the group
    QStringList lstConfig;
    std::vector<int> configItems; // the item that each of its rows edits
    int configRow = -1;
    OptionCombo cmbConfig;
    std::array<QStringList, 3> lstEdit; // group, title, value
    int editRow = -1;
    QString txtDesc;
    ConfPreview preview;

    bool hasConf = false;     // the game shown had an edit.conf when the grid was loaded
    Selection saved{};        // what the grid held then
    ConfPreview savedPreview; // text and refusal of a start by that
    int loads = 0;            // how often it was; a command that waited sees whether it is the same

    platform::Notifier changed;
};

/// Shows a group from its first row on. Titles end at the first empty one, values at the first empty
/// key; an option without a value, as a cycle count that is not set, has no row in lstConfig.
void ShowGroup(ConfigEditor& editor, const OptionGrid& grid, int group);
/// The same where the rows that are chosen stay, for a group that may hold other values now.
void ShowGroupAgain(ConfigEditor& editor, const OptionGrid& grid);
/// The row of lstConfig that edits an item of the group shown; -1 if it has none.
int RowOfItem(const ConfigEditor& editor, int item);
/// Chooses an option: its title, and its value if that has a row.
void ChooseOption(ConfigEditor& editor, int item);
void ShowDifferences(ConfigEditor& editor, const std::vector<Difference>& differences);

/// Ctrl+Tab and Ctrl+Shift+Tab. At the ends the group stays; group 0 is not reached this way.
enum class GroupStep { Next, Previous };
int GroupAfter(int group, GroupStep step, int groups);

/// What a reply to a prompt for a number makes of an option.
struct NumberEdit {
    QString text; // for its row
    std::int32_t selection = 0;
};
/// <TEXT>. Nothing for an empty reply, which is a box that was closed.
std::optional<NumberEdit> NumberOf(const QString& reply);
/// <CPUCYCLE>: max, auto, or a count from 3 on. Nothing for any other reply.
std::optional<NumberEdit> CyclesOf(const QString& reply);

} // namespace pelorin::dosboxconf
