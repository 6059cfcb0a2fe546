#include "support/TestFolder.h"

#include "platform/TextFile.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace pelorin::test {

TestFolder::TestFolder()
    : TestFolder(QString())
{}

TestFolder::TestFolder(const QString& rootName)
{
    EXPECT_TRUE(m_folder.isValid()) << m_folder.errorString().toStdString();
    // A temporary folder behind a link would make every comparison with a canonical path fail.
    m_root = QFileInfo(m_folder.path()).canonicalFilePath();
    if (!rootName.isEmpty()) {
        m_root += u'/' + rootName;
        EXPECT_TRUE(QDir().mkpath(m_root));
    }
}

QString TestFolder::Path(const QString& relative) const
{
    return relative.isEmpty() ? m_root : m_root + u'/' + relative;
}

void TestFolder::WriteText(const QString& relative, const QString& text) const
{
    const auto encoded = platform::EncodeCp949(text);
    EXPECT_EQ(encoded.lost, QString()) << "not in code page 949";
    WriteRaw(relative, encoded.bytes);
}

void TestFolder::WriteLines(const QString& relative, const QStringList& lines) const
{
    QString text;
    for (const QString& line : lines) {
        text += line + u"\r\n"_s;
    }
    WriteText(relative, text);
}

void TestFolder::WriteRaw(const QString& relative, const QByteArray& bytes) const
{
    const QString path = Path(relative);
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path())) << path.toStdString();
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size())
        << path.toStdString() << ": " << file.errorString().toStdString();
}

void TestFolder::WriteScript(const QString& relative, const QString& body) const
{
    WriteRaw(relative, "#!/bin/sh\n" + body.toUtf8());
    EXPECT_TRUE(QFile::setPermissions(
        Path(relative), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

void TestFolder::MakeFolder(const QString& relative) const
{
    EXPECT_TRUE(QDir().mkpath(Path(relative))) << relative.toStdString();
}

void TestFolder::MakeTree(const QStringList& entries) const
{
    for (const QString& entry : entries) {
        if (entry.endsWith(u'/')) {
            MakeFolder(entry.chopped(1));
        } else {
            WriteRaw(entry, QByteArray());
        }
    }
}

void TestFolder::MakeLink(const QString& relative, const QString& target) const
{
    EXPECT_TRUE(QFile::link(target, Path(relative))) << relative.toStdString();
}

QString TestFolder::ReadText(const QString& relative) const
{
    return platform::DecodeCp949(ReadRaw(relative));
}

QStringList TestFolder::ReadLines(const QString& relative) const
{
    return platform::SplitLines(ReadText(relative));
}

QByteArray TestFolder::ReadRaw(const QString& relative) const
{
    QFile file(Path(relative));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    return file.isOpen() ? file.readAll() : QByteArray();
}

bool TestFolder::Exists(const QString& relative) const
{
    const QFileInfo info(Path(relative));
    return info.exists() || info.isSymLink();
}

QStringList TestFolder::Tree(const QString& relative) const
{
    const QDir root(Path(relative));
    QStringList entries;
    QDirIterator walk(
        root.path(),
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
        QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        walk.next();
        const QFileInfo entry = walk.fileInfo();
        const bool folder = entry.isDir() && !entry.isSymLink();
        entries << root.relativeFilePath(entry.filePath()) + (folder ? u"/"_s : QString());
    }
    entries.sort();
    return entries;
}

} // namespace pelorin::test
