#include "shell/main_program.h"

#include <cstdio>

#include "borehole/logplot2.h"
#include "borehole/wellplot.h"
#include "math/angles.h"
#include "plot/attributes.h"
#include "plot/pages.h"
#include "shell/cmdfile.h"
#include "shell/console.h"
#include "shell/format.h"
#include "shell/frames.h"
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

void menu_line(std::string_view l) { writef(iocom.isout, "(3(1x,a))", l); }

void print_main_menu() {
    menu_line(DASHED);
    menu_line("GENERAL PARAMETERS");
    menu_line(DASHED);
    menu_line("input/output status ................... 1");
    menu_line("Run info set up ........................2");
    menu_line(DASHED);
    menu_line("PLOT PARAMETERS");
    menu_line(DASHED);
    menu_line("open plot file ........................10");
    menu_line("set plot L/P,scaling,attributes,axes ..13");
    menu_line("set projection ........................14");
    menu_line("close plot file .......................20");
    {
        welldat_t& w = welldat;
        int ilist = 0;
        dat1astatus1("WELL", w.TYPWDNAM(w.itypwd).sv(), w.IDTYPWD(w.itypwd), w.finwd.sv(),
                     w.titlewd.sv(), w.ndatwd, MAXDATWD, w.NAMVAR, w.nvarwd, MAXVARWD,
                     w.JCOL.data(), w.NAMCOL, w.ncolwd, MAXCOLWD, ilist, 1);
    }
    menu_line(DASHED);
    menu_line("WELL DATA COMMANDS");
    menu_line(DASHED);
    menu_line("Read data from file ..................100");
    menu_line("Set Borehole Parameters ..............110");
    menu_line("Analysis & depth plots ...............120");
    menu_line("Statistics plots .....................130");
    menu_line("Perspective plots ....................140");
    menu_line(DASHED);
    menu_line("GENERAL COMMANDS");
    menu_line(DASHED);
    menu_line("Use command file.....................5000");
    menu_line("Output level control ................5100");
    menu_line("QUIT..................................999");
    menu_line("FAST QUIT............................9999");
    menutail();
}

}  // namespace

void tarnolix_main() {
    int ierr = 0;
    int command = 0;
    int work = 0;
    // Carried from one use of command 5000 to the next; blank at first.
    fstr<20> cmdfile;
    // The plot file's default name, kept and updated by plinit.
    fstr<40> plotname;

    // Start-up: every subsystem to its defaults, in this order.
    initsio2(5);
    smaininfo2(PROGRAM_NAME, PROGRAM_VERSION, PROGRAM_DATE);
    progheadzk2();
    // Plots and tables leave out user and host unless the user asks.
    work = 2;
    swpinfo(work, 1);
    trigoset();
    plotname = "well.ps";
    splotattributes(5);
    swellplot(5);
    swellparam(5);
    logplot2(5);
    wdtype(work, 5);
    readwell2(5);

    for (;;) {
        mainmenuhead(PROGRAM_NAME, PROGRAM_VERSION, PROGRAM_DATE);
        if (iocom.LWITO(2)) print_main_menu();
        ininteg1(command, "your choice", ierr);

        // Stage A: settings that touch nothing else.
        switch (command) {
        case 1: writesio(iocom.isout); break;
        case 2: swpinfo(work, 2); break;
        case 13: swellplot(2); break;
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
