// The listing of histograms on a unit: a summary block, the labels, and one
// tab-separated row per bin, which a spreadsheet reads as it stands.
#include "histogram/hst_internal.h"
#include "shell/frames.h"
#include "shell/intera.h"
#include "shell/menus.h"
#include "shell/prompts.h"
#include "shell/runinfo.h"

using namespace hst;

namespace {

const char TAB[] = "\t";

void rangecheck(int& hfirst, int& hlast) {
    const blkhst8_t& b = blkhst8;
    if (hfirst < 1 || hfirst > b.NHST0) {
        errorhead(VB_HSTWRITE);
        count("maximum number of histograms =", MAXHST);
        count("current number of histograms =", b.NHST0);
        count("histogram init nb            =", hfirst);
        outside("nb is outside [", 1, b.NHST0);
        hfirst = 1;
        count("==> RESET init histogram nb =", hfirst);
        errortail00();
    }
    if (hlast < hfirst) {
        warninghead(VB_HSTWRITE);
        count("maximum number of histograms =", MAXHST);
        count("current number of histograms =", b.NHST0);
        count("histogram init nb            =", hfirst);
        count("histogram final nb           =", hlast);
        line("Final < Initial ==> NO OUTPUT ");
        warningtail00();
    } else if (hlast > b.NHST0) {
        errorhead(VB_HSTWRITE);
        count("maximum number of histograms =", MAXHST);
        count("current number of histograms =", b.NHST0);
        count("histogram final nb           =", hlast);
        outside("nb is outside [", hfirst, b.NHST0);
        hlast = b.NHST0;
        count("==> RESET final histogram nb =", hlast);
        errortail00();
    }
}

void writeone(int unit, int h) {
    const blkhst8_t& b = blkhst8;
    const int ix = b.IXHST0(h);
    const int type = b.ITYPEHST0(h);
    const bool weighted = type == 11 || type == 12;
    writef(unit, "(1x,30('='))");
    writef(unit, "(4(1x,a,1x,i3))", "Histogram number   =", h);
    writef(unit, "(4(1x,a,1x,i3))", "Histogram type     =", type);
    writef(unit, "(5(1x,a))", "X axis label       =", b.LABELHST0(5, h).sv());
    writef(unit, "(4(1x,a,1x,i3))", "Number of Bins     =", b.NBINHST0(ix));
    writef(unit, "(5(1x,a))", "Y axis label       =", b.LABELHST0(8, h).sv());
    writef(unit, "(1x,a,1x,f10.3,1x,a)", "Y axis min         =", b.YMINHST0(h));
    writef(unit, "(1x,a,1x,f10.3,1x,a)", "Y axis max         =", b.YMAXHST0(h));
    writef(unit, "(4(1x,a,1x,i7))", "Number of data     =", b.NTOTHST0(h));
    writef(unit, "(4(1x,a,1x,i7))", "Rejected data      =", b.NREJHST0(h));
    writef(unit, "(4(1x,a,1x,i7))", "Mode               =", b.MODEHST0(h));
    writef(unit, "(4(1x,a,1x,i7))", "Minimum            =", b.MINIHST0(h));
    writef(unit, "(1x,a,1x,f10.3,1x,a)", "Sum                =", b.SUMHST0(h));
    writef(unit, "(1x,a,1x,f10.3,1x,a)", "Average            =", b.AVGHST0(h));
    if (type == 3) writef(unit, "(1x,a,1x,f10.3,1x,a)", "Standard deviation =", b.STDHST0(h));
    writef(unit, "(1x,30('-'))");
    writef(unit, "(1x,a7,1x,a25)", "label #", "label");
    for (int k = 1; k <= MAXLABHST; ++k)
        writef(unit, "(4x,i1,4x,a25)", k, b.LABELHST0(k, h).sv());
    writef(unit, "(1x,30('-'))");
    if (type == 11)
        writef(unit, "(5(1x,a))", "N PLUNGE WEIGHTED");
    else if (type == 12)
        writef(unit, "(5(1x,a))", "N DIP WEIGHTED");
    else
        writef(unit, "(5(1x,a))", "N STANDARD (NO WEIGHTING)");
    writef(unit, "(1x,30('-'))");
    if (weighted)
        writef(unit, "(1x,2(a10,a1),a8,a1,a10)", "Xmin", TAB, "< Xmax", TAB, "N", TAB, "Weight");
    else
        writef(unit, "(1x,2(a10,a1),a8,a1,a10)", "Xmin", TAB, "< Xmax", TAB, "N");
    for (int j = 1; j <= b.NBINHST0(ix); ++j) {
        if (weighted)
            writef(unit, "(1x,2(f10.3,a1),i8,a1,f10.3)", b.XBNDHST0(j, ix), TAB,
                   b.XBNDHST0(j + 1, ix), TAB, b.NYCTHST0(j, h), TAB, b.WEIGHT1(j));
        else
            writef(unit, "(1x,2(f10.3,a1),i8,a1,f10.3)", b.XBNDHST0(j, ix), TAB,
                   b.XBNDHST0(j + 1, ix), TAB, b.NYCTHST0(j, h));
    }
}

void writelist(int unit, int hfirst, int hlast, int command) {
    writef(unit, "(1x,30('='))");
    writef(unit, "(5(1x,a))", "SOFTWARE / HARDWARE");
    scmndinfo(command);
    writeruninfo2(unit);
    writef(unit, "(1x,30('='))");
    writef(unit, "(4(1x,a,1x,i3))", "Maximum number of Histograms =", MAXHST);
    writef(unit, "(4(1x,a,1x,i3))", "Current number of Histograms =", blkhst8.NHST0);
    writef(unit, "(4(1x,a,1x,i3))", "Maximum number of Bins       =", MAXBINHST);
    for (int h = hfirst; h <= hlast; ++h) writeone(unit, h);
    writef(unit, "(1x,30('='))");
}

}  // namespace

void hstwrite(const int& unit, int& hfirst, int& hlast, const int& intera) {
    ssubinfo2(VB_HSTWRITE.name, VB_HSTWRITE.version, VB_HSTWRITE.date);
    rangecheck(hfirst, hlast);
    if (mode_silent(intera)) {
        writelist(unit, hfirst, hlast, 100);
    } else {
        int def = 100;
        for (;;) {
            submenuhead(VB_HSTWRITE);
            if (iocom.LWITO(2)) {
                rule();
                line("READY TO WRITE HISTOGRAMS TO FILE");
                line("Current histogram set up ..10");
                ival("initial histogram .........11", hfirst);
                ival("final   histogram .........12", hlast);
                rule();
                line("WRITE ....................100");
                line("EXIT ......................99");
            }
            const int c = menuchoice(def);
            if (c == 99) break;
            int ierr = 0;
            const int nh = blkhst8.NHST0;
            if (c == 10) {
                int isw = 0;
                shstall(isw, 2);
            } else if (c == 11) {
                inintegvindef(hfirst, "initial histogram to write", hfirst, 1, nh, ierr);
            } else if (c == 12) {
                inintegvindef(hlast, "final histogram to write", hlast, hfirst, nh, ierr);
            } else if (c == 100) {
                writelist(unit, hfirst, hlast, c);
                def = 99;
            }
        }
    }
    ssubexitinfo(VB_HSTWRITE.name, VB_HSTWRITE.version, VB_HSTWRITE.date);
}
