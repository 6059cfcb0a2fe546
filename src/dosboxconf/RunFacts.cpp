#include "dosboxconf/RunFacts.h"

using namespace Qt::StringLiterals;

namespace pelorin::dosboxconf {

namespace {

using platform::HostPath;
using platform::HostPathOf;
using platform::LastPathSegment;

QString OnDisk(const shell::Places& places, const QString& folder, const QString& name)
{
    return LastPathSegment(places.InMetaDir(folder, name));
}

} // namespace

CdChoice ChoiceOf(const CdPanel& panel)
{
    return CdChoice{panel.chkCD, panel.chkMountCD, panel.lstCD, panel.CdMountMode};
}

QString SafeTitle(const QString& title)
{
    QString safe = title;
    safe.removeIf([](QChar c) { return u"\\|:\"<>/?*"_s.contains(c); });
    return safe;
}

HostPath FromBuildFolder(const shell::Places& places, const QString& relative)
{
    const QString onDisk = places.InAppDir(relative).mid(places.appDir.size() + 1);
    return HostPath{u"..\\.."_s, u"../.."_s}.Below(relative, onDisk);
}

RunFacts LoadRunFacts(const shell::Places& places, const ConfRequest& request)
{
    const QString& folder = request.folder;
    RunFacts facts;
    facts.request = request;
    facts.safeTitle = SafeTitle(request.title);
    facts.gamesRoot = HostPathOf(places.gamesRoot);
    facts.gameDir = facts.gamesRoot.Below(folder);
    // The Windows form spells the metadata folder in lower case, new ones are made as "DosBox".
    facts.metaDir = facts.gameDir.Below(u"dosbox"_s, LastPathSegment(places.MetaDir(folder)));
    facts.cdFolder = facts.metaDir.Below(u"CD"_s, OnDisk(places, folder, u"CD"_s));
    facts.ownMapper = facts.metaDir.Below(u"mapper.txt"_s, OnDisk(places, folder, u"mapper.txt"_s));
    const QString mapperFolder = places.InAppDir(u"mapper"_s);
    facts.mapperFolder =
        HostPathOf(places.appDir).Below(u"mapper"_s, LastPathSegment(mapperFolder));
    facts.mapperFiles = platform::ListFolder(mapperFolder);
    facts.exportRoot = HostPathOf(places.exportRoot);
    facts.utilities = FromBuildFolder(places, u"Dos/Util"_s);
    facts.gravis = FromBuildFolder(places, u"DOS/GUS"_s);
    return facts;
}

} // namespace pelorin::dosboxconf
