// Axes and boxes: 15 numbered axis descriptions and one two-dimensional
// box, and the routines that draw them. An axis ties a user range (what the
// subplot's map works on) to an annotation range (what is written on the
// paper, possibly in other units). The box draws the four edges of the
// current subplot's rectangle, each as a plain line or a full axis.
#pragma once

#include <string_view>

#include "shell/fixed.h"

constexpr int MAXAXIS = 15;     // numbered axes
constexpr int MAXBOX = 1;       // numbered boxes: only box 1 exists
constexpr int AXLABLEN = 30;    // characters of an axis label
constexpr int BOXLABLEN = 25;   // characters of the box label

struct axisblk7a_t {
    farr<float, MAXAXIS> USA1;     // first user value
    farr<float, MAXAXIS> USA2;     // last user value
    farr<float, MAXAXIS> WAU1;     // first annotation value
    farr<float, MAXAXIS> WAU2;     // last annotation value
    farr<float, MAXAXIS> WAUD;     // annotation increment between tics
    farr<float, MAXAXIS> WALAS;    // annotation size, cm
    farr<float, MAXAXIS> WAOUS;    // annotation per user unit (IUSWDTYP 2)
    farr<int, MAXAXIS> NAWDIG;     // digits after the point; 0 writes integers
    farr<int, MAXAXIS> NASUBINT;   // subtic intervals between tics
    farr<int, MAXAXIS> NLABINTK;   // tic intervals between numbers
    farr<int, MAXAXIS> IUSWDTYP;   // 0 independent, 1 user = annotation, 2 scaled
    int ixaxisbx;                  // axis number of the box's x axis
    int iyaxisbx;                  // axis number of the box's y axis
    int iclipbx;                   // clipping flag: stored only, no drawing reads it
    int izerobx;                   // 1 draws the lines x = 0 and y = 0
    farr<int, 6> IBBORDER;         // edge types: left, right, bottom, top
};
extern axisblk7a_t axisblk7a;

struct axisblk7b_t {
    farr<fstr<AXLABLEN>, MAXAXIS> WALAB;  // axis labels
    fstr<BOXLABLEN> walabbx;              // box label
};
extern axisblk7b_t axisblk7b;

// ---------------------------------------------------------------------------
// Setting up. inter: 2, 3 and 10 fetch the stored values into the arguments,
// 4 and 5 take the defaults, 0 and 1 the caller's; an even value shows the
// menu.

// Initialises all axes (4, 5) or shows the axis menu (even).
void snaxis(const int& inter);
// Sets, gets or asks one axis.
void s1axis1(float& USA1, float& USA2, float& WAU1, float& WAU2, float& WAUD, float& WALAS,
             fstr_ref WALAB, int& NAWDIG, int& NASUBINT, int& NLABINTK, const int& iaxis,
             const int& inter);
// The same without NLABINTK, which stays as stored (the box's own menu).
void s1axis(float& USA1, float& USA2, float& WAU1, float& WAU2, float& WAUD, float& WALAS,
            fstr_ref WALAB, int& NAWDIG, int& NASUBINT, const int& iaxis, const int& inter);
// The link between user units and annotation of one axis.
void s1axuswdtyp(int& IUSWDTYP, float& WAOUS, const int& iaxis, const int& inter);
// The user bounds of an axis; [0, 10] for an axis number out of range.
void g1axbd(float& usa1, float& usa2, const int& iaxis);
// Sets, gets or asks the box (ibox must be 1).
void s1bx2d(int& ixaxisbx, int& iyaxisbx, int& left, int& right, int& bottom, int& top,
            int& iclipbx, int& izerobx, fstr_ref boxlabel, const int& ibox, const int& inter);

// ---------------------------------------------------------------------------
// Drawing.

// Draws the box from its stored axes, in the current subplot.
void d1bx2d(const int& ibox);
// Draws a box from explicit data in the current subplot: the user ranges,
// the eight annotation fields of each axis, the zero line switch and the
// edge types of top, bottom, left and right (0 a plain line, else an axis).
void usbax6(const float& xfirst, const float& xlast, const float& yfirst, const float& ylast,
            const float& xWAU1, const float& xWAU2, const float& xWAUD, std::string_view xWALAB,
            const int& xNAWDIG, const float& xWALAS, const int& xNASUBINT, const int& xNLABINTK,
            const float& yWAU1, const float& yWAU2, const float& yWAUD, std::string_view yWALAB,
            const int& yNAWDIG, const float& yWALAS, const int& yNASUBINT, const int& yNLABINTK,
            const int& izerobx, const int& top, const int& bottom, const int& left,
            const int& right);
// Draws one axis from (x0, y0) to (x1, y1) on the paper, in cm: the line,
// tics at ticangle degrees to the direction of travel (+90 to the left),
// subtics, numbers (iorient 2 along the axis, else along the tics) and the
// label.
void cmaxis11(const float& x0, const float& y0, const float& x1, const float& y1,
              const float& ticangle, const int& NASUBINT, const int& NLABINTK, const float& WAU1,
              const float& WAU2, const float& WAUD, const int& NAWDIG, const float& WALAS,
              const int& iorient, std::string_view WALAB);
// Draws ntics tics from ORIG, DTIC apart, each the vector VTIC; between two
// tics NASUBINT - 1 subtics of VTIC x ratio, and nrest after the last one.
void cmtic2(const farr<float, 2>& ORIG, const farr<float, 2>& DTIC, const farr<float, 2>& VTIC,
            const float& ratio, const int& ntics, const int& NASUBINT, const int& nrest);
