#pragma once

#include "platform/Outcome.h"
#include "shell/Places.h"
#include "shell/RecentList.h"

#include <QString>
#include <QStringList>

// recent.sav: a line for each game, newest first: folder, character 1, title.

namespace pelorin::shell {

/// A line that is no pair, or whose folder is no plain name, leaves a hole at its place. Lines
/// behind the 15th are ignored.
RecentList ParseRecent(const QStringList& lines);

/// Up to the first hole. A folder that code page 949 can't keep is left out, since it would name
/// another folder; in a title "?" stands for what is lost.
QStringList RecentLines(const RecentList& recent);

/// Puts a started game at the head. A game that the list holds already moves up with the title it
/// has there; otherwise the first free place, or the last entry, makes room. An empty folder changes nothing.
void AddRecent(RecentList& recent, const QString& folder, const QString& title);

/// Reads the recent file below AppDir; a missing one is an empty list.
platform::Outcome<RecentList> ReadRecentFile(const Places& places);
/// Makes a missing one, with one empty line.
platform::Done MakeRecentFile(const Places& places);
platform::Done WriteRecentFile(const Places& places, const RecentList& recent);

} // namespace pelorin::shell
