// SPDX-License-Identifier: MIT
// Symbol visibility of the automation runtime, the one library that host and module share.
#pragma once

#include <QtCore/qglobal.h>

#if defined(TARNWELL_AUTOMATION_BUILD)
#define AUTOMATION_EXPORT Q_DECL_EXPORT
#else
#define AUTOMATION_EXPORT Q_DECL_IMPORT
#endif
