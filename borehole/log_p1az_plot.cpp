// The pad 1 azimuth against depth. As the tool turns, P1Az wraps again and
// again; the two loop tracks cut the curve at each wrap and draw each piece
// alone, so that no line crosses the box from edge to edge, and list the
// pieces on the console. The third track draws the wrapped curve whole.
#include <cmath>

#include "borehole/tracks.h"
#include "borehole/wellplot.h"
#include "math/angles.h"
#include "plot/pages.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/sio.h"
#include "well/welldat.h"
#include "well/wellpara.h"

namespace {

constexpr int IWDWRAP = 1;  // IWD1 column that holds the quarter number

constexpr trackplace P1AZ360_PLACES[] = {
    {301, 301, 5, 4}, {302, 303, 6, 4}, {304, 305, 4, 4}, {353, 353, 3, 1},
    {357, 357, 32, 4}, {359, 360, 32, 4},
};
// Wrapped from origin 0 as well: P1Az runs past a whole turn as the tool
// spins.
constexpr circulartrack P1AZ360_TRACK{P1AZ360_PLACES, AXAZ360, "P1Az [360]",
                                      "P1Azimuth [0, 360] plot", true};

// What ends a piece at row i (of the piece that starts at row a).
enum class breaktest { quarter, jump };

bool breaks(breaktest t, int a, int i) {
    const welldat_t& w = welldat;
    if (t == breaktest::quarter) return w.IWD1(i, IWDWRAP) != w.IWD1(a, IWDWRAP);
    return std::fabs(w.RWD1(i, JWORK9) - w.RWD1(i - 1, JWORK9)) > 90.0f;
}

// Cuts rows itop..ibot of work column 9 into pieces by the break test,
// lists each piece and draws it right after.
void loops(breaktest t, int itop, int ibot) {
    welldat_t& w = welldat;
    const int jdep = w.JCOL(w.jdepth);
    const int out = iocom.isout;
    writef(out, "(1x, 2('|',a5), 2('|',a8  ),'|', a6,'|')", "index", "index", "depth", "depth",
           "nb of");
    writef(out, "(1x, 2('|',a5), 2('|',a8  ),'|', a6,'|')", "initl", "final", "initl", "final",
           "points");
    textline(DASHED);
    int a = itop;
    for (;;) {
        int i = a + 1;
        while (i <= ibot && !breaks(t, a, i)) ++i;
        const int last = i - 1;
        const int np = i - a;
        writef(out, "(1x, 2('|',i5), 2('|',f8.1),'|', i6,'|')", a, last, w.RWD1(a, jdep),
               w.RWD1(last, jdep), np);
        trackline(&w.RWD1(a, JWORK9), &w.RWD1(a, jdep), np);
        if (last >= ibot) break;
        a = i;
    }
    textline(DASHED);
}

}  // namespace

void log_p1az_plot(const int& itop, const int& ibot, const int& icmd) {
    welldat_t& w = welldat;
    const wellpara_t& p = wellpara;
    const int n = ibot - itop + 1;
    if (n < 1) return;
    const int jaz = w.JCOL(w.jp1az);
    const int i0 = itop - 1;
    const float* p1az = w.RWD1.col(jaz) + i0;
    float* w9 = trackcolumn(JWORK9, itop);

    // 1. Folded on a quarter turn, one loop per quarter.
    if (icmd == 302 || icmd == 303) {
        slogbox(5, AXAZ90, AXDEPTH, 4, "P1Az [90]");
        int* q = w.IWD1.col(IWDWRAP) + i0;
        for (int i = 0; i < n; ++i) {
            // An exact negative multiple of 90 falls a quarter too low and
            // shows as 90: the track's range is closed at its top.
            // A value that is no angle (NaN, overflow) stays in quarter 0.
            const float t = std::trunc(p1az[i] / 90.0f);
            int k = std::fabs(t) < 1.0e9f ? int(t) : 0;
            if (p1az[i] < 0.0f) --k;
            q[i] = k;
            w9[i] = p1az[i] - 90.0f * float(k);
        }
        trackhead("P1Azimuth [0, 90] offset loop plot", "Total number of data = ", n);
        loops(breaktest::quarter, itop, ibot);
    }

    // 2. Folded on a half turn from the AzCmax origin, cut where two
    // neighbours lie more than half the period apart.
    if (icmd == 361 || icmd == 362) {
        slogbox(37, AXAZCMAXCAT, AXDEPTH, 4, "Azimuth [180]");
        const float period = 180.0f;
        modulro(w9, p1az, period, p.azcmaxorig, n);
        trackhead("P1Azimuth [azcmx0, azcmx0+180 [ offset loop plot", "Total number of data = ",
                  n);
        loops(breaktest::jump, itop, ibot);
    }

    // 3. Wrapped on a whole turn, one curve: here the jumps cross the box.
    drawcircular(P1AZ360_TRACK, jaz, p.azorig, itop, n, icmd);
}
