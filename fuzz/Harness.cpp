#include "fuzz/Harness.h"

#include "platform/TextFile.h"

#include <QDir>
#include <QFile>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace pelorin::fuzz {

QByteArray BytesOf(const std::uint8_t* data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

void Require(bool promise, const char* text)
{
    if (!promise) {
        std::fprintf(stderr, "broken promise: %s\n", text);
        std::abort();
    }
}

QByteArray AsWritten(const QStringList& lines)
{
    return platform::EncodeCp949(lines.join(u'\n')).bytes;
}

FuzzInstallation::FuzzInstallation()
    : m_places{
          m_folder.filePath(u"app"_s), m_folder.filePath(u"Games"_s), m_folder.filePath(u"out"_s)}
{
    Require(m_folder.isValid(), "a temporary folder can be made");
    QDir().mkpath(m_places.appDir);
    QDir().mkpath(m_places.exportRoot);
    QDir().mkpath(m_places.gamesRoot + u"/Star/DosBox/CD"_s);
}

QString FuzzInstallation::InApp(const QString& name) const
{
    return m_places.appDir + u'/' + name;
}

QString FuzzInstallation::InMeta(const QString& name) const
{
    return m_places.gamesRoot + u"/Star/DosBox/"_s + name;
}

library::GameFiles FuzzInstallation::Star() const
{
    return library::ListGame(m_places, u"Star"_s);
}

void FuzzInstallation::Write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    Require(
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
        "the input can be written");
}

void FuzzInstallation::Remove(const QString& path)
{
    QFile::remove(path);
}

void NoProgress::Begin(library::Phase phase, int maximum)
{
    Q_UNUSED(phase);
    Q_UNUSED(maximum);
}

bool NoProgress::Step(library::Phase phase, int value, int percent)
{
    Q_UNUSED(phase);
    Q_UNUSED(value);
    Q_UNUSED(percent);
    return true;
}

} // namespace pelorin::fuzz
