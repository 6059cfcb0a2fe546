#include "dosboxconf/ConfigEditor.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;
using namespace pelorin;
using dosboxconf::ConfigTab;
using dosboxconf::EditCheck;

namespace {

/// What can be seen, a letter each: Lists, Differences, Message, chkEditConfig, Commands; x when
/// cmdDeleteConfig deletes, e when the check box edits what there is.
QString Seen(const dosboxconf::ConfigPageState& state)
{
    QString seen;
    const std::pair<bool, QChar> parts[] = {
        {state.lists, u'L'},
        {state.picEdit, u'D'},
        {state.message, u'M'},
        {state.chkEditConfig, u'c'},
        {state.commands, u'C'},
        {state.deletesGame, u'x'},
        {state.editsExisting, u'e'}};
    for (const auto& [shown, letter] : parts) {
        seen += shown ? QString(letter) : QString();
    }
    return seen;
}

/// One group: a value, a cycle count, a text, and an option of no value.
dosboxconf::OptionGrid SmallGrid()
{
    using dosboxconf::OptionKind;
    dosboxconf::OptionGrid grid;
    grid.GroupCaption = {u"cpu"_s, u"sdl"_s};
    const std::pair<QString, OptionKind> items[] = {
        {u"core"_s, OptionKind::Index},
        {u"cycles"_s, OptionKind::CpuCycle},
        {u"up"_s, OptionKind::Text}};
    int item = 0;
    for (const auto& [name, kind] : items) {
        const auto at = dosboxconf::OptionGrid::Index({0, item++});
        grid.OptionTitle[at] = name.toUpper();
        grid.OptionKey[at] = name;
        grid.OptionKinds[at] = kind;
    }
    grid.OptionValue[dosboxconf::OptionGrid::Index({0, 0})] = {u"auto"_s, u"normal"_s};
    return grid;
}

} // namespace

TEST(ConfigEditor, WhatCanBeSeenByTabFileAndCheck)
{
    struct Case {
        ConfigTab tab;
        bool hasGame;
        bool hasConf;
        EditCheck check;
        QString seen;
    };
    const Case cases[] = {
        {ConfigTab::Global, true, false, EditCheck::Arranged, u"LC"_s},
        {ConfigTab::Global, true, true, EditCheck::Arranged, u"MC"_s},
        {ConfigTab::Global, false, false, EditCheck::Arranged, u"LC"_s},
        {ConfigTab::Game, true, false, EditCheck::Arranged, u"c"_s},
        {ConfigTab::Game, true, true, EditCheck::Arranged, u"DcCxe"_s},
        {ConfigTab::Game, true, false, EditCheck::Checked, u"LCx"_s},
        {ConfigTab::Game, true, true, EditCheck::Checked, u"LCxe"_s},
        {ConfigTab::Game, true, false, EditCheck::Unchecked, u"Dc"_s},
        {ConfigTab::Game, true, true, EditCheck::Unchecked, u"Dce"_s},
        {ConfigTab::Game, false, false, EditCheck::Arranged, QString()},
    };
    int number = 0;
    for (const Case& c : cases) {
        EXPECT_EQ(Seen(dosboxconf::StateOf(c.tab, c.hasGame, c.hasConf, c.check)), c.seen)
            << number;
        ++number;
    }
}

TEST(ConfigEditor, ARowEditsItsOwnOptionAlsoBehindAMissingOne)
{
    dosboxconf::OptionGrid grid = SmallGrid();
    dosboxconf::ConfigEditor editor;
    dosboxconf::ShowGroup(editor, grid, 0);
    EXPECT_EQ(editor.lstConfigTitle, (QStringList{u"CORE"_s, u"CYCLES"_s, u"UP"_s}));
    EXPECT_EQ(editor.lstConfig, (QStringList{u"auto"_s, u"0"_s})) << "the count is not set";
    EXPECT_EQ(editor.configItems, (std::vector<int>{0, 2}));
    dosboxconf::ChooseOption(editor, 2);
    EXPECT_EQ(editor.configRow, 1);
    dosboxconf::ChooseOption(editor, 1);
    EXPECT_EQ(editor.configRow, -1);

    grid.OptionSelection[dosboxconf::OptionGrid::Index({0, 1})] = 3000;
    dosboxconf::ShowGroupAgain(editor, grid);
    EXPECT_EQ(editor.lstConfig, (QStringList{u"auto"_s, u"3000"_s, u"0"_s}));
    EXPECT_EQ(editor.titleRow, 1);
    EXPECT_EQ(editor.configRow, 1);
}

TEST(ConfigEditor, StepsStopAtTheEndsAndNeverReachTheFirstGroup)
{
    using dosboxconf::GroupStep;
    EXPECT_EQ(dosboxconf::GroupAfter(0, GroupStep::Next, 3), 1);
    EXPECT_EQ(dosboxconf::GroupAfter(2, GroupStep::Next, 3), 2);
    EXPECT_EQ(dosboxconf::GroupAfter(2, GroupStep::Previous, 3), 1);
    EXPECT_EQ(dosboxconf::GroupAfter(1, GroupStep::Previous, 3), 1);
    EXPECT_EQ(dosboxconf::GroupAfter(0, GroupStep::Previous, 3), 0);
}

TEST(ConfigEditor, RepliesToAPromptForANumber)
{
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    struct Case {
        QString reply;
        std::optional<std::int32_t> number;
        QString text;
    };
    const Case numbers[] = {
        {u""_s, {}, {}},
        {u"abc"_s, 0, u"0"_s},
        {u"12"_s, 12, u"12"_s},
        {u"2.5"_s, 2, u"2.5"_s},
        {u"99999999999"_s, kMost, QString::number(kMost)},
    };
    for (const Case& c : numbers) {
        const auto edit = dosboxconf::NumberOf(c.reply);
        ASSERT_EQ(edit.has_value(), c.number.has_value()) << c.reply.toStdString();
        EXPECT_TRUE(!edit || (edit->selection == *c.number && edit->text == c.text));
    }
    const Case cycles[] = {
        {u"1"_s, 1, u"max"_s},
        {u"MAX"_s, 1, u"max"_s},
        {u"2"_s, 2, u"auto"_s},
        {u"Auto"_s, 2, u"auto"_s},
        {u"2.0"_s, {}, {}},
        {u"-5"_s, {}, {}},
        {u"fast"_s, {}, {}},
        {u""_s, {}, {}},
        {u"3000"_s, 3000, u"3000"_s},
        {u"1e99"_s, kMost, QString::number(kMost)},
    };
    for (const Case& c : cycles) {
        const auto edit = dosboxconf::CyclesOf(c.reply);
        EXPECT_EQ(edit.has_value(), c.number.has_value()) << c.reply.toStdString();
        EXPECT_TRUE(!edit || !c.number || (edit->selection == *c.number && edit->text == c.text))
            << c.reply.toStdString();
    }
}
