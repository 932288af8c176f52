// SPDX-License-Identifier: MIT
// What tests without a window read first. Every test still includes what it uses.
#pragma once

#include "cmake/precompiled/standard.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
