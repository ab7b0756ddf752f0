#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    // Headless unless told otherwise; test discovery at build time has no display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
