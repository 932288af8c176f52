// SPDX-License-Identifier: MIT
// A precompiled header is made by compiling something.
