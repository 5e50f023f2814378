#include "shell/sio.h"

#include "shell/format.h"
#include "shell/frames.h"
#include "shell/intera.h"
#include "shell/menus.h"
#include "shell/prompts.h"

iocom_t iocom{5, 6, 5, 6, 0, 0, false, false, true, {{true, true, false}}};

namespace {
constexpr version_block VB_INITSIO2{"initsio2", " 2.0", "2024-02-05"};
constexpr version_block VB_WRITESIO{"writesio", " 2.0", "2024-02-05"};
constexpr version_block VB_MOUTPUTN{"moutputn", " 2.0", "2024-02-05"};
constexpr version_block VB_MOUTPUT1{"moutput1", " 2.0", "2024-02-05"};
}  // namespace

void initsio2(int intera) {
    iocom.isin = 5;
    iocom.isout = 6;
    iocom.iein = 5;
    iocom.ieout = 6;
    iocom.lplotopen = false;
    iocom.lcmdopen = false;
    iocom.LWITO(1) = true;
    iocom.LWITO(2) = true;
    iocom.LWITO(3) = false;
    iocom.lpause = true;
    submenuhead(VB_INITSIO2);
    textline("INITIALIZING INPUT/OUTPUT");
    if (intera == 0) writesio(iocom.isout);
}

void writesio(int unit) {
    submenuhead(VB_WRITESIO);
    writef(unit, "(5(1x,a))", "INPUT/OUTPUT SET UP:");
    writef(unit, "(1x,a,1x,i2)", "standard  input unit        =", iocom.isin);
    writef(unit, "(1x,a,1x,i2)", "standard output unit        =", iocom.isout);
    writef(unit, "(1x,a,1x,i2)", "error     input unit        =", iocom.iein);
    writef(unit, "(1x,a,1x,i2)", "error    output unit        =", iocom.ieout);
    writef(unit, "(1x,a,1x,l2)", "minimum output enabled      :", iocom.LWITO(1));
    writef(unit, "(1x,a,1x,l2)", "more    output enabled      :", iocom.LWITO(2));
    writef(unit, "(1x,a,1x,l2)", "maximum output enabled      :", iocom.LWITO(3));
    writef(unit, "(1x,a,1x,l2)", "command file open status    :", iocom.lcmdopen);
    if (iocom.lcmdopen) {
        writef(unit, "(1x,a,1x,i2)", "command file input unit     =", iocom.icmdunit);
        writef(unit, "(1x,a,1x,i2)", "command file input index    =", iocom.icmdindex);
    }
    writef(unit, "(1x,a,1x,l2)", "plot    file open status    :", iocom.lplotopen);
    writef(unit, "(1x,a,1x,l2)", "pause after warning or error:", iocom.lpause);
    menutail();
}

void moutputn(int) {
    for (;;) {
        submenuhead(VB_MOUTPUTN);
        textline(DASHED);
        textline("STANDARD OUTPUT CONTROLS");
        textline(DASHED);
        writef(iocom.isout, "(1x,'|',   a5   ,'|',   a7   ,'|',11('.'),a7)", "level", "enabled",
               "command");
        for (int level = 1; level <= 3; ++level)
            writef(iocom.isout, "(1x,'|',2x,i1,2x,'|',3x,l1,3x,'|',16('.'),i2)", level,
                   iocom.LWITO(level), level);
        textline(DASHED);
        textline("EXIT THIS SUBROUTINE ..................99");
        const int choice = menuchoice();
        if (choice >= 1 && choice <= 3) {
            bool enabled = iocom.LWITO(choice);
            moutput1(enabled, choice, 2);
        } else if (choice == 99) {
            return;
        }
    }
}

void moutput1(bool& enabled, int level, int intera) {
    int ierr = 0;
    if (level < 1 || level > 3) {
        errorhead(VB_MOUTPUT1);
        writef(iocom.isout, "(1x,a,1x,i4)", "output level =", level);
        textline("level min    = 1");
        writef(iocom.isout, "(1x,a,1x,i4)", "level max    = ", 3);
        textline("OUT OF RANGE");
        textline("===> EXITING WITHOUT ACTION");
        errortail00();
        return;
    }
    if (mode_from_store(intera)) enabled = iocom.LWITO(level);
    if (mode_talks(intera)) {
        for (;;) {
            submenuhead(VB_MOUTPUT1);
            textline(DASHED);
            textline("STANDARD OUTPUT CONTROLS");
            textline(DASHED);
            writef(iocom.isout, "(1x,a,1x,i4)", "Output level =", level);
            writef(iocom.isout, "(1x,a,1x,l1)", "Enabled      =", enabled);
            textline(DASHED);
            textline("Modify set up .........................10");
            textline("SET & EXIT ............................99");
            const int choice = menuchoice();
            if (choice == 10) {
                std::string q = "enable level " + std::to_string(level) + " output";
                inlogicdef(enabled, q, enabled, ierr);
            } else if (choice == 99) {
                break;
            }
        }
    }
    iocom.LWITO(level) = enabled;
}
