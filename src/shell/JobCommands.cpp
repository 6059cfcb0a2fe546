#include "shell/JobCommands.h"

#include "platform/Timers.h"
#include "shell/Launcher.h"

#include <QLoggingCategory>
#include <QString>

#include <utility>

using namespace Qt::StringLiterals;

namespace pelorin::shell {

namespace {

// Colours as the settings of old platforms write them: red in the low byte, blue in the high one.
constexpr std::uint32_t kBlack = 0;
constexpr std::uint32_t kRed = 255;
constexpr std::uint32_t kBlue = 16711680;
constexpr int kBlinkMs = 500;

std::uint32_t NextColour(std::uint32_t colour)
{
    switch (colour) {
    case kBlack: return kRed;
    case kRed: return kBlue;
    case kBlue: return kBlack;
    default: return colour;
    }
}

enum class Rest { ForAJob, ForWantOfGames };

void SetPanels(Launcher& launcher, bool left, bool right, Rest rest)
{
    MainFrame& frame = launcher.screens.frame;
    frame.picBack0Enabled = left;
    frame.picBack1Enabled = right;
    frame.isEmptyLibrary = !left && !right && rest == Rest::ForWantOfGames;
    frame.panelsEnabled.Tell(1);
}

} // namespace

Job::Job(Launcher& launcher)
    : m_launcher(launcher)
    , m_held(!launcher.flags.JobHeld)
    , m_foundPanel0(launcher.screens.frame.picBack0Enabled)
    , m_foundPanel1(launcher.screens.frame.picBack1Enabled)
{
    if (m_held) {
        m_launcher.flags.JobHeld = true;
        m_launcher.flags.BusyReady = false;
        SetPanels(m_launcher, false, false, Rest::ForAJob);
    }
}

Job::~Job()
{
    if (!m_held) {
        return;
    }
    const std::optional<bool> wanted = std::exchange(m_launcher.flags.PanelsAfterJob, {});
    SetPanels(
        m_launcher,
        wanted.value_or(m_foundPanel0),
        wanted.value_or(m_foundPanel1),
        Rest::ForWantOfGames);
    m_launcher.flags.JobHeld = false;
    m_launcher.flags.BusyReady = true;
}

void SetPanelsEnabled(Launcher& launcher, bool enabled)
{
    if (launcher.flags.JobHeld) {
        launcher.flags.PanelsAfterJob = enabled;
    } else {
        SetPanels(launcher, enabled, enabled, Rest::ForWantOfGames);
    }
}

void ShowBusyMessage(Launcher& launcher, const QString& text)
{
    BusyNotice& notice = launcher.screens.notice;
    notice.lblMessage = text;
    notice.visible = true;
    if (notice.tmrMessage == 0) {
        notice.colour = kBlack;
        notice.tmrMessage = launcher.ports.timers.StartRepeating(
            kBlinkMs, [&launcher] { tmrMessage_Timer(launcher); });
    }
    notice.changed.Tell(BusyNotice::All);
}

bool ShowBatchStep(Launcher& launcher, int index, int count, const QString& game)
{
    BusyNotice& notice = launcher.screens.notice;
    if (index == 0) {
        launcher.flags.CancelRequested = false;
    }
    notice.batch = BatchProgress{
        true, count, index, QString::number(index + 1) + u" / "_s + QString::number(count), game};
    notice.changed.Tell(BusyNotice::All);
    launcher.ports.timers.RunPendingEvents();
    return !launcher.flags.CancelRequested && !launcher.flags.Ending;
}

void Command1_Click(Launcher& launcher)
{
    launcher.flags.CancelRequested = true;
    launcher.screens.notice.lblMessage = u"작업을 중단하는 중입니다"_s;
    launcher.screens.notice.changed.Tell(BusyNotice::All);
}

void HideBusyMessage(Launcher& launcher)
{
    BusyNotice& notice = launcher.screens.notice;
    notice.batch = BatchProgress();
    launcher.ports.timers.Stop(notice.tmrMessage);
    notice.tmrMessage = 0;
    notice.visible = false;
    notice.changed.Tell(BusyNotice::All);
    launcher.screens.frame.changed.Tell(MainFrame::Front);
    launcher.ports.timers.RunPendingEvents();
}

void tmrMessage_Timer(Launcher& launcher)
{
    BusyNotice& notice = launcher.screens.notice;
    notice.colour = NextColour(notice.colour);
    notice.changed.Tell(BusyNotice::All);
}

void TellNote(Launcher& launcher, const char* category, const QString& text, const QString& story)
{
    const QLoggingCategory room(category);
    qCWarning(room).noquote() << text;
    launcher.screens.status.Tell(text, story.isEmpty() ? text : story);
}

void TellNote(
    Launcher& launcher, const char* category, const platform::Error& failure, const QString& story)
{
    TellNote(launcher, category, launcher.lang.Told(failure.Told()), story);
}

void TellIfFailed(Launcher& launcher, const char* category, const platform::Done& done)
{
    if (!done) {
        TellNote(launcher, category, done.Failure());
    }
}

} // namespace pelorin::shell
