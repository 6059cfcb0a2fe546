#pragma once

#include <QString>

namespace pelorin::shell {
class LangTable;
}

namespace pelorin::library {

/// What the long jobs on the Catalogue are doing.
enum class Phase { Preparing, Reading, LoadingIcons, SavingList };

/// Where a long job tells how far it is. An implementation shows it and lets pending events run.
class ScanProgress {
public:
    ScanProgress() = default;
    ScanProgress(const ScanProgress&) = delete;
    ScanProgress& operator=(const ScanProgress&) = delete;
    virtual ~ScanProgress() = default;

    /// A phase begins; the bar goes to `maximum`, at least 1.
    virtual void Begin(Phase phase, int maximum) = 0;
    /// The bar's value and the label's percentage, which goes by tens and can pass 100. False: the
    /// program is ending, give up.
    virtual bool Step(Phase phase, int value, int percent) = 0;
    /// Between two steps, which may lie far apart: lets window events run when they have waited for
    /// a while. False as above. Called for each thing of a job, so it must be cheap.
    virtual bool Breathe() { return true; }
};

/// Tells each tenth of a count of things, by this system's rule: the step is (count - 1) / 10,
/// rounded with ties to even, at least 1; every index that is a multiple of it is told, at the
/// others the job breathes.
class ProgressSteps {
public:
    ProgressSteps(ScanProgress& progress, Phase phase, int count);

    /// False: give up.
    bool At(int index);

private:
    ScanProgress& m_progress;
    Phase m_phase;
    int m_step;
};

/// The label while a phase runs: its word, "......", the percentage, the word for percent.
QString ProgressText(const shell::LangTable& lang, Phase phase, int percent);
/// The label when the saving of the list begins.
QString SavingText(const shell::LangTable& lang, int maximum);

} // namespace pelorin::library
