#pragma once

#include "platform/Processes.h"
#include "shell/LangTable.h"

#include <QString>

namespace pelorin::running {

/// A program that ends within this time after its start did not run a game.
inline constexpr qint64 kTooShortMs = 3000;

/// All that a start was made of, for the user who wants to know why it failed: command, folder,
/// environment, the text of dosbox.conf, and what the program printed.
QString LaunchStory(
    const shell::LangTable& lang,
    const platform::ProcessRequest& request,
    const QString& confText,
    const QString& output);

} // namespace pelorin::running
