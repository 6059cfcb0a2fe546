// bench_start SMALL_APP_DIR LARGE_APP_DIR BARE_WINDOW [options of Google Benchmark]: figures of whole
// processes, from their start to the first picture of the list. In both folders Pelorin is
// bench_pelorin.

#include "Figures.h"
#include "StartReport.h"

#include <QFile>
#include <QStringList>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <vector>

using namespace Qt::StringLiterals;

namespace pelorin::bench {

namespace {

struct Started {
    double seconds = 0; // until the first report
    StartReport painted;
    StartReport ended; // only of a process that was to close its window
    bool ok = false;
};

enum class Afterwards { Exit, CloseWindow };

Started Start(const QStringList& command, Afterwards afterwards)
{
    Started started;
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        return started;
    }
    constexpr int kTold = 9; // the descriptor over there
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], kTold);
    std::vector<QByteArray> words;
    for (const QString& word : command) {
        words.push_back(QFile::encodeName(word));
    }
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (QByteArray& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    qputenv("PELORIN_BENCH_TELL", QByteArray::number(kTold));
    qputenv("PELORIN_BENCH_CLOSE", afterwards == Afterwards::CloseWindow ? "1" : "");

    const Clock::time_point start = Clock::now();
    pid_t child = 0;
    const bool spawned =
        posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ) == 0;
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    std::FILE* const pipe = fdopen(ends[0], "r");
    started.ok = spawned && started.painted.Read(pipe);
    started.seconds = SecondsSince(start);
    if (started.ok && afterwards == Afterwards::CloseWindow) {
        started.ok = started.ended.Read(pipe);
    }
    std::fclose(pipe);
    int status = 0;
    started.ok = spawned && waitpid(child, &status, 0) == child && status == 0 && started.ok;
    return started;
}

void RunStarts(
    benchmark::State& state,
    const QStringList& command,
    Afterwards afterwards,
    const std::function<void()>& prepare)
{
    for ([[maybe_unused]] auto unused : state) {
        prepare();
        const Started started = Start(command, afterwards);
        if (!started.ok) {
            state.SkipWithError(qPrintable(command.join(u' ') + u": did not come up"_s));
            return;
        }
        state.SetIterationTime(started.seconds);
        const StartReport& last = afterwards == Afterwards::Exit ? started.painted : started.ended;
        state.counters["peak_MiB"] = static_cast<double>(last.peakKiB) / 1024;
        state.counters["gap_ms"] = started.painted.longestGapMs;
        state.counters["gap_in_job_ms"] = started.painted.longestGapInJobMs;
        state.counters["visible"] = started.painted.visibleWidgets;
        state.counters["hidden"] = started.painted.hiddenWidgets;
    }
}

benchmark::internal::Benchmark* AddStart(
    const char* name,
    const QStringList& command,
    Afterwards afterwards = Afterwards::Exit,
    const std::function<void()>& prepare = [] {})
{
    return AddFigure(
        name, [=](benchmark::State& state) { RunStarts(state, command, afterwards, prepare); });
}

/// Starts once for the cache, then once to count the widgets that the bare window is to have.
Started Prepare(const QString& appDir)
{
    const QStringList command{appDir + u"/Pelorin"_s};
    Start(command, Afterwards::CloseWindow);
    const Started counted = Start(command, Afterwards::Exit);
    if (!counted.ok) {
        qFatal("%s does not start", qUtf8Printable(command[0]));
    }
    return counted;
}

} // namespace

} // namespace pelorin::bench

int main(int argc, char** argv)
{
    using namespace pelorin::bench;
    benchmark::Initialize(&argc, argv);
    if (argc != 4) {
        std::fputs(
            "usage: bench_start SMALL_APP LARGE_APP BARE_WINDOW [--benchmark_...]\n", stderr);
        return 2;
    }
    const QString small = QString::fromLocal8Bit(argv[1]);
    const QString large = QString::fromLocal8Bit(argv[2]);
    const StartReport widgets = Prepare(small).painted;
    Prepare(large);
    const auto bare = [&](int rows) {
        return QStringList{
            QString::fromLocal8Bit(argv[3]),
            QString::number(widgets.visibleWidgets),
            QString::number(widgets.hiddenWidgets),
            QString::number(rows)};
    };
    AddStart("start_500/is", {small + u"/Pelorin"_s});
    AddStart("start_500/floor", bare(500));
    AddStart("start_32767/is", {large + u"/Pelorin"_s});
    AddStart("start_32767/floor", bare(32767));
    // The first start of all: no cache, so it scans, and leaves the cache when it closes.
    AddStart("first_start_32767/is", {large + u"/Pelorin"_s}, Afterwards::CloseWindow, [=] {
        QFile::remove(large + u"/Gamelist.lst"_s);
    })->Repetitions(3);
    AddStart("whole_run_32767/is", {large + u"/Pelorin"_s}, Afterwards::CloseWindow);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
