#pragma once

#include <QString>

namespace pelorin::test {

/// Installs the build under test as a user would: a whole AppDir with the sample games, Pelorin
/// itself at its top. The folder may be there already. False, with the test failed, when that
/// didn't work.
bool InstallPelorin(const QString& appDir);

} // namespace pelorin::test
