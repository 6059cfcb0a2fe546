#pragma once

#include "platform/Bin.h"
#include "platform/Paths.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace pelorin::test {

/// A recycle bin of the test's own: things are really moved there, so that a test can see both
/// that they are gone and that they can be had back.
class FakeBin : public platform::Bin {
public:
    bool refuseAll = false;
    QSet<QString> refused; // paths that stay where they are

    /// What was moved, in order.
    const QStringList& Moved() const { return m_moved; }
    /// Where the thing lies that was moved from this path, the newest one.
    QString Kept(const QString& path) const
    {
        return m_folder.filePath(QString::number(m_moved.lastIndexOf(path))) + u'/' +
               platform::LastPathSegment(path);
    }

    platform::Done MoveToBin(const QString& path) override
    {
        EXPECT_TRUE(QFileInfo(path).isAbsolute()) << path.toStdString();
        const QFileInfo info(path);
        if (!info.exists() && !info.isSymLink()) {
            return platform::Error{platform::ErrorKind::NotFound, path};
        }
        if (refuseAll || refused.contains(path) || path == u"/") {
            return platform::Error{platform::ErrorKind::Refused, path};
        }
        m_moved << path;
        const QString place = m_folder.filePath(QString::number(m_moved.size() - 1));
        EXPECT_TRUE(QDir().mkpath(place) && QDir().rename(path, Kept(path))) << path.toStdString();
        return platform::Success();
    }

private:
    QTemporaryDir m_folder;
    QStringList m_moved;
};

} // namespace pelorin::test
