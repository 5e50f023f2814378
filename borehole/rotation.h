// The numerical steps of log_rot_plot: how fast the logging tool turns
// about its axis, in degrees per metre, from the pad 1 azimuth. The
// azimuth is unwrapped into one continuous curve; the rate at a point comes
// from the rows of an interval around it, from row i - kfwd to row
// i + kbwd, either as the difference of its two ends or as the slope fitted
// through all of them. Near the ends of the data the interval is cut short
// against the first or last sample. Rows are 1-based; arrays are passed as
// a pointer to row 1.
#pragma once

#include "shell/fixed.h"

// The reach of the interval of icmd toward the first (kfwd) and the last
// sample (kbwd); false for a command that draws no rotation.
bool rotoffsets(int& kfwd, int& kbwd, int icmd, int nrotf, int nrotc);

// p1az(1..n) unwrapped into azu(1..n): azu(1) in [azorig, azorig + 360),
// every later step the shorter way round, a half turn counting as -180.
void rotunwrap(float* azu, const float* p1az, int n, float azorig);

// Which points of a selection get a rate, and by which rows. Rows head1 to
// head2 (near the first sample) run from row 1, whole1 to whole2 have their
// whole interval, tail1 to tail2 (near the last sample) run to the last
// row; an empty segment has its first above its last. A point whose
// interval would be a single row is left out.
struct rotcase_t {
    fstr<12> label;  // "Case 1" ... "Case 5a+d" ...
    int first, last; // rows of the curve
    int head1, head2, whole1, whole2, tail1, tail2;
};
void rotcase(rotcase_t& c, int itop, int ibot, int kfwd, int kbwd, int ndat);

// rotv(i) for the rows of c, each segment in ascending order: minus the
// slope of azu against depth, from the two ends of the interval or (lsq)
// fitted through all its rows.
void rotrates(float* rotv, const float* azu, const float* depth, const rotcase_t& c, int kfwd,
              int kbwd, int ndat, bool lsq);
