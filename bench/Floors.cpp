#include "Floors.h"

#include <QFile>
#include <QProcess>

#include <FreeImage.h>
#include <dirent.h>
#include <fcntl.h>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace pelorin::bench {

namespace {

constexpr std::array<const char*, 5> kTexts{
    "info.txt", "ExtraInfo.txt", "GenreK.dat", "GenreE.dat", "edit.conf"};

struct Entry {
    std::string name;
    bool folder = false;
};

std::vector<Entry> List(const std::string& folder)
{
    std::vector<Entry> entries;
    DIR* const directory = opendir(folder.c_str());
    if (directory == nullptr) {
        return entries;
    }
    while (const dirent* entry = readdir(directory)) {
        if (entry->d_name[0] != '.') {
            entries.push_back({static_cast<const char*>(entry->d_name), entry->d_type == DT_DIR});
        }
    }
    closedir(directory);
    return entries;
}

std::size_t Unpack(QByteArray& bytes)
{
    FIMEMORY* const memory = FreeImage_OpenMemory(
        reinterpret_cast<BYTE*>(bytes.data()), static_cast<DWORD>(bytes.size()));
    FIBITMAP* const bitmap = FreeImage_LoadFromMemory(FIF_JPEG, memory, 0);
    const std::size_t pixels =
        std::size_t{FreeImage_GetWidth(bitmap)} * FreeImage_GetHeight(bitmap);
    FreeImage_Unload(bitmap);
    FreeImage_CloseMemory(memory);
    return pixels;
}

void ScanMeta(const std::string& meta, BareScan& scan)
{
    const std::vector<Entry> files = List(meta);
    scan.entries += files.size();
    for (const Entry& file : files) {
        const auto named = [&](const char* name) {
            return strcasecmp(file.name.c_str(), name) == 0;
        };
        const bool icon = named("Icon.jpg");
        if (!icon && std::none_of(kTexts.begin(), kTexts.end(), named)) {
            continue;
        }
        QByteArray bytes = ReadWhole((meta + '/' + file.name).c_str());
        if (icon) {
            scan.pixels += Unpack(bytes);
        } else {
            scan.bytes += static_cast<std::size_t>(bytes.size());
        }
    }
}

} // namespace

QByteArray ReadWhole(const char* path)
{
    QByteArray bytes;
    const int file = open(path, O_RDONLY | O_CLOEXEC);
    struct stat status = {};
    if (file < 0 || fstat(file, &status) != 0) {
        return bytes;
    }
    bytes.resize(status.st_size); // not set to anything before it is read
    const ssize_t got = read(file, bytes.data(), static_cast<std::size_t>(bytes.size()));
    close(file);
    bytes.truncate(std::max<ssize_t>(got, 0));
    return bytes;
}

BareScan ScanBare(const QString& gamesRoot)
{
    BareScan scan;
    const std::string root = QFile::encodeName(gamesRoot).toStdString();
    for (const Entry& game : List(root)) {
        const std::string folder = root + '/' + game.name;
        const std::vector<Entry> entries = List(folder);
        scan.entries += entries.size();
        const auto meta = std::find_if(entries.begin(), entries.end(), [](const Entry& entry) {
            return entry.folder && strcasecmp(entry.name.c_str(), "DosBox") == 0;
        });
        if (meta != entries.end()) {
            ScanMeta(folder + '/' + meta->name, scan);
        }
    }
    return scan;
}

std::size_t LookAtGame(const QString& gameDir)
{
    constexpr std::array<const char*, 5> kFiles{
        "info.txt", "autoexec.conf", "edit.conf", "CD.conf", "Icon.jpg"};
    std::size_t seen = 0;
    const std::string game = QFile::encodeName(gameDir).toStdString();
    for (const Entry& entry : List(game)) {
        if (strcasecmp(entry.name.c_str(), "DosBox") != 0) {
            continue;
        }
        const std::string meta = game + '/' + entry.name;
        for (const Entry& file : List(meta)) {
            if (file.folder) {
                seen += List(meta + '/' + file.name).size();
            } else if (std::any_of(kFiles.begin(), kFiles.end(), [&](const char* name) {
                           return strcasecmp(file.name.c_str(), name) == 0;
                       })) {
                seen +=
                    static_cast<std::size_t>(ReadWhole((meta + '/' + file.name).c_str()).size());
            }
        }
    }
    return seen;
}

bool CopyByCp(const QStringList& files, const QString& folder)
{
    return QProcess::execute(QStringLiteral("cp"), QStringList(files) << folder) == 0;
}

} // namespace pelorin::bench
