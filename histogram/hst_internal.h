// What the histogram routines share among themselves: report lines in the
// package's formats and the frame of a histogram number out of range.
#pragma once

#include <string_view>

#include "histogram/blkhst8.h"
#include "shell/format.h"
#include "shell/menus.h"
#include "shell/sio.h"

namespace hst {

inline void line(std::string_view s) { textline(s); }
inline void rule() { menurule(); }
// Counts and numbers of the store.
inline void count(std::string_view s, int v) { writef(iocom.isout, "(4(1x,a,1x,i3))", s, v); }
// "<text>[ lo , hi ]" in the count format.
inline void outside(std::string_view text, int lo, int hi) {
    writef(iocom.isout, "(4(1x,a,1x,i3))", text, lo, ",", hi, "]");
}
// A value line of a menu.
inline void ival(std::string_view s, int v) { intline(s, v); }
inline void rval(std::string_view s, float v) { realline(s, v); }
inline void tval(std::string_view s, std::string_view t) { writef(iocom.isout, "(5(1x,a))", s, t); }

inline bool valid(int h) { return h >= 1 && h <= blkhst8.NHST0; }

// The four lines every report of a bad histogram number starts with.
inline void badnumber(int h, std::string_view hname = "histogram nb =") {
    count("maximum number of histograms =", MAXHST);
    count("current number of histograms =", blkhst8.NHST0);
    count(hname, h);
    outside("nb is outside [", 1, blkhst8.NHST0);
}

// The bad number frame that refuses: error head, the four lines, the
// closing line, error tail. Returns true when h is usable.
bool checked(int h, const version_block& vb, std::string_view closing);

}  // namespace hst
