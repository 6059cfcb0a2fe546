#include "library/CatalogueScan.h"

#include "library/GamePreparation.h"
#include "library/private/TextPool.h"
#include "platform/Paths.h"
#include "shell/Places.h"

#include <QFileInfo>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace pelorin::library {

using platform::Wording;

namespace {

/// What the second pass needs of a folder's listing. A listing whole takes some 3 KB, and there
/// may be tens of thousands.
struct FolderToRead {
    QString folder;
    QString metaName; // as spelled on disk
    bool metaExists = false;
    bool stored = false;
    QStringList metaFiles; // those of kEntryFiles that are there, as spelled on disk
};

FolderToRead KeepForEntry(const GameFiles& files)
{
    FolderToRead listed;
    listed.folder = files.folder;
    listed.metaName = platform::LastPathSegment(files.metaDir);
    listed.metaExists = files.meta.exists;
    listed.stored = IsGameStored(files);
    for (const EntryFile& file : kEntryFiles) {
        if (files.HasMetaFile(file.name)) {
            listed.metaFiles << files.meta.Find(file.name.toString());
        }
    }
    return listed;
}

GameFiles FilesOfKept(const shell::Places& places, const FolderToRead& listed)
{
    GameFiles files;
    files.folder = listed.folder;
    files.gameDir = places.GameDir(listed.folder);
    files.metaDir = files.gameDir + u'/' + listed.metaName;
    files.game.exists = true;
    files.meta.exists = listed.metaExists;
    if (listed.stored) {
        files.NoteGameFile(kStoreFile);
    }
    for (const QString& name : listed.metaFiles) {
        files.NoteMetaFile(name);
    }
    return files;
}

class Scan {
public:
    Scan(
        const shell::Places& places,
        const ReadingRules& rules,
        const IconPixels& defaultIcon,
        ScanProgress& progress)
        : m_places(places)
        , m_rules(rules)
        , m_defaultIcon(defaultIcon)
        , m_progress(progress)
    {}

    ScanResult Run()
    {
        const QStringList folders = GameFolders();
        m_result.abandoned = !Prepare(folders) || !Read();
        return std::move(m_result);
    }

private:
    QStringList GameFolders()
    {
        QStringList games;
        const platform::Listing root = platform::ListFolder(m_places.gamesRoot);
        for (const QString& folder : root.folders) {
            if (const std::optional<Wording> reason = WhyNoGame(m_places, folder)) {
                m_result.refused << *reason;
            } else {
                games << folder;
            }
        }
        for (const QString& link : root.broken) {
            if (!link.startsWith(u'.')) {
                m_result.refused << Wording{463, u"<1>: the link leads nowhere."_s, {link}};
            }
        }
        m_result.beyondBound = static_cast<int>(std::max<qsizetype>(0, games.size() - kMostGames));
        return games.mid(0, kMostGames);
    }

    bool Prepare(const QStringList& folders)
    {
        const int count = static_cast<int>(folders.size());
        ProgressSteps steps(m_progress, Phase::Preparing, count);
        m_progress.Begin(Phase::Preparing, std::max(1, count));
        m_listed.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) {
            GameFiles files = ListGame(m_places, folders[i]);
            if (files.game.exists || QFileInfo::exists(files.gameDir)) {
                m_result.icons.Append(PrepareGameFolder(files, m_defaultIcon, m_result.troubles));
                m_listed.push_back(KeepForEntry(files));
            } else {
                m_result.refused << FolderIsGone(folders[i]);
            }
            if (!steps.At(i)) {
                return false;
            }
        }
        return true;
    }

    bool Read()
    {
        const int count = static_cast<int>(m_listed.size());
        ProgressSteps steps(m_progress, Phase::Reading, count);
        m_progress.Begin(Phase::Reading, std::max(1, count));
        m_result.catalogue.reserve(m_listed.size());
        TextPool pool;
        for (int i = 0; i < count; ++i) {
            GameFiles files = FilesOfKept(m_places, m_listed[static_cast<std::size_t>(i)]);
            m_result.catalogue.push_back(ReadGameFolder(files, i, m_rules, m_result.troubles));
            pool.ShareFacts(m_result.catalogue.back());
            if (!steps.At(i)) {
                return false;
            }
        }
        return true;
    }

    const shell::Places& m_places;
    const ReadingRules& m_rules;
    const IconPixels& m_defaultIcon;
    ScanProgress& m_progress;
    std::vector<FolderToRead> m_listed;
    ScanResult m_result;
};

} // namespace

ScanResult ScanCatalogue(
    const shell::Places& places,
    const ReadingRules& rules,
    const IconPixels& defaultIcon,
    ScanProgress& progress)
{
    return Scan(places, rules, defaultIcon, progress).Run();
}

bool AddGame(
    GameFiles& files,
    const ReadingRules& rules,
    const IconPixels& defaultIcon,
    Catalogue& catalogue,
    IconSheet& icons,
    Troubles& troubles)
{
    if (catalogue.size() >= kMostGames) {
        return false;
    }
    icons.Append(PrepareGameFolder(files, defaultIcon, troubles));
    const int position = static_cast<int>(catalogue.size());
    catalogue.Append(ReadGameFolder(files, position, rules, troubles));
    return true;
}

} // namespace pelorin::library
