#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace pelorin::platform {

/// Mount points out of the text of /proc/self/mountinfo, in its order.
QStringList MountPointsIn(const QByteArray& mountInfo);

/// The mount points of this process; empty when the system does not tell.
QStringList MountPoints();

/// Whether the path is a mount point or one lies below it. Both are canonical paths.
bool HoldsMountPoint(const QStringList& mountPoints, const QString& path);

/// The longest mount point that the path lies below; "/" when none is known.
QString TopOfFileSystem(const QStringList& mountPoints, const QString& path);

} // namespace pelorin::platform
