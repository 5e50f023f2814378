// The menus over the histogram settings: all histograms (shstall) and one
// histogram (shst1). The modification switch isw decides which lines the
// user may open: a changeable line ends in its command, a locked one in ':'.
#include "histogram/hst_internal.h"
#include "shell/frames.h"
#include "shell/intera.h"
#include "shell/menus.h"
#include "shell/prompts.h"

using namespace hst;

namespace {

constexpr int MAXISW = 3;

void switchcheck(int& isw, const version_block& vb, int h) {
    if (isw >= 0 && isw <= MAXISW) return;
    errorhead(vb);
    count("maximum number of histograms =", MAXHST);
    count("current number of histograms =", blkhst8.NHST0);
    if (h > 0) count("histogram nb                 =", h);
    count("modification switch min      =", 0);
    count("modification switch max      =", MAXISW);
    count("modification switch          =", isw);
    outside("is outside [", 0, MAXISW);
    isw = 1;
    count("==> RESET switch             =", isw);
    errortail00();
}

// One setting line: the changeable text when open, the locked one if not.
void setting(bool open, std::string_view changeable, std::string_view locked, int v) {
    ival(open ? changeable : locked, v);
}
void setting(bool open, std::string_view changeable, std::string_view locked, float v) {
    rval(open ? changeable : locked, v);
}
void setting(bool open, std::string_view changeable, std::string_view locked,
             std::string_view v) {
    tval(open ? changeable : locked, v);
}

void shst1menu(int h, int isw) {
    const blkhst8_t& b = blkhst8;
    const int ix = b.IXHST0(h);
    rule();
    line("Histogram settings");
    rule();
    ival("Maximum nb of histograms :", MAXHST);
    ival("Current nb of histograms :", b.NHST0);
    ival("Histogram nb             :", h);
    ival("Histogram type           :", b.ITYPEHST0(h));
    ival("Mode                     :", b.MODEHST0(h));
    ival("Min                      :", b.MINIHST0(h));
    ival("Number of retained data  :", b.NTOTHST0(h));
    ival("Number of rejected data  :", b.NREJHST0(h));
    rule();
    line("X axis and bins");
    rule();
    ival("Max nb of x - axes       :", MAXXHST);
    ival("Max nb of bins           :", MAXBINHST);
    const bool x = isw > 2, s = isw > 0, t = isw > 1;
    setting(x, "X axis nb ...................100", "X axis nb .....................:", ix);
    setting(s, "x-label .....................110", "x-label .......................:",
            b.LABELHST0(5, h).sv());
    setting(s, "Mini ........................110", "Mini ..........................:",
            b.XBNDHST0(1, ix));
    setting(s, "Maxi ........................110", "Maxi ..........................:",
            b.XBNDHST0(b.NBINHST0(ix) + 1, ix));
    setting(s, "nb of bins ..................110", "nb of bins ....................:",
            b.NBINHST0(ix));
    setting(s, "nb of bins within major tics 110", "nb of bins within major tics...:",
            b.NXTICHST0(ix));
    setting(s, "major interv. between labels 110", "major interv. between labels...:",
            b.NXLABHST0(ix));
    rule();
    line("Y axis");
    rule();
    setting(s, "y extrema type...............200", "y extrema type.................:",
            b.NYEXTYPHST0(h));
    setting(s, "y-label .....................210", "y-label .......................:",
            b.LABELHST0(8, h).sv());
    setting(s, "Max .........................220", "Max ...........................:",
            b.YMAXHST0(h));
    setting(s, "Min .........................220", "Min ...........................:",
            b.YMINHST0(h));
    rule();
    line("Plot");
    rule();
    setting(t, "Type ........................300", "Type ..........................:",
            b.IPLTYPEHST0(h));
    setting(s, "Style .......................310", "Style .........................:",
            b.IPLSTYLEHST0(h));
    setting(s, "Fill color ..................320", "Fill color ....................:",
            b.IPLFLCOLHST0(h));
    rule();
    if (s) {
        line("|nb|on|        label        .com");
        for (int k = 1; k <= MAXLABHST; ++k)
            writef(iocom.isout, "(1x,'|',i2,'|',i2,'|',a20,' .',i3)", k,
                   b.ONLABELHST0(k, h) ? 1 : 0, b.LABELHST0(k, h).sv(), k + 330);
    } else {
        line("|nb|on|        label            ");
        for (int k = 1; k <= MAXLABHST; ++k)
            writef(iocom.isout, "(1x,'|',i2,'|',i2,'|',a24)", k, b.ONLABELHST0(k, h) ? 1 : 0,
                   b.LABELHST0(k, h).sv());
    }
    rule();
    line("EXIT .........................99");
}

}  // namespace

void shst1(int& h, int& isw, const int& intera) {
    if (!valid(h)) {
        errorhead(VB_SHST1);
        badnumber(h, "histogram nb                 =");
        line("==> EXITING WITHOUT ACTION");
        errortail00();
        return;
    }
    switchcheck(isw, VB_SHST1, h);
    if (mode_resets(intera)) {
        submenuhead(VB_SHST1);
        writef(iocom.isout, "(1x,a,1x,i3)", "INITIALISING HISTOGRAM NB:", h);
        int ix = 0, nbin = 0, nxtic = 0, nxlab = 0, method = 0, type = 0, style = 0, col = 0;
        float xmin = 0, xmax = 0, ymin = 0, ymax = 0;
        fstr<LABLENHST> xlabel;
        shstxind(ix, h, intera);
        shstxbin2(xmin, xmax, nbin, nxtic, nxlab, xlabel, h, intera);
        shstyextype(method, h, intera);
        shstyext(ymin, ymax, h, intera);
        shstplotype(type, h, intera);
        shstplotstyle(style, h, intera);
        shstfillcolor(col, h, intera);
        for (int k = 1; k <= MAXLABHST; ++k) {
            fstr<LABLENHST> text;
            int on = 0, kk = k;
            shstlabel(text, on, kk, h, intera);
        }
    }
    if (mode_silent(intera)) return;
    menuloop(VB_SHST1, [&] { shst1menu(h, isw); }, [&](int c) {
        const int ix = blkhst8.IXHST0(h);
        if (c == 100 && isw > 2) {
            int v = ix;
            shstxind(v, h, 2);
        } else if (c == 110 && isw > 0) {
            float xmin = 0, xmax = 0;
            int nbin = 0, nxtic = 0, nxlab = 0;
            fstr<LABLENHST> xlabel;
            shstxbin2(xmin, xmax, nbin, nxtic, nxlab, xlabel, h, 2);
        } else if (c == 200 && isw > 0) {
            int m = 0;
            shstyextype(m, h, 2);
        } else if (c == 210 && isw > 0) {
            fstr<LABLENHST> text;
            int on = 0, k = 8;
            shstlabel(text, on, k, h, 2);
        } else if (c == 220 && isw > 0) {
            float ymin = 0, ymax = 0;
            shstyext(ymin, ymax, h, 2);
        } else if (c == 300 && isw > 1) {
            int t = 0;
            shstplotype(t, h, 2);
        } else if (c == 310 && isw > 0) {
            int s = 0;
            shstplotstyle(s, h, 2);
        } else if (c == 320 && isw > 0) {
            int col = 0;
            shstfillcolor(col, h, 2);
        } else if (c >= 331 && c <= 338 && isw > 0) {
            fstr<LABLENHST> text;
            int on = 0, k = c - 330;
            shstlabel(text, on, k, h, 2);
        }
    });
}

void shstall(int& isw, const int& intera) {
    blkhst8_t& b = blkhst8;
    if (mode_resets(intera)) {
        submenuhead(VB_SHSTALL);
        line("HISTOGRAMS INITIALIZATION");
        int n = 0;
        shstnb(n, intera);
        static const char* const labels[MAXLABHST] = {"X", "Y", "-X", "-Y", "X", "UR", "UL", "N"};
        for (int h = 1; h <= MAXHST; ++h) {
            b.ITYPEHST0(h) = -1;
            b.IXHST0(h) = h;
            b.NBINHST0(h) = 1;
            b.XBNDHST0(1, h) = 0.0f;
            b.XBNDHST0(2, h) = 10.0f;
            b.NXTICHST0(h) = 1;
            b.NXLABHST0(h) = 1;
            b.NYEXTYPHST0(h) = 1;
            b.YMAXHST0(h) = 10.0f;
            b.YMINHST0(h) = 0.0f;
            b.NYTICHST0(h) = 1;
            b.NYLABHST0(h) = 1;
            b.IPLTYPEHST0(h) = 1;
            b.IPLSTYLEHST0(h) = 11;
            b.IPLFLCOLHST0(h) = 8;
            for (int k = 1; k <= MAXLABHST; ++k) {
                b.ONLABELHST0(k, h) = k == 5 || k == 8;
                b.LABELHST0(k, h) = labels[k - 1];
            }
        }
    }
    switchcheck(isw, VB_SHSTALL, 0);
    if (mode_silent(intera)) return;
    const int sub = intera == 4 ? 4 : 2;
    auto show = [&] {
        menublock("      Global Histogram set up");
        if (isw > 2)
            writef(iocom.isout, "(1x,a,1x,i3)", "nb of histograms to use .....100", b.NHST0);
        else
            writef(iocom.isout, "(1x,a,1x,i3)", "nb of histograms to use .......:", b.NHST0);
        menurule();
        if (isw > 0) {
            textline("|histo nb|        X label        |command|");
            for (int h = 1; h <= b.NHST0; ++h)
                writef(iocom.isout, "(1x,'|',3x,i2,3x,'|',a23,'|',2x,i3,2x,'|')", h,
                       b.LABELHST0(5, h).sv(), h);
        } else {
            textline("|histo nb|    X label            |");
            for (int h = 1; h <= b.NHST0; ++h)
                writef(iocom.isout, "(1x,'|',3x,i2,3x,'|',a23,'|')", h, b.LABELHST0(5, h).sv());
        }
        menurule();
        textline("EXIT .........................99");
    };
    menuloop(VB_SHSTALL, show, [&](int c) {
        if (c == 100 && isw == 3) {
            int n = b.NHST0;
            shstnb(n, sub);
        } else if (c >= 1 && c <= b.NHST0) {
            shst1(c, isw, sub);
        }
    });
}
