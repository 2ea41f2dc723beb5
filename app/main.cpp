// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/program.h"

int main(int argc, char** argv)
{
    return corvala::app::runProgram(argc, argv);
}
