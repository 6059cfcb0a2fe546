#pragma once

#include <QString>

namespace pelorin::shell {

struct Launcher;

/// Before a text is saved in code page 949: asks, naming the characters `lost`, whether "?" may
/// stand for each of them. True without a question when nothing is lost.
bool MayLose(Launcher& launcher, const QString& lost);

} // namespace pelorin::shell
