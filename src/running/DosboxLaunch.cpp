#include "running/DosboxLaunch.h"

#include "dosboxconf/Builds.h"
#include "running/GuestCommand.h"
#include "running/RunPlan.h"

#include <QFile>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace pelorin::running {

namespace {

using platform::Error;
using platform::ErrorKind;
using platform::PathForm;
using platform::Wording;

bool BreaksItsLine(QChar c)
{
    return c == u'"' || c == u'\r' || c == u'\n';
}

/// As the emulator counts it: without the carriage returns.
qsizetype AutoexecSize(const QByteArray& printed)
{
    static constexpr QByteArrayView kHead = "[autoexec]\r\n";
    const qsizetype head = printed.lastIndexOf(kHead);
    if (head < 0) {
        return 0;
    }
    const QByteArrayView section = QByteArrayView(printed).sliced(head + kHead.size());
    return section.size() - std::count(section.begin(), section.end(), '\r');
}

Error BrokenName(const QString& name)
{
    return Error::Worded(
        ErrorKind::Refused,
        Wording{
            387,
            u"<1>: a quotation mark or a line break in a name can't be written to dosbox.conf."_s,
            {name}});
}

/// `firstTooLong` bytes and more are refused.
platform::Done CheckPath(const QString& path, qsizetype firstTooLong, PathForm form)
{
    if (std::any_of(path.begin(), path.end(), BreaksItsLine)) {
        return BrokenName(path);
    }
    const qsizetype bytes = QFile::encodeName(path).size();
    if (form == PathForm::Windows || bytes < firstTooLong) {
        return platform::Success();
    }
    return Error::Worded(
        ErrorKind::Refused,
        Wording{
            388,
            u"<1>: the path has <2> bytes; DOSBox takes no more than <3> here."_s,
            {path, QString::number(bytes), QString::number(firstTooLong - 1)}});
}

platform::Done CheckImages(const dosboxconf::RunFacts& facts, PathForm form)
{
    const dosboxconf::CdChoice& cd = facts.request.cd;
    if (!cd.chkCD || cd.CdMountMode == 0) {
        return platform::Success();
    }
    for (const QString& image : cd.lstCD) {
        const QString path = facts.cdFolder.Below(image).native;
        if (platform::Done fits = CheckPath(path, kImagePathBytes, form); !fits) {
            return fits;
        }
    }
    return platform::Success();
}

platform::Done CheckAutoexec(const QByteArray& printed)
{
    const bool gravis = printed.contains("\r\ngus=true\r\n");
    const qsizetype most = gravis ? kAutoexecBytesWithGravis : kAutoexecBytes;
    const qsizetype bytes = AutoexecSize(printed);
    if (bytes <= most) {
        return platform::Success();
    }
    return Error::Worded(
        ErrorKind::Refused,
        Wording{
            389,
            u"The start commands come to <1> bytes; DOSBox takes <2>. Fewer of them or fewer CD images help."_s,
            {QString::number(bytes), QString::number(most)}});
}

/// What the guest is to run. A guest Windows runs none of the start commands.
QStringList TypedCommands(const RunRequest& request, const QString& build)
{
    if (dosboxconf::IsGuestWindows(build) && request.mode != RunMode::FileWithArgs) {
        return {};
    }
    switch (request.mode) {
    case RunMode::Game:
    case RunMode::NetHost:
    case RunMode::NetClient: return request.startCommands;
    case RunMode::FileWithArgs: return {request.typedLine};
    case RunMode::DosPrompt:
    case RunMode::LibraryShell: break;
    }
    return {};
}

} // namespace

Wording UnknownBuild(const QString& folder)
{
    return Wording{344, u"<1>: its settings name a build that is not in the list."_s, {folder}};
}

platform::Done CheckRequest(const RunRequest& request, const QString& build)
{
    if (build.isEmpty() && request.mode != RunMode::LibraryShell) {
        return Error::Worded(ErrorKind::Refused, UnknownBuild(request.folder));
    }
    if (std::any_of(request.folder.begin(), request.folder.end(), BreaksItsLine)) {
        return BrokenName(request.folder);
    }
    return platform::Success();
}

platform::Done CheckCommands(const RunRequest& request, const QString& build, PathForm form)
{
    if (build == dosboxconf::kWin98 && request.mode != RunMode::LibraryShell) {
        const QString disk = request.startCommands.mid(0, 2).join(u' ');
        if (std::any_of(disk.begin(), disk.end(), BreaksItsLine)) {
            return BrokenName(disk);
        }
    }
    const QStringList commands =
        form == PathForm::Posix ? TypedCommands(request, build) : QStringList();
    for (const QString& command : commands) {
        const QStringList needed = UnopenableNamesIn(command).needed;
        if (!needed.isEmpty()) {
            return Error::Worded(
                ErrorKind::Refused,
                Wording{
                    390, u"<1>: DOSBox can't open a file with such a name."_s, {needed.first()}});
        }
    }
    return platform::Success();
}

platform::Done CheckLaunch(
    const dosboxconf::RunFacts& facts, const platform::HostText& finished, PathForm form)
{
    QStringList mounted{facts.request.mountRoot ? facts.gamesRoot.native : facts.gameDir.native};
    const dosboxconf::CdChoice& cd = facts.request.cd;
    if (cd.chkCD && cd.CdMountMode == 0 && !dosboxconf::IsWin98Family(facts.request.build)) {
        mounted << facts.gameDir.native;
    }
    for (const QString& folder : std::as_const(mounted)) {
        if (platform::Done fits = CheckPath(folder, kMountPathBytes, form); !fits) {
            return fits;
        }
    }
    if (platform::Done fits = CheckImages(facts, form); !fits) {
        return fits;
    }
    return form == PathForm::Posix ? CheckAutoexec(finished.Print(form)) : platform::Success();
}

QList<Wording> LaunchNotes(
    const RunRequest& request,
    const QString& build,
    const platform::HostText& finished,
    PathForm form)
{
    QList<Wording> notes;
    if (form == PathForm::Posix) {
        const QStringList commands = TypedCommands(request, build);
        for (const QString& command : commands) {
            const QStringList passedOn = UnopenableNamesIn(command).passedOn;
            for (const QString& word : passedOn) {
                notes << Wording{
                    391, u"<1>: if this is a file, DOSBox can't open it by such a name."_s, {word}};
            }
        }
    }
    if (const QString lost = finished.Lost(form); !lost.isEmpty()) {
        notes << Wording{392, u"dosbox.conf can't hold these characters: <1>"_s, {lost}};
    }
    if (request.mode == RunMode::NetHost && request.serverPort != dosboxconf::kIpxPort) {
        notes << Wording{
            399, u"The IPX server listens on port <1>."_s, {QString::number(request.serverPort)}};
    }
    return notes;
}

} // namespace pelorin::running
