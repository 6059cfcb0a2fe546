#pragma once

#include "support/TestFolder.h"

#include <QFile>
#include <QMap>
#include <QProcessEnvironment>

namespace pelorin::test {

/// A home of the test's own, so that no program reads or writes the developer's.
class IsolatedHome {
public:
    IsolatedHome()
    {
        m_folder.MakeAll(QStringLiteral(".local/share/ .config/ .cache/ runtime/"));
        // Qt and others refuse a runtime folder that anybody else may enter.
        QFile::setPermissions(
            Path(QStringLiteral("runtime")),
            QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QString Path(const QString& relative = QString()) const { return m_folder.Path(relative); }
    const TestFolder& Folder() const { return m_folder; }

    /// All that a program started under test may see of the world: HOME, the XDG folders (data and
    /// runtime made), WINEPREFIX, silent sound, PATH, a UTF-8 locale and the sanitizers' options.
    /// No display.
    QProcessEnvironment Environment() const
    {
        using namespace Qt::StringLiterals;
        QProcessEnvironment environment;
        const auto ours = QProcessEnvironment::systemEnvironment();
        for (const QString& name : Words(u"PATH ASAN_OPTIONS UBSAN_OPTIONS LSAN_OPTIONS"_s)) {
            if (ours.contains(name)) {
                environment.insert(name, ours.value(name));
            }
        }
        environment.insert(u"LANG"_s, u"C.UTF-8"_s);
        environment.insert(u"HOME"_s, Path());
        environment.insert(u"XDG_DATA_HOME"_s, Path(u".local/share"_s));
        environment.insert(u"XDG_CONFIG_HOME"_s, Path(u".config"_s));
        environment.insert(u"XDG_CACHE_HOME"_s, Path(u".cache"_s));
        environment.insert(u"XDG_RUNTIME_DIR"_s, Path(u"runtime"_s));
        environment.insert(u"WINEPREFIX"_s, Path(u".wine"_s));
        environment.insert(u"SDL_AUDIODRIVER"_s, u"dummy"_s);
        return environment;
    }

private:
    TestFolder m_folder;
};

/// Makes an environment this process's own until the end of the scope, for ports that hand ours on.
class ScopedEnvironment {
public:
    explicit ScopedEnvironment(const QProcessEnvironment& environment)
    {
        for (const QString& key : environment.keys()) {
            const QByteArray name = key.toUtf8();
            m_before[name] = qgetenv(name.constData());
            qputenv(name.constData(), environment.value(key).toUtf8());
        }
    }
    ~ScopedEnvironment()
    {
        for (auto it = m_before.cbegin(); it != m_before.cend(); ++it) {
            if (it.value().isNull()) {
                qunsetenv(it.key().constData());
            } else {
                qputenv(it.key().constData(), it.value());
            }
        }
    }
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

private:
    QMap<QByteArray, QByteArray> m_before; // null: was not set
};

} // namespace pelorin::test
