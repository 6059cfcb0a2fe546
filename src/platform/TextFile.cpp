#include "platform/TextFile.h"

#include "platform/FileReplacement.h"

#include <QFile>
#include <QFileInfo>
#include <QStringConverter>

#include <algorithm>

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

/// What most texts are made of: printable ASCII and the syllables of modern Korean.
bool IsSurelyKept(QChar c)
{
    return (c >= u' ' && c <= u'~') || (c >= u'\uAC00' && c <= u'\uD7A3');
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

Error CantOpen(const QFile& file)
{
    const ErrorKind kind =
        QFileInfo::exists(file.fileName()) ? ErrorKind::Unreadable : ErrorKind::NotFound;
    return FileError(kind, file.fileName(), file.errorString());
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
    if (std::all_of(text.begin(), text.end(), IsSurelyKept)) {
        return true;
    }
    // A control character or "?" is itself in every code page; the codec's stand-in for a loss
    // is told from the real thing by decoding it again.
    return DecodeCp949(EncodeAll(text)) == text;
}

QString DecodeCp949(const QByteArray& bytes)
{
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
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'\r' && text[i] != u'\n') {
            continue;
        }
        lines << text.mid(start, i - start);
        if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') {
            ++i;
        }
        start = i + 1;
    }
    if (start < text.size()) {
        lines << text.mid(start);
    }
    return lines;
}

Outcome<QByteArray> ReadBytes(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return CantOpen(file);
    }
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        return FileError(ErrorKind::Unreadable, path, file.errorString());
    }
    return bytes;
}

Outcome<FileStart> ReadStart(const QString& path, qint64 most)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return CantOpen(file);
    }
    FileStart start;
    start.bytes = file.read(most);
    start.whole = file.atEnd();
    if (file.error() != QFileDevice::NoError) {
        return FileError(ErrorKind::Unreadable, path, file.errorString());
    }
    return start;
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
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return CantOpen(file);
    }
    constexpr qint64 kBlock = 4096;
    QByteArray bytes;
    qsizetype ends = 0;
    while (ends < count && bytes.size() < kMostOfFirstLines && !file.atEnd()) {
        const QByteArray block = file.read(kBlock);
        if (file.error() != QFileDevice::NoError) {
            return FileError(ErrorKind::Unreadable, path, file.errorString());
        }
        ends += block.count('\n');
        bytes += block;
    }
    return SplitLines(DecodeCp949(bytes)).mid(0, count);
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
    return WriteBytes(path + u".bak"_s, bytes.Value());
}

} // namespace pelorin::platform
