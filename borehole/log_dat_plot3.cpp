// The data tracks: the measured and derived quantities themselves, before
// any test. Each block below is one track; they run in a fixed order, and a
// block draws only for the commands of its table.
#include <algorithm>
#include <cmath>

#include "borehole/derived.h"
#include "borehole/tracks.h"
#include "borehole/wellplot.h"
#include "math/angles.h"
#include "plot/attributes.h"
#include "plot/axes/axes.h"
#include "plot/pages.h"
#include "plot/symbols.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/sio.h"
#include "well/welldat.h"
#include "well/wellpara.h"

namespace {

// Where a track goes for a range of commands.
struct place {
    int first, last;  // commands
    int subplot, frame;
};

// The place of icmd in a table; false when the track isn't on that page.
template <std::size_t N>
bool placeof(const place (&table)[N], int icmd, int& subplot, int& frame) {
    for (const place& p : table) {
        if (icmd >= p.first && icmd <= p.last) {
            subplot = p.subplot;
            frame = p.frame;
            return true;
        }
    }
    return false;
}

constexpr int DEPTHAXIS = 1;

// AzCmax: the test pages use axis set 3, the |DC| page set 14.
struct azplace {
    place at;
    int iaxis;
    std::string_view label;
};
constexpr azplace AZCMAX_PLACES[] = {
    {{302, 303, 4, 4}, 3, "AzCmax[180]"},  {{320, 320, 7, 4}, 3, "AzCmax[180]"},
    {{321, 326, 3, 1}, 3, "AzCmax[180]"},  {{332, 335, 3, 1}, 3, "AzCmax[180]"},
    {{350, 350, 10, 4}, 14, "AzCmax"},
};
constexpr place C12_PLACES[] = {
    {301, 301, 4, 4}, {304, 305, 3, 1}, {320, 320, 3, 1},  {351, 351, 9, 1},
    {355, 356, 9, 1}, {358, 358, 9, 1}, {357, 357, 29, 1}, {359, 362, 29, 1},
};
constexpr place CMINMAX_PLACES[] = {{302, 303, 3, 1}};
constexpr place XSECTION_PLACES[] = {{301, 301, 3, 1}};
constexpr place C1MINUSC2_PLACES[] = {{320, 320, 5, 4}};
constexpr place CMINBS_PLACES[] = {{320, 320, 6, 4}};
constexpr place DC_PLACES[] = {
    {320, 320, 4, 4}, {350, 350, 9, 1}, {356, 356, 21, 4}, {358, 358, 21, 4},
    {357, 357, 30, 4}, {359, 362, 30, 4},
};
constexpr place DEVI_PLACES[] = {{301, 301, 6, 4}, {304, 305, 5, 4}};
constexpr place HAZI_PLACES[] = {{301, 301, 7, 4}, {304, 305, 6, 4}};
constexpr place RB_PLACES[] = {{301, 301, 8, 2}, {304, 305, 7, 4}, {354, 354, 3, 1}};
constexpr place RBCMAX_PLACES[] = {
    {320, 320, 8, 2}, {354, 354, 4, 4}, {356, 356, 22, 4}, {358, 358, 22, 4},
    {357, 357, 31, 4}, {359, 362, 31, 4},
};

// The gauge band and the saturation limits are drawn on these caliper
// pages; the saturation page (351) shows the limits only.
bool c12satlines(int icmd) { return icmd == 320 || icmd == 351 || (icmd >= 355 && icmd <= 362); }

// Column j of RWD1 from row itop on.
float* column(int j, int itop) { return welldat.RWD1.col(j) + (itop - 1); }

void curve(int j, int itop, int n) {
    usline(column(j, itop), column(welldat.JCOL(welldat.jdepth), itop), n);
}

void setcolour(int icol) { slinecolor(icol, 1); }

// A circular quantity drawn on [origin, origin + 360): as read when the
// origin is 0, else wrapped into the work column. A curve that passes the
// range's end jumps across the box.
void circularcurve(int j, float origin, int itop, int n) {
    if (origin == 0.0f) {
        curve(j, itop, n);
        return;
    }
    float* w = column(JWORK9, itop);
    const float period = 360.0f;
    modulro(w, column(j, itop), period, origin, n);
    curve(JWORK9, itop, n);
}

}  // namespace

// ---------------------------------------------------------------------------
// Helpers shared by the track routines.

void trackhead(std::string_view message, std::string_view counttext, int n) {
    textline(DASHED);
    textline(message);
    writef(iocom.isout, "(1x,a,1x,i6)", counttext, n);
    textline(DASHED);
}

void trackaxisrange(int iaxis, float first, float last) {
    float usa1, usa2, wau1, wau2, waud, walas;
    fstr<AXLABLEN> walab;
    int nawdig, nasubint, nlabintk;
    s1axis1(usa1, usa2, wau1, wau2, waud, walas, walab, nawdig, nasubint, nlabintk, iaxis, 3);
    usa1 = wau1 = first;
    usa2 = wau2 = last;
    s1axis1(usa1, usa2, wau1, wau2, waud, walas, walab, nawdig, nasubint, nlabintk, iaxis, 1);
}

void trackrefline(float x) {
    float* xs = welldat.RWD1.col(JWORK9);
    float* ys = welldat.RWD1.col(JWORK10);
    g1axbd(ys[0], ys[1], DEPTHAXIS);
    xs[0] = xs[1] = x;
    usline(xs, ys, 2);
}

// ---------------------------------------------------------------------------

void log_dat_plot3(const int& itop, const int& ibot, const bool& ldata, const bool& lcal,
                   const bool& lazc, const bool& lrb, const int& icmd) {
    welldat_t& w = welldat;
    const wellpara_t& p = wellpara;
    const int n = ibot - itop + 1;
    // Nothing selected, nothing to draw: stage 2 had no data to work on.
    if (!ldata || n < 1) return;

    farr<int, 2> JCLR;
    JCLR(1) = 1;
    JCLR(2) = 1;
    if (lcal) {
        JCLR(1) = wellplot.jclrc1;
        JCLR(2) = wellplot.jclrc2;
    }
    const int jdep = w.JCOL(w.jdepth);
    const int jc1 = w.JCOL(w.jc1);
    const int jc2 = lcal ? w.JCOL(w.jc2) : jc1;
    const int i0 = itop - 1;
    const float* c1 = w.RWD1.col(jc1) + i0;
    const float* c2 = w.RWD1.col(jc2) + i0;
    float* w9 = w.RWD1.col(JWORK9) + i0;
    float* w10 = w.RWD1.col(JWORK10) + i0;
    const float* depth = w.RWD1.col(jdep) + i0;
    const float cbslo = p.bitsize + p.cbsmin;
    const float cbshi = p.bitsize + p.cbsmax;
    int subplot = 0, frame = 0;

    // 1. AzCmax
    if (lazc) {
        for (const azplace& a : AZCMAX_PLACES) {
            if (icmd < a.at.first || icmd > a.at.last) continue;
            slogbox(a.at.subplot, a.iaxis, DEPTHAXIS, a.at.frame, a.label);
            trackhead("AzCmax plot", "Number of data = ", n);
            ussymbol(column(w.JCOL(w.jazcmax), itop), depth, n);
            break;
        }
    }

    // 2. Cross plot of AzCmax and |DC|, a box of its own rather than a
    // depth track: all four edges carry their scales.
    if (lazc && icmd == 101) {
        const int ixaxis = 3, iyaxis = 6;
        float usa1, usa2, wau1, wau2, waud, walas;
        fstr<AXLABLEN> walab;
        int nawdig, nasubint, nlabintk;
        s1axis1(usa1, usa2, wau1, wau2, waud, walas, walab, nawdig, nasubint, nlabintk, ixaxis, 3);
        walab = "AzCmax[180]";
        s1axis1(usa1, usa2, wau1, wau2, waud, walas, walab, nawdig, nasubint, nlabintk, ixaxis, 1);

        int bx = 0, by = 0, left = 0, right = 0, bottom = 0, top = 0, iclip = 0, izero = 0;
        fstr<BOXLABLEN> boxlab;
        const int ibox = 1;
        s1bx2d(bx, by, left, right, bottom, top, iclip, izero, boxlab, ibox, 3);
        bx = ixaxis;
        by = iyaxis;
        left = right = bottom = top = 1;
        s1bx2d(bx, by, left, right, bottom, top, iclip, izero, boxlab, ibox, 1);

        int sub = 2;
        ssubplot(sub, 1);
        float xcm0, ycm0, xlcm, ylcm, xumin, xumax, yumin, yumax;
        int ixy;
        sus2cm3(xcm0, ycm0, xlcm, ylcm, xumin, xumax, yumin, yumax, ixy, 3);
        g1axbd(xumin, xumax, ixaxis);
        g1axbd(yumin, yumax, iyaxis);
        sus2cm3(xcm0, ycm0, xlcm, ylcm, xumin, xumax, yumin, yumax, ixy, 1);
        d1bx2d(ibox);

        for (int i = 0; i < n; ++i) w9[i] = std::fabs(c1[i] - c2[i]);
        trackhead("AzCmax - DC plot", "Number of data = ", n);
        ussymbol(column(w.JCOL(w.jazcmax), itop), w9, n);
    }

    // 3. The calipers, or the one caliper of a "Depth,CAL" table.
    if (placeof(C12_PLACES, icmd, subplot, frame)) {
        const int iaxis = 4;
        if (lcal)
            slogbox(subplot, iaxis, DEPTHAXIS, frame, "C1,C2 (cm)");
        else
            slogbox(subplot, iaxis, DEPTHAXIS, frame, w.NAMVAR(w.jc1).sv());
        trackhead("C12 plot", "Number of data = ", n);
        int entry = 0;
        slinecolor(entry, 3);
        if (c12satlines(icmd)) {
            if (lcal) {
                setcolour(JCLR(1));
                trackrefline(p.c1sat);
                setcolour(JCLR(2));
                trackrefline(p.c2sat);
            }
            if (icmd != 351) {
                setcolour(entry);
                trackrefline(cbslo);
                trackrefline(p.bitsize);
                trackrefline(cbshi);
            }
        }
        setcolour(JCLR(1));
        curve(jc1, itop, n);
        if (lcal) {
            setcolour(JCLR(2));
            curve(jc2, itop, n);
        }
        setcolour(entry);
    }

    // 4. Cmin and Cmax
    if (lcal && placeof(CMINMAX_PLACES, icmd, subplot, frame)) {
        slogbox(subplot, 4, DEPTHAXIS, frame, "Cmin,Cmax");
        trackrefline(cbslo);
        trackrefline(cbshi);
        trackrefline(p.bitsize);
        for (int i = 0; i < n; ++i) {
            w10[i] = std::max(c1[i], c2[i]);
            w9[i] = std::min(c1[i], c2[i]);
        }
        trackhead("Cmin, Cmax plot", "Number of data = ", n);
        curve(JWORK9, itop, n);
        curve(JWORK10, itop, n);
    }

    // 5. Cross section: C1 to the right, C2 to the left, so that the log
    // reads as a profile of the hole.
    if (lcal && placeof(XSECTION_PLACES, icmd, subplot, frame)) {
        slogbox(subplot, 15, DEPTHAXIS, frame, "X-Section");
        trackrefline(0.5f * p.bitsize);
        trackrefline(-0.5f * p.bitsize);
        for (int i = 0; i < n; ++i) {
            w9[i] = 0.5f * c1[i];
            w10[i] = -0.5f * c2[i];
        }
        trackhead("X-Section plot", "Number of data = ", n);
        // Unlike the caliper track, this one leaves the C2 colour in force
        // for the tracks drawn after it.
        setcolour(JCLR(1));
        curve(JWORK9, itop, n);
        setcolour(JCLR(2));
        curve(JWORK10, itop, n);
    }

    // 6. C1 - C2, with its sign
    if (lcal && placeof(C1MINUSC2_PLACES, icmd, subplot, frame)) {
        slogbox(subplot, 5, DEPTHAXIS, frame, "(C1-C2)");
        for (int i = 0; i < n; ++i) w9[i] = c1[i] - c2[i];
        trackhead("C1-C2 plot", "Number of data = ", n);
        curve(JWORK9, itop, n);
    }

    // 7. Cmin - bit size
    if (lcal && placeof(CMINBS_PLACES, icmd, subplot, frame)) {
        slogbox(subplot, 5, DEPTHAXIS, frame, "Cmin-BS");
        for (int i = 0; i < n; ++i) w9[i] = std::min(c1[i], c2[i]) - p.bitsize;
        trackhead("Cmin-BS plot", "Number of data = ", n);
        curve(JWORK9, itop, n);
    }

    // 8. |DC|
    if (lcal && placeof(DC_PLACES, icmd, subplot, frame)) {
        slogbox(subplot, 6, DEPTHAXIS, frame, "|C1-C2|");
        trackrefline(p.cdiff);
        for (int i = 0; i < n; ++i) w9[i] = std::fabs(c1[i] - c2[i]);
        trackhead("DC plot", "Number of data = ", n);
        curve(JWORK9, itop, n);
    }

    // 9. DEVI
    if (lrb && placeof(DEVI_PLACES, icmd, subplot, frame)) {
        slogbox(subplot, 11, DEPTHAXIS, frame, "DEVI");
        trackhead("DEVI plot", "Number of data = ", n);
        curve(w.JCOL(w.jdevi), itop, n);
    }

    // 10. HAZI
    if (lrb && placeof(HAZI_PLACES, icmd, subplot, frame)) {
        const int iaxis = 10;
        trackaxisrange(iaxis, p.haziorig, p.haziorig + 360.0f);
        slogbox(subplot, iaxis, DEPTHAXIS, frame, "HAZI");
        trackhead("HAZI plot", "Number of data = ", n);
        circularcurve(w.JCOL(w.jhazi), p.haziorig, itop, n);
    }

    // 11. RB
    if (lrb && placeof(RB_PLACES, icmd, subplot, frame)) {
        const int iaxis = 12;
        trackaxisrange(iaxis, p.rborig, p.rborig + 360.0f);
        slogbox(subplot, iaxis, DEPTHAXIS, frame, "RB");
        trackhead("RB plot", "Number of data = ", n);
        circularcurve(w.JCOL(w.jrb), p.rborig, itop, n);
    }

    // 12. RBCmax, already wrapped by stage 2; the lines mark the threshold
    // band around the top and bottom of the hole.
    if (lrb && placeof(RBCMAX_PLACES, icmd, subplot, frame)) {
        const int iaxis = 13;
        const float period = 180.0f;
        trackaxisrange(iaxis, p.rbcmaxorig, p.rbcmaxorig + period);
        slogbox(subplot, iaxis, DEPTHAXIS, frame, "RBCmax");
        const float at[4] = {p.rbcmaxthr, 0.0f, period - p.rbcmaxthr, period};
        for (float x : at) {
            float xw = 0.0f;
            modulro(&xw, &x, period, p.rbcmaxorig, 1);
            trackrefline(xw);
        }
        trackhead("RBCmax plot", "Number of data = ", n);
        ussymbol(column(JRBCMAX, itop), depth, n);
    }
}
