#include "shell/RecentFile.h"

#include "platform/Paths.h"
#include "platform/TextFile.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace pelorin::shell {

using platform::Done;
using platform::Outcome;

namespace {

constexpr QChar kFieldMark(1);

/// A title on one line of the file: a mark or a line end in it would break the record.
QString OneField(QString title)
{
    for (const QChar breaker : {kFieldMark, QChar(u'\r'), QChar(u'\n')}) {
        title.remove(breaker);
    }
    return title;
}

bool CanName(const QString& folder)
{
    return OneField(folder) == folder && platform::EncodeCp949(folder).lost.isEmpty();
}

QString RecentPath(const Places& places)
{
    return places.InAppDir(u"recent.sav"_s);
}

/// Entries 0 to last - 1 move one place down, over entry `last`, and the pair goes to the head.
/// By value: the caller's texts may be entries of the list.
void PutFirst(RecentList& recent, std::size_t last, QString folder, QString title)
{
    auto& folders = recent.RecentFolders;
    auto& titles = recent.RecentTitles;
    const auto end = static_cast<std::ptrdiff_t>(last);
    std::move_backward(folders.begin(), folders.begin() + end, folders.begin() + end + 1);
    std::move_backward(titles.begin(), titles.begin() + end, titles.begin() + end + 1);
    folders[0] = std::move(folder);
    titles[0] = std::move(title);
}

} // namespace

RecentList ParseRecent(const QStringList& lines)
{
    RecentList recent;
    const qsizetype count = std::min<qsizetype>(lines.size(), kRecentGames);
    for (qsizetype i = 0; i < count; ++i) {
        const QStringList pieces = lines[i].split(kFieldMark);
        if (pieces.size() == 2 && platform::IsPlainName(pieces[0])) {
            recent.RecentFolders[static_cast<std::size_t>(i)] = pieces[0];
            recent.RecentTitles[static_cast<std::size_t>(i)] = pieces[1];
        }
    }
    return recent;
}

QStringList RecentLines(const RecentList& recent)
{
    QStringList lines;
    for (std::size_t i = 0; i < kRecentGames && !recent.RecentFolders[i].isEmpty(); ++i) {
        if (CanName(recent.RecentFolders[i])) {
            lines << recent.RecentFolders[i] + kFieldMark + OneField(recent.RecentTitles[i]);
        }
    }
    return lines;
}

void AddRecent(RecentList& recent, const QString& folder, const QString& title)
{
    if (folder.isEmpty()) {
        return;
    }
    constexpr std::size_t kLast = kRecentGames - 1;
    for (std::size_t i = 0; i <= kLast; ++i) {
        // The last entry makes room without a look at it.
        if (recent.RecentFolders[i].isEmpty() || i == kLast) {
            PutFirst(recent, i, folder, title);
            return;
        }
        if (recent.RecentFolders[i] == folder) {
            PutFirst(recent, i, folder, recent.RecentTitles[i]);
            return;
        }
    }
}

Outcome<RecentList> ReadRecentFile(const Places& places)
{
    const Outcome<QStringList> lines = platform::ReadLines(RecentPath(places));
    if (!lines && lines.Failure().kind != platform::ErrorKind::NotFound) {
        return lines.Failure();
    }
    return ParseRecent(lines.ValueOr({}));
}

Done MakeRecentFile(const Places& places)
{
    const QString path = RecentPath(places);
    return QFileInfo::exists(path) ? platform::Success() : platform::WriteBytes(path, "\r\n");
}

Done WriteRecentFile(const Places& places, const RecentList& recent)
{
    QString text;
    for (const QString& line : RecentLines(recent)) {
        text += line + u"\r\n"_s;
    }
    return platform::WriteBytes(RecentPath(places), platform::EncodeCp949(text).bytes);
}

} // namespace pelorin::shell
