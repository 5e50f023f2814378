// The rotation tracks. A run is refused, with nothing drawn, when the
// command, the data or the selection leave no interval to work on; else
// each of the two curves the command asks for is planned, computed into
// work column 10, reported and drawn, one after the other.
#include "borehole/rotation.h"

#include "borehole/tracks.h"
#include "math/angles.h"
#include "math/lstsq1.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/sio.h"
#include "shell/textlen.h"
#include "well/welldat.h"
#include "well/wellpara.h"

namespace {

constexpr version_block VB_LOG_ROT_PLOT{"log_rot_plot        ", " 4.2", "2019-10-23"};

constexpr int JAZU = JWORK9;    // unwrapped azimuth
constexpr int JROTV = JWORK10;  // rotation rate of the curve being drawn

// Where each command draws its two curves.
constexpr trackplace RATE_PLACES[] = {{302, 303, 7, 4}, {304, 304, 8, 2}, {353, 353, 4, 4}};
constexpr trackplace LSQ_PLACES[] = {{302, 303, 8, 2}, {305, 305, 8, 2}, {353, 353, 5, 4}};

void labelled(std::string_view text, int value) {
    writef(iocom.isout, "(1x,a,1x,i6,1x,a)", text, value);
}

// Ends a refusal: the page keeps what it has, the tracks stay empty.
void skipping() {
    textline("=> SKIPPING ROTATION CALCULATIONS");
    warningtail00();
}

// The rows of the interval of point i by the form of its segment.
enum class rotform { head, whole, tail };

void segment(float* rotv, const float* azu, const float* depth, rotform form, int from, int to,
             int kfwd, int kbwd, int ndat, bool lsq) {
    for (int i = from; i <= to; ++i) {
        const int r1 = form == rotform::head ? 1 : i - kfwd;
        const int r2 = form == rotform::tail ? ndat : i + kbwd;
        if (lsq) {
            float a1 = 0.0f, b1 = 0.0f;
            const int n = r2 - r1 + 1;
            lstsq1(a1, b1, depth + (r1 - 1), azu + (r1 - 1), n);
            rotv[i - 1] = -a1;
        } else {
            // Equal depths at both ends leave no finite rate; it is drawn
            // as it comes.
            rotv[i - 1] = -(azu[r2 - 1] - azu[r1 - 1]) / (depth[r2 - 1] - depth[r1 - 1]);
        }
    }
}

}  // namespace

bool rotoffsets(int& kfwd, int& kbwd, int icmd, int nrotf, int nrotc) {
    if (icmd == 302 || icmd == 353) {
        kfwd = 0;
        kbwd = nrotf;
        return true;
    }
    if (icmd == 303 || icmd == 304 || icmd == 305) {
        kfwd = nrotc / 2;
        kbwd = nrotc / 2;
        return true;
    }
    return false;
}

void rotunwrap(float* azu, const float* p1az, int n, float azorig) {
    if (n < 1) return;
    const float period = 360.0f;
    modulro(azu, p1az, period, azorig, 1);
    for (int i = 1; i < n; ++i) {
        const float origin = azu[i - 1] - 180.0f;
        modulro(azu + i, p1az + i, period, origin, 1);
    }
}

void rotcase(rotcase_t& c, int itop, int ibot, int kfwd, int kbwd, int ndat) {
    const int it1 = kfwd + 1;     // first row with a whole interval
    const int ib1 = ndat - kbwd;  // last such row
    // A selection end whose point would have an interval of one row.
    const bool topzero = itop < 2 && kbwd < 1;
    const bool botzero = ibot > ndat - 1 && kfwd < 1;
    c.label = "Case ";
    c.first = itop;
    c.last = ibot;
    c.head1 = c.whole1 = c.tail1 = 1;
    c.head2 = c.whole2 = c.tail2 = 0;

    // The top of the selection in the head zone (Cases 4, 5 and 6), rows
    // itop to last. With point 1 left out, a head zone of that point alone
    // (letter c) is dropped; Case 6 never drops it.
    auto head = [&](int last, bool dropalone) {
        if (!topzero) {
            c.label(7) = 'a';
            c.head1 = itop;
            c.head2 = last;
        } else if (kfwd > 1 || !dropalone) {
            c.label(7) = 'b';
            c.head1 = c.first = itop + 1;
            c.head2 = last;
        } else {
            c.label(7) = 'c';
            c.first = it1;
        }
    };
    // The bottom in the tail zone (Cases 2, 3 and 5), rows from to ibot,
    // likewise with the last point; the letters of a Case 5 go behind a '+'.
    auto tail = [&](int from, bool dropalone, int at, const char* letters) {
        if (!botzero) {
            c.label(at) = letters[0];
            c.tail1 = from;
            c.tail2 = ibot;
        } else if (kbwd > 1 || !dropalone) {
            c.label(at) = letters[1];
            c.tail1 = from;
            c.tail2 = c.last = ibot - 1;
        } else {
            c.label(at) = letters[2];
            c.last = ib1;
        }
    };

    if (itop >= it1) {
        if (ibot <= ib1) {
            c.label(6) = '1';
            c.whole1 = itop;
            c.whole2 = ibot;
        } else if (itop < ib1) {
            c.label(6) = '2';
            c.whole1 = itop;
            c.whole2 = ib1;
            tail(ib1 + 1, true, 7, "abc");
        } else {
            c.label(6) = '3';
            tail(itop, false, 7, "abb");
        }
    } else if (ibot < it1) {
        c.label(6) = '6';
        head(ibot, false);
    } else if (ibot <= ib1) {
        c.label(6) = '4';
        head(kfwd, true);
        c.whole1 = it1;
        c.whole2 = ibot;
    } else {
        c.label(6) = '5';
        head(kfwd, true);
        c.whole1 = it1;
        c.whole2 = ib1;
        c.label(8) = '+';
        tail(ib1 + 1, true, 9, "def");
    }
}

void rotrates(float* rotv, const float* azu, const float* depth, const rotcase_t& c, int kfwd,
              int kbwd, int ndat, bool lsq) {
    segment(rotv, azu, depth, rotform::head, c.head1, c.head2, kfwd, kbwd, ndat, lsq);
    segment(rotv, azu, depth, rotform::whole, c.whole1, c.whole2, kfwd, kbwd, ndat, lsq);
    segment(rotv, azu, depth, rotform::tail, c.tail1, c.tail2, kfwd, kbwd, ndat, lsq);
}

void log_rot_plot(const int& itop, const int& ibot, const int& nrotf, const int& nrotc,
                  const int& icmd) {
    welldat_t& w = welldat;
    const int ndat = w.ndatwd;
    int kfwd = 0, kbwd = 0;
    if (!rotoffsets(kfwd, kbwd, icmd, nrotf, nrotc)) {
        warninghead(VB_LOG_ROT_PLOT);
        textline("ROTATION CALCULATIONS:");
        textline("accepted commands = 302,303,304,305,353");
        labelled("current command =", icmd);
        textline("UNRECOGNIZED COMMAND");
        return skipping();
    }
    if (ndat < 2) {
        warninghead(VB_LOG_ROT_PLOT);
        textline("ROTATION CALCULATIONS REQUIRE > 1 POINTS");
        labelled("Total data top    index         =", 1);
        labelled("Total data bottom index         =", ndat);
        labelled("Total number of data            =", ndat);
        textline("NOT ENOUGH DATA TO PROCEED");
        return skipping();
    }
    if (itop >= ibot) {
        warninghead(VB_LOG_ROT_PLOT);
        textline("ROTATION CALCULATIONS REQUIRE > 1 POINTS");
        labelled("Selected range top    index     =", itop);
        labelled("Selected range bottom index     =", ibot);
        labelled("Selected range number of points =", ibot - itop + 1);
        textline("SELECTED RANGE TOO NARROW");
        return skipping();
    }
    if (kfwd + kbwd < 1) {
        warninghead(VB_LOG_ROT_PLOT);
        textline("ROTATION INTERVAL REQUIRES > 1 POINTS");
        labelled("Forward  offset                 =", kfwd);
        labelled("Backward offset                 =", kbwd);
        textline("ROTATION INTERVAL TOO NARROW");
        return skipping();
    }
    if (kfwd + kbwd > ndat - 1) {
        warninghead(VB_LOG_ROT_PLOT);
        textline("ROTATION INTERVAL > FULL DATA RANGE");
        labelled("Forward  offset                 =", kfwd);
        labelled("Backward offset                 =", kbwd);
        labelled("number of data in interval      =", kfwd + kbwd + 1);
        labelled("Total number of data            =", ndat);
        textline("ROTATION INTERVAL TOO WIDE");
        return skipping();
    }

    // Only the rows some interval reaches are unwrapped, so the curve's
    // level depends on where the selection starts; the rates only through
    // the rounding of the single-precision fit, which grows with the level.
    const int ia = itop - kfwd > 1 ? itop - kfwd : 1;
    const int ib = ibot + kbwd < ndat ? ibot + kbwd : ndat;
    float* azu = w.RWD1.col(JAZU);
    float* rotv = w.RWD1.col(JROTV);
    const float* depth = w.RWD1.col(w.JCOL(w.jdepth));
    rotunwrap(azu + (ia - 1), w.RWD1.col(w.JCOL(w.jp1az)) + (ia - 1), ib - ia + 1,
              wellpara.azorig);

    for (const bool lsq : {false, true}) {
        const trackplace* at = trackplaceof(lsq ? LSQ_PLACES : RATE_PLACES, icmd);
        if (!at) continue;
        slogbox(at->subplot, AXROTATION, AXDEPTH, at->frame,
                lsq ? "Rot_lsq (deg/m)" : "Rot_rate (deg/m)");
        rotcase_t c;
        rotcase(c, itop, ibot, kfwd, kbwd, ndat);
        rotrates(rotv, azu, depth, c, kfwd, kbwd, ndat, lsq);
        textline(DASHED);
        textline(lsq ? "Rotation plot 2 : least square rate"
                     : "Rotation plot 1 : simple difference");
        textline(trimmed(c.label.sv()));
        labelled("First data index = ", c.first);
        labelled("Last  data index = ", c.last);
        labelled("Number of data   = ", c.last - c.first + 1);
        textline(DASHED);
        trackcurve(JROTV, c.first, c.last - c.first + 1);
    }
}
