#include "platform/HostText.h"

#include "platform/Paths.h"
#include "platform/TextFile.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace pelorin::platform {

HostPath HostPath::Below(const QString& name, const QString& onDisk) const
{
    return HostPath{
        reference + u'\\' + QString(name).replace(u'/', u'\\'),
        native + u'/' + NativePath(onDisk.isEmpty() ? name : onDisk)};
}

HostPath HostPathOf(const QString& nativePath)
{
    return HostPath{WindowsPath(nativePath), nativePath};
}

HostText& HostText::Text(const QString& text)
{
    if (!m_pieces.empty() && m_pieces.back().kind == Kind::Guest) {
        m_pieces.back().text += text;
    } else if (!text.isEmpty()) {
        m_pieces.push_back(Piece{Kind::Guest, text, HostPath{}});
    }
    return *this;
}

HostText& HostText::Path(const HostPath& path)
{
    m_pieces.push_back(Piece{Kind::Path, QString(), path});
    return *this;
}

HostText& HostText::BatchPath(const HostPath& path)
{
    m_pieces.push_back(Piece{Kind::BatchPath, QString(), path});
    return *this;
}

HostText& HostText::Append(const HostText& other)
{
    for (const Piece& piece : other.m_pieces) {
        if (piece.kind == Kind::Guest) {
            Text(piece.text);
        } else {
            m_pieces.push_back(piece);
        }
    }
    return *this;
}

void HostText::ReplaceText(const QString& from, const QString& to)
{
    for (Piece& piece : m_pieces) {
        piece.text.replace(from, to);
    }
}

QString HostText::Shown(const Piece& piece, PathForm form)
{
    if (piece.kind == Kind::Guest) {
        return piece.text;
    }
    if (form == PathForm::Windows) {
        return piece.path.reference;
    }
    QString text = piece.path.native;
    if (piece.kind == Kind::BatchPath) {
        text.replace(u'%', u"%%"_s);
    }
    return text;
}

/// In the Windows form the paths are, too.
bool HostText::IsGuestText(const Piece& piece, PathForm form)
{
    return piece.kind == Kind::Guest || form == PathForm::Windows;
}

QByteArray HostText::Print(PathForm form) const
{
    QByteArray bytes;
    for (const Piece& piece : m_pieces) {
        const QString shown = Shown(piece, form);
        bytes += IsGuestText(piece, form) ? EncodeCp949(shown).bytes : QFile::encodeName(shown);
    }
    return bytes;
}

QString HostText::Preview(PathForm form) const
{
    QString text;
    for (const Piece& piece : m_pieces) {
        const QString shown = Shown(piece, form);
        text += IsGuestText(piece, form) ? DecodeCp949(EncodeCp949(shown).bytes) : shown;
    }
    return text;
}

QString HostText::Lost(PathForm form) const
{
    QString lost;
    for (const Piece& piece : m_pieces) {
        if (IsGuestText(piece, form)) {
            lost += EncodeCp949(Shown(piece, form)).lost;
        }
    }
    return lost;
}

} // namespace pelorin::platform
