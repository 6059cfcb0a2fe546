#include "library/ListMenus.h"

#include "LibraryFixture.h"

using namespace Qt::StringLiterals;
using namespace pelorin;

namespace {

/// "10" shown, "(11)" shown and disabled, "|" a separator.
QString Shape(const shell::MenuModel& menu)
{
    QStringList shape;
    for (const shell::MenuEntry& entry : menu) {
        const QString index = QString::number(entry.index);
        shape << (entry.separator ? u"|"_s : entry.enabled ? index : u'(' + index + u')');
    }
    return shape.join(u' ');
}

QString TextOf(const shell::MenuModel& menu, int index)
{
    for (const shell::MenuEntry& entry : menu) {
        if (entry.index == index) {
            return entry.text;
        }
    }
    return u"none"_s;
}

/// Entry n reads "n" and, where it takes a title, the title behind it.
shell::LangTable TitledLang()
{
    QStringList lines;
    for (int i = 1; i <= shell::kLastEntry; ++i) {
        lines << QString::number(i) + u" <1>"_s;
    }
    return shell::LangTable::FromLines(lines).Take();
}

TEST(ListMenus, WhatTheGameMenuShowsFollowsTheSelection)
{
    struct Row {
        int selected = 0;
        QList<int> commands;
        const char* shape = "";
    };
    const QList<int> everything{
        0, 1, 3, 4, 6, 7, 8, 10, 11, 12, 13, 15, 16, 18, 20, 21, 22, 23, 25};
    const Row rows[] = {
        {0, everything, ""},
        {1, everything, "0 1 | 3 4 | 6 7 8 | 10 11 12 13 | 20 21 | 25"},
        {2, everything, "0 1 | 3 4 | 6 7 8 | 15 16 | 18 | 22 23 | 25"},
        {32767, everything, "0 1 | 3 4 | 6 7 8 | 15 16 | 18 | 22 23 | 25"},
        {1, {}, "(0) (1) | (3) (4) | (6) (7) (8) | (10) (11) (12) (13) | (20) (21) | (25)"},
        {1, {0, 10, 25}, "0 (1) | (3) (4) | (6) (7) (8) | 10 (11) (12) (13) | (20) (21) | 25"},
        {3, {10, 18}, "(0) (1) | (3) (4) | (6) (7) (8) | (15) (16) | 18 | (22) (23) | (25)"},
    };
    for (const Row& row : rows) {
        const shell::MenuModel menu =
            library::GameMenu({row.selected, u"T"_s, false, row.commands}, TitledLang());
        EXPECT_EQ(Shape(menu).toStdString(), row.shape) << row.selected;
    }
}

TEST(ListMenus, CaptionsBearTheTitleWithItsAmpersandsDoubled)
{
    const shell::LangTable lang = TitledLang();
    const QString title = u"  R&D \"<1>\" && '100%'"_s;
    const QString shown = u"  R&&D \"<1>\" &&&& '100%'"_s;
    const shell::MenuModel one = library::GameMenu({1, title, false, {}}, lang);
    const int entries[][2] = {
        {0, 140},
        {1, 141},
        {3, 142},
        {4, 143},
        {6, 111},
        {7, 144},
        {8, 112},
        {10, 207},
        {11, 208},
        {12, 209},
        {13, 226},
        {20, 260},
        {21, 261}};
    for (const auto& [index, entry] : entries) {
        EXPECT_EQ(TextOf(one, index), QString::number(entry) + u' ' + shown);
    }
    const shell::MenuModel several = library::GameMenu({2, title, false, {}}, lang);
    for (const auto& [index, entry] :
         {std::pair{15, 227}, {16, 228}, {18, 229}, {22, 262}, {23, 263}, {25, 238}}) {
        EXPECT_EQ(TextOf(several, index), QString::number(entry) + u' ' + shown);
    }
    const shell::MenuModel windows = library::GameMenu({1, title, true, {}}, lang);
    EXPECT_EQ(TextOf(windows, 1), u"255 "_s + shown);
    const shell::MenuModel folders = library::FolderMenu(title, true, lang);
    EXPECT_EQ(Shape(folders), u"0 1 2 | 4 | 6 | 8"_s);
    for (const auto& [index, entry] :
         {std::pair{0, 111}, {1, 144}, {2, 112}, {4, 38}, {6, 39}, {8, 204}}) {
        EXPECT_EQ(TextOf(folders, index), QString::number(entry) + u' ' + shown);
    }
    EXPECT_EQ(Shape(library::FolderMenu(QString(), false, lang)), u"(0) (1) (2) | 4 | 6 | 8"_s);
}

TEST(ListMenus, ATabInATitleSetsOffNoShortcutAndALongOneIsCut)
{
    EXPECT_EQ(shell::MenuTitle(u"A\tB"_s), u"A B"_s);
    const QString cut = shell::MenuTitle(QString(500, u'&'));
    EXPECT_EQ(cut.count(u'&') % 2, 0);
    EXPECT_TRUE(cut.endsWith(u'…'));
    EXPECT_LT(cut.size(), 250);
}

} // namespace
