/* SPDX-License-Identifier: MIT
 *
 * The smallest part of a host, in plain C: loads the shared object, checks what it announces, unloads it. Forms need an
 * application object, which is tst_sharedobject's part.
 */
#include "module/tarnwell_module.h"

#include <dlfcn.h>
#include <stdio.h>
#include <string.h>

int main(int argc, char **argv)
{
    void *library = NULL;
    TarnwellGetModuleInfo get_module_info = NULL;
    TarnwellRefreshModule refresh_module = NULL;
    TarnwellFreeModule free_module = NULL;
    char text[TARNWELL_MODULE_INFO_SIZE];
    char *buffer = text;
    void *form = NULL;

    if (argc != 2)
        return 2;
    library = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
    if (library == NULL) {
        fprintf(stderr, "%s\n", dlerror());
        return 1;
    }
    *(void **)(&get_module_info) = dlsym(library, "GetModuleInfo");
    *(void **)(&refresh_module) = dlsym(library, "RefreshModule");
    *(void **)(&free_module) = dlsym(library, "FreeModule");
    if (get_module_info == NULL || refresh_module == NULL || free_module == NULL)
        return 1;
    if (get_module_info(0, &buffer) != TARNWELL_OK || strlen(text) != 55 || strncmp(text, "Tarnwell,Logic(", 15) != 0)
        return 1;
    if (free_module(&form) != TARNWELL_OK || refresh_module(0, 0) != TARNWELL_OK)
        return 1;
    puts("1 passed, 0 failed");
    return dlclose(library) == 0 ? 0 : 1;
}
