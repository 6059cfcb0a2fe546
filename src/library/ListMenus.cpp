#include "library/ListMenus.h"

#include "shell/LangTable.h"

namespace pelorin::library {

namespace {

constexpr int kSeparator = 0;

enum class For { Any, One, Several };

struct Row {
    int index = 0;
    int entry = kSeparator; // of the language file
    For selection = For::Any;
};

constexpr int kPromptEntry = 141;
constexpr int kWindowedEntry = 255; // in its place for a Windows game

constexpr Row kGameMenu[] = {
    {0, 140},
    {1, kPromptEntry},
    {2},
    {3, 142},
    {4, 143},
    {5},
    {6, 111},
    {7, 144},
    {8, 112},
    {9, kSeparator, For::One},
    {10, 207, For::One},
    {11, 208, For::One},
    {12, 209, For::One},
    {13, 226, For::One},
    {14, kSeparator, For::Several},
    {15, 227, For::Several},
    {16, 228, For::Several},
    {17, kSeparator, For::Several},
    {18, 229, For::Several},
    {19},
    {20, 260, For::One},
    {21, 261, For::One},
    {22, 262, For::Several},
    {23, 263, For::Several},
    {24},
    {25, 238},
};

constexpr Row kFolderMenu[] = {
    {0, 111, For::One},
    {1, 144, For::One},
    {2, 112, For::One},
    {3},
    {4, 38},
    {5},
    {6, 39},
    {7},
    {8, 204},
};

} // namespace

shell::MenuModel GameMenu(const GameMenuFacts& facts, const shell::LangTable& lang)
{
    shell::MenuModel menu;
    if (facts.selected == 0) {
        return menu;
    }
    const For hidden = facts.selected == 1 ? For::Several : For::One;
    const QStringList title{shell::MenuTitle(facts.title)};
    for (const Row& row : kGameMenu) {
        if (row.selection == hidden) {
            continue;
        }
        if (row.entry == kSeparator) {
            menu.push_back({row.index, QString(), true, true});
            continue;
        }
        const bool windowed = row.entry == kPromptEntry && facts.windowsGame;
        menu.push_back(
            {row.index,
             lang.Text(windowed ? kWindowedEntry : row.entry, title),
             facts.commands.contains(row.index)});
    }
    return menu;
}

shell::MenuModel FolderMenu(const QString& title, bool hasGame, const shell::LangTable& lang)
{
    const QStringList shown{shell::MenuTitle(title)};
    shell::MenuModel menu;
    for (const Row& row : kFolderMenu) {
        const bool separator = row.entry == kSeparator;
        const bool enabled = hasGame || row.selection != For::One;
        menu.push_back(
            {row.index, separator ? QString() : lang.Text(row.entry, shown), enabled, separator});
    }
    return menu;
}

} // namespace pelorin::library
