// main() for the test programs that do not define one.
#include "TestEnvironment.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    guide::test::useTestEnvironment();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
