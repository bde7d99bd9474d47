#include "support/Environment.h"

#include <gmock/gmock.h>

int main(int argc, char** argv) {
    zel::setTestEnvironment();
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
