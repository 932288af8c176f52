/* SPDX-License-Identifier: MIT
 *
 * A settlement library that pays as many yuan as id_no says. For negative diag_no it refuses and tells what it was
 * asked; the text is in the library and goes with it.
 */
#include "samples/feeinterface/feeinterface.h"

#include <stdio.h>
#include <stdlib.h>

__attribute__((visibility("default"))) uint8_t GetFreeFees(const char *org_code, const char *coop_med_code,
                                                           const char *id_no, const char *diag_no, const char **error,
                                                           double *amount, const uint16_t **information, int kind)
{
    static char asked[200];
    static const uint16_t nothing[1] = {0};
    *information = nothing;
    if (diag_no[0] == '-') {
        snprintf(asked, sizeof asked, "拒付 %s|%s|%s|%s|%d", org_code, coop_med_code, id_no, diag_no, kind);
        *error = asked;
        return 0;
    }
    *amount = strtod(id_no, NULL);
    return 2; /* any number but 0 is success */
}
