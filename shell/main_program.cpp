#include "shell/main_program.h"

#include <cstdio>

#include "borehole/logplot2.h"
#include "borehole/statplot.h"
#include "borehole/wallplot2.h"
#include "borehole/wellplot.h"
#include "math/angles.h"
#include "plot/attributes.h"
#include "plot/pages.h"
#include "projection/projection.h"
#include "shell/cmdfile.h"
#include "shell/console.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/menus.h"
#include "shell/prompts.h"
#include "shell/runinfo.h"
#include "shell/sio.h"
#include "shell/stop.h"
#include "shell/units.h"
#include "well/welldat.h"
#include "well/wellpara.h"

namespace {

const fstr<20> PROGRAM_NAME = "tarnolix            ";
const fstr<4> PROGRAM_VERSION = "12.3";
const fstr<10> PROGRAM_DATE = "2024-09-14";


void print_main_menu() {
    textline(DASHED);
    textline("GENERAL PARAMETERS");
    textline(DASHED);
    textline("input/output status ................... 1");
    textline("Run info set up ........................2");
    textline(DASHED);
    textline("PLOT PARAMETERS");
    textline(DASHED);
    textline("open plot file ........................10");
    textline("set plot L/P,scaling,attributes,axes ..13");
    textline("set projection ........................14");
    textline("close plot file .......................20");
    {
        int ilist = 0;
        wellstatus(ilist);
    }
    textline(DASHED);
    textline("WELL DATA COMMANDS");
    textline(DASHED);
    textline("Read data from file ..................100");
    textline("Set Borehole Parameters ..............110");
    textline("Analysis & depth plots ...............120");
    textline("Statistics plots .....................130");
    textline("Perspective plots ....................140");
    textline(DASHED);
    textline("GENERAL COMMANDS");
    textline(DASHED);
    textline("Use command file.....................5000");
    textline("Output level control ................5100");
    textline("QUIT..................................999");
    textline("FAST QUIT............................9999");
    menutail();
}

}  // namespace

// New subsystems put their reset in its place below, as the main routine
// has always called them; the tests and benchmarks follow by themselves.
void tarnolix_startup(bool banner) {
    initsio2(5);
    if (banner) {
        smaininfo2(PROGRAM_NAME, PROGRAM_VERSION, PROGRAM_DATE);
        progheadzk2();
    }
    // Plots and tables leave out user and host unless the user asks.
    int work = 2;
    swpinfo(work, 1);
    trigoset();
    sprojxyz(work, 5);
    splotattributes(5);
    swellplot(5);
    swellhst(5);
    swellparam(5);
    wallplot2(5);
    logplot2(5);
    statplot(5);
    wdtype(work, 5);
    readwell2(5);
}

void tarnolix_main() {
    int ierr = 0;
    int command = 0;
    int work = 0;
    // Carried from one use of command 5000 to the next; blank at first.
    fstr<20> cmdfile;
    // The plot file's default name, kept and updated by plinit.
    fstr<40> plotname;

    tarnolix_startup(true);
    plotname = "well.ps";

    for (;;) {
        mainmenuhead(PROGRAM_NAME, PROGRAM_VERSION, PROGRAM_DATE);
        if (iocom.LWITO(2)) print_main_menu();
        ininteg1(command, "your choice", ierr);

        // Stage A: settings that touch nothing else.
        switch (command) {
        case 1: writesio(iocom.isout); break;
        case 2: swpinfo(work, 2); break;
        case 13: swellplot(2); break;
        case 14: sprojxyz(work, 2); break;
        case 5000: altsio2(cmdfile, command, 0); break;
        case 5100: moutputn(0); break;
        default: break;
        }

        // Stage B: the plot file. It runs before stage C, so QUIT closes an
        // open plot file before it asks for confirmation.
        if (command == 20) plend();
        if ((command == 999 || command == 9999) && iocom.lplotopen) plend();
        if (command == 10) plinit(plotname, 2);

        // Stage C: the well data commands and the end of the run.
        if (command == 100) readwell2(2);
        if (command == 110) swellparam(0);
        if (command == 120) logplot2(0);
        if (command == 130) statplot(0);
        if (command == 140) wallplot2(0);
        if (command == 9999) break;
        if (command == 999) {
            inintegdef(command, "999 to confirm quit", command, ierr);
            if (command == 999) break;
        }
    }
    progtail2();
}

int run_engine() {
    try {
        tarnolix_main();
    } catch (const program_stop& s) {
        units_reset();
        return s.status;
    } catch (const console_closed& c) {
        std::fprintf(stderr, "tarnolix: the console gave no more input (%s); run ended\n",
                     c.why.c_str());
        units_reset();
        return 2;
    }
    units_reset();
    return 0;
}
