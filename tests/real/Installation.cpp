#include "real/Installation.h"

#include "support/RunProgram.h"

#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace pelorin::test {

bool InstallPelorin(const QString& appDir)
{
    constexpr int kPatienceMs = 60'000;
    const auto done = RunTool(
        u"cmake"_s,
        {u"--install"_s, QStringLiteral(PELORIN_BUILD_DIR), u"--prefix"_s, appDir},
        QProcessEnvironment::systemEnvironment(),
        kPatienceMs);
    const bool isThere = QFileInfo(appDir + u"/Pelorin"_s).isExecutable();
    EXPECT_TRUE(done.exitCode == 0 && isThere)
        << done.output.toStdString() << done.errors.toStdString();
    return done.exitCode == 0 && isThere;
}

} // namespace pelorin::test
