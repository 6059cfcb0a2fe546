#include "shell/CommandLine.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using pelorin::shell::CommandLine;
using pelorin::shell::ParseCommandLine;

TEST(CommandLine, SortsEveryFormOfIt)
{
    struct Row {
        QStringList arguments;
        CommandLine::Task task = CommandLine::Task::OpenWindow;
        qsizetype pieces = 0;
    };
    const Row rows[] = {
        {{}, CommandLine::Task::OpenWindow, 0},
        {{u""_s}, CommandLine::Task::OpenWindow, 0},
        {{u"merge"_s}, CommandLine::Task::Merge, 1},
        {{u"split"_s}, CommandLine::Task::Split, 1},
        {{u"split::/games/a"_s, u"b::10"_s}, CommandLine::Task::Split, 3},
        {{u"Merge::x"_s}, CommandLine::Task::EndAtOnce, 0},
        {{u"merge "_s}, CommandLine::Task::EndAtOnce, 0},
        {{u"--version"_s}, CommandLine::Task::EndAtOnce, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.arguments.join(u'|').toStdString());
        const CommandLine parsed = ParseCommandLine(row.arguments);
        EXPECT_EQ(parsed.task, row.task);
        EXPECT_EQ(parsed.pieces.size(), row.pieces);
    }
    EXPECT_EQ(ParseCommandLine(rows[4].arguments).pieces.at(1), u"/games/a b"_s);
}
