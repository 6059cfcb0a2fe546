#pragma once

namespace pelorin::shell {

struct Launcher;

/// Reads where the network services are and lets cmdVespra be used if there is a site. A file that
/// can't be read is told in a note, and there is none then.
void LoadEndpoints(Launcher& launcher);

/// Opens the site in the browser.
void cmdVespra_Click(Launcher& launcher);

} // namespace pelorin::shell
