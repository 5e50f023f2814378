// The statistics menu (main menu 130): pages of up to six histograms and
// roses of the loaded log, and the linear and circular statistics of the
// azimuth of the larger caliper. Its own computations on entry are a copy
// of the log analysis's, in work columns of their own.
#pragma once

#include "shell/frames.h"

// The five histograms every statistics page shares; each quantity of a
// page clears, fills, draws and leaves its histogram.
struct wellhisblk_t {
    int ihcal;   // calipers C1, C2 or CAL
    int ihdc;    // the difference DC
    int ih360;   // angles known to 360 degrees: P1Az, HAZI, RB
    int ih180;   // angles known to 180 degrees: AzCmax, RBCmax
    int ihdevi;  // the deviation DEVI
};
extern wellhisblk_t wellhisblk;

inline constexpr version_block VB_SWELLHST{"swellhst   ", " 4.0", "2019-07-29"};
inline constexpr version_block VB_STATPLOT{"statplot   ", " 8.1", "2019-07-29"};

// 4 or 5 reset the histogram store and set up the five histograms; an
// even value shows the layout menu.
void swellhst(const int& intera);
// 5 or 6 reset the menu's settings; any other value runs the menu.
void statplot(const int& intera);
