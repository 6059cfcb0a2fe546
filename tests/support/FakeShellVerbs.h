#pragma once

#include "platform/ShellVerbs.h"

#include <QStringList>

#include <optional>

namespace pelorin::test {

/// Opens nothing; records what was asked.
class FakeShellVerbs : public platform::ShellVerbs {
public:
    QStringList opened; // native paths
    QStringList openedUrls;
    std::optional<platform::Error> refuse; // what every call answers; it is recorded all the same

    platform::Done Open(const QString& path) override
    {
        opened << path;
        return Answer();
    }
    platform::Done OpenUrl(const QString& url) override
    {
        openedUrls << url;
        return Answer();
    }

private:
    platform::Done Answer() const { return refuse ? platform::Done(*refuse) : platform::Success(); }
};

} // namespace pelorin::test
