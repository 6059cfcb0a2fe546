#pragma once

#include "platform/Outcome.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

// Text files of this system are in code page 949 (Windows' extension of EUC-KR) with lines ended
// by CR LF. On reading, LF alone, CR alone and a missing last line end are accepted as well.

namespace pelorin::platform {

struct Encoded {
    QByteArray bytes; // a "?" stands for each character that is lost
    QString lost;     // each character that code page 949 can't keep, once, in order of appearance
};

/// What survives is found by a round trip, not by the codec's error flag: a character counts as
/// lost unless its bytes decode to it again. Lone surrogates are lost.
Encoded EncodeCp949(const QString& text);

/// What most texts are made of: printable ASCII and the syllables of modern Korean. Nothing of it is
/// lost in code page 949.
constexpr bool IsSurelyCp949(QChar c)
{
    return (c >= u' ' && c <= u'~') || (c >= u'\uAC00' && c <= u'\uD7A3');
}

/// Whether EncodeCp949 would lose nothing; much cheaper on long texts that lose something.
bool FitsCp949(const QString& text);

/// The bytes of a text all of which FitsCp949, without proving that again.
QByteArray EncodeFittingCp949(const QString& text);

/// A byte that is no text (a lead byte at the end, say) becomes U+FFFD.
QString DecodeCp949(const QByteArray& bytes);

/// The lines of a text without their ends. An empty text has no line; "a\r\n" has one.
QStringList SplitLines(const QString& text);

/// Reads whole files. Error: NotFound or Unreadable, with the path in the text.
Outcome<QByteArray> ReadBytes(const QString& path);
/// The same for what may be anything: Error Refused, and nothing read, unless it is a plain file
/// (others might be waited for) of at most that many bytes.
Outcome<QByteArray> ReadPlainFile(const QString& path, qint64 mostBytes);
Outcome<QString> ReadText(const QString& path);
Outcome<QStringList> ReadLines(const QString& path);

/// What ReadFirstLines reads at most, so that a large file without line ends fills no memory.
inline constexpr qint64 kMostOfFirstLines = qint64{64} * 1024;

/// The first `count` lines at most, reading no more of a large file than it must; what lies behind
/// kMostOfFirstLines bytes is cut off.
Outcome<QStringList> ReadFirstLines(const QString& path, int count);

/// The beginning of a file.
struct FileStart {
    QByteArray bytes;
    bool whole = true; // the file has no more than that
};

/// As ReadBytes, but no more than `most` bytes are read.
Outcome<FileStart> ReadStart(const QString& path, qint64 most);

/// Written beside the old file and renamed over it, so that a failure leaves the old file whole.
/// Error: Unwritable with the path and the reason.
Done WriteBytes(const QString& path, const QByteArray& bytes);

/// What becomes of characters that code page 949 can't keep.
enum class Loss {
    Refuse, // nothing is written: Error Unencodable, with the characters in the text
    Accept, // "?" stands for each
};

/// As WriteBytes.
Done WriteText(const QString& path, const QString& text, Loss loss = Loss::Refuse);

/// Each line followed by CR LF.
Done WriteLines(const QString& path, const QStringList& lines, Loss loss = Loss::Refuse);

/// A fault in one line of a file, counted from 1: "path: line 3: reason".
Error LineError(ErrorKind kind, const QString& path, qsizetype line, const QString& reason);

/// The same for a file that has to be there and gave `failure`: it lacks its first line.
Error NoFirstLine(const QString& path, const Error& failure);

/// Copies `path` to `path`.bak; what stood there goes to `path`.bak2. Nothing to keep is a success.
Done KeepBackup(const QString& path);

} // namespace pelorin::platform
