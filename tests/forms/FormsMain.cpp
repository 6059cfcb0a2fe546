#include "forms/FocusRing.h"
#include "forms/ReadablePalette.h"

#include <QApplication>

#include <gtest/gtest.h>

// The main of tests that need widgets: offscreen, also where ctest only asks for their names.
int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    const pelorin::forms::ReadablePalette palette(application);
    const pelorin::forms::FocusRing ring(application);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
