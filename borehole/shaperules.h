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
