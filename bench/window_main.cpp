// bench_window APP_DIR [options of Google Benchmark]: figures of the window over a large library.

#include "Dice.h"
#include "Figures.h"
#include "Floors.h"
#include "QuietPorts.h"
#include "finding/FilterCommands.h"
#include "forms/Pictures.h"
#include "forms/frmDosGames.h"
#include "library/ShowinfoCommands.h"
#include "shell/Launcher.h"
#include "shell/LifecycleCommands.h"

#include <QAbstractItemView>
#include <QApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace pelorin::bench {

namespace {

/// The window as main makes it, brought up over the library.
struct BenchWindow {
    explicit BenchWindow(const QString& appDir)
    {
        launcher.places.appDir = appDir;
        launcher.defaultIcon = forms::DefaultGameIcon();
        deeds.LVGamelist_ItemClick = [this] { library::LVGamelist_ItemClick(launcher); };
        deeds.LVGamelist_SelectionMoved = [this] { library::LVGamelist_SelectionMoved(launcher); };
        form.emplace(
            forms::Shown{
                launcher.screens,
                launcher.lang,
                launcher.settings,
                launcher.icons,
                launcher.options,
                quiet.prompts},
            deeds);
        if (const platform::Done loaded = shell::Form_Load(launcher); !loaded) {
            qFatal("%s", qUtf8Printable(loaded.Failure().text));
        }
    }

    QWidget& Viewport()
    {
        const char* const name = launcher.screens.list.view == finding::View::Details
                                     ? "LVGamelist_details"
                                     : "LVGamelist_icons";
        return *form->findChild<QAbstractItemView*>(QString::fromLatin1(name))->viewport();
    }

    QuietPorts quiet;
    shell::Launcher launcher{quiet.ports};
    forms::Deeds deeds;
    std::optional<forms::frmDosGames> form;
};

/// From a rebuilt list to its picture.
void AddPaint(const char* name, BenchWindow& window, finding::View view)
{
    AddFigure(name, [=, &window](benchmark::State& state) {
        finding::SetView(window.launcher, view);
        finding::RefreshGameList(window.launcher);
        TimeEach(
            state,
            [&] { QCoreApplication::processEvents(); },
            [&] {
                window.launcher.screens.list.changed.Tell(
                    finding::GameList::Reset | finding::GameList::Selection);
                window.Viewport().repaint(); // lays out what the reset has left to do
                return 0;
            });
    });
}

/// Selects games far from each other, whose icons were not shown before.
void AddJump(const char* name, BenchWindow& window, finding::View view)
{
    AddFigure(name, [=, &window](benchmark::State& state) {
        finding::SetView(window.launcher, view);
        Dice dice(7);
        finding::GameList& list = window.launcher.screens.list;
        TimeEach(
            state,
            [&] { QCoreApplication::processEvents(); },
            [&] {
                list.Select(dice.Roll(static_cast<int>(list.items.size())));
                window.Viewport().repaint();
                return 0;
            });
    })->Iterations(20);
}

void AddSelection(BenchWindow& window)
{
    AddFigure("selection/is", [&](benchmark::State& state) {
        Dice dice(11);
        finding::GameList& list = window.launcher.screens.list;
        TimeEach(
            state,
            [&] {
                list.Select(dice.Roll(static_cast<int>(list.items.size())));
                QCoreApplication::processEvents();
            },
            [&] {
                library::LVGamelist_SelectionMoved(window.launcher);
                return 0;
            });
    })->Iterations(100);
    AddFigure("selection/floor", [&](benchmark::State& state) {
        Dice dice(11);
        const finding::GameList& list = window.launcher.screens.list;
        TimeEach(state, [&] {
            const int row = dice.Roll(static_cast<int>(list.items.size()));
            return LookAtGame(
                window.launcher.places.GameDir(list.items[static_cast<std::size_t>(row)].Folder()));
        });
    })->Iterations(100);
}

} // namespace

} // namespace pelorin::bench

int main(int argc, char** argv)
{
    using namespace pelorin;
    benchmark::Initialize(&argc, argv);
    if (argc != 2) {
        std::fputs("usage: bench_window APP_DIR [--benchmark_...]\n", stderr);
        return 2;
    }
    const QApplication application(argc, argv);
    bench::BenchWindow window(QString::fromLocal8Bit(argv[1]));
    using finding::View;
    bench::AddPaint("paint_large/is", window, View::LargeIcons);
    bench::AddPaint("paint_small/is", window, View::SmallIcons);
    bench::AddPaint("paint_list/is", window, View::List);
    bench::AddPaint("paint_details/is", window, View::Details);
    bench::AddJump("jump_small/is", window, View::SmallIcons);
    bench::AddJump("jump_details/is", window, View::Details);
    bench::AddSelection(window);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
