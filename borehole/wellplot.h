// Log layouts: the numbered subplots that make the rows of narrow track
// boxes on a landscape or portrait A4 page, the 15 axis sets the tracks
// share, and slogbox, the one way a track takes its box.
//
// Subplots (all in cm, W x H the page: 30 x 21 landscape, 21 x 30 portrait):
//   1        fixed scale for perspectives, origin at the page centre
//   2        one full-width log box
//   3 - 8    six equal log boxes
//   9 - 20   twelve boxes, 9 wider; 21, 22 (wide) cover 10 - 12
//   29 - 36  eight boxes, 29 - 32 wider; 37 (wide) covers 32 - 34
//   23 - 28  six 6 x 6 statistics boxes
// Axis sets: 1 depth, 2 azimuth [90], 3 AzCmax [180] (test pages),
// 4 diameter, 5 DC, 6 |DC|, 7 azimuth [360], 8 rotation, 9 percent,
// 10 HAZI, 11 DEVI, 12 RB, 13 RBCmax [180], 14 AzCmax [180] (category
// pages), 15 cross section.
#pragma once

#include <string_view>

#include "shell/frames.h"

// The axis sets by name.
inline constexpr int AXDEPTH = 1;
inline constexpr int AXAZ90 = 2;
inline constexpr int AXAZCMAXTEST = 3;  // AzCmax [180] of the test pages
inline constexpr int AXDIAMETER = 4;
inline constexpr int AXDC = 5;
inline constexpr int AXABSDC = 6;
inline constexpr int AXAZ360 = 7;
inline constexpr int AXROTATION = 8;
inline constexpr int AXPERCENT = 9;
inline constexpr int AXHAZI = 10;
inline constexpr int AXDEVI = 11;
inline constexpr int AXRB = 12;
inline constexpr int AXRBCMAX = 13;
inline constexpr int AXAZCMAXCAT = 14;  // AzCmax [180] of the category pages
inline constexpr int AXXSECTION = 15;

struct wellplot_t {
    bool llandscape;  // landscape page if true, portrait if false
    int jclrc1;       // line colour of the C1 curve
    int jclrc2;       // line colour of the C2 curve
};
extern wellplot_t wellplot;

inline constexpr version_block VB_SWELLPLOT{"swellplot  ", " 9.0", "2020-10-19"};

// Builds all subplots 1 to 37 for the orientation in wellplot.llandscape.
void swellsubplot();

// Command 11 of the plot menus: asks for the page orientation of the
// layouts and builds every subplot again if it changes. The menus word the
// question each their own way; some set the note between rules.
void swellorientation(std::string_view question, bool rules);

// 4 or 5 initialise wellplot, the subplots and the axis sets; an even
// value shows the layout menu (4 after initialising).
void swellplot(const int& intera);

// Takes subplot isubplot as the current one, with axis set ixaxis across
// (relabelled for good with label) and iyaxis down, its map set to the
// bounds of both axis sets: the first bound of iyaxis at the top of the
// box, so depth grows downwards. Tracks then draw in those user units with
// usline and ussymbol. iframe: 1 scale on the left only, 2 on the
// right only, 3 both, 4 neither, all four drawing the box; 0 draws nothing
// and leaves the box's border types as they were.
void slogbox(const int& isubplot, const int& ixaxis, const int& iyaxis, const int& iframe,
             std::string_view label);

// The head of every well page, at its top for the orientation: the run in
// the middle and the well loaded (shown with file as its file name) on the
// left. The text alignment is left as it was. Returns the place of the
// right-hand lines (cmplotcharinfo2, right-aligned).
struct pageinfoplace {
    float x, y;
};
pageinfoplace wellpagehead(std::string_view file);
