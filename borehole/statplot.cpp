#include "borehole/statplot.h"

#include <cmath>
#include <string>

#include "borehole/derived.h"
#include "borehole/tracks.h"
#include "borehole/wellplot.h"
#include "histogram/blkhst8.h"
#include "math/angles.h"
#include "math/stats.h"
#include "plot/attributes.h"
#include "plot/pages.h"
#include "shell/format.h"
#include "shell/intera.h"
#include "shell/menus.h"
#include "shell/prompts.h"
#include "shell/runinfo.h"
#include "shell/sio.h"
#include "shell/textconv.h"
#include "shell/valuesearch.h"
#include "well/welldat.h"
#include "well/wellpara.h"

wellhisblk_t wellhisblk;

namespace {

void line(std::string_view s) { textline(s); }
void rule() { menurule(); }
void origin_line(std::string_view s, float v) { writef(iocom.isout, "(2(1x,a,1x,f10.3))", s, v); }

// Work columns of this menu, apart from those of the log analysis.
constexpr int JANG = 9;     // RWD1: angles wrapped for a histogram
constexpr int JDC = 10;     // RWD1: |DC|
constexpr int JRBC = 11;    // RWD1: RBCmax
constexpr int ICMAXS = 1;   // IWD1: 1 when C1 is the larger, 2 when C2
constexpr int ISORT = 2;    // IWD1: sort order for the statistics

void label(int h, int k, std::string_view text, bool on) {
    fstr<LABLENHST> t = text;
    int sw = on ? 1 : 0, kk = k;
    shstlabel(t, sw, kk, h, 1);
}

}  // namespace

void swellhst(const int& intera) {
    wellhisblk_t& w = wellhisblk;
    if (mode_resets(intera)) {
        submenuhead(VB_SWELLHST);
        line("INITIALIZING TARNOLIX HISTOGRAMS");
        int isw = 3, n = 5;
        shstall(isw, intera);
        shstnb(n, 1);
        for (int h = 1; h <= 5; ++h) label(h, 6, "N=Ntotal", true);
        struct row {
            int wellhisblk_t::*field;
            const char* xlabel;
            float lo, hi;
            int nb, tic, lab;
            const char* others[4];  // labels 1 to 4, when given
        };
        const row rows[5] = {
            {&wellhisblk_t::ihcal, "CALIPER (cm)", 0, 50, 50, 5, 2, {}},
            {&wellhisblk_t::ihdc, "DC", 0, 20, 20, 5, 1, {}},
            {&wellhisblk_t::ih360, "Angle[360]", 0, 360, 72, 6, 3, {"X", "Y"}},
            {&wellhisblk_t::ih180, "Angle[180]", 0, 180, 36, 6, 3, {"X", "Y", "-X", "-Y"}},
            {&wellhisblk_t::ihdevi, "Devi[90]", 0, 30, 30, 5, 2, {"Horizontal", nullptr, nullptr, "Vertical"}},
        };
        for (int h = 1; h <= 5; ++h) {
            const row& r = rows[h - 1];
            w.*r.field = h;
            int ix = h;
            shstxind(ix, h, 1);
            float lo = r.lo, hi = r.hi;
            int nb = r.nb, tic = r.tic, lab = r.lab;
            fstr<LABLENHST> xl = r.xlabel;
            shstxbin2(lo, hi, nb, tic, lab, xl, h, 1);
            for (int k = 1; k <= 4; ++k)
                if (r.others[k - 1]) label(h, k, r.others[k - 1], true);
        }
        for (int h = 1; h <= 5; ++h) {
            int method = 1, style = 11, type = 1, colour = 3;
            hstclear(h);
            // The Y axis follows the tallest bin.
            shstyextype(method, h, 1);
            shstplotstyle(style, h, 1);
            shstplotype(type, h, 1);
            shstfillcolor(colour, h, 1);
        }
    }
    if (mode_silent(intera)) return;
    auto show = [] {
        menublock("HISTOGRAMS LAYOUT");
        line("modify histogram ......................10");
        line("EXIT ..................................99");
    };
    menuloop(VB_SWELLHST, show, [](int c) {
        if (c != 10) return;
        int isw = 1;
        shstall(isw, 2);
    });
}

namespace {

struct statsaved_t {
    fstr<40> fplotst;  // plot file name
    bool lztest;       // select the depths in [ztop, zbot]
    bool lhstlist;     // list each histogram on the console
};
statsaved_t statsaved{"statplot.1.ps", true, false};

struct flags_t {
    bool ldata = false, lcal = false, lazc = false, lrb = false;
};


// The data brought up to the calculation level, over all rows: the Cmax
// index, |DC|, AzCmax where the type lacks it, and RBCmax.
void entry(flags_t& f) {
    if (!f.lcal) return;
    welldat_t& w = welldat;
    const int n = w.ndatwd;
    const bool computeaz = !f.lazc;
    if (computeaz) {
        int id = w.IDTYPWD(w.itypwd) + 10;
        wdtype(id, 11);
        logdataflags(f.ldata, f.lcal, f.lazc, f.lrb);
    }
    rule();
    intline("Total number of data = ", n);
    line("Computing:");
    if (computeaz) {
        line(" (1) AzCmax");
        line(" (2) Cmax index");
        line(" (3) DC");
        if (f.lrb) line(" (4) RBCmax");
    } else {
        line(" (1) Cmax index");
        line(" (2) DC");
        if (f.lrb) line(" (3) RBCmax");
    }
    const float* c1 = w.RWD1.col(w.JCOL(w.jc1));
    const float* c2 = w.RWD1.col(w.JCOL(w.jc2));
    float* dc = w.RWD1.col(JDC);
    int* kmax = w.IWD1.col(ICMAXS);
    for (int i = 0; i < n; ++i) {
        dc[i] = std::abs(c1[i] - c2[i]);
        kmax[i] = c2[i] <= c1[i] ? 1 : 2;
    }
    // The names go to the column names: they name array columns.
    if (computeaz && f.lazc) {
        w.NAMCOL(w.JCOL(w.jazcmax)) = "AzCmax[180]_cptd";
        const float* p1az = w.RWD1.col(w.JCOL(w.jp1az));
        float* az = w.RWD1.col(w.JCOL(w.jazcmax));
        for (int i = 0; i < n; ++i) az[i] = kmax[i] == 1 ? p1az[i] : p1az[i] + 90.0f;
    }
    w.NAMCOL(JDC) = "DC_cptd";
    if (f.lrb) {
        const float* rb = w.RWD1.col(w.JCOL(w.jrb));
        float* rbc = w.RWD1.col(JRBC);
        for (int i = 0; i < n; ++i) rbc[i] = kmax[i] == 1 ? rb[i] : rb[i] + 90.0f;
        w.NAMCOL(JRBC) = "RBCmax[180]_cptd";
    }
}

void menu() {
    const statsaved_t& s = statsaved;
    rule();
    line("PLOT:");
    textline("plot file name :", s.fplotst);
    line("open plot file ........................10");
    flagline("Landscape(T)/Portrait(F) ..............11", wellplot.llandscape);
    line("set plot and axes params ..............13");
    line("close plot file .......................20");
    rule();
    line("REPRESENTATION:");
    line("modify histogram  .....................32");
    flagline("Histogram list with plot ..............33", s.lhstlist);
    int ilist = 1;
    wellstatus(ilist);
    swellparam(10);
    line("Change hole parameters ................50");
    rule();
    line("LOCAL PARAMETERS:");
    flagline("z test ................................51", s.lztest);
    rule();
    line("PLOT:");
    line("HISTOGRAMS:");
    line(" C1,C2,P1Az,RB,Hazi,Devi .............100");
    line(" C1,C2,DC,RBCmax,Hazi,AzCmax .........110");
    line("HISTOGRAMS + ROSES(-R):");
    line(" C1,C2,P1Az-R,RB-R,Hazi-R,Devi-R......200");
    line(" C1,C2,DC,RBCmax-R,Hazi-R,AzCmax-R ...210");
    line(" C1,C2,DC,AzCmax,RBCmax-R,Hazi-R .....211");
    rule();
    line("SHOW STATISTICS:");
    line(" AzCmax ..............................400");
    rule();
    line("EXIT ..................................99");
}



// The page head: the selection on the console, and for a page the
// selection, the run information and the data information on the plot.
void pagehead(int icmd, int i1, int i2, int nsel) {
    const welldat_t& w = welldat;
    const bool z = statsaved.lztest;
    const int jdep = w.JCOL(w.jdepth);
    auto depth = [](float v) { return realtext(v, 2, 9); };
    std::string first = "Depth init = " + depth(w.RWD1(i1, jdep)) + " final = " + depth(w.RWD1(i2, jdep));
    // The increment is that of the file's first two rows.
    if (z) first += " inc = " + depth(w.ndatwd >= 2 ? w.RWD1(2, jdep) - w.RWD1(1, jdep) : 0.0f);
    rule();
    line(first);
    line(z ? "WITH DEPTH SELECTION" : "WITHOUT DEPTH SELECTION");
    intline("Number of data = ", nsel);
    intline("Command        = ", icmd);
    rule();
    if (icmd > 300 || !iocom.lplotopen) return;

    scmndinfo(icmd);
    const auto [x, y] = wellpagehead(w.finwd.sv());
    attributekept<int> entryalign(stextalign);
    int align = -3;
    stextalign(align, 1);
    cmplotcharinfo2(first, 1, x, y);
}

// Command 400.
void azcmaxstats(int i1, int nsel) {
    welldat_t& w = welldat;
    const float orig = wellpara.azcmaxorig;
    rule();
    line("AzCmax statistics");
    rule();
    origin_line("Normalising AzCmax with azcmx0 = ", orig);
    float* ang = w.RWD1.col(JANG) + (i1 - 1);
    const float period = 180.0f;
    modulro(ang, w.RWD1.col(w.JCOL(w.jazcmax)) + (i1 - 1), period, orig, nsel);
    stat1d0(w.IWD1.col(ISORT) + (i1 - 1), ang, nsel, iocom.isout, 0);
    deg2rad(ang, ang, nsel);
    for (int K : {1, 2}) statcirc360k(ang, nsel, K, iocom.isout, 0);
}

// The quantities of the pages, in the order they are drawn.
enum qty { Q_C1, Q_C2, Q_DC, Q_P1AZ, Q_HAZI, Q_DEVI, Q_RB, Q_AZCMAX, Q_RBCMAX };
struct quantity {
    qty q;
    // Subplot on pages 100, 110, 200, 210, 211; 0 not on the page, negative
    // a rose in the subplot of that number.
    int sub[5];
};
constexpr quantity QUANTITIES[] = {
    {Q_C1, {23, 23, 23, 23, 25}},      {Q_C2, {26, 26, 26, 26, 24}},
    {Q_DC, {0, 24, 0, 24, 27}},        {Q_P1AZ, {24, 0, -24, 0, 0}},
    {Q_HAZI, {25, 25, -25, -25, -23}}, {Q_DEVI, {28, 0, -28, 0, 0}},
    {Q_RB, {27, 0, -27, 0, 0}},        {Q_AZCMAX, {0, 28, 0, -28, 28}},
    {Q_RBCMAX, {0, 27, 0, -27, -26}},
};

int pageindex(int icmd) {
    switch (icmd) {
    case 100: return 0;
    case 110: return 1;
    case 200: return 2;
    case 210: return 3;
    case 211: return 4;
    default: return -1;
    }
}

// An angle's wrapping and names.
struct angleinfo {
    const char* normalising;
    float origin, period;
    const char* bar;
    const char* rose;
    // Rose labels in the order set: number, text, switch.
    struct { int k; const char* text; bool on; } labels[4];
};

angleinfo angleof(qty q) {
    const wellpara_t& p = wellpara;
    switch (q) {
    case Q_P1AZ:
        return {"Normalising P1Az with az0 = ", p.azorig, 360, "P1Az [360] histogram", "P1Az [360] rose",
                {{1, "East", true}, {2, "North", true}, {3, "West", false}, {4, "South", false}}};
    case Q_HAZI:
        return {"Normalising HAZI with hazi0 = ", p.haziorig, 360, "HAZI [360] histogram", "HAZI [360] rose",
                {{1, "East", true}, {2, "North", true}, {3, "West", false}, {4, "South", false}}};
    case Q_RB:
        return {"Normalising RB with rb0 = ", p.rborig, 360, "RB [360] histogram", "RB [360] rose",
                {{1, "Right", true}, {3, "Left", true}, {2, "Up", true}, {4, "Down", true}}};
    case Q_AZCMAX:
        return {"Normalising AzCmax with azcmx0 = ", p.azcmaxorig, 180, "AzCmax [180] histogram",
                "AzCmax [180] rose",
                {{1, "East", true}, {2, "North", true}, {4, "South", true}, {3, "West", false}}};
    default:
        return {"Normalising RBCmax with rbcmx0 = ", p.rbcmaxorig, 180, "RBCmax [180] histogram",
                "RBCmax [180] rose",
                {{1, "Right", true}, {3, "Left", true}, {4, "Down", true}, {2, "Up", true}}};
    }
}

void drawquantity(qty q, int subplot, int i1, int nsel) {
    welldat_t& w = welldat;
    const wellhisblk_t& hb = wellhisblk;
    const bool rose = subplot < 0;
    int sub = rose ? -subplot : subplot;
    int h = 0;
    const float* values = nullptr;
    const bool angle = q == Q_P1AZ || q == Q_HAZI || q == Q_RB || q == Q_AZCMAX || q == Q_RBCMAX;

    if (!angle) {
        int col = 0;
        switch (q) {
        case Q_C1: h = hb.ihcal, col = w.JCOL(w.jc1); break;
        case Q_C2: h = hb.ihcal, col = w.JCOL(w.jc2); break;
        case Q_DC: h = hb.ihdc, col = JDC; break;
        default: h = hb.ihdevi, col = w.JCOL(w.jdevi); break;
        }
        if (q == Q_C1) line("C1 or CAL histogram");
        if (q == Q_C2) line("C2 histogram");
        if (q == Q_DC) line("DC histogram");
        if (q == Q_C1 || q == Q_C2 || q == Q_DC) rule();
        // The column's name as X label, keeping the label's switch.
        fstr<LABLENHST> text;
        int on = 0, k = 5;
        shstlabel(text, on, k, h, 3);
        text = w.NAMCOL(col).trimmed();
        shstlabel(text, on, k, h, 1);
        hstclear(h);
        values = w.RWD1.col(col) + (i1 - 1);
    } else {
        const angleinfo a = angleof(q);
        h = (q == Q_AZCMAX || q == Q_RBCMAX) ? hb.ih180 : hb.ih360;
        int col = 0;
        switch (q) {
        case Q_P1AZ: col = w.JCOL(w.jp1az); break;
        case Q_HAZI: col = w.JCOL(w.jhazi); break;
        case Q_RB: col = w.JCOL(w.jrb); break;
        case Q_AZCMAX: col = w.JCOL(w.jazcmax); break;
        default: col = JRBC; break;
        }
        // Bins stay: each keeps its width, counted from the origin.
        float lo = 0, hi = 0;
        int nb = 0, tic = 0, lab = 0;
        fstr<LABLENHST> xl;
        shstxbin2(lo, hi, nb, tic, lab, xl, h, 3);
        lo = a.origin;
        hi = a.origin + a.period;
        xl = w.NAMCOL(col).trimmed();
        shstxbin2(lo, hi, nb, tic, lab, xl, h, 1);
        hstclear(h);
        origin_line(a.normalising, a.origin);
        float* ang = w.RWD1.col(JANG) + (i1 - 1);
        modulro(ang, w.RWD1.col(col) + (i1 - 1), a.period, a.origin, nsel);
        values = ang;
    }
    // Null values of the table (NaN, Inf) belong to no bin: they are left
    // out here, and counted once, rather than reported one by one.
    float* kept = w.RWD1.col(JANG) + (i1 - 1);
    int nkept = 0;
    for (int i = 0; i < nsel; ++i)
        if (std::isfinite(values[i])) kept[nkept++] = values[i];
    if (nkept < nsel)
        writef(iocom.isout, "(1x,a,1x,i6)", "Number of data left out (not finite) = ",
               nsel - nkept);
    hstadd(kept, nkept, h);
    hstcompend(h);
    if (statsaved.lhstlist) {
        int f = h, l = h;
        hstwrite(iocom.isout, f, l, 1);
    }

    ssubplot(sub, 1);
    float xmin, xmax, ymin, ymax;
    ghstsize(xmin, xmax, ymin, ymax, h);
    int type = rose ? (q == Q_DEVI ? 8 : 5) : 1;
    shstplotype(type, h, 1);
    if (angle) {
        const angleinfo a = angleof(q);
        line(rose ? a.rose : a.bar);
        if (rose)
            for (const auto& l : a.labels) label(h, l.k, l.text, l.on);
    } else if (q == Q_DEVI) {
        line(rose ? "DEVI rose" : "DEVI histogram");
    }
    if (rose) rule();
    if (rose) {
        xmin = -ymax;
        xmax = ymax;
        ymin = -ymax;
    }
    float xcm0, ycm0, xlcm, ylcm, u1, u2, v1, v2;
    int ixy = 0;
    sus2cm3(xcm0, ycm0, xlcm, ylcm, u1, u2, v1, v2, ixy, 3);
    sus2cm3(xcm0, ycm0, xlcm, ylcm, xmin, xmax, ymin, ymax, ixy, 1);
    hstfrmplt(h);
    hstvalplt(h);
}

void page(int icmd, const flags_t& f, int i1, int nsel) {
    const int p = pageindex(icmd);
    for (const quantity& q : QUANTITIES) {
        const int sub = q.sub[p];
        if (sub == 0) continue;
        bool need = false;
        switch (q.q) {
        case Q_C1: need = f.ldata; break;
        case Q_C2: case Q_DC: case Q_P1AZ: need = f.lcal; break;
        case Q_AZCMAX: need = f.lazc; break;
        default: need = f.lrb; break;
        }
        if (need) drawquantity(q.q, sub, i1, nsel);
    }
}

bool pagecommand(int icmd) { return icmd >= 100 && icmd <= 300; }

}  // namespace

void statplot(const int& intera) {
    statsaved_t& s = statsaved;
    // Its reset is the pair 5 and 6.
    if (intera == 5 || intera == 6) {
        submenuhead(VB_STATPLOT);
        line("INITIALIZING STAT PLOT PARAMETERS");
        s = statsaved_t{"statplot.1.ps", true, false};
        return;
    }
    ssubinfo2(VB_STATPLOT.name, VB_STATPLOT.version, VB_STATPLOT.date);
    flags_t f;
    logdataflags(f.ldata, f.lcal, f.lazc, f.lrb);
    if (!f.ldata) nodataframe(VB_STATPLOT);
    entry(f);

    int icmd = 0, ierr = 0;
    for (;;) {
        if (iocom.LWITO(1)) submenuhead(VB_STATPLOT);
        if (iocom.LWITO(2)) {
            menu();
            menutail();
        }
        ininteg1(icmd, "your choice", ierr);

        switch (icmd) {
        case 11: swellorientation("to use Landscape(1) or Portrait(0) A4", true); break;
        case 13: swellplot(2); break;
        case 32: {
            int isw = 1;
            shstall(isw, 2);
            break;
        }
        case 33:
            inlogicdef(s.lhstlist, "whether to print histogram values on screen", s.lhstlist, ierr);
            break;
        case 50: swellparam(0); break;
        case 51: inlogicdef(s.lztest, "to test depth", s.lztest, ierr); break;
        default: break;
        }

        if (icmd == 20)
            plend();
        else if (pagecommand(icmd) && iocom.lplotopen)
            newpage();
        else if (icmd == 10 || pagecommand(icmd))
            plinit(s.fplotst, 2);

        if (icmd == 99) break;
        if (icmd < 100 || icmd > 500 || !f.ldata) continue;

        welldat_t& w = welldat;
        int i1 = 1, i2 = w.ndatwd;
        if (s.lztest) {
            int status = 0;
            inval2inind2(status, i1, i2, wellpara.ztop, wellpara.zbot, 1, w.ndatwd,
                         w.RWD1.col(w.JCOL(w.jdepth)), MAXDATWD, 0);
            if (status == 1 || status == 2) {
                warninghead(VB_STATPLOT);
                textline(status == 1 ? "INDICES PROBLEM OR FAILED SEARCH" : "DATA OUT OF RANGE");
                textline("=> SKIPPING PROCCESS + PLOT");
                warningtail00();
                continue;
            }
        }
        const int nsel = i2 - i1 + 1;
        pagehead(icmd, i1, i2, nsel);
        if (icmd == 400 && f.lazc) azcmaxstats(i1, nsel);
        if (pageindex(icmd) >= 0) page(icmd, f, i1, nsel);
    }
    ssubexitinfo(VB_STATPLOT.name, VB_STATPLOT.version, VB_STATPLOT.date);
}
