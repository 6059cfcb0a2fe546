#include <QCoreApplication>

#include <gtest/gtest.h>

// The main of every test program that needs no window.
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
