#include "platform/TextFile.h"

#include "platform/FileReplacement.h"

#include <QFile>
#include <QFileInfo>
#include <QStringConverter>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>

using namespace Qt::StringLiterals;

namespace pelorin::platform {

namespace {

// ICU's converter of Windows' code page 949. "CP949" names another table there, without the
// 8,822 syllables that Windows added.
constexpr auto kCodec = "windows-949";

QByteArray EncodeAll(const QString& text)
{
    QStringEncoder encoder(kCodec);
    return encoder.encode(text);
}

QStringList CharactersOf(const QString& text)
{
    QStringList characters;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool pair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        characters << text.mid(i, pair ? 2 : 1);
        i += pair ? 1 : 0;
    }
    return characters;
}

Error FileError(ErrorKind kind, const QString& path, const QString& reason)
{
    return Error{kind, u"%1: %2"_s.arg(path, reason)};
}

/// A file that is open for reading. Scans read small files by the hundred thousand, and QFile asks
/// the system some things more about each.
class OpenFile {
public:
    explicit OpenFile(const QString& path)
        : m_path(path)
        , m_file(open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
    {}
    ~OpenFile()
    {
        if (m_file >= 0) {
            close(m_file);
        }
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool IsOpen() const { return m_file >= 0; }

    struct stat Status() const
    {
        struct stat status = {};
        if (fstat(m_file, &status) != 0) {
            status = {};
        }
        return status;
    }

    /// Bytes read, 0 at the end, -1 on an error.
    ssize_t Read(char* to, qsizetype size) const
    {
        ssize_t got = 0;
        do {
            got = read(m_file, to, static_cast<std::size_t>(size));
        } while (got < 0 && errno == EINTR);
        return got;
    }

    /// Of the last call that failed.
    Error Failure() const
    {
        const QString reason = qt_error_string(errno);
        const bool missing = !IsOpen() && !QFileInfo::exists(m_path);
        return FileError(missing ? ErrorKind::NotFound : ErrorKind::Unreadable, m_path, reason);
    }

private:
    QString m_path;
    int m_file;
};

constexpr qint64 kAll = std::numeric_limits<qint64>::max();

/// To the end, or until more than `most` bytes are there.
Outcome<QByteArray> ReadToEnd(const OpenFile& file, qint64 expected, qint64 most = kAll)
{
    // One more, so that the end is met by the read that meets it.
    QByteArray bytes(expected + 1, Qt::Uninitialized);
    qsizetype filled = 0;
    while (true) {
        const ssize_t got = file.Read(bytes.data() + filled, bytes.size() - filled);
        if (got < 0) {
            return file.Failure();
        }
        if (got == 0) {
            bytes.truncate(filled);
            return bytes;
        }
        filled += got;
        if (filled > most) {
            bytes.truncate(filled);
            return bytes;
        }
        if (filled == bytes.size()) {
            bytes.resize(2 * filled); // it has grown, or does not tell its size
        }
    }
}

bool IsAscii(QByteArrayView bytes)
{
    return std::all_of(
        bytes.begin(), bytes.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
}

/// How many bytes the first `count` lines take. No byte of a character looks like a line end.
qsizetype LengthOfLines(const QByteArray& bytes, int count)
{
    qsizetype at = 0;
    for (int line = 0; line < count; ++line) {
        const auto* const end = std::find_if(
            bytes.begin() + at, bytes.end(), [](char c) { return c == '\r' || c == '\n'; });
        if (end == bytes.end()) {
            return bytes.size();
        }
        const bool pair = *end == '\r' && end + 1 != bytes.end() && end[1] == '\n';
        at = end - bytes.begin() + (pair ? 2 : 1);
    }
    return at;
}

} // namespace

Encoded EncodeCp949(const QString& text)
{
    QByteArray whole = EncodeAll(text);
    if (DecodeCp949(whole) == text) {
        return Encoded{whole, QString()};
    }
    Encoded result;
    const QStringList characters = CharactersOf(text);
    for (const QString& character : characters) {
        if (FitsCp949(character)) {
            result.bytes += EncodeAll(character);
        } else {
            result.bytes += '?';
            if (!result.lost.contains(character)) {
                result.lost += character;
            }
        }
    }
    return result;
}

bool FitsCp949(const QString& text)
{
    if (std::all_of(text.begin(), text.end(), IsSurelyCp949)) {
        return true;
    }
    // A control character or "?" is itself in every code page; the codec's stand-in for a loss
    // is told from the real thing by decoding it again.
    return DecodeCp949(EncodeAll(text)) == text;
}

QByteArray EncodeFittingCp949(const QString& text)
{
    return EncodeAll(text);
}

QString DecodeCp949(const QByteArray& bytes)
{
    if (IsAscii(bytes)) {
        return QString::fromLatin1(bytes);
    }
    // A lead byte at the end would be held back as the start of a character to come; the line end
    // behind it makes the decoder speak.
    QStringDecoder decoder(kCodec);
    QString text = decoder.decode(bytes + '\n');
    text.chop(1);
    return text;
}

QStringList SplitLines(const QString& text)
{
    QStringList lines;
    const QChar* at = text.begin();
    while (at != text.end()) {
        const QChar* const end =
            std::find_if(at, text.end(), [](QChar c) { return c == u'\r' || c == u'\n'; });
        lines << QString(at, end - at);
        const bool pair =
            end != text.end() && *end == u'\r' && end + 1 != text.end() && end[1] == u'\n';
        at = end == text.end() ? end : end + (pair ? 2 : 1);
    }
    return lines;
}

Outcome<QByteArray> ReadBytes(const QString& path)
{
    const OpenFile file(path);
    return file.IsOpen() ? ReadToEnd(file, file.Status().st_size) : file.Failure();
}

Outcome<QByteArray> ReadPlainFile(const QString& path, qint64 mostBytes)
{
    const OpenFile file(path);
    if (!file.IsOpen()) {
        return file.Failure();
    }
    const struct stat status = file.Status();
    if (!S_ISREG(status.st_mode) || status.st_size > mostBytes) {
        return Error::Worded(
            ErrorKind::Refused, Wording{484, u"<1> is no plain file, or too large."_s, {path}});
    }
    return ReadToEnd(file, status.st_size);
}

Outcome<FileStart> ReadStart(const QString& path, qint64 most)
{
    const OpenFile file(path);
    if (!file.IsOpen()) {
        return file.Failure();
    }
    Outcome<QByteArray> bytes =
        ReadToEnd(file, std::min<qint64>(file.Status().st_size, most), most);
    if (!bytes) {
        return bytes.Failure();
    }
    return FileStart{bytes.Value().left(most), bytes.Value().size() <= most};
}

Outcome<QString> ReadText(const QString& path)
{
    const Outcome<QByteArray> bytes = ReadBytes(path);
    if (!bytes) {
        return bytes.Failure();
    }
    return DecodeCp949(bytes.Value());
}

Outcome<QStringList> ReadLines(const QString& path)
{
    const Outcome<QString> text = ReadText(path);
    if (!text) {
        return text.Failure();
    }
    return SplitLines(text.Value());
}

Outcome<QStringList> ReadFirstLines(const QString& path, int count)
{
    const OpenFile file(path);
    if (!file.IsOpen()) {
        return file.Failure();
    }
    std::array<char, 4096> block; // NOLINT(cppcoreguidelines-pro-type-member-init): read into
    QByteArray bytes;
    qsizetype ends = 0;
    while (ends < count && bytes.size() < kMostOfFirstLines) {
        const ssize_t got = file.Read(block.data(), block.size());
        if (got < 0) {
            return file.Failure();
        }
        if (got == 0) {
            break;
        }
        ends += std::count(block.begin(), block.begin() + got, '\n');
        bytes.append(block.data(), got);
    }
    bytes.truncate(LengthOfLines(bytes, count));
    return SplitLines(DecodeCp949(bytes));
}

Done WriteBytes(const QString& path, const QByteArray& bytes)
{
    FileReplacement file(path);
    Done written = file.Append(bytes);
    return written ? file.Replace() : written;
}

Done WriteText(const QString& path, const QString& text, Loss loss)
{
    const Encoded encoded = EncodeCp949(text);
    if (loss == Loss::Refuse && !encoded.lost.isEmpty()) {
        return FileError(ErrorKind::Unencodable, path, encoded.lost);
    }
    return WriteBytes(path, encoded.bytes);
}

Done WriteLines(const QString& path, const QStringList& lines, Loss loss)
{
    QString text;
    for (const QString& line : lines) {
        text += line + u"\r\n"_s;
    }
    return WriteText(path, text, loss);
}

Error LineError(ErrorKind kind, const QString& path, qsizetype line, const QString& reason)
{
    return FileError(kind, path, u"line %1: %2"_s.arg(line).arg(reason));
}

Error NoFirstLine(const QString& path, const Error& failure)
{
    const bool missing = failure.kind == ErrorKind::NotFound;
    return LineError(
        failure.kind, path, 1, missing ? u"the file is missing"_s : u"the file can't be read"_s);
}

Done KeepBackup(const QString& path)
{
    if (!QFileInfo::exists(path)) {
        return Success();
    }
    const Outcome<QByteArray> bytes = ReadBytes(path);
    if (!bytes) {
        return bytes.Failure();
    }
    const QString backup = path + u".bak"_s;
    const Outcome<QByteArray> former = ReadBytes(backup);
    if (former && former.Value() == bytes.Value()) {
        return Success();
    }
    if (!former && former.Failure().kind != ErrorKind::NotFound) {
        return former.Failure();
    }
    if (former) {
        if (Done kept = WriteBytes(path + u".bak2"_s, former.Value()); !kept) {
            return kept;
        }
    }
    return WriteBytes(backup, bytes.Value());
}

} // namespace pelorin::platform
