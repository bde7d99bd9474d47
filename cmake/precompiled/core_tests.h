// As core.h, for the tests.
#include "core.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
