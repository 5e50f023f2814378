// The plot file's life (open, pages, close) and the subplot table.
#include "plot/pages.h"

#include <string>

#include "plot/attributes.h"
#include "plot/device/psdevice.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/intera.h"
#include "shell/prompts.h"
#include "shell/sio.h"

plt1blk_t plt1blk{};
pltbuff1_t pltbuff1{};

namespace {

constexpr version_block VB_PLINIT{"plinit     ", " 7.0", "2020-10-15"};
constexpr version_block VB_PLEND{"plend      ", " 6.1", "2017-07-27"};
constexpr version_block VB_NEWPAGE{"newpage    ", " 6.1", "2016-01-07"};
constexpr version_block VB_SPLOTSCALING{"splotscaling        ", " 1.2", "2024-02-19"};
constexpr version_block VB_SPLOTUNITS{"splotunits          ", " 4.2", "2019-10-04"};
constexpr version_block VB_SSUBPLOT{"ssubplot            ", " 1.4", "2019-09-29"};

void dashes() { writef(iocom.isout, "(1x,43('-'))"); }

void subplot_lines(int nsub) {
    writef(iocom.isout, "(5(1x,a,1x,i3))", "Subplot nb     :", nsub);
    // No subplot is current before the first reset.
    fstr<20> name;
    if (nsub >= 1 && nsub <= MAXSUBPLOT) name = pltcharblk.SUBPLOTITLE(nsub);
    writef(iocom.isout, "(5(1x,a))", "Subplot name   :", name);
}

}  // namespace

void plinit(fstr_ref name, const int& inter) {
    if (iocom.lplotopen) {
        warninghead(VB_PLINIT);
        textline("Plot file or window is already opened");
        textline("==> appending to current plot file/window");
        warningtail00();
        return;
    }
    intplinit(name, inter);
    iocom.lplotopen = true;
    // 2 and 3 carry the maps and attributes set so far into the new file.
    const int k = mode_from_store(inter) ? 7 : 5;
    splotscaling(k);
    splotattributes(k);
}

void plend() {
    if (!iocom.lplotopen) {
        warninghead(VB_PLEND);
        textline("The plot window or file is already closed");
        warningtail00();
        return;
    }
    intplend();
    iocom.lplotopen = false;
}

void newpage() {
    submenuhead(VB_NEWPAGE);
    textline("IT IS SUGGESTED TO CLEAR THE PLOT");
    textline("You can:");
    textline("clear the window / add a page to the file ..0");
    textline("close the window / file and open a new one .1");
    textline("append to the current window / file ........2");
    menutail();
    int choice = 0;
    int ierr = 0;
    inintegvindef(choice, "your choice", 0, 0, 2, ierr);
    if (choice == 0) {
        intnewpage();
    } else if (choice == 1) {
        plend();
        fstr<40> next = "Next_plot";
        plinit(next, 2);
    }
}

void splotscaling(const int& inter) {
    if (!mode_resets(inter) && inter != 7) {
        warninghead(VB_SPLOTSCALING);
        writef(iocom.isout, "(1x,a,1x,i6)", "inter =", inter);
        textline("Accepted values = 4,5,7");
        textline("===> NO ACTION");
        warningtail00();
        return;
    }
    if (inter == 7 && !iocom.lplotopen) {
        errorhead(VB_SPLOTSCALING);
        textline("TRYING TO UPDATE PLOT SCALING");
        textline("WITH CLOSED PLOT FILE");
        textline("===> NO ACTION");
        errortail00();
        return;
    }
    submenuhead(VB_SPLOTSCALING);
    textline(inter == 7 ? "UPDATING SUBPLOT SCALING" : "INITIALIZING SUBPLOT SCALING");
    if (iocom.lplotopen) {
        textline(" 1: CM <-> DE updating (plot file open)");
        scm2de();
    } else {
        textline(" 1: CM <-> DE untouched (plot file closed)");
    }
    int nsub = 1;
    if (inter == 7) {
        textline(" 2: US <-> CM untouched (set before)");
        textline(" 3: US <-> DE updating (plot file open)");
        for (int i = 1; i <= MAXSUBPLOT; ++i) {
            ssubplot(i, 1);
            sus2de();
        }
        ssubplot(nsub, 5);
        return;
    }
    textline(" 2: US <-> CM initializing");
    if (iocom.lplotopen)
        textline(" 3: US <-> DE updating (plot file open)");
    else
        textline(" 3: US <-> DE: untouched (plot file closed)");
    ssubplot(nsub, 5);
    float xcm0 = 0, ycm0 = 0, xx = 0, xy = 0, yx = 0, yy = 0;
    sus2cm1(xcm0, ycm0, xx, xy, yx, yy, inter == 4 ? 6 : 7);
    for (int i = 1; i <= MAXSUBPLOT; ++i)
        pltcharblk.SUBPLOTITLE(i) = "Subplot_" + std::to_string(i);
}

void ssubplot(int& nsub, const int& inter) {
    if (mode_from_store(inter)) {
        nsub = plt1blk.isubplot;
    } else if (inter >= 4 && inter <= 7) {
        submenuhead(VB_SSUBPLOT);
        nsub = 1;
        writef(iocom.isout, "(5(1x,a,1x,i3))", "INITIALISING SUBPLOT =", nsub);
    } else if (nsub < 1 || nsub > MAXSUBPLOT) {
        errorhead(VB_SSUBPLOT);
        writef(iocom.isout, "(5(1x,a,1x,i3))", "trying to set subplot nb =", nsub);
        writef(iocom.isout, "(5(1x,a,1x,i3))", "max subpplot nb          =", MAXSUBPLOT);
        textline("===> NO ACTION");
        errortail00();
        return;
    }
    if (mode_talks(inter)) {
        // Only informs: there is no question to answer.
        submenuhead(VB_SSUBPLOT);
        dashes();
        textline("             CHANGING SUBPLOT");
        dashes();
        writef(iocom.isout, "(5(1x,a,1x,i3))", "Maximum nb of subplots :", MAXSUBPLOT);
        dashes();
        textline("CURRENT SUBPLOT:");
        subplot_lines(plt1blk.isubplot);
        dashes();
        textline("SWITCHING TO SUBPLOT:");
        subplot_lines(nsub);
        menutail();
    }
    plt1blk.isubplot = nsub;
}

void splotunits(farr<float, 2>& V0TOW, farr2<float, 2, 2>& VTOW, const int& imat,
                const int& inter) {
    const int k = plt1blk.isubplot;
    if (mode_from_store(inter) && (imat == 1 || imat == 3)) {
        const bool tocm = imat == 1;
        for (int i = 1; i <= 2; ++i) {
            V0TOW(i) = tocm ? plt1blk.US0TOCM(i, k) : plt1blk.US0TODE(i, k);
            for (int j = 1; j <= 2; ++j)
                VTOW(i, j) = tocm ? plt1blk.USTOCM(i, j, k) : plt1blk.USTODE(i, j, k);
        }
        return;
    }
    warninghead(VB_SPLOTUNITS);
    writef(iocom.isout, "(1x,a,1x,i6)", "inter =", inter);
    writef(iocom.isout, "(1x,a,1x,i6)", "imat  =", imat);
    textline("===> NO ACTION");
    warningtail00();
}
