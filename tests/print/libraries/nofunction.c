/* SPDX-License-Identifier: MIT
 *
 * A library that is no settlement library.
 */
__attribute__((visibility("default"))) int SomethingElse(void);

int SomethingElse(void)
{
    return 0;
}
