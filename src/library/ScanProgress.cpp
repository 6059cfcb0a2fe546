#include "library/ScanProgress.h"

#include "platform/Numbers.h"
#include "shell/LangTable.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace pelorin::library {

namespace {

int EntryOf(Phase phase)
{
    switch (phase) {
    case Phase::Preparing: return 5;
    case Phase::Reading: return 6;
    case Phase::LoadingIcons: return 7;
    case Phase::SavingList: break;
    }
    return 299;
}

} // namespace

ProgressSteps::ProgressSteps(ScanProgress& progress, Phase phase, int count)
    : m_progress(progress)
    , m_phase(phase)
    , m_step(std::max(1, platform::RoundHalfEven((count - 1) / 10.0)))
{}

bool ProgressSteps::At(int index)
{
    return index % m_step != 0 ? m_progress.Breathe()
                               : m_progress.Step(m_phase, index, index / m_step * 10);
}

QString ProgressText(const shell::LangTable& lang, Phase phase, int percent)
{
    constexpr int kPercentEntry = 24;
    return lang[EntryOf(phase)] + u"......"_s + QString::number(percent) + lang[kPercentEntry];
}

QString SavingText(const shell::LangTable& lang, int maximum)
{
    return lang[EntryOf(Phase::SavingList)] + u".... ( 0 / "_s + QString::number(maximum) + u" )"_s;
}

} // namespace pelorin::library
