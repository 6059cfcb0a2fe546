#pragma once

#include "platform/Outcome.h"
#include "platform/Processes.h"

#include <QString>

namespace pelorin::shell {
struct Launcher;
}

// The file layer's operations that take their time: they show the busy notice meanwhile and let
// window events run. Paths as FileOperations.h has them. Inside a job they are part of it.

namespace pelorin::archives {

platform::Done MoveFolder(
    shell::Launcher& launcher, const QString& source, const QString& destination);
platform::Done MoveFileWithTool(
    shell::Launcher& launcher, const QString& source, const QString& destination);
platform::Done CopyFileWithTool(
    shell::Launcher& launcher, const QString& source, const QString& destination);

/// Runs an outside program and waits with window events running; both side panels are disabled
/// meanwhile and put back as they were found. What it left as its status is not looked at. Errors
/// as Processes::RunAndWait.
platform::Done RunAndWait(shell::Launcher& launcher, const platform::ProcessRequest& request);

/// The start-up check: reports tools that are missing in frmOutput. Copying and moving are built
/// in here, so none is.
void CheckFileTools(shell::Launcher& launcher);

/// cmdCompact: file systems here have no compression that a program could switch on for a folder,
/// and the box says so.
void cmdCompact_Click(shell::Launcher& launcher);

} // namespace pelorin::archives
