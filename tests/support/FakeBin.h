#pragma once

#include "platform/Bin.h"

#include <QSet>
#include <QStringList>
#include <QTemporaryDir>

namespace pelorin::test {

/// A recycle bin of the test's own: things are really moved there, so that a test can see both
/// that they are gone and that they can be had back.
class FakeBin : public platform::Bin {
public:
    bool refuseAll = false;
    QSet<QString> refused; // paths that stay where they are

    /// What was moved, in order.
    const QStringList& Moved() const { return m_moved; }
    /// Where the thing lies that was moved from this path, the newest one; empty if none was.
    QString Kept(const QString& path) const;

    platform::Done MoveToBin(const QString& path) override;

private:
    QTemporaryDir m_folder;
    QStringList m_moved;
};

} // namespace pelorin::test
