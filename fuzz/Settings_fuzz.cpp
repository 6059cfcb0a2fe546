#include "fuzz/Harness.h"
#include "shell/SettingsFile.h"

using namespace Qt::StringLiterals;
using namespace pelorin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const fuzz::FuzzInstallation installation;
    const shell::Places& places = installation.Places();
    fuzz::FuzzInstallation::Remove(installation.InApp(u"Launcher.cfg.bak"_s));
    fuzz::FuzzInstallation::Remove(installation.InApp(u"recent.sav"_s));
    fuzz::FuzzInstallation::Write(installation.InApp(u"Launcher.cfg"_s), fuzz::BytesOf(data, size));

    auto loaded = shell::LoadSettingsFiles(places);
    fuzz::Require(loaded.Ok(), "damaged settings are replaced");
    const shell::LoadedSettings& first = loaded.Value();
    fuzz::Require(!first.cfg.gamesRoot.isEmpty() && !first.cfg.exportRoot.isEmpty(), "roots stand");
    if (!shell::SaveSettingsFiles(places, first.cfg, first.recent)) {
        return 0; // a root that code page 949 can't keep
    }
    const auto again = shell::LoadSettingsFiles(places);
    fuzz::Require(again.Ok(), "what was saved can be read");
    fuzz::Require(!again.Value().replacementReason, "what was saved is whole");
    fuzz::Require(
        fuzz::AsWritten(shell::LauncherCfgLines(again.Value().cfg)) ==
            fuzz::AsWritten(shell::LauncherCfgLines(first.cfg)),
        "what was saved reads the same");
    return 0;
}
