// The rules of the borehole shape tests: whether one depth passes, from
// its size code, the results of the DC and RB tests and its calipers.
// Shapes: ASE an elongation of one diameter (Cmin in gauge, Cmax in gauge
// or above, |DC| large, Cmax away from the top of the hole); ADE both
// diameters above the gauge band, |DC| large, Cmax away from the top; ARK
// (key seat) Cmin below gauge and Cmax above it, along the top of the hole.
#pragma once

#include "borehole/derived.h"

enum class shaperule {
    TG,     // Cmin in gauge: G+G, G+E, G+S
    TE,     // both above the gauge band: E+E, E+S, S+E
    TK,     // Cmin restricted, Cmax above gauge: R+E, R+S
    TASE2,  // TG and |DC| >= cdiff
    TASE3,  // TASE2 and Cmax off the top-bottom line
    TADE2,  // TE and |DC| >= cdiff
    TADE3,  // TADE2 and Cmax off the top-bottom line
    TARK3,  // TK and Cmax along the top of the hole
    TS1,    // C1 saturated
    TS2,    // C2 saturated
    TSMAX,  // Cmax saturated
    TSMIN,  // Cmin saturated
    TU12,   // both calipers below their limits
    TU1O2,  // not both saturated
    TBS,    // Cmin not below the gauge band
};

// One depth as the rules see it: size code c, DC test d, RB test r (the
// IWD1 columns) and the two calipers.
struct shaperow {
    int c, d, r;
    float c1, c2;
};

// A NaN caliper is never saturated.
inline bool shapepass(shaperule rule, const shaperow& row, float c1sat, float c2sat) {
    const int c = row.c;
    const bool g = c == CS_GG || c == CS_GE || c == CS_GS;
    const bool e = c == CS_EE || c == CS_ES || c == CS_SE;
    const bool k = c == CS_RE || c == CS_RS;
    switch (rule) {
    case shaperule::TG: return g;
    case shaperule::TE: return e;
    case shaperule::TK: return k;
    case shaperule::TASE2: return row.d != 0 && g;
    case shaperule::TASE3: return row.d != 0 && row.r != 0 && g;
    case shaperule::TADE2: return row.d != 0 && e;
    case shaperule::TADE3: return row.d != 0 && row.r != 0 && e;
    case shaperule::TARK3: return row.r != 1 && k;
    case shaperule::TS1: return row.c1 >= c1sat;
    case shaperule::TS2: return row.c2 >= c2sat;
    case shaperule::TSMAX: return c == CS_RS || c == CS_GS || c == CS_ES || c == CS_SS;
    case shaperule::TSMIN: return c == CS_SE || c == CS_SS;
    // R+S, G+S and the S codes stay out: both calipers must be below
    // their limits.
    case shaperule::TU12:
        return c == CS_RR || c == CS_RG || c == CS_RE || c == CS_GG || c == CS_GE || c == CS_EE;
    case shaperule::TU1O2: return c != CS_SS;
    case shaperule::TBS: return c != CS_RR && c != CS_RG && c != CS_RE && c != CS_RS;
    }
    return false;
}

// The hole-shape categories: each depth falls into exactly one, by its size
// code (R, G, E groups by Cmin; S+S alone), the DC test and the RB test.
// 0 for a code outside the 11.
enum class sizegroup { none, r, g, e, ss };
inline sizegroup sizegroupof(int c) {
    if (c == CS_RR || c == CS_RG || c == CS_RE || c == CS_RS) return sizegroup::r;
    if (c == CS_GG || c == CS_GE || c == CS_GS) return sizegroup::g;
    if (c == CS_EE || c == CS_ES || c == CS_SE) return sizegroup::e;
    if (c == CS_SS) return sizegroup::ss;
    return sizegroup::none;
}

// 8 categories: 10 R, 20 ARK, 30 AR, 40 G, 50 ASE, 60 AEK, 70 ADE, 80 WO.
// A restriction with Cmax along the top is ARK whatever Cmax is, and any
// elongation along the top is AEK.
inline int shapecat8(const shaperow& row) {
    const bool dc = row.d != 0, off = row.r != 0;
    switch (sizegroupof(row.c)) {
    case sizegroup::r: return !dc ? 10 : (off ? 30 : 20);
    case sizegroup::g: return !dc ? 40 : (off ? 50 : 60);
    case sizegroup::e: return !dc ? 80 : (off ? 70 : 60);
    case sizegroup::ss: return 80;
    case sizegroup::none: break;
    }
    return 0;
}

// 7 categories: 10 R, 20 G, 30 WO, 40 AK, 50 AR, 60 ASE, 70 ADE. Both
// calipers saturated, or an enlarged hole without a large DC, is WO; with
// DC, Cmax along the top is AK whatever the size.
inline int shapecat7(const shaperow& row) {
    const sizegroup g = sizegroupof(row.c);
    if (g == sizegroup::none) return 0;
    if (g == sizegroup::ss) return 30;
    if (row.d == 0) return g == sizegroup::r ? 10 : (g == sizegroup::g ? 20 : 30);
    if (row.r == 0) return 40;
    return g == sizegroup::r ? 50 : (g == sizegroup::g ? 60 : 70);
}
