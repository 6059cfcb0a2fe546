#include "dosboxconf/ConfigEditor.h"

#include "platform/Numbers.h"

#include <QtNumeric>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace pelorin::dosboxconf {

namespace {

bool HasValueRow(const OptionGrid& grid, Cell cell)
{
    switch (grid.Kind(cell)) {
    case OptionKind::Other: return false;
    case OptionKind::CpuCycle: return grid.Selected(cell) > 0;
    default: return true;
    }
}

void FillOptionTitles(ConfigEditor& editor, const OptionGrid& grid)
{
    editor.lstConfigTitle.clear();
    for (int item = 0; item < kItems; ++item) {
        const QString& title = grid.Title({editor.cmbConfigSub, item});
        if (title.isEmpty()) {
            break;
        }
        editor.lstConfigTitle << title;
    }
}

void FillOptionValues(ConfigEditor& editor, const OptionGrid& grid)
{
    editor.lstConfig.clear();
    editor.configItems.clear();
    for (int item = 0; item < kItems; ++item) {
        const Cell cell{editor.cmbConfigSub, item};
        if (grid.Key(cell).isEmpty()) {
            break;
        }
        if (HasValueRow(grid, cell)) {
            editor.lstConfig << ShownValue(grid, cell, grid.Selected(cell));
            editor.configItems.push_back(item);
        }
    }
}

/// The reply stands in the row as it was typed, unless 32 bits can't hold it.
NumberEdit EditTo(const QString& reply, double number)
{
    const std::int32_t rounded = platform::RoundHalfEven(number);
    const bool fits = number >= std::numeric_limits<std::int32_t>::min() &&
                      number <= std::numeric_limits<std::int32_t>::max();
    return {fits ? reply : QString::number(rounded), rounded};
}

} // namespace

ConfigPageState StateOf(ConfigTab tab, bool hasGame, bool hasConf, EditCheck check)
{
    ConfigPageState state;
    state.editsExisting = tab == ConfigTab::Game && hasConf;
    if (tab == ConfigTab::Global) {
        // Global settings are not edited beside a game that overrides them.
        state.lists = !hasConf;
        state.message = hasConf;
        state.commands = true;
        return state;
    }
    if (!hasGame) {
        return state;
    }
    switch (check) {
    case EditCheck::Arranged:
        state.picEdit = hasConf;
        state.chkEditConfig = true;
        state.commands = hasConf;
        state.deletesGame = hasConf;
        break;
    case EditCheck::Checked:
        state.lists = true;
        state.commands = true;
        state.deletesGame = true;
        break;
    case EditCheck::Unchecked:
        state.picEdit = true;
        state.chkEditConfig = true;
        break;
    }
    return state;
}

void ShowGroup(ConfigEditor& editor, const OptionGrid& grid, int group)
{
    editor.cmbConfigSub = group;
    editor.titleRow = 0;
    ShowGroupAgain(editor, grid);
}

void ShowGroupAgain(ConfigEditor& editor, const OptionGrid& grid)
{
    const int groups = static_cast<int>(grid.GroupCaption.size());
    editor.cmbConfigSub = qBound(0, editor.cmbConfigSub, qMax(0, groups - 1));
    FillOptionTitles(editor, grid);
    FillOptionValues(editor, grid);
    const int last = static_cast<int>(editor.lstConfigTitle.size()) - 1;
    ChooseOption(editor, qMin(qMax(0, editor.titleRow), last));
    editor.cmbConfig = OptionCombo();
}

int RowOfItem(const ConfigEditor& editor, int item)
{
    const auto& items = editor.configItems;
    const auto at = std::find(items.begin(), items.end(), item);
    return at == items.end() ? -1 : static_cast<int>(at - items.begin());
}

void ChooseOption(ConfigEditor& editor, int item)
{
    editor.titleRow = item;
    editor.configRow = RowOfItem(editor, item);
}

void ShowDifferences(ConfigEditor& editor, const std::vector<Difference>& differences)
{
    editor.lstEdit = {};
    for (const Difference& difference : differences) {
        editor.lstEdit[0] << difference.group;
        editor.lstEdit[1] << difference.title;
        editor.lstEdit[2] << difference.value;
    }
    editor.editRow = differences.empty() ? -1 : 0;
}

int GroupAfter(int group, GroupStep step, int groups)
{
    const int next = step == GroupStep::Next ? group + 1 : group - 1;
    return next >= 1 && next < groups ? next : group;
}

std::optional<NumberEdit> NumberOf(const QString& reply)
{
    if (reply.isEmpty()) {
        return std::nullopt;
    }
    const double number = platform::NumericPrefix(reply);
    return number == 0 ? NumberEdit{u"0"_s, 0} : EditTo(reply, number);
}

std::optional<NumberEdit> CyclesOf(const QString& reply)
{
    const QString word = reply.toLower();
    if (word == u"1"_s || word == u"max"_s) {
        return NumberEdit{u"max"_s, 1};
    }
    if (word == u"2"_s || word == u"auto"_s) {
        return NumberEdit{u"auto"_s, 2};
    }
    const NumberEdit edit = EditTo(reply, platform::NumericPrefix(reply));
    // 2.4 would be stored as what "auto" is stored as.
    return edit.selection > 2 ? std::optional(edit) : std::nullopt;
}

} // namespace pelorin::dosboxconf
