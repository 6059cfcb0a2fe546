#include "dosboxconf/ConfReportCommands.h"

#include "shell/JobCommands.h"
#include "shell/Launcher.h"

#include <algorithm>

namespace pelorin::dosboxconf {

void TellReport(shell::Launcher& launcher, const ConfReport& report)
{
    const std::vector<shell::Note>& notes = launcher.screens.status.notes;
    for (const platform::Wording& words : report.notes) {
        const QString text = launcher.lang.Told(words);
        const bool told = std::any_of(
            notes.begin(), notes.end(), [&](const shell::Note& note) { return note.text == text; });
        if (!told) {
            shell::TellNote(launcher, "pelorin.dosboxconf", text);
        }
    }
}

} // namespace pelorin::dosboxconf
