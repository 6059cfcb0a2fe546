#pragma once

#include "dosboxconf/CdPanel.h"
#include "platform/HostText.h"
#include "platform/Paths.h"
#include "shell/Places.h"

#include <QString>
#include <QStringList>

namespace pelorin::dosboxconf {

/// The port of "ipxnet startserver"; an ordinary user can't bind it.
inline constexpr int kIpxPort = 213;
/// The port that stands in for it then.
inline constexpr int kIpxFallbackPort = 19900;

/// The CD controls as they stand at a start.
struct CdChoice {
    bool chkCD = false;
    bool chkMountCD = false;
    QStringList lstCD;
    int CdMountMode = 0; // 0 the game's folder, else images
};

CdChoice ChoiceOf(const CdPanel& panel);

/// What a start asks of the text of dosbox.conf.
struct ConfRequest {
    QString folder; // the game's folder, a plain name; may be empty with mountRoot
    QString title;  // as the list shows it
    QString build;  // a name from the list of builds
    bool mountRoot = false;
    bool ipx = false;
    QString ipxAddress;        // empty: be the server
    int serverPort = kIpxPort; // what the server can bind
    CdChoice cd;
};

/// A request with the places on this machine that the text names.
struct RunFacts {
    ConfRequest request;
    QString safeTitle;
    platform::HostPath gamesRoot;
    platform::HostPath gameDir;
    platform::HostPath metaDir;      // ...\dosbox
    platform::HostPath cdFolder;     // ...\dosbox\CD
    platform::HostPath ownMapper;    // ...\dosbox\mapper.txt
    platform::HostPath mapperFolder; // AppDir\mapper
    platform::Listing mapperFiles;   // of mapperFolder
    platform::HostPath exportRoot;
    platform::HostPath utilities; // ..\..\Dos\Util, seen from the folder of the build
    platform::HostPath gravis;    // ..\..\DOS\GUS
};

/// Looks at the disk once for how the names are really spelled.
RunFacts LoadRunFacts(const shell::Places& places, const ConfRequest& request);

/// A path of AppDir seen from the folder of a build, "..\..\" and `relative` in the reference form.
platform::HostPath FromBuildFolder(const shell::Places& places, const QString& relative);

/// The title without the characters that no file name may hold: \ | : " < > / ? *
QString SafeTitle(const QString& title);

} // namespace pelorin::dosboxconf
