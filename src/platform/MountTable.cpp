#include "platform/MountTable.h"

#include <QFile>
#include <QList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace pelorin::platform {

namespace {

/// Blanks, tabs, line ends and backslashes stand there as a backslash and three octal digits.
QByteArray WithoutEscapes(const QByteArray& field)
{
    QByteArray text;
    for (qsizetype i = 0; i < field.size(); ++i) {
        bool isNumber = false;
        const uint code = field.at(i) == '\\' ? field.mid(i + 1, 3).toUInt(&isNumber, 8) : 0;
        text += isNumber ? static_cast<char>(code) : field.at(i);
        i += isNumber ? 3 : 0;
    }
    return text;
}

bool IsBelow(const QString& path, const QString& folder)
{
    return folder == u"/" || path.startsWith(folder + u'/');
}

} // namespace

QStringList MountPointsIn(const QByteArray& mountInfo)
{
    // "36 35 98:0 /root /mount/point rw,noatime - ext3 /dev/root rw": the fifth field.
    constexpr qsizetype kMountPoint = 4;
    QStringList points;
    for (const QByteArray& line : mountInfo.split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        if (fields.size() > kMountPoint) {
            points << QFile::decodeName(WithoutEscapes(fields.at(kMountPoint)));
        }
    }
    return points;
}

QStringList MountPoints()
{
    QFile file(u"/proc/self/mountinfo"_s);
    return file.open(QIODevice::ReadOnly) ? MountPointsIn(file.readAll()) : QStringList();
}

bool HoldsMountPoint(const QStringList& mountPoints, const QString& path)
{
    return std::any_of(mountPoints.begin(), mountPoints.end(), [&path](const QString& point) {
        return point == path || IsBelow(point, path);
    });
}

QString TopOfFileSystem(const QStringList& mountPoints, const QString& path)
{
    QString top = u"/"_s;
    for (const QString& point : mountPoints) {
        if (point.size() > top.size() && IsBelow(path, point)) {
            top = point;
        }
    }
    return top;
}

} // namespace pelorin::platform
