#include "running/GuestWindows.h"

#include "dosboxconf/RunFacts.h"
#include "platform/Paths.h"
#include "shell/Places.h"

using namespace Qt::StringLiterals;

namespace pelorin::running {

namespace {

using platform::HostPath;
using platform::HostText;

constexpr auto kEnd = "\r\n"_L1;
constexpr auto kWindows = "W:\\WINDOWS\\"_L1;
constexpr auto kKept = "c:\\DosBox\\"_L1; // the game's settings of the guest

/// What the two guests of Windows 3.1 differ in.
struct Win31 {
    const char16_t* build;
    const char16_t* group; // the program group that starts by itself
    bool hasIme;           // with an input method, which asks something at its start
};

constexpr Win31 kWin31[] = {
    {u"Win31KOR", u"시작프로.GRP", true},
    {u"Win31ENG", u"STARTUP.GRP", false},
};

void Line(HostText& text, const QString& line)
{
    text.Text(line + kEnd);
}

void Bring(HostText& text, const QString& file)
{
    Line(text, u"copy "_s + kKept + file + u' ' + kWindows);
}

void TakeBack(HostText& text, const QString& file)
{
    Line(text, u"COPY "_s + kWindows + file + u" C:\\DosBox\\"_s);
}

HostText Win31Lines(const Win31& guest, bool withGame, const shell::Places& places)
{
    const QString build = QString::fromUtf16(guest.build);
    const QString group = QString::fromUtf16(guest.group);
    const QString ime = u"IMEINFO.INI"_s;
    QStringList settings{u"SYSTEM.INI"_s, u"WIN.INI"_s};
    if (guest.hasIme) {
        settings << ime;
    }
    HostText text;
    text.Text(kEnd + u"Mount W "_s)
        .Path(dosboxconf::FromBuildFolder(places, u"DOSBOX/"_s + build))
        .Text(kEnd);
    if (withGame) {
        Line(text, kEnd + u"CALL VESPRA.BAT"_s);
    }
    Line(text, u"PATH %PATH%;W:\\WINDOWS;W:\\WINDOWS\\SYSTEM32"_s);
    Line(text, u"SET TEMP=W:\\WINDOWS\\TEMP"_s);
    Line(text, u"copy "_s + kWindows + u"aaa "_s + kWindows + group);
    if (guest.hasIme) {
        Line(text, u"copy "_s + kWindows + u"bbb "_s + kWindows + ime);
    }
    if (withGame) {
        Bring(text, group);
    }
    for (const QString& file : settings) {
        Bring(text, file);
    }
    Line(text, u"SHARE.EXE"_s);
    if (guest.hasIme) {
        Line(text, u"ADDKEY p500 enter"_s);
    }
    Line(text, kWindows + u"WIN"_s);
    if (withGame) {
        for (const QString& file : QStringList{group} + settings) {
            TakeBack(text, file);
        }
    }
    Line(text, u"exit"_s);
    return text;
}

void MountWin98(HostText& text, const shell::Places& places)
{
    text.Text(kEnd + u"imgmount 2 "_s)
        .Path(dosboxconf::FromBuildFolder(places, u"DOSBOX/Win98/Win98.img"_s))
        .Text(u" -t hdd -fs none -size 512,63,64,520 -ide 1m"_s + kEnd);
}

/// The guest puts the game's folder in the place of %gameroot%.
void MountGameDisk(HostText& text, const RunRequest& request, const shell::Places& places)
{
    const QString image = request.startCommands.value(0);
    const QString folder = places.GameDir(request.folder);
    const QString found = platform::FindPath(folder, image).value_or(QString());
    const QString native = found.startsWith(folder + u'/') ? found.mid(folder.size() + 1)
                                                           : platform::NativePath(image);
    text.Text(u"imgmount 3 \"%gameroot%"_s)
        .BatchPath(HostPath{u'\\' + image, u'/' + native})
        .Text(
            u"\" -t hdd -fs none -size "_s + request.startCommands.value(1) + u" -ide 1s"_s + kEnd);
}

HostText Win98Lines(bool withGame, const RunRequest& request, const shell::Places& places)
{
    HostText text;
    if (withGame) {
        MountWin98(text, places);
        MountGameDisk(text, request, places);
        return text.Text(u"boot -l c"_s);
    }
    text.Text(kEnd + u"imgmount 0 "_s)
        .Path(dosboxconf::FromBuildFolder(places, u"DOSBOX/Win98/dos6.ima"_s))
        .Text(u" -t floppy -fs none"_s + kEnd);
    MountWin98(text, places);
    if (!request.startCommands.isEmpty()) {
        MountGameDisk(text, request, places);
    }
    Line(text, u"boot -l a"_s);
    return text;
}

} // namespace

HostText GuestWindowsLines(
    const RunRequest& request, const QString& build, const shell::Places& places)
{
    const bool withGame = request.mode != RunMode::DosPrompt;
    for (const Win31& guest : kWin31) {
        if (build == QStringView(guest.build)) {
            return Win31Lines(guest, withGame, places);
        }
    }
    return Win98Lines(withGame, request, places);
}

} // namespace pelorin::running
