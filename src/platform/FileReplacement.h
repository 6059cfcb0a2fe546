#pragma once

#include "platform/Outcome.h"

#include <QByteArray>
#include <QSaveFile>
#include <QString>

namespace pelorin::platform {

/// New content for a file, written beside it and put in its place by a rename: until Replace, and
/// after any failure, the old file is whole. What was not put in place goes with the object.
/// Errors are Unwritable, with the path and the reason.
class FileReplacement {
public:
    explicit FileReplacement(const QString& path);

    Done Append(const QByteArray& bytes);
    /// The last thing to do with the object. Fails when an Append has failed.
    Done Replace();

private:
    Error Failure() const;

    QSaveFile m_file;
};

} // namespace pelorin::platform
