#include <QApplication>

#include <gtest/gtest.h>

// The main of tests that need widgets; ctest runs it offscreen.
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
