// stagetext [--lf] SOURCE DEST
//
// Stages a text: SOURCE is UTF-8 with lines ended by LF, DEST becomes code page 949 with lines ended
// by CR LF (by LF with --lf). Folders of DEST are made. A DEST that holds the very bytes already is
// not touched. What code page 949 can't keep is an error that names the line and the characters, and
// so is a source that is not UTF-8.
// Exit: 0 staged or equal, 1 failed, 2 called wrongly.

#include "platform/TextFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStringConverter>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace pelorin::platform;

namespace {

void Complain(const QString& text)
{
    std::fprintf(stderr, "stagetext: %s\n", text.toUtf8().constData());
}

Error LineError(const QString& source, qsizetype line, const QString& reason)
{
    return Error{ErrorKind::Malformed, u"%1:%2: %3"_s.arg(source).arg(line).arg(reason)};
}

/// The decoded text with LF alone at the ends of lines.
Outcome<QString> DecodeSource(const QString& source, const QByteArray& bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    if (decoder.hasError()) {
        qsizetype line = 1;
        for (const QByteArray& one : bytes.split('\n')) {
            QStringDecoder probe(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
            const QString ignored = probe.decode(one);
            if (probe.hasError()) {
                break;
            }
            ++line;
        }
        return LineError(source, line, u"not UTF-8"_s);
    }
    return QString(text).replace(u"\r\n"_s, u"\n"_s);
}

Outcome<QByteArray> Encode(const QString& source, const QString& text, bool keepLf)
{
    QByteArray bytes;
    qsizetype number = 0;
    const QStringList lines = text.split(u'\n');
    for (const QString& line : lines) {
        const Encoded encoded = EncodeCp949(line);
        ++number;
        if (!encoded.lost.isEmpty()) {
            return LineError(source, number, u"code page 949 has no \"%1\""_s.arg(encoded.lost));
        }
        bytes += encoded.bytes;
        if (number < lines.size()) {
            bytes += keepLf ? "\n" : "\r\n";
        }
    }
    return bytes;
}

Done Stage(const QString& source, const QString& dest, bool keepLf)
{
    const Outcome<QByteArray> read = ReadBytes(source);
    if (!read) {
        return read.Failure();
    }
    const Outcome<QString> text = DecodeSource(source, read.Value());
    if (!text) {
        return text.Failure();
    }
    const Outcome<QByteArray> bytes = Encode(source, text.Value(), keepLf);
    if (!bytes) {
        return bytes.Failure();
    }
    const Outcome<QByteArray> standing = ReadBytes(dest);
    if (standing && standing.Value() == bytes.Value()) {
        return Success();
    }
    const QString folder = QFileInfo(dest).path();
    if (!QDir().mkpath(folder)) {
        return Error{ErrorKind::Unwritable, u"%1: the folder can't be made"_s.arg(folder)};
    }
    return WriteBytes(dest, bytes.Value());
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool keepLf = arguments.removeAll(u"--lf"_s) > 0;
    if (arguments.size() != 2) {
        Complain(u"usage: stagetext [--lf] SOURCE DEST"_s);
        return 2;
    }
    const Done done = Stage(arguments[0], arguments[1], keepLf);
    if (!done) {
        Complain(done.Failure().text);
        return 1;
    }
    return 0;
}
