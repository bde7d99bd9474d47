// As widgets.h, for the tests.
#include "widgets.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
