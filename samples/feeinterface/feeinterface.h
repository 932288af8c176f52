/* SPDX-License-Identifier: MIT
 *
 * The contract of a settlement library. A hospital whose settlement engine is a library of its own puts a shared object
 * "Module/FeeInterFace.so" (on Windows "Module\FeeInterFace.dll") beside the program; it is asked when the database has
 * no procedure "Pro_Zy_FeeInterFace". It is loaded for one call at a time and unloaded afterwards.
 */
#ifndef TARNWELL_FEEINTERFACE_H
#define TARNWELL_FEEINTERFACE_H

#include <stdint.h>

#if defined(_WIN32)
#define TARNWELL_FEE_CALL __stdcall
#else
#define TARNWELL_FEE_CALL
#endif

/* The one function, exported as "GetFreeFees".
 *
 * org_code, coop_med_code, id_no, diag_no: the stay, zero-terminated UTF-8 text.
 * error:       on refusal the reason, zero-terminated UTF-8 text for the clerk.
 * amount:      on success the amount that the scheme pays, in yuan; rounded to cents by the caller, halves to even.
 * information: a zero-terminated UTF-16 text; the program does not read it.
 * kind:        always 1.
 * Result: not 0 on success, 0 on refusal. Texts belong to the library and must live until it is unloaded. */
typedef uint8_t(TARNWELL_FEE_CALL *TarnwellGetFreeFees)(const char *org_code, const char *coop_med_code,
                                                        const char *id_no, const char *diag_no, const char **error,
                                                        double *amount, const uint16_t **information, int kind);

#endif
