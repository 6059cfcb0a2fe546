#pragma once

#include "platform/Outcome.h"

#include <QString>

namespace pelorin::shell {

struct Launcher;

/// A long job: while it stands the window refuses to close and both side panels are disabled.
/// Its end puts the panels back as it found them, or as SetPanelsEnabled has asked for meanwhile.
/// Only jobs write BusyReady.
class Job {
public:
    /// Held() is false when another job stands already; the command then returns at once.
    explicit Job(Launcher& launcher);
    ~Job();
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    bool Held() const { return m_held; }

private:
    Launcher& m_launcher;
    bool m_held = false;
    bool m_foundPanel0 = true;
    bool m_foundPanel1 = true;
};

/// Sets whether both side panels can be used; during a job, whether they can at its end.
void SetPanelsEnabled(Launcher& launcher, bool enabled);

/// The notice over the list; its text blinks until HideBusyMessage.
void ShowBusyMessage(Launcher& launcher, const QString& text);
void HideBusyMessage(Launcher& launcher);

/// The notice for as long as this stands.
class BusyMessage {
public:
    BusyMessage(Launcher& launcher, const QString& text)
        : m_launcher(launcher)
    {
        ShowBusyMessage(launcher, text);
    }
    ~BusyMessage() { HideBusyMessage(m_launcher); }
    BusyMessage(const BusyMessage&) = delete;
    BusyMessage& operator=(const BusyMessage&) = delete;

private:
    Launcher& m_launcher;
};

/// The notice's part for a job on several games, which has come to the game of that name, counted
/// from 0. Window events run. False: the job is to end here, before that game.
bool ShowBatchStep(Launcher& launcher, int index, int count, const QString& game);
/// Command1: a job on several games ends after the game in hand.
void Command1_Click(Launcher& launcher);

/// The notice's next colour: black, red, blue, black; any other stays.
void tmrMessage_Timer(Launcher& launcher);

/// What failed in silence: a line in the status bar's fourth panel, the whole story behind it, and
/// the line on standard error under the room's logging category ("pelorin.library").
void TellNote(
    Launcher& launcher,
    const char* category,
    const QString& text,
    const QString& story = QString());
/// The same for what failed, in the window's language where that has words for it.
void TellNote(
    Launcher& launcher,
    const char* category,
    const platform::Error& failure,
    const QString& story = QString());
/// The same, if it failed.
void TellIfFailed(Launcher& launcher, const char* category, const platform::Done& done);

} // namespace pelorin::shell
