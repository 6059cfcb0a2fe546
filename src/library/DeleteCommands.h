#pragma once

namespace pelorin::shell {
struct Launcher;
}

namespace pelorin::library {

/// Asks once for all selected games and moves those to the recycle bin. A game that the bin refuses,
/// or whose emulator is up, stays, and the report says so. The selection goes on to the next game.
void DeleteSelectedGames(shell::Launcher& launcher);

} // namespace pelorin::library
