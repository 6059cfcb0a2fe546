#include "support/IsolatedHome.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace pelorin::test {

IsolatedHome::IsolatedHome()
{
    for (const QString& name : {u".local/share"_s, u".config"_s, u".cache"_s, u"runtime"_s}) {
        m_folder.MakeFolder(name);
    }
    // Qt and others refuse a runtime folder that anybody else may enter.
    QFile::setPermissions(
        Path(u"runtime"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QProcessEnvironment IsolatedHome::Environment() const
{
    QProcessEnvironment environment;
    const auto ours = QProcessEnvironment::systemEnvironment();
    for (const QString& name :
         {u"PATH"_s, u"ASAN_OPTIONS"_s, u"UBSAN_OPTIONS"_s, u"LSAN_OPTIONS"_s}) {
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

ScopedEnvironment::ScopedEnvironment(const QProcessEnvironment& environment)
{
    for (const QString& key : environment.keys()) {
        const QByteArray name = key.toUtf8();
        m_before[name] = qgetenv(name.constData());
        qputenv(name.constData(), environment.value(key).toUtf8());
    }
}

ScopedEnvironment::~ScopedEnvironment()
{
    for (auto it = m_before.cbegin(); it != m_before.cend(); ++it) {
        if (it.value().isNull()) {
            qunsetenv(it.key().constData());
        } else {
            qputenv(it.key().constData(), it.value());
        }
    }
}

} // namespace pelorin::test
