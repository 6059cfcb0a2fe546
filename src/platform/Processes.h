#pragma once

#include "platform/Outcome.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>

namespace pelorin::platform {

enum class ShowState { Normal, Minimized, Hidden };

/// A program to start. No shell reads any of it: an argument is one argument.
struct ProcessRequest {
    QString program; // native absolute path
    QStringList arguments;
    QString workingFolder;              // native absolute path, must exist
    QMap<QString, QString> environment; // added to ours
    ShowState show =
        ShowState::Normal; // what the window should do; kept where the desktop has no such thing
};

struct ProcessEnd {
    qint64 runMs = 0;   // from the start to the end
    QByteArray output;  // the last 64 KiB of what it printed on both streams
    int exitStatus = 0; // as a shell would tell it: 128 + signal when one ended it. Many programs
                        // end with 0 after a failure, some with another number after a success
};

/// Starts programs.
class Processes {
public:
    virtual ~Processes() = default;

    /// Starts it on its own: it outlives us. `ended` is called once, from the event loop, when it
    /// is gone (never, if we end first). Error NotFound or Refused when it could not be started;
    /// `ended` is not called then.
    virtual Done StartDetached(
        const ProcessRequest& request, std::function<void(const ProcessEnd&)> ended) = 0;

    /// Starts it and comes back the moment it has ended; window events run meanwhile. Whether it
    /// succeeded is not looked at. Error NotFound or Refused when it could not be started,
    /// Abandoned when the program began to end during the wait (the child goes on).
    virtual Outcome<ProcessEnd> RunAndWait(const ProcessRequest& request) = 0;
};

} // namespace pelorin::platform
