#include "shell/LanguageCommands.h"

#include "dosboxconf/OptionTable.h"
#include "finding/TreeNodes.h"
#include "shell/Launcher.h"
#include "shell/WindowTitle.h"

using namespace Qt::StringLiterals;

namespace pelorin::shell {

namespace {

constexpr int kAddEmptyEntry = 60;
constexpr int kFirstColumnEntry = 303;

void ShowTexts(Launcher& launcher)
{
    Screens& screens = launcher.screens;
    for (std::size_t column = 0; column < screens.list.columnCaptions.size(); ++column) {
        screens.list.columnCaptions[column] =
            launcher.lang[kFirstColumnEntry + static_cast<int>(column)];
    }
    screens.list.changed.Tell(finding::GameList::Columns);
    screens.start.cmdAddEmpty = launcher.lang[kAddEmptyEntry];
    screens.frame.applicationTitle = launcher.lang[1];
    screens.frame.caption = launcher.WindowTitle;
    screens.frame.changed.Tell(MainFrame::Language | MainFrame::Caption);
}

} // namespace

platform::Done ReadLanguage(Launcher& launcher)
{
    platform::Outcome<dosboxconf::OptionGrid> grid =
        dosboxconf::ReadOptionTable(launcher.places.InAppDir(u"option.dat"_s));
    if (!grid) {
        return grid.Failure();
    }
    platform::Outcome<LangTable> lang =
        ReadLanguageFile(launcher.places.InAppDir(u"Language.dat"_s));
    if (!lang) {
        return lang.Failure();
    }
    launcher.options = grid.Take();
    launcher.lang = lang.Take();
    launcher.WindowTitle = BuildWindowTitle(launcher.BuildStamp, launcher.lang);
    finding::BuildTreeSkeleton(launcher.screens.tree, launcher.lang, launcher.options.BuildNames());
    ShowTexts(launcher);
    return platform::Success();
}

} // namespace pelorin::shell
