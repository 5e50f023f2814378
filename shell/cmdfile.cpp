#include "shell/cmdfile.h"

#include "shell/format.h"
#include "shell/frames.h"
#include "shell/menus.h"
#include "shell/prompts.h"
#include "shell/sio.h"
#include "shell/units.h"
#include "tables/fileopen.h"

namespace {
constexpr version_block VB_ALTSIO2{"altsio2", " 2.0", "2024-02-05"};
constexpr version_block VB_BEGINALTSI2{"beginaltsi2", " 2.0", "2024-02-05"};
constexpr version_block VB_ENDALTSI2{"endaltsi2", " 2.0", "2024-02-05"};

}  // namespace

void altsio2(fstr_ref fname, int& answer, int intera) {
    int ierr = 0;
    for (;;) {
        // Shown whatever the output level: inside a command file this menu
        // is the only trace of where the file stands.
        submenuhead(VB_ALTSIO2);
        textline(DASHED);
        textline("ALTERNATE STANDARD INPUT");
        textline(DASHED);
        textline("START COMMAND FILE ..................5001");
        textline("EXIT COMMAND FILE AND CONTINUE.......5002");
        textline("EXIT COMMAND FILE AND QUIT ..........5003");
        textline("EXIT THIS SUBROUTINE ..................99");
        menutail();
        answer = 99;
        inintegdef(answer, "your choice", 99, ierr);
        switch (answer) {
        case 5001:
            beginaltsi2(fname, intera);
            return;
        case 5002:
            endaltsi2(fname, intera);
            return;
        case 5003:
            endaltsi2(fname, intera);
            answer = 9999;
            return;
        case 99:
            return;
        default:
            if (intera == 1) {
                errorhead(VB_ALTSIO2);
                writef(iocom.isout, "(1x,a,1x,i6)", "Unknown answer irep =", answer);
                textline("===> CANNOT PROCEED");
                errortailstop(1);
                return;
            }
        }
    }
}

void beginaltsi2(fstr_ref fname, int intera) {
    iocom.icmdunit = UNIT_COMMANDS;
    iocom.icmdindex = 0;
    if (iocom.lcmdopen) {
        warninghead(VB_BEGINALTSI2);
        textline("COMMAND FILE ALREADY OPEN");
        textline("==> NO ACTION");
        warningtail00();
        return;
    }
    if (iocom.LWITO(1)) submenuhead(VB_BEGINALTSI2);
    int ierr = 0;
    // A negative severity: a file that doesn't open never stops the run.
    opef1(fname, "alternate standard input", iocom.icmdunit, "old", "read", intera, -1, ierr);
    if (ierr != 0) {
        errorhead(VB_BEGINALTSI2);
        textline("COULD NOT OPEN COMMAND FILE", trimmed(fname.sv()));
        textline("==> NO ACTION");
        errortail00();
        return;
    }
    iocom.isin = iocom.icmdunit;
    iocom.lcmdopen = true;
    iocom.LWITO(2) = false;
    if (iocom.LWITO(1)) {
        textline("Standard input redirected from");
        textline("   Command file:", trimmed(fname.sv()));
        textline("Response to error or warning");
        textline("   remains from keyboard");
        textline("Level 2 standard output disabled");
        menutail();
    }
}

void endaltsi2(std::string_view fname, int) {
    if (!iocom.lcmdopen) {
        warninghead(VB_ENDALTSI2);
        textline("NO OPEN COMMAND FILE");
        textline("==> NO ACTION");
        warningtail00();
        return;
    }
    unit_close(iocom.icmdunit);
    iocom.isin = UNIT_KEYBOARD;
    iocom.lcmdopen = false;
    iocom.LWITO(2) = true;
    if (iocom.LWITO(1)) {
        submenuhead(VB_ENDALTSI2);
        textline("Command file", trimmed(fname), "closed");
        textline("Standard input redirected from keyboard");
        textline("Level 2 standard output enabled");
    }
}
