#pragma once

#include "platform/Outcome.h"

#include <QByteArray>
#include <QFile>
#include <QString>

namespace pelorin::platform {

/// New content for a file that can be made again, as FileReplacement, but without a wait for the
/// disk: that takes as long as the writing. The end of the process leaves the old file or the new
/// one whole; after a loss of power the file may be short, so readers must check its size.
/// Errors are Unwritable, with the path and the reason.
class CacheReplacement {
public:
    explicit CacheReplacement(const QString& path);
    ~CacheReplacement();
    Q_DISABLE_COPY_MOVE(CacheReplacement)

    Done Append(const QByteArray& bytes);
    /// The last thing to do with the object. Fails when an Append has failed.
    Done Replace();

private:
    Error Failure() const;

    QString m_path;
    QFile m_file; // beside it
    bool m_failed = false;
};

} // namespace pelorin::platform
