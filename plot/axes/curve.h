// The curve buffer: plot routines build a curve of points in user units
// here before drawing it with usline, and keep its point count in ptblock.
#pragma once

#include "shell/fixed.h"

constexpr int NCURVEMAX = 1000;  // points the curve buffer holds

struct cc2dbuff_t {
    farr<float, NCURVEMAX> XCURVE;  // abscissae
    farr<float, NCURVEMAX> YCURVE;  // ordinates
};
extern cc2dbuff_t cc2dbuff;

struct ptblock_t {
    int npcurve;  // points in use in the curve
    int ipcurve;  // running index
};
extern ptblock_t ptblock;

// Sets the number of points in a curve (intera convention; 4, 5 give 11).
void scptnp(int& npcurve, const int& inter);
