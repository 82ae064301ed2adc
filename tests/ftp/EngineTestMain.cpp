#include <QCoreApplication>
#include <gtest/gtest.h>

// The engine's sockets need an event loop, but no window.
int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    QCoreApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
