#pragma once

#include "dosboxconf/RunFacts.h"
#include "platform/HostText.h"
#include "platform/Outcome.h"
#include "running/RunRequest.h"

#include <QList>
#include <QString>
#include <QStringList>

// What is known to stop DOSBox 0.74-3 or to leave a game behind in silence, told before the start.

namespace pelorin::running {

/// A mounted path of this many bytes and more aborts the emulator.
inline constexpr qsizetype kMountPathBytes = 239;
/// The same for the path of a CD image.
inline constexpr qsizetype kImagePathBytes = 512;
/// The emulator keeps [autoexec] in 4,096 bytes, each line end as one of them, together with
/// variables of its own: those of the Sound Blaster always (some 33 bytes), those of the Gravis
/// card when it is on. A section of more bytes than these stops it.
inline constexpr qsizetype kAutoexecBytes = 4060;
inline constexpr qsizetype kAutoexecBytesWithGravis = 4008;

/// Before anything is composed: no name of a build (Refused), or a folder name that would break
/// out of its line of dosbox.conf (a quotation mark or a line break).
platform::Done CheckRequest(const RunRequest& request, const QString& build);

/// For the POSIX form, which a native DOSBox reads: a start command that has to find a file whose
/// name it can't (GuestCommand.h). For "Win98", whose start commands name the game's disk: a quotation
/// mark or a line break in them. Error Refused.
platform::Done CheckCommands(
    const RunRequest& request, const QString& build, platform::PathForm form);

/// Before the text is written: quotation marks and line breaks in the paths that are mounted, and
/// for the POSIX form, which a native DOSBox reads, their length and the size of [autoexec].
/// Error Refused.
platform::Done CheckLaunch(
    const dosboxconf::RunFacts& facts, const platform::HostText& finished, platform::PathForm form);

/// What the user should know and what does not hold back the start, one text each: a word of a start
/// command that is no name of a file for a native DOSBox, characters that the guest's code page
/// can't keep, a server that listens on another port than 213.
QList<platform::Wording> LaunchNotes(
    const RunRequest& request,
    const QString& build,
    const platform::HostText& finished,
    platform::PathForm form);

/// Of a game whose settings name a build that is not in the list.
platform::Wording UnknownBuild(const QString& folder);

} // namespace pelorin::running
