#pragma once

#include "shell/LangTable.h"

#include <QString>

namespace pelorin::shell {

/// Two digits each for the four numbers of the version: what BuildStamp starts with.
QString OwnBuildStamp();

/// "[Pelorin Ver.16.10.01.03] by mirel55": the window's caption while no game is shown.
/// `buildStamp` has eight digits.
QString BuildWindowTitle(const QString& buildStamp, const LangTable& lang);

} // namespace pelorin::shell
