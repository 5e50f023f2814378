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

// AzCmax: the test pages use axis set 3, the |DC| page set 14.
struct azplace {
    trackplace at;
    int iaxis;
    std::string_view label;
};
constexpr azplace AZCMAX_PLACES[] = {
    {{302, 303, 4, 4}, AXAZCMAXTEST, "AzCmax[180]"},
    {{320, 320, 7, 4}, AXAZCMAXTEST, "AzCmax[180]"},
    {{321, 326, 3, 1}, AXAZCMAXTEST, "AzCmax[180]"},
    {{332, 335, 3, 1}, AXAZCMAXTEST, "AzCmax[180]"},
    {{350, 350, 10, 4}, AXAZCMAXCAT, "AzCmax"},
};
constexpr trackplace C12_PLACES[] = {
    {301, 301, 4, 4}, {304, 305, 3, 1}, {320, 320, 3, 1},  {351, 351, 9, 1},
    {355, 356, 9, 1}, {358, 358, 9, 1}, {357, 357, 29, 1}, {359, 362, 29, 1},
};
constexpr trackplace CMINMAX_PLACES[] = {{302, 303, 3, 1}};
constexpr trackplace XSECTION_PLACES[] = {{301, 301, 3, 1}};
constexpr trackplace C1MINUSC2_PLACES[] = {{320, 320, 5, 4}};
constexpr trackplace CMINBS_PLACES[] = {{320, 320, 6, 4}};
constexpr trackplace DC_PLACES[] = {
    {320, 320, 4, 4}, {350, 350, 9, 1}, {356, 356, 21, 4}, {358, 358, 21, 4},
    {357, 357, 30, 4}, {359, 362, 30, 4},
};
constexpr trackplace DEVI_PLACES[] = {{301, 301, 6, 4}, {304, 305, 5, 4}};
constexpr trackplace HAZI_PLACES[] = {{301, 301, 7, 4}, {304, 305, 6, 4}};
constexpr trackplace RB_PLACES[] = {{301, 301, 8, 2}, {304, 305, 7, 4}, {354, 354, 3, 1}};
constexpr trackplace RBCMAX_PLACES[] = {
    {320, 320, 8, 2}, {354, 354, 4, 4}, {356, 356, 22, 4}, {358, 358, 22, 4},
    {357, 357, 31, 4}, {359, 362, 31, 4},
};
constexpr circulartrack HAZI_TRACK{HAZI_PLACES, AXHAZI, "HAZI", "HAZI plot", false};
constexpr circulartrack RB_TRACK{RB_PLACES, AXRB, "RB", "RB plot", false};

// The gauge band and the saturation limits are drawn on these caliper
// pages; the saturation page (351) shows the limits only.
bool c12satlines(int icmd) { return icmd == 320 || icmd == 351 || (icmd >= 355 && icmd <= 362); }

void setcolour(int icol) { slinecolor(icol, 1); }

}  // namespace

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
    const int jc1 = w.JCOL(w.jc1);
    const int jc2 = lcal ? w.JCOL(w.jc2) : jc1;
    const int i0 = itop - 1;
    const float* c1 = w.RWD1.col(jc1) + i0;
    const float* c2 = w.RWD1.col(jc2) + i0;
    float* w9 = trackcolumn(JWORK9, itop);
    float* w10 = trackcolumn(JWORK10, itop);
    const float cbslo = p.bitsize + p.cbsmin;
    const float cbshi = p.bitsize + p.cbsmax;
    const trackplace* at = nullptr;

    // 1. AzCmax
    if (lazc) {
        for (const azplace& a : AZCMAX_PLACES) {
            if (icmd < a.at.first || icmd > a.at.last) continue;
            slogbox(a.at.subplot, a.iaxis, AXDEPTH, a.at.frame, a.label);
            trackhead("AzCmax plot", "Number of data = ", n);
            tracksymbols(w.JCOL(w.jazcmax), itop, n);
            break;
        }
    }

    // 2. Cross plot of AzCmax and |DC|, a box of its own rather than a
    // depth track: all four edges carry their scales.
    if (lazc && icmd == 101) {
        const int ixaxis = AXAZCMAXTEST, iyaxis = AXABSDC;
        {
            axisedit a(ixaxis);
            a.walab = "AzCmax[180]";
        }
        {
            boxedit b;
            b.ix = ixaxis;
            b.iy = iyaxis;
            b.left = b.right = b.bottom = b.top = 1;
        }
        int sub = 2;
        ssubplot(sub, 1);
        {
            mapedit m;
            g1axbd(m.xumin, m.xumax, ixaxis);
            g1axbd(m.yumin, m.yumax, iyaxis);
        }
        d1bx2d(1);

        for (int i = 0; i < n; ++i) w9[i] = std::fabs(c1[i] - c2[i]);
        trackhead("AzCmax - DC plot", "Number of data = ", n);
        trackpoints(trackcolumn(w.JCOL(w.jazcmax), itop), w9, n);
    }

    // 3. The calipers, or the one caliper of a "Depth,CAL" table.
    if ((at = trackplaceof(C12_PLACES, icmd))) {
        if (lcal)
            slogbox(at->subplot, AXDIAMETER, AXDEPTH, at->frame, "C1,C2 (cm)");
        else
            slogbox(at->subplot, AXDIAMETER, AXDEPTH, at->frame, w.NAMVAR(w.jc1).sv());
        trackhead("C12 plot", "Number of data = ", n);
        attributekept<int> colour(slinecolor);
        if (c12satlines(icmd)) {
            if (lcal) {
                setcolour(JCLR(1));
                trackrefline(p.c1sat);
                setcolour(JCLR(2));
                trackrefline(p.c2sat);
            }
            if (icmd != 351) {
                setcolour(colour.entry());
                trackrefline(cbslo);
                trackrefline(p.bitsize);
                trackrefline(cbshi);
            }
        }
        setcolour(JCLR(1));
        trackcurve(jc1, itop, n);
        if (lcal) {
            setcolour(JCLR(2));
            trackcurve(jc2, itop, n);
        }
    }

    // 4. Cmin and Cmax
    if (lcal && (at = trackplaceof(CMINMAX_PLACES, icmd))) {
        slogbox(at->subplot, AXDIAMETER, AXDEPTH, at->frame, "Cmin,Cmax");
        trackrefline(cbslo);
        trackrefline(cbshi);
        trackrefline(p.bitsize);
        for (int i = 0; i < n; ++i) {
            w10[i] = std::max(c1[i], c2[i]);
            w9[i] = std::min(c1[i], c2[i]);
        }
        trackhead("Cmin, Cmax plot", "Number of data = ", n);
        trackcurve(JWORK9, itop, n);
        trackcurve(JWORK10, itop, n);
    }

    // 5. Cross section: C1 to the right, C2 to the left, so that the log
    // reads as a profile of the hole.
    if (lcal && (at = trackplaceof(XSECTION_PLACES, icmd))) {
        slogbox(at->subplot, AXXSECTION, AXDEPTH, at->frame, "X-Section");
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
        trackcurve(JWORK9, itop, n);
        setcolour(JCLR(2));
        trackcurve(JWORK10, itop, n);
    }

    // 6. C1 - C2, with its sign
    if (lcal && (at = trackplaceof(C1MINUSC2_PLACES, icmd))) {
        slogbox(at->subplot, AXDC, AXDEPTH, at->frame, "(C1-C2)");
        for (int i = 0; i < n; ++i) w9[i] = c1[i] - c2[i];
        trackhead("C1-C2 plot", "Number of data = ", n);
        trackcurve(JWORK9, itop, n);
    }

    // 7. Cmin - bit size
    if (lcal && (at = trackplaceof(CMINBS_PLACES, icmd))) {
        slogbox(at->subplot, AXDC, AXDEPTH, at->frame, "Cmin-BS");
        for (int i = 0; i < n; ++i) w9[i] = std::min(c1[i], c2[i]) - p.bitsize;
        trackhead("Cmin-BS plot", "Number of data = ", n);
        trackcurve(JWORK9, itop, n);
    }

    // 8. |DC|
    if (lcal && (at = trackplaceof(DC_PLACES, icmd))) {
        slogbox(at->subplot, AXABSDC, AXDEPTH, at->frame, "|C1-C2|");
        trackrefline(p.cdiff);
        for (int i = 0; i < n; ++i) w9[i] = std::fabs(c1[i] - c2[i]);
        trackhead("DC plot", "Number of data = ", n);
        trackcurve(JWORK9, itop, n);
    }

    // 9. DEVI
    if (lrb && (at = trackplaceof(DEVI_PLACES, icmd))) {
        slogbox(at->subplot, AXDEVI, AXDEPTH, at->frame, "DEVI");
        trackhead("DEVI plot", "Number of data = ", n);
        trackcurve(w.JCOL(w.jdevi), itop, n);
    }

    // 10, 11. HAZI and RB
    if (lrb) {
        drawcircular(HAZI_TRACK, w.JCOL(w.jhazi), p.haziorig, itop, n, icmd);
        drawcircular(RB_TRACK, w.JCOL(w.jrb), p.rborig, itop, n, icmd);
    }

    // 12. RBCmax, already wrapped by stage 2; the lines mark the threshold
    // band around the top and bottom of the hole.
    if (lrb && (at = trackplaceof(RBCMAX_PLACES, icmd))) {
        const float period = 180.0f;
        trackaxisrange(AXRBCMAX, p.rbcmaxorig, p.rbcmaxorig + period);
        slogbox(at->subplot, AXRBCMAX, AXDEPTH, at->frame, "RBCmax");
        const float marks[4] = {p.rbcmaxthr, 0.0f, period - p.rbcmaxthr, period};
        for (float x : marks) {
            float xw = 0.0f;
            modulro(&xw, &x, period, p.rbcmaxorig, 1);
            trackrefline(xw);
        }
        trackhead("RBCmax plot", "Number of data = ", n);
        tracksymbols(JRBCMAX, itop, n);
    }
}
