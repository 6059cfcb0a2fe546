#pragma once

#include "support/Values.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace pelorin::test {

/// A temporary folder with all that a test puts there; gone with the object. Relative paths have
/// slashes; folders above a written file are made. Whatever can't be written or read fails the
/// test.
class TestFolder {
public:
    TestFolder();
    /// The root gets this name ("게임 방 [1]"), for paths that are hard on programs.
    explicit TestFolder(const QString& rootName);

    /// Absolute; the root when nothing is given.
    QString Path(const QString& relative = QString()) const;
    /// The folder that goes with the object: the root, or the one above a root with a name.
    QString TemporaryFolder() const { return m_folder.path(); }

    /// Code page 949, line ends as they stand in the text.
    void WriteText(const QString& relative, const QString& text) const;
    /// Code page 949, each line ended by CR LF.
    void WriteLines(const QString& relative, const QStringList& lines) const;
    void WriteRaw(const QString& relative, const QByteArray& bytes) const;
    /// A shell script that can be started; the text follows the "#!/bin/sh" line.
    void WriteScript(const QString& relative, const QString& body) const;
    void MakeFolder(const QString& relative) const;
    /// Empty files; a name that ends with a slash is a folder.
    void MakeTree(const QStringList& entries) const;
    /// The same of one text, parted by blanks.
    void MakeAll(const QString& entries) const { MakeTree(Words(entries)); }
    /// A symbolic link that holds `target` as it stands.
    void MakeLink(const QString& relative, const QString& target) const;

    QString ReadText(const QString& relative) const;
    QStringList ReadLines(const QString& relative) const;
    QByteArray ReadRaw(const QString& relative) const;

    /// True for a broken link too.
    bool Exists(const QString& relative) const;
    /// All that lies below, sorted, relative; folders end with a slash, links are not followed.
    QStringList Tree(const QString& relative = QString()) const;
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
