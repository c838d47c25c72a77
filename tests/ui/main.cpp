#include "TestEnvironment.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    guide::test::useTestEnvironment();
    // Deliver every touch move, even when a busy machine draws few frames.
    qputenv("QML_NO_TOUCH_COMPRESSION", "1");
    QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
