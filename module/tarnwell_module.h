/* SPDX-License-Identifier: MIT
 *
 * The whole boundary between a host application and the module: four exported functions of the shared object
 * "Module/Tarnwell.so". Plain C; compiles as C99 and as C++.
 *
 * Order:   GetModuleInfo at any time; CreateModule, any number of RefreshModule, then FreeModule with the form that
 *          CreateModule handed out.
 * Thread:  the host's user-interface thread, with a QApplication in existence. Nothing is locked.
 * Errors:  0 on success. No exception crosses the boundary: whatever goes wrong inside becomes a negative status, and
 *          an output that was not written yet stays unwritten. A null address is TARNWELL_UNEXPECTED.
 * Paths:   setup.ini and the folder "Module" are looked for beside the host's executable.
 */
#ifndef TARNWELL_MODULE_H
#define TARNWELL_MODULE_H

#include <stdint.h>

#if defined(_WIN32)
#define TARNWELL_CALL __stdcall
#if defined(TARNWELL_MODULE_BUILD)
#define TARNWELL_API __declspec(dllexport)
#else
#define TARNWELL_API
#endif
#else
#define TARNWELL_CALL
#if defined(TARNWELL_MODULE_BUILD)
#define TARNWELL_API __attribute__((visibility("default")))
#else
#define TARNWELL_API
#endif
#endif

/* Status codes. */
#define TARNWELL_OK ((int32_t)0)
#define TARNWELL_BUSY ((int32_t)0x8000000A) /* FreeModule: something of the module is still going on; see there */
#define TARNWELL_UNEXPECTED ((int32_t)0x8000FFFF) /* an unforeseen error inside the module, or a wrong argument */

/* Bytes that a buffer for GetModuleInfo must hold: 55 of text and the terminating zero. */
#define TARNWELL_MODULE_INFO_SIZE 56

#ifdef __cplusplus
extern "C" {
#endif

/* Creates a new, hidden main form on every call and writes its address, a QWidget *, to *form. The module remembers the
 * form created last. The application object owns every form: one that is not freed goes with it. The host may give the
 * form a parent widget and shows it when it likes. The six further values are accepted and ignored. */
typedef int32_t(TARNWELL_CALL *TarnwellCreateModule)(void **form, intptr_t, intptr_t, intptr_t, intptr_t, intptr_t,
                                                     intptr_t);
TARNWELL_API int32_t TARNWELL_CALL CreateModule(void **form, intptr_t value2, intptr_t value3, intptr_t value4,
                                                intptr_t value5, intptr_t value6, intptr_t value7);

/* Destroys the form that *form names. Neither *form nor the module's own memory of the last form is cleared.
 *
 * TARNWELL_OK          the form is destroyed; or the module has created no form since it was loaded, and nothing was
 *                      done, whatever the argument.
 * TARNWELL_UNEXPECTED  nothing was done: form or *form is null, or *form is no living form of this module, as one
 *                      that has been destroyed already.
 * TARNWELL_BUSY        nothing was done: a dialog, a question or a print preview of the module is open, the host is
 *                      showing something for it (a message, the look-up), or a change is under way; with several
 *                      forms, whichever of them is concerned. Try again when the modal loop has ended, from the
 *                      host's own event loop. A host that cannot wait for the clerk closes
 *                      QApplication::activeModalWidget(), which a question takes for "no", and tries again at the next
 *                      turn of the loop. Neither the form's parent nor the module may go before.
 */
typedef int32_t(TARNWELL_CALL *TarnwellFreeModule)(void **form);
TARNWELL_API int32_t TARNWELL_CALL FreeModule(void **form);

/* Does nothing. */
typedef int32_t(TARNWELL_CALL *TarnwellRefreshModule)(intptr_t, intptr_t);
TARNWELL_API int32_t TARNWELL_CALL RefreshModule(intptr_t value1, intptr_t value2);

/* Copies the module-info string, GBK bytes with a terminating zero, to the buffer whose address *buffer holds. The
 * buffer belongs to the caller and must hold TARNWELL_MODULE_INFO_SIZE bytes; its length is not checked. The text is a
 * list of comma-separated fields with a comma at its end: module name, menu category "key(caption)", function
 * "key(caption)", and a field whose meaning is the host's. */
typedef int32_t(TARNWELL_CALL *TarnwellGetModuleInfo)(intptr_t, char **buffer);
TARNWELL_API int32_t TARNWELL_CALL GetModuleInfo(intptr_t value1, char **buffer);

#ifdef __cplusplus
}
#endif

#endif
