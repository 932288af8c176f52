// SPDX-License-Identifier: MIT
// The program tarnwell-host.
#include "vortaq/app/startup.h"

int main(int argc, char **argv)
{
    return vortaq::runProgram(argc, argv);
}
