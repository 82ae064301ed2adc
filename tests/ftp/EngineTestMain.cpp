#include <QCoreApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// The engine's sockets need an event loop, but no window.
int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    QCoreApplication app(argc, argv);
    // Downloads go to TEMP: a folder of this process's own, so that test programs running side
    // by side never write the same file.
    QTemporaryDir temp;
    qputenv("TEMP", temp.path().toUtf8());
    return RUN_ALL_TESTS();
}
