// Pages, subplots and coordinate systems: the drawing surface every plot
// routine works on. Three systems are chained by affine maps:
//   US  user units of a subplot (depth, degrees, caliper ...)
//   CM  centimetres on the paper, origin at the lower left of the page
//   DE  device units (PostScript points), the same origin
// Each map is a 2 x 2 matrix and an offset; the US maps are kept per
// subplot, and the current subplot is the one all conversions and drawing
// routines use.
#pragma once

#include <string_view>

#include "plot/attributes.h"
#include "shell/fixed.h"

constexpr int MAXSUBPLOT = 40;   // number of subplots in the table
constexpr int PLTBUFFSIZE = 501; // points in one slice of a polyline

// One 2 x 2 matrix for each subplot, held as a 2 x 2 x 40 table whose first
// index runs fastest: M(i,j,k) is element (i,j) of subplot k's matrix, and
// M(k) the whole matrix of subplot k.
struct submat22 {
    farr2<float, 2, 2> m[MAXSUBPLOT];

    float& operator()(int i, int j, int k) { return at(k)(i, j); }
    float operator()(int i, int j, int k) const { return at(k)(i, j); }
    farr2<float, 2, 2>& operator()(int k) { return at(k); }
    const farr2<float, 2, 2>& operator()(int k) const { return at(k); }

private:
    farr2<float, 2, 2>& at(int k) { assert(k >= 1 && k <= MAXSUBPLOT); return m[k - 1]; }
    const farr2<float, 2, 2>& at(int k) const {
        assert(k >= 1 && k <= MAXSUBPLOT);
        return m[k - 1];
    }
};

struct plt1blk_t {
    farr2<float, 2, MAXSUBPLOT> CM0TODE;    // CM -> DE offset; always 0
    farr2<float, 2, 2> CMTODE;              // CM -> DE matrix, all subplots
    float cm2descale;                       // device units per cm
    farr2<float, 2, MAXSUBPLOT> US0TODE;    // US -> DE offset
    submat22 USTODE;                        // US -> DE matrix
    farr2<float, 2, MAXSUBPLOT> US0TOCM;    // US -> CM offset
    submat22 USTOCM;                        // US -> CM matrix: xx xy / yx yy
    farr2<float, 2, MAXSUBPLOT> CM0TOUS;    // CM -> US offset
    submat22 CMTOUS;                        // CM -> US matrix
    farr2<float, 2, MAXSUBPLOT> USMINTOCM;  // xcm0, ycm0
    farr2<float, 4, MAXSUBPLOT> USEXTR;     // xumin, xumax, yumin, yumax
    farr2<float, 2, MAXSUBPLOT> CMAXLENGTH; // xlcm, ylcm
    farr<int, MAXSUBPLOT> ISOXY;            // 1: x and y scale forced equal
    int isubplot;                           // current subplot
};
extern plt1blk_t plt1blk;

// The buffer every polyline, polygon and symbol passes through on its way to
// the device.
struct pltbuff1_t {
    farr<float, PLTBUFFSIZE> XDEVBUFF;
    farr<float, PLTBUFFSIZE> YDEVBUFF;
};
extern pltbuff1_t pltbuff1;

// The subplot names SUBPLOTITLE live in pltcharblk, with the colour names
// (plot/attributes.h).

// ---------------------------------------------------------------------------
// The plot file and its pages.

// Opens the plot (a plot already open is kept and drawn on). inter 2 or 3
// carries the subplot maps and attributes of the previous plot into the new
// file; any other value starts from the defaults. name is updated to the
// name actually opened.
void plinit(fstr_ref name, const int& inter);
void plend();
// Offers: a new page, a new file, or drawing on over the same page.
void newpage();

// ---------------------------------------------------------------------------
// Subplots and maps.

// inter 4 and 5 initialise every subplot's map; 7 brings the maps set before
// into a newly opened file.
void splotscaling(const int& inter);
// Selects (0, 1), reports (2, 3) or resets to 1 (4 to 7) the current subplot.
void ssubplot(int& nsub, const int& inter);
// The current subplot's map: imat 1 US -> CM, imat 3 US -> DE; inter 2 or 3.
void splotunits(farr<float, 2>& V0TOW, farr2<float, 2, 2>& VTOW, const int& imat,
                const int& inter);

// Set the current subplot's US -> CM map (inter 6 and 7: all subplots) by
// offset and matrix, by matrix and a fixed point, or by user limits and a box.
void sus2cm1(float& xcm0, float& ycm0, float& xx, float& xy, float& yx, float& yy,
             const int& inter);
void sus2cm2(float& xcm0, float& ycm0, float& xu0, float& yu0, float& xx, float& xy, float& yx,
             float& yy, const int& inter);
void sus2cm3(float& xcm0, float& ycm0, float& xlcm, float& ylcm, float& xumin, float& xumax,
             float& yumin, float& yumax, int& ixy, const int& inter);
// Their panels: show the values and let the user change them.
void mus2cm1(float& xcm0, float& ycm0, float& xx, float& xy, float& yx, float& yy);
void mus2cm2(float& xcm0, float& ycm0, float& xu0, float& yu0, float& xx, float& xy, float& yx,
             float& yy);
void mus2cm3(float& xcm0, float& ycm0, float& xlcm, float& ylcm, float& xumin, float& xumax,
             float& yumin, float& yumax, int& ixy);

// Derived maps: CM -> DE (plot open only), CM -> US and US -> DE of the
// current subplot.
void scm2de();
void scm2us();
void sus2de();

// Conversions of n points through the current subplot's maps; arrays
// x(1..n) are passed as a pointer to x(1), and the output may be the input.
void us2cm(float* xout, float* yout, const float* xin, const float* yin, const int& n);
void us2de(float* xout, float* yout, const float* xin, const float* yin, const int& n);

// Draws n points in slices of at most PLTBUFFSIZE that share their end
// points: each slice is converted to device units and handed to draw;
// between(n), if given, runs between two slices.
using convert_fn = void (*)(float*, float*, const float*, const float*, const int&);
using slice_fn = void (*)(float*, float*, const int&);
void draw_sliced(const float* x, const float* y, int n, convert_fn convert, slice_fn draw,
                 void (*between)(int n) = nullptr);
void cm2de(float* xout, float* yout, const float* xin, const float* yin, const int& n);
void cm2us(float* xout, float* yout, const float* xin, const float* yin, const int& n);
void lengthcm2de(float& out, const float& in);

// ---------------------------------------------------------------------------
// Drawing in user or cm coordinates of the current subplot.

void usline(const float* x, const float* y, const int& n);
void cmline(const float* x, const float* y, const int& n);
void ustext2(const float& x, const float& y, std::string_view text);
void cmtext2(const float& x, const float& y, std::string_view text);

// Copies the points is .. min(is+nmax-1, n) of x, y into xb, yb; nb gets
// their count and is the index of the last one copied.
void buffer2(float* xb, float* yb, const int& nmax, int& nb, const float* x, const float* y,
             const int& n, int& is);
