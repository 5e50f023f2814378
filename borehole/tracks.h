// The track routines of a log page. logplot2 calls every one of them on
// every pass of its menu with the command number last; each decides by the
// number alone what it draws and where, so one pass draws a whole page.
// They read the well data and the results of the derived quantities, and
// write only the work columns of welldat.
#pragma once

#include <string_view>

// Work columns of RWD1 that the tracks fill for drawing. Rows 1 and 2 of
// columns 9 and 10 also carry the two points of a reference line.
inline constexpr int JWORK9 = 9;
inline constexpr int JWORK10 = 10;
inline constexpr int JWORK11 = 11;

// The tracks of the measured and derived quantities: AzCmax, the AzCmax -
// |DC| cross plot (101), the calipers, Cmin and Cmax, the cross section,
// C1 - C2, Cmin - BS, |DC|, DEVI, HAZI, RB and RBCmax. Rows itop to ibot.
void log_dat_plot3(const int& itop, const int& ibot, const bool& ldata, const bool& lcal,
                   const bool& lazc, const bool& lrb, const int& icmd);

// P1Az against depth: folded on [0, 90] in loops (302, 303), folded on
// [azcmaxorig, +180) in loops (361, 362), wrapped on [azorig, +360) in one
// curve (301 to 305, 353, 357, 359, 360). Called only with the calipers.
void log_p1az_plot(const int& itop, const int& ibot, const int& icmd);

// Helpers the tracks share.

// The console head of a track: a rule, the message, the count with its
// text ("Number of data = " or "Total number of data = "), a rule.
void trackhead(std::string_view message, std::string_view counttext, int n);
// Gives axis set iaxis the range [first, last], as scale and as labels.
void trackaxisrange(int iaxis, float first, float last);
// A vertical line at x over the whole depth range of the current box.
void trackrefline(float x);
