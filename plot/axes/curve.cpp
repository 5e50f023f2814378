#include "plot/axes/curve.h"

#include "shell/format.h"
#include "shell/frames.h"
#include "shell/intera.h"
#include "shell/menus.h"
#include "shell/prompts.h"
#include "shell/sio.h"

cc2dbuff_t cc2dbuff;
ptblock_t ptblock;

namespace {

constexpr version_block VB_SCPTNP{"scptnp     ", " 1.2", "2015-11-16"};


}  // namespace

void scptnp(int& npcurve, const int& inter) {
    const version_block& vb = VB_SCPTNP;
    if (mode_from_store(inter)) npcurve = ptblock.npcurve;
    if (mode_resets(inter)) {
        npcurve = 11;
        submenuhead(vb);
        intline("INITIALIZING NUMBER OF POINTS TO:", npcurve);
    }
    if (mode_talks(inter)) {
        for (;;) {
            submenuhead(vb);
            if (iocom.LWITO(2)) {
                textline(DASHED);
                textline("RUNNING POINT PARAMETERS:                  ");
                textline(DASHED);
                intline("max nb of points ................", NCURVEMAX);
                intline("nb of points ..................10", npcurve);
                intline("nb of segments ..................", npcurve - 1);
                textline(DASHED);
                textline("EXIT ..........................99");
            }
            const int choice = menuchoice();
            int ierr = 0;
            if (choice == 99) break;
            if (choice == 10) inintegvindef(npcurve, "nb of pts per curve", npcurve, 1, NCURVEMAX, ierr);
        }
    }

    if (npcurve > NCURVEMAX) {
        warninghead(vb);
        intline("nb of points =", npcurve);
        intline("> curve buffer size =", NCURVEMAX);
        npcurve = NCURVEMAX;
        intline("===> reset nb of points =", npcurve);
        textline("===> WILL NOT PLOT ALL THE DATA");
        warningtail00();
    } else if (npcurve == 1 && inter != 6 && inter != 7) {
        warninghead(vb);
        intline("nb of points =", npcurve);
        textline("===> WILL PLOT ONLY ONE POINT");
        warningtail00();
    } else if (npcurve < 1) {
        // A count below one comes from a caller's bounds and increment.
        errorhead(vb);
        intline("nb of points np =", npcurve);
        textline("===> UPSTREAM PROBLEM ?");
        textline("Increment inconsistent with bounds ?");
        npcurve = 1;
        intline("===> RESETTING np =", npcurve);
        errortail00();
    }
    ptblock.npcurve = npcurve;
}
