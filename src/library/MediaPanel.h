#pragma once

#include "platform/Notifier.h"

#include <QString>
#include <QStringList>

#include <cstdint>

namespace pelorin::library {

/// A list of files of one folder, with its selected row.
struct FileList {
    QString folder; // native path; the files are there, whatever game is shown by now
    QStringList files;
    int row = -1;

    /// Native path of the selected file; empty if there is none.
    QString SelectedPath() const
    {
        return row >= 0 && row < files.size() ? folder + u'/' + files[row] : QString();
    }
};

/// The pictures, recordings and manuals of the game that the details show. pic1 shows the selected
/// picture.
struct MediaPanel {
    enum Changed : std::uint32_t {
        Images = 1,
        ImageRow = 2,
        Recordings = 4,
        Manuals = 8,
        Tab = 16,
    };

    int TabStrip1 = 1; // 1 pictures, 2 recordings, 3 manuals
    FileList fileImages;
    FileList fileAV;
    FileList fileManual;

    platform::Notifier changed;
};

} // namespace pelorin::library
