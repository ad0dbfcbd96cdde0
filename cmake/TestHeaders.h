// What every test reads, compiled once.
#pragma once

#include "cmake/StandardHeaders.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
