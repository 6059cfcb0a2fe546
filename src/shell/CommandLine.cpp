#include "shell/CommandLine.h"

using namespace Qt::StringLiterals;

namespace pelorin::shell {

CommandLine ParseCommandLine(const QStringList& arguments)
{
    const QString whole = arguments.join(u' ');
    if (whole.isEmpty()) {
        return CommandLine{};
    }
    const QStringList pieces = whole.split(u"::"_s);
    if (pieces.first() == u"merge"_s) {
        return CommandLine{CommandLine::Task::Merge, pieces};
    }
    if (pieces.first() == u"split"_s) {
        return CommandLine{CommandLine::Task::Split, pieces};
    }
    return CommandLine{CommandLine::Task::EndAtOnce, {}};
}

} // namespace pelorin::shell
