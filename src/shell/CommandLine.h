#pragma once

#include <QStringList>

namespace pelorin::shell {

/// What the process is to do, by its command line.
struct CommandLine {
    enum class Task {
        OpenWindow, // nothing was given
        Merge,      // join volumes; no window
        Split,      // cut a file into volumes; no window
        EndAtOnce,  // anything else: no window, no word
    };
    Task task = Task::OpenWindow;
    QStringList pieces; // of Merge and Split, the word itself among them
};

/// `arguments` without the program's name. They are joined by one blank, since a path with blanks
/// may come in several, and split at "::". The words are compared exactly, in lower case.
CommandLine ParseCommandLine(const QStringList& arguments);

} // namespace pelorin::shell
