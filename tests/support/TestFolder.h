#pragma once

#include "platform/TextFile.h"
#include "support/Values.h"

#include <QByteArray>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace pelorin::test {

/// A temporary folder with all that a test puts there; gone with the object. Relative paths have
/// slashes; folders above a written file are made. Whatever can't be written or read fails the
/// test.
class TestFolder {
public:
    TestFolder()
        : TestFolder(QString())
    {}
    /// The root gets this name ("게임 방 [1]"), for paths that are hard on programs.
    explicit TestFolder(const QString& rootName)
    {
        EXPECT_TRUE(m_folder.isValid()) << m_folder.errorString();
        // A temporary folder behind a link would make every comparison with a canonical path fail.
        m_root = QFileInfo(m_folder.path()).canonicalFilePath();
        if (!rootName.isEmpty()) {
            m_root += u'/' + rootName;
            EXPECT_TRUE(QDir().mkpath(m_root));
        }
    }

    /// Absolute; the root when nothing is given.
    QString Path(const QString& relative = QString()) const
    {
        return relative.isEmpty() ? m_root : m_root + u'/' + relative;
    }
    /// The folder that goes with the object: the root, or the one above a root with a name.
    QString TemporaryFolder() const { return m_folder.path(); }

    void WriteRaw(const QString& relative, const QByteArray& bytes) const
    {
        QFile file(Path(relative));
        EXPECT_TRUE(QDir().mkpath(QFileInfo(file).path())) << relative;
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << relative;
        EXPECT_EQ(file.write(bytes), bytes.size()) << relative;
    }
    /// Code page 949, line ends as they stand in the text.
    void WriteText(const QString& relative, const QString& text) const
    {
        const auto encoded = platform::EncodeCp949(text);
        EXPECT_EQ(encoded.lost, QString()) << "not in code page 949";
        WriteRaw(relative, encoded.bytes);
    }
    /// Code page 949, each line ended by CR LF.
    void WriteLines(const QString& relative, const QStringList& lines) const
    {
        const QString end = QStringLiteral("\r\n");
        WriteText(relative, lines.isEmpty() ? QString() : lines.join(end) + end);
    }
    /// A shell script that can be started; the text follows the "#!/bin/sh" line.
    void WriteScript(const QString& relative, const QString& body) const
    {
        WriteRaw(relative, "#!/bin/sh\n" + body.toUtf8());
        EXPECT_TRUE(QFile::setPermissions(
            Path(relative), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    void MakeFolder(const QString& relative) const
    {
        EXPECT_TRUE(QDir().mkpath(Path(relative))) << relative;
    }
    /// Empty files; a name that ends with a slash is a folder.
    void MakeTree(const QStringList& entries) const
    {
        for (const QString& entry : entries) {
            if (entry.endsWith(u'/')) {
                MakeFolder(entry.chopped(1));
            } else {
                WriteRaw(entry, QByteArray());
            }
        }
    }
    /// The same of one text, parted by blanks.
    void MakeAll(const QString& entries) const { MakeTree(Words(entries)); }
    /// A symbolic link that holds `target` as it stands.
    void MakeLink(const QString& relative, const QString& target) const
    {
        EXPECT_TRUE(QFile::link(target, Path(relative))) << relative;
    }

    QByteArray ReadRaw(const QString& relative) const
    {
        QFile file(Path(relative));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << relative;
        return file.isOpen() ? file.readAll() : QByteArray();
    }
    QString ReadText(const QString& relative) const
    {
        return platform::DecodeCp949(ReadRaw(relative));
    }
    QStringList ReadLines(const QString& relative) const
    {
        return platform::SplitLines(ReadText(relative));
    }

    /// True for a broken link too.
    bool Exists(const QString& relative) const
    {
        const QFileInfo info(Path(relative));
        return info.exists() || info.isSymLink();
    }
    /// All that lies below, sorted, relative; folders end with a slash, links are not followed.
    QStringList Tree(const QString& relative = QString()) const
    {
        using namespace Qt::StringLiterals;
        constexpr auto kAll = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        const QDir root(Path(relative));
        QStringList entries;
        QDirIterator walk(root.path(), kAll, QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            walk.next();
            const QFileInfo entry = walk.fileInfo();
            const bool folder = entry.isDir() && !entry.isSymLink();
            entries << root.relativeFilePath(entry.filePath()) + (folder ? u"/"_s : u""_s);
        }
        entries.sort();
        return entries;
    }
    /// The same in one text, parted by blanks.
    QString TreeText(const QString& relative = QString()) const
    {
        return Tree(relative).join(u' ');
    }

private:
    QTemporaryDir m_folder;
    QString m_root;
};

} // namespace pelorin::test
