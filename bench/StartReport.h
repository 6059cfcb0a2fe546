#pragma once

#include <cstdio>

namespace pelorin::bench {

/// What a started process tells its parent, one line of numbers.
struct StartReport {
    int visibleWidgets = 0;
    int hiddenWidgets = 0;
    double longestGapMs = 0;      // between two moments at which window events were served
    double longestGapInJobMs = 0; // the same while the progress of a job was on screen
    long peakKiB = 0;             // set by Send

    /// Over the pipe whose descriptor PELORIN_BENCH_TELL names.
    void Send();
    bool Read(std::FILE* pipe);
};

/// All widgets of this process, Qt's inner ones too.
void CountWidgets(StartReport& report);

} // namespace pelorin::bench
