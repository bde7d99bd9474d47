// As gui.h, for the tests.
#include "gui.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
