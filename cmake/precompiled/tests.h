// SPDX-License-Identifier: MIT
// What most tests read first. Every test still includes what it uses.
#pragma once

#include "cmake/precompiled/widgets.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
