#include "dosboxconf/CdFile.h"

#include "archives/FileOperations.h"
#include "dosboxconf/private/MetaFolder.h"
#include "library/GameFiles.h"
#include "platform/Numbers.h"
#include "platform/Paths.h"
#include "platform/TextFile.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace pelorin::dosboxconf {

namespace {

QString CdConfPath(const shell::Places& places, const QString& folder)
{
    return places.InMetaDir(folder, library::kCdConfFile.toString());
}

} // namespace

CdFacts ReadCdFacts(const shell::Places& places, const QString& folder)
{
    return ReadCdFacts(library::ListGame(places, folder));
}

CdFacts ReadCdFacts(const library::GameFiles& files)
{
    CdFacts facts;
    const QString name = u"CD"_s;
    if (files.meta.HasFolder(name)) {
        const platform::Listing cd = platform::ListFolder(files.MetaPath(name));
        facts.hasFolder = cd.exists;
        facts.images =
            platform::FilesWithEndings(cd, {u".iso"}) + platform::FilesWithEndings(cd, {u".cue"});
    }
    facts.hasConf = !files.meta.Find(library::kCdConfFile.toString()).isEmpty();
    if (facts.hasConf) {
        const QStringList lines = platform::ReadFirstLines(files.MetaPath(library::kCdConfFile), 2)
                                      .ValueOr(QStringList());
        facts.chkMountCD = platform::IntegerPrefix(lines.value(0)) != 0;
        facts.CdMountMode = platform::IntegerPrefix(lines.value(1)) != 0 ? 1 : 0;
    }
    return facts;
}

platform::Done SaveCdConf(const shell::Places& places, const QString& folder, const CdPanel& panel)
{
    if (!panel.chkCD) {
        return archives::DeleteFileIfThere(CdConfPath(places, folder));
    }
    if (panel.lstCD.isEmpty()) {
        return platform::Success();
    }
    if (platform::Done made = MakeMetaDir(places, folder); !made) {
        return made;
    }
    // Without its folder the choice would not be shown again. A file or a link in its place stays,
    // and the choice is saved all the same.
    QDir().mkpath(places.InMetaDir(folder, u"CD"_s));
    return platform::WriteLines(
        CdConfPath(places, folder),
        {panel.chkMountCD ? u"1"_s : u"0"_s, QString::number(panel.CdMountMode == 0 ? 0 : 1)});
}

} // namespace pelorin::dosboxconf
