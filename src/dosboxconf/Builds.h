#pragma once

#include <QString>

// The builds that are more than another DOSBox. All others in the option table are plain ones.

namespace pelorin::dosboxconf {

enum class BuildKind {
    Dosbox,        // a folder below AppDir\DOSBox, also whatever is not listed here
    Windows98Lcd,  // a DOSBox with the drive letters of Windows 98
    GuestWindows,  // Windows 3.1 or 98 inside DOSBox
    Windows,       // programs for Windows, through the shell
    OtherEmulator, // none of DOSBox's
};

inline constexpr QStringView kWin98 = u"Win98";
/// The build that guests run under, and the library shell.
inline constexpr QStringView kHostBuild = u"0.74_SVN";

BuildKind KindOf(const QString& build);

inline bool IsGuestWindows(const QString& build)
{
    return KindOf(build) == BuildKind::GuestWindows;
}

/// The builds that boot Windows 98 and keep D: for it: "Win98" and "Win98_LCD".
inline bool IsWin98Family(const QString& build)
{
    return build == kWin98 || KindOf(build) == BuildKind::Windows98Lcd;
}

} // namespace pelorin::dosboxconf
