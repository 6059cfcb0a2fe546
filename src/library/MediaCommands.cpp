#include "library/MediaCommands.h"

#include "library/GameFiles.h"
#include "library/MediaPanel.h"
#include "platform/Bin.h"
#include "platform/ShellVerbs.h"
#include "shell/FolderCfgCommands.h"
#include "shell/JobCommands.h"
#include "shell/Launcher.h"

#include <array>

using namespace Qt::StringLiterals;

namespace pelorin::library {

using shell::Launcher;

namespace {

constexpr auto kCategory = "pelorin.library";

constexpr std::uint32_t kAll =
    MediaPanel::Images | MediaPanel::Recordings | MediaPanel::Manuals | MediaPanel::Tab;

enum class Act { Open, Delete };

struct MediaEntry {
    Media media;
    int index;
    int text;
    Act act;
};

// Editing a picture is opening it, since the desktop knows its programs and we don't. Element 1 of
// mnuAV would install a video codec into Windows; players here bring theirs.
constexpr std::array<MediaEntry, 7> kEntries{{
    {Media::Pictures, 0, 43, Act::Open},
    {Media::Pictures, 1, 44, Act::Open},
    {Media::Pictures, 2, 45, Act::Delete},
    {Media::Recordings, 0, 46, Act::Open},
    {Media::Recordings, 2, 48, Act::Delete},
    {Media::Manuals, 0, 49, Act::Open},
    {Media::Manuals, 1, 50, Act::Delete},
}};

template <class Panel>
auto& ListOf(Panel& panel, Media media)
{
    switch (media) {
    case Media::Recordings: return panel.fileAV;
    case Media::Manuals: return panel.fileManual;
    case Media::Pictures: break;
    }
    return panel.fileImages;
}

std::uint32_t BitOf(Media media)
{
    switch (media) {
    case Media::Recordings: return MediaPanel::Recordings;
    case Media::Manuals: return MediaPanel::Manuals;
    case Media::Pictures: break;
    }
    return MediaPanel::Images;
}

/// The files of a list that are there now.
QStringList FilesNow(const FileList& list, Media media)
{
    GameFiles files;
    files.meta = platform::ListFolder(list.folder);
    switch (media) {
    case Media::Recordings: return RecordingFiles(files);
    case Media::Manuals: return files.meta.files;
    case Media::Pictures: break;
    }
    return PictureFiles(files);
}

/// The lists keep a former game's files when the present one has no metadata folder.
bool IsOfGame(const Launcher& launcher, const QString& path)
{
    return path.startsWith(launcher.places.GameDir(launcher.screens.details.folder) + u'/');
}

} // namespace

void FillMedia(Launcher& launcher, const GameFiles& files)
{
    MediaPanel& panel = launcher.screens.media;
    if (files.meta.exists) {
        const QStringList pictures = PictureFiles(files);
        panel.fileImages = {files.metaDir, pictures, pictures.isEmpty() ? -1 : 0};
        panel.fileAV = {files.metaDir, RecordingFiles(files), -1};
        panel.fileManual = {ManualDir(files), ManualFiles(files), -1};
    }
    panel.TabStrip1 =
        static_cast<int>(panel.fileManual.files.isEmpty() ? Media::Pictures : Media::Manuals);
    panel.changed.Tell(kAll);
}

void ClearMedia(Launcher& launcher)
{
    MediaPanel& panel = launcher.screens.media;
    for (FileList* list : {&panel.fileImages, &panel.fileAV, &panel.fileManual}) {
        *list = FileList();
    }
    panel.TabStrip1 = static_cast<int>(Media::Pictures);
    panel.changed.Tell(kAll);
}

shell::MenuModel MediaMenu(const Launcher& launcher, Media media)
{
    const FileList& list = ListOf(launcher.screens.media, media);
    const QString path = list.SelectedPath();
    shell::MenuModel menu;
    for (const MediaEntry& entry : kEntries) {
        if (entry.media == media && !list.files.isEmpty()) {
            const bool works = entry.act == Act::Open ? !path.isEmpty() : IsOfGame(launcher, path);
            menu.push_back({entry.index, launcher.lang[entry.text], works});
        }
    }
    return menu;
}

void mnuMedia_Click(Launcher& launcher, Media media, int index)
{
    const QString path = ListOf(launcher.screens.media, media).SelectedPath();
    for (const MediaEntry& entry : kEntries) {
        if (path.isEmpty() || entry.media != media || entry.index != index) {
            continue;
        }
        if (entry.act == Act::Open) {
            shell::TellIfFailed(launcher, kCategory, launcher.ports.shell.Open(path));
        } else {
            DeleteMediaFile(launcher, media);
        }
    }
}

void DeleteMediaFile(Launcher& launcher, Media media)
{
    MediaPanel& panel = launcher.screens.media;
    const QString path = ListOf(panel, media).SelectedPath();
    if (path.isEmpty() || shell::ShowsFormerRoot(launcher) || !IsOfGame(launcher, path)) {
        return;
    }
    shell::TellIfFailed(launcher, kCategory, launcher.ports.bin.MoveToBin(path));
    const platform::RedrawLock lock(launcher.screens.gate);
    FileList& list = ListOf(panel, media);
    list.files = FilesNow(list, media);
    list.row = list.files.isEmpty() ? -1 : 0;
    if (list.files.isEmpty()) {
        panel.TabStrip1 = static_cast<int>(Media::Pictures);
    }
    panel.changed.Tell(BitOf(media) | MediaPanel::Tab);
    shell::DetailsPanel& details = launcher.screens.details;
    if (details.iconFile == path && !list.files.contains(path.section(u'/', -1))) {
        details.iconFile.clear();
        details.changed.Tell(shell::DetailsPanel::Icon);
    }
}

void pic1_Click(Launcher& launcher)
{
    MediaPanel& panel = launcher.screens.media;
    const int count = static_cast<int>(panel.fileImages.files.size());
    if (count > 0) {
        panel.fileImages.row = (panel.fileImages.row + 1) % count;
        panel.changed.Tell(MediaPanel::ImageRow);
    }
}

} // namespace pelorin::library
