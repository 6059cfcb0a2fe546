#pragma once

#include "shell/Launcher.h"
#include "support/Installation.h"
#include "support/IsolatedHome.h"

#include <QFileInfo>
#include <QMap>
#include <QString>

#include <gtest/gtest.h>

// What a damaged file, an odd name, a full disk do to the program: each test is one such input. It
// looks at the files afterwards and at what the user was told.

namespace pelorin::test {

/// Bytes of every file below AppDir, by its relative path; folders have none.
inline QMap<QString, QByteArray> FilesOf(const TestFolder& folder)
{
    QMap<QString, QByteArray> files;
    for (const QString& entry : folder.Tree()) {
        const bool isFile = QFileInfo(folder.Path(entry)).isFile();
        files[entry] = isFile ? folder.ReadRaw(entry) : QByteArray();
    }
    return files;
}

/// The notes of the status bar, one a line.
inline QString Notes(const shell::Launcher& launcher)
{
    QString text;
    for (const shell::Note& note : launcher.screens.status.notes) {
        text += note.text + u'\n';
    }
    return text;
}

/// For a ScopedEnvironment: what is made within it lies in this folder.
inline QProcessEnvironment TemporaryFilesIn(const QString& folder)
{
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("TMPDIR"), folder);
    return environment;
}

} // namespace pelorin::test
