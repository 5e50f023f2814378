// Console channels: the units every dialogue goes through, and the output
// levels.
#pragma once

#include "shell/fixed.h"

struct iocom_t {
    int isin;       // standard input unit: every prompt reads here
    int isout;      // standard output unit: menus, prompts, results
    int iein;       // error input unit: the pause after a frame; never redirected
    int ieout;      // error output unit: frames of warnings and errors
    int icmdunit;   // unit of the command file
    int icmdindex;  // command file input index (shown, not used)
    bool lplotopen; // a plot file is open
    bool lcmdopen;  // a command file is open
    bool lpause;    // pause after a warning or error
    farr<bool, 3> LWITO;  // output levels 1 to 3
};
extern iocom_t iocom;

void initsio2(int intera);
void writesio(int unit);
void moutputn(int intera);
void moutput1(bool& enabled, int level, int intera);
