#pragma once

#include "support/TestFolder.h"
#include "support/XSession.h"

#include <QProcessEnvironment>

#include <gtest/gtest.h>

namespace pelorin::test {

/// The installation as the build stages it, in a folder that is hard on programs.
inline void Stage(const TestFolder& folder, const XSession& session)
{
    constexpr int kStageMs = 60'000;
    const ToolResult staged = RunTool(
        QStringLiteral("cmake"),
        {QStringLiteral("--install"),
         QStringLiteral(PELORIN_BUILD_DIR),
         QStringLiteral("--prefix"),
         folder.Path()},
        session.Environment(),
        kStageMs);
    ASSERT_EQ(staged.exitCode, 0) << staged.errors.toStdString();
}

/// What the system gives a program on a desktop and nothing that we made up for it.
inline QProcessEnvironment PlainEnvironment(const XSession& session)
{
    QProcessEnvironment plain;
    for (const QString& name : session.Environment().keys()) {
        if (!name.startsWith(QStringLiteral("QT_"))) {
            plain.insert(name, session.Environment().value(name));
        }
    }
    return plain;
}

} // namespace pelorin::test
