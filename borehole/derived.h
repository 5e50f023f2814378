// The quantities every log analysis stands on, computed by logplot2 in two
// stages and kept in welldat: which caliper is the larger one (Cmax), the
// azimuth AzCmax of the larger diameter, its bearing RBCmax from the top of
// the hole (RWD1 column 13), the size code of the caliper pair, and the
// results of the DC and RB tests (IWD1 columns).
//
// Stage 1 runs on each entry to logplot2, over all rows; stage 2 before a
// plot command while the computations are out of date, over the selected
// depth interval. The track routines only read the results.
#pragma once

#include "shell/fixed.h"
#include "shell/frames.h"

// logplot2's version block: the frames of both stages are logplot2's own.
inline constexpr version_block VB_LOGPLOT2{"logplot2   ", "23.0", "2020-11-08"};

// The five columns of IWD1. logplot2 keeps them in locals and passes them
// on, so that no track uses the literal numbers.
inline constexpr int IWD_WORK = 1;  // icwork: result of the test being drawn
inline constexpr int IWD_SIZE = 2;  // icsize: size code, 10 to 110
inline constexpr int IWD_DC = 3;    // icdc: 1 where |C1 - C2| >= cdiff (or NaN)
inline constexpr int IWD_MAX = 4;   // icmax: 1 when C1 is the larger, 2 when C2
inline constexpr int IWD_RB = 5;    // icrb: 1 where Cmax stands off the top-bottom line

// Fixed column of RWD1 holding RBCmax.
inline constexpr int JRBCMAX = 13;

// Size codes, first letter Cmin, second Cmax: R restricted (below the gauge
// band), G in gauge, E enlarged, S saturated.
inline constexpr int CS_RR = 10, CS_RG = 20, CS_RE = 30, CS_RS = 40, CS_GG = 50, CS_GE = 60,
                     CS_GS = 70, CS_EE = 80, CS_ES = 90, CS_SE = 100, CS_SS = 110;
// The name of a size code ("R+R" ... "S+S"); "???" for any other value.
const char* csizename(int code);

// The size code of one pair. All comparisons are strict (a value on a limit
// falls into the upper class) and a NaN on either side is never below.
// cbslo, cbshi: ends of the gauge band; cminsat, cmaxsat: saturation limits
// of the caliper that is Cmin and of the one that is Cmax.
inline int csizecode(float cmin, float cmax, float cbslo, float cbshi, float cminsat,
                     float cmaxsat) {
    if (cmin < cbslo) {
        if (cmax < cbslo) return CS_RR;
        if (cmax < cbshi) return CS_RG;
        if (cmax < cmaxsat) return CS_RE;
        return CS_RS;
    }
    if (cmin < cbshi) {
        if (cmax < cbshi) return CS_GG;
        if (cmax < cmaxsat) return CS_GE;
        return CS_GS;
    }
    if (cmin < cminsat) {
        if (cmax < cmaxsat) return CS_EE;
        return CS_ES;
    }
    if (cmax < cmaxsat) return CS_SE;
    return CS_SS;
}

// The data-type flags of the current well type: ldata (something to plot:
// 100, 110, 200, 210, 300), lcal (P1Az, C1, C2: 100 to 210), lazc (AzCmax:
// 110, 210), lrb (RB, DEVI, HAZI: 200, 210).
void logdataflags(bool& ldata, bool& lcal, bool& lazc, bool& lrb);

// The error frame of a plot menu entered without data it can draw.
void nodataframe(const version_block& vb);

// Step 3 of entering logplot2: the flags, the caliper columns jcc(1) =
// JCOL(jc1) (with ldata) and jcc(2) = JCOL(jc2) (with lcal), and the error
// frame "PLOTTING DISABLED" when there is nothing to plot. jcc is left as
// it was where its caliper doesn't exist.
void logdatacheck(farr<int, 2>& jcc, bool& ldata, bool& lcal, bool& lazc, bool& lrb);

// Stage 1, over rows 1 to ndatwd; does nothing unless lcal. Sets the Cmax
// index in column icmax of IWD1 and, by the case of lazc and lrb, AzCmax
// and RBCmax. Without AzCmax the type is first extended (100 -> 110,
// 200 -> 210) and lazc comes back true.
void logstage1(bool& lazc, const farr<int, 2>& jcc, int icmax, bool lcal, bool lrb);

// Stage 2, only while lupdate is true (otherwise it returns at once with
// ierr 0 and nothing changed). Wraps AzCmax into [azcmaxorig, +180), selects
// the rows itop..ibot of the depths in [ztop, zbot], and over them sets the
// size, DC and RB codes and wraps RBCmax into [rbcmaxorig, +180).
// ierr 0: done, lupdate is now false. ierr 1 or 2: the depth selection
// failed (a warning frame "=> SKIPPING PLOT" was shown); itop, ibot, nsel
// and lupdate are unchanged and the caller ends the pass without drawing.
// With ldata false nothing is read: itop 1, ibot 0, nsel 0.
void logstage2(int& ierr, int& itop, int& ibot, int& nsel, bool& lupdate, const farr<int, 2>& jcc,
               int icsize, int icdc, int icmax, int icrb, bool ldata, bool lcal, bool lrb);

// Appends (x(i), y(i)) to (xout, yout) for each i = 1..n, in order, where
// key(i) equals value; nout is the number kept (0 for n <= 0). The outputs
// must not overlap the inputs ahead of what has been read.
void extractxy(float* xout, float* yout, int& nout, const float* x, const float* y,
               const int* key, int n, int value);
