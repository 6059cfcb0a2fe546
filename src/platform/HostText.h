#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace pelorin::platform {

/// How the program that reads a text writes paths.
enum class PathForm {
    Windows, // drive letters and backslashes, the reference form
    Posix,   // slashes, the names' real case, the file system's encoding
};

/// A path of this machine as a text for another program holds it. `reference` is the Windows form
/// in the spelling that the format fixes ("C:\Games\Star\dosbox", "..\..\Dos\Util"); `native` is
/// the same place as it is really spelled here ("/opt/Games/Star/DosBox", "../../Dos/Util").
struct HostPath {
    QString reference;
    QString native;

    /// Both forms with one more part; `onDisk` where the name really is spelled otherwise.
    HostPath Below(const QString& name, const QString& onDisk = QString()) const;
};

/// A native absolute path with its reference form made by WindowsPath.
HostPath HostPathOf(const QString& nativePath);

/// A text for a guest system: a row of pieces, each text of the guest (code page 949) or a path of
/// the host. What is guest text stays the same bytes in both forms.
class HostText {
public:
    HostText& Text(const QString& text);
    /// In a place where the reader takes the bytes as they stand.
    HostText& Path(const HostPath& path);
    /// In a batch line: a "%" would begin a variable there, so the POSIX form doubles it.
    HostText& BatchPath(const HostPath& path);
    HostText& Append(const HostText& other);

    /// Replaces in the guest text pieces that stand now; paths are left alone.
    void ReplaceText(const QString& from, const QString& to);

    /// Guest text that code page 949 can't keep becomes "?"; `Lost` tells which.
    QByteArray Print(PathForm form) const;
    /// For eyes: what Print gives, decoded.
    QString Preview(PathForm form) const;
    /// Characters that Print would lose, in either form.
    QString Lost(PathForm form) const;

    bool IsEmpty() const { return m_pieces.empty(); }

private:
    enum class Kind { Guest, Path, BatchPath };
    struct Piece {
        Kind kind = Kind::Guest;
        QString text; // Guest
        HostPath path;
    };
    static QString Shown(const Piece& piece, PathForm form);
    static bool IsGuestText(const Piece& piece, PathForm form);

    std::vector<Piece> m_pieces;
};

} // namespace pelorin::platform
