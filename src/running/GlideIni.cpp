#include "running/GlideIni.h"

#include "dosboxconf/Builds.h"
#include "platform/TextFile.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace pelorin::running {

namespace {

using dosboxconf::OptionGrid;

QString Resolution(const OptionGrid& grid, bool fullscreen)
{
    static constexpr QStringView kWidths[] = {u"640", u"800", u"1280"};
    if (grid.SelectedText(dosboxconf::kVersionCell) == dosboxconf::kWin98) {
        return u"640"_s;
    }
    const QString text = grid.SelectedText(
        fullscreen ? dosboxconf::kFullresolutionCell : dosboxconf::kWindowresolutionCell);
    for (const QStringView width : kWidths) {
        if (text.startsWith(width)) {
            return width.toString();
        }
    }
    return u"1024"_s;
}

} // namespace

QStringList GlideLines(const OptionGrid& grid)
{
    const bool fullscreen = grid.SelectedText(dosboxconf::kFullscreenCell) == u"true"_s;
    const bool splash = grid.SelectedText(dosboxconf::kSplashCell) == u"true"_s;
    return {
        u"Configuration File for OpenGLide"_s,
        QString(),
        u"Info:"_s,
        u"Priority goes from 0(HIGH) to 5(IDLE)"_s,
        u"Output resolution: 0=original, 1.0-16.0=scale factor, >16=fixed width (height calculated automatically)"_s,
        u"Texture Memory goes from 2 to 32"_s,
        u"Frame Buffer Memory goes from 2 to 16"_s,
        u"All other fields are boolean with 1(TRUE) and 0(FALSE)"_s,
        QString(),
        u"Version=0.09rc9"_s,
        QString(),
        u"[Options]"_s,
        u"WrapperPriority=2"_s,
        u"CreateWindow=0"_s,
        fullscreen ? u"InitFullScreen=1"_s : u"InitFullScreen=0"_s,
        u"Resolution="_s + Resolution(grid, fullscreen),
        u"EnableMipMaps=0"_s,
        u"IgnorePaletteChange=0"_s,
        u"Wrap565to5551=1"_s,
        u"EnablePrecisionFix=1"_s,
        u"EnableMultiTextureEXT=1"_s,
        u"EnablePaletteEXT=1"_s,
        u"EnableVertexArrayEXT=0"_s,
        u"TextureMemorySize=16"_s,
        u"FrameBufferMemorySize=8"_s,
        splash ? u"NoSplash=0"_s : u"NoSplash=1"_s,
        QString(), // the saving's own line end
    };
}

platform::Done WriteGlideIni(const shell::Places& places, const OptionGrid& grid)
{
    const QString build = grid.SelectedText(dosboxconf::kVersionCell);
    const QString folder = build == dosboxconf::kWin98 ? dosboxconf::kHostBuild.toString() : build;
    const QString path = places.InAppDir(u"DOSBox/"_s + folder + u"/glide.ini"_s);
    if (folder.isEmpty() || !QFileInfo(path).isFile()) {
        return platform::Success();
    }
    if (!QFileInfo::exists(path + u".bak"_s)) {
        if (platform::Done kept = platform::KeepBackup(path); !kept) {
            return kept;
        }
    }
    return platform::WriteLines(path, GlideLines(grid));
}

} // namespace pelorin::running
