#pragma once

#include "support/TestFolder.h"

#include <QByteArray>
#include <QMap>
#include <QProcessEnvironment>
#include <QString>

namespace pelorin::test {

/// A home of the test's own, so that no program reads or writes the developer's.
class IsolatedHome {
public:
    IsolatedHome();

    QString Path(const QString& relative = QString()) const { return m_folder.Path(relative); }
    const TestFolder& Folder() const { return m_folder; }

    /// All that a program started under test may see of the world: HOME, the XDG folders (data and
    /// runtime made), WINEPREFIX, silent sound, PATH, a UTF-8 locale and the sanitizers' options.
    /// No display.
    QProcessEnvironment Environment() const;

private:
    TestFolder m_folder;
};

/// Makes an environment this process's own until the end of the scope, for ports that hand ours on.
class ScopedEnvironment {
public:
    explicit ScopedEnvironment(const QProcessEnvironment& environment);
    ~ScopedEnvironment();
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

private:
    QMap<QByteArray, QByteArray> m_before; // null: was not set
};

} // namespace pelorin::test
