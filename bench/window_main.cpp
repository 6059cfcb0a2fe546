// bench_window APP_DIR [options of Google Benchmark]: figures of the window over a large library.

#include "BenchWindow.h"
#include "Dice.h"
#include "Figures.h"
#include "Floors.h"
#include "finding/FilterCommands.h"
#include "library/ShowinfoCommands.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <chrono>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace pelorin::bench {

namespace {

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

constexpr int kPresses = 100;

/// One of the presses that a held key makes, when it is due. Seconds that it waited for its turn.
double PressDown(QWidget& view, Clock::time_point due, bool repeats)
{
    while (Clock::now() < due) {
        QCoreApplication::processEvents();
    }
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, {}, repeats);
    QCoreApplication::sendEvent(&view, &down);
    return SecondsSince(due);
}

/// Holds the key over the first row; the longest wait of a press, negative if the selection did not
/// follow one. `due` is the time of the last press.
double HoldDown(BenchWindow& window, Clock::time_point& due)
{
    constexpr std::chrono::milliseconds kApart{10};
    finding::GameList& list = window.launcher.screens.list;
    QWidget& view = *window.Viewport().parentWidget();
    list.Select(0);
    QCoreApplication::processEvents();
    due = Clock::now();
    double longest = 0;
    for (int press = 1; press <= kPresses; ++press) {
        due += kApart;
        longest = std::max(longest, PressDown(view, due, press > 1));
        if (list.selected != press) {
            return -1;
        }
    }
    return longest;
}

/// An arrow key held down over the list: how long a press waits for its turn, and how long the details
/// are behind the last one, whose release never comes.
void AddHeldKey(BenchWindow& window)
{
    AddFigure("held_key/is", [&](benchmark::State& state) {
        finding::SetView(window.launcher, finding::View::Details);
        double longest = 0;
        for ([[maybe_unused]] auto unused : state) {
            Clock::time_point due;
            const double waited = HoldDown(window, due);
            if (waited < 0) {
                state.SkipWithError("the selection did not follow");
                return;
            }
            longest = std::max(longest, waited);
            const QString& folder = window.launcher.screens.list.items[kPresses].Folder();
            while (window.launcher.screens.details.folder != folder) {
                QCoreApplication::processEvents();
            }
            state.SetIterationTime(SecondsSince(due));
        }
        state.counters["follow_ms"] = 1000 * longest;
    });
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
    bench::AddHeldKey(window);
    bench::AddRunFigures(window);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
