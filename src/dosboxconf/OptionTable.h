#pragma once

#include "dosboxconf/OptionGrid.h"
#include "platform/Outcome.h"

#include <QString>

// option.dat, the vocabulary of all options. Text in code page 949, read by fields, not by lines:
// a field ends at a comma or at the end of its line, leading blanks are dropped, and it may stand
// in double quotes (then a comma is part of it). Fields:
//
//   (empty)                  opens the next group, with the caption "temp"
//   @T<caption>              the caption of the group, and its items count from 0
//   <title>|<key>;<values>;<kind>   the next item; values are parted by "|"
//   end                      the end; what follows is not read
//
// A backtick in a caption or a value stands for a comma.

namespace pelorin::dosboxconf {

/// The texts of the table; every selection is 0. Error NotFound, Unreadable or Malformed, each with
/// the path, the line (from 1) and the reason: no "end", a row or caption before the first group, a
/// row with too few pieces, bytes that are no text, a table past its bounds, or a key that the
/// upgrade of old files needs to be the only one of its name and that stands twice.
platform::Outcome<OptionGrid> ReadOptionTable(const QString& path);

/// The same for a text in memory; `name` stands in the place of the path in errors.
platform::Outcome<OptionGrid> ParseOptionTable(const QString& text, const QString& name);

} // namespace pelorin::dosboxconf
