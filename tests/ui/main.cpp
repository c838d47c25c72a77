#include "TestEnvironment.h"

#include <QGuiApplication>
#include <QTemporaryFile>

#include <gtest/gtest.h>

namespace {

// An ordinary screen, and one with two pixels per point.
constexpr QByteArrayView kScreens = R"({"screens": [
    {"name": "one", "x": 0, "y": 0, "width": 800, "height": 800, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
    {"name": "two", "x": 800, "y": 0, "width": 800, "height": 800, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 2}
]})";

} // namespace

int main(int argc, char** argv) {
    QTemporaryFile screens;
    if (screens.open() && screens.write(kScreens.toByteArray()) == kScreens.size() && screens.flush()) {
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toLocal8Bit());
    }
    guide::test::useTestEnvironment();
    // Deliver every touch move, even when a busy machine draws few frames.
    qputenv("QML_NO_TOUCH_COMPRESSION", "1");
    QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
