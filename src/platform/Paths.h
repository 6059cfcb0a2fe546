#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <initializer_list>
#include <optional>

// Inside the program a path is a native path. Names are found without regard to case, since game
// folders come from systems that ignore it: an exact hit first, else the first entry that differs
// by case only. Two entries that differ by case only are never made here: what exists is reused.

namespace pelorin::platform {

/// The text behind the last separator ("/" or "\"); the whole text when there is none.
QString LastPathSegment(const QString& path);

/// Both separators become "/"; a trailing one is dropped.
QString NativePath(const QString& path);

/// The reference form of a native path: "/opt/x" becomes "Z:\opt\x", what Wine shows Windows
/// programs. Other paths only get backslashes.
QString WindowsPath(const QString& nativePath);

/// Whether a name may stand alone below a root: not empty, not "." or "..", no separator, no NUL.
bool IsPlainName(const QString& name);

/// One directory, read once: names in order of their lower-case form, hidden ones (first
/// character a point) left out of the two lists but found by Find.
struct Listing {
    bool exists = false;                 // the folder is there and could be read
    QStringList folders;                 // links to folders among them
    QStringList files;                   // whatever is no folder
    QHash<QString, QString> byLowerCase; // lower-case name -> name, first in order
    QStringList all;                     // folders, files and hidden names, sorted
    QStringList hiddenFolders;
    QStringList broken; // links that lead nowhere or to themselves, in no other list; sorted

    /// The entry of that name, exact or by case; empty if there is none.
    QString Find(const QString& name) const;
    bool HasFile(const QString& name) const;
    bool HasFolder(const QString& name) const;
};

Listing ListFolder(const QString& path);

/// The folders that ListFolder would give, in its order, without those that are known: of tens of
/// thousands mostly none.
QStringList UnknownFolders(const QString& path, const QSet<QString>& known);

/// Walks `relative` (either separator) below the native folder `base`, each part without regard to
/// case. nullopt if a part is missing. An empty base is the root, for absolute paths.
std::optional<QString> FindPath(const QString& base, const QString& relative);

/// As FindPath, for paths that may be about to be created: parts that exist take their spelling on
/// disk, the rest stands as given.
QString ResolvePath(const QString& base, const QString& relative);

/// Files of a folder that end with one of the endings (".iso"), without regard to case, in the
/// listing's order.
QStringList FilesWithEndings(const Listing& listing, std::initializer_list<QStringView> endings);

} // namespace pelorin::platform
