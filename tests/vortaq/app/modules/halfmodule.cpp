// SPDX-License-Identifier: MIT
// A library that is half a module: it can describe itself and nothing else.
#include "module/tarnwell_module.h"

int32_t GetModuleInfo(intptr_t, char **buffer)
{
    **buffer = '\0';
    return TARNWELL_OK;
}
