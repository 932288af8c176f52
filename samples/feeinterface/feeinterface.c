/* SPDX-License-Identifier: MIT
 *
 * A settlement library to start from: pays 100.125 yuan for the first stay of every member and refuses the others.
 * Build, in the folder above samples: cc -shared -fPIC -I. -o Module/FeeInterFace.so
 * samples/feeinterface/feeinterface.c
 */
#include "samples/feeinterface/feeinterface.h"

#include <string.h>

#if defined(_WIN32)
#define EXPORTED __declspec(dllexport)
#else
#define EXPORTED __attribute__((visibility("default")))
#endif

EXPORTED uint8_t TARNWELL_FEE_CALL GetFreeFees(const char *org_code, const char *coop_med_code, const char *id_no,
                                               const char *diag_no, const char **error, double *amount,
                                               const uint16_t **information, int kind);

uint8_t TARNWELL_FEE_CALL GetFreeFees(const char *org_code, const char *coop_med_code, const char *id_no,
                                      const char *diag_no, const char **error, double *amount,
                                      const uint16_t **information, int kind)
{
    static const uint16_t nothing[1] = {0};
    (void)org_code;
    (void)coop_med_code;
    (void)id_no;
    (void)kind;
    *information = nothing;
    if (strcmp(diag_no, "1") != 0) {
        *error = "示例接口只结算第一次住院。";
        return 0;
    }
    *amount = 100.125;
    return 1;
}
