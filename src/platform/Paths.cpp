#include "platform/Paths.h"

#include <QFile>
#include <QFileInfo>

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <iterator>
#include <memory>

using namespace Qt::StringLiterals;

namespace pelorin::platform {

namespace {

bool IsSeparator(QChar c)
{
    return c == u'/' || c == u'\\';
}

QStringList PartsOf(const QString& relative)
{
    return NativePath(relative).split(u'/', Qt::SkipEmptyParts);
}

enum class EntryKind { File, Folder, Broken };

/// The directory tells the kind of most entries by itself; only links and file systems that don't
/// say need a look at the entry.
EntryKind KindOf(const dirent& entry, int folder)
{
    if (entry.d_type == DT_DIR) {
        return EntryKind::Folder;
    }
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) {
        return EntryKind::File;
    }
    struct stat status = {};
    if (fstatat(folder, static_cast<const char*>(entry.d_name), &status, 0) != 0) {
        return EntryKind::Broken;
    }
    return S_ISDIR(status.st_mode) ? EntryKind::Folder : EntryKind::File;
}

struct Entry {
    QString lower;
    QString name;
    EntryKind kind = EntryKind::File;
};

void AddTo(Listing& listing, const Entry& entry)
{
    if (entry.kind == EntryKind::Broken) {
        listing.broken << entry.name;
        return;
    }
    const bool hidden = entry.name.startsWith(u'.');
    if (entry.kind == EntryKind::Folder) {
        (hidden ? listing.hiddenFolders : listing.folders) << entry.name;
    } else if (!hidden) {
        listing.files << entry.name;
    }
    listing.all << entry.name;
    if (!listing.byLowerCase.contains(entry.lower)) {
        listing.byLowerCase.insert(entry.lower, entry.name);
    }
}

struct CloseDirectory {
    void operator()(DIR* directory) const { closedir(directory); }
};

/// Without the known ones, sorted. nullopt if the folder can't be listed.
std::optional<std::vector<Entry>> EntriesOf(const QString& path, const QSet<QString>& known)
{
    const std::unique_ptr<DIR, CloseDirectory> directory(
        opendir(QFile::encodeName(path).constData()));
    if (!directory) {
        return std::nullopt;
    }
    const int descriptor = dirfd(directory.get());
    std::vector<Entry> entries;
    while (const dirent* entry = readdir(directory.get())) {
        const QString name = QFile::decodeName(static_cast<const char*>(entry->d_name));
        if (name != u"."_s && name != u".."_s && !known.contains(name)) {
            entries.push_back({name.toLower(), name, KindOf(*entry, descriptor)});
        }
    }
    std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
        return a.lower != b.lower ? a.lower < b.lower : a.name < b.name;
    });
    return entries;
}

} // namespace

QString LastPathSegment(const QString& path)
{
    const auto at = std::find_if(path.rbegin(), path.rend(), IsSeparator);
    return path.right(std::distance(path.rbegin(), at));
}

QString NativePath(const QString& path)
{
    QString native = path;
    native.replace(u'\\', u'/');
    while (native.size() > 1 && native.endsWith(u'/')) {
        native.chop(1);
    }
    return native;
}

QString WindowsPath(const QString& nativePath)
{
    QString text = nativePath;
    text.replace(u'/', u'\\');
    return text.startsWith(u'\\') && !text.startsWith(u"\\\\") ? u"Z:"_s + text : text;
}

bool IsPlainName(const QString& name)
{
    return !name.isEmpty() && name != u"."_s && name != u".."_s &&
           std::none_of(
               name.begin(), name.end(), [](QChar c) { return IsSeparator(c) || c.isNull(); });
}

QString Listing::Find(const QString& name) const
{
    const QString lower = name.toLower();
    const auto hit = byLowerCase.constFind(lower);
    if (hit == byLowerCase.constEnd()) {
        return QString();
    }
    // Only where two names differ by case does the exact one have to be looked for.
    return *hit == name || !all.contains(name) ? *hit : name;
}

bool Listing::HasFile(const QString& name) const
{
    const QString found = Find(name);
    return !found.isEmpty() && !folders.contains(found) && !hiddenFolders.contains(found);
}

bool Listing::HasFolder(const QString& name) const
{
    const QString found = Find(name);
    return folders.contains(found) || hiddenFolders.contains(found);
}

Listing ListFolder(const QString& path)
{
    Listing listing;
    const std::optional<std::vector<Entry>> entries = EntriesOf(path, {});
    if (!entries) {
        return listing;
    }
    listing.exists = true;
    listing.all.reserve(static_cast<qsizetype>(entries->size()));
    listing.byLowerCase.reserve(static_cast<qsizetype>(entries->size()));
    for (const Entry& entry : *entries) {
        AddTo(listing, entry);
    }
    return listing;
}

QStringList UnknownFolders(const QString& path, const QSet<QString>& known)
{
    const std::vector<Entry> entries = EntriesOf(path, known).value_or(std::vector<Entry>());
    Listing listing;
    for (const Entry& entry : entries) {
        AddTo(listing, entry);
    }
    return listing.folders;
}

std::optional<QString> FindPath(const QString& base, const QString& relative)
{
    QString path = base;
    const QStringList parts = PartsOf(relative);
    for (const QString& part : parts) {
        QString next = path + u'/' + part;
        if (part != u".."_s && part != u"."_s && !QFileInfo::exists(next)) {
            const QString found = ListFolder(path.isEmpty() ? u"/"_s : path).Find(part);
            if (found.isEmpty()) {
                return std::nullopt;
            }
            next = path + u'/' + found;
        }
        path = next;
    }
    return path;
}

QString ResolvePath(const QString& base, const QString& relative)
{
    QString path = base;
    const QStringList parts = PartsOf(relative);
    for (const QString& part : parts) {
        path = FindPath(path, part).value_or(path + u'/' + part);
    }
    return path;
}

QStringList FilesWithEndings(const Listing& listing, std::initializer_list<QStringView> endings)
{
    QStringList files;
    std::copy_if(
        listing.files.begin(),
        listing.files.end(),
        std::back_inserter(files),
        [&](const QString& file) {
            return std::any_of(endings.begin(), endings.end(), [&](QStringView ending) {
                return file.endsWith(ending, Qt::CaseInsensitive);
            });
        });
    return files;
}

} // namespace pelorin::platform
