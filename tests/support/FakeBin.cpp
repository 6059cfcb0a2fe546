#include "support/FakeBin.h"

#include "platform/Paths.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace pelorin::test {

using platform::Error;
using platform::ErrorKind;

QString FakeBin::Kept(const QString& path) const
{
    const auto index = m_moved.lastIndexOf(path);
    return index < 0
               ? QString()
               : m_folder.filePath(QString::number(index)) + u'/' + platform::LastPathSegment(path);
}

platform::Done FakeBin::MoveToBin(const QString& path)
{
    EXPECT_TRUE(QFileInfo(path).isAbsolute()) << path.toStdString();
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink()) {
        return Error{ErrorKind::NotFound, path};
    }
    if (refuseAll || refused.contains(path) || path == u"/") {
        return Error{ErrorKind::Refused, path};
    }
    const QString slot = m_folder.filePath(QString::number(m_moved.size()));
    if (!QDir().mkpath(slot) ||
        !QDir().rename(path, slot + u'/' + platform::LastPathSegment(path))) {
        ADD_FAILURE() << "the test's bin can't take " << path.toStdString();
        return Error{ErrorKind::Unwritable, path};
    }
    m_moved << path;
    return platform::Success();
}

} // namespace pelorin::test
