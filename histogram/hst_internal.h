// What the histogram routines share among themselves: report lines in the
// package's formats and the frame of a histogram number out of range.
#pragma once

#include <string_view>

#include "histogram/blkhst8.h"
#include "shell/format.h"
#include "shell/sio.h"

namespace hst {

inline void line(std::string_view s) { writef(iocom.isout, "(5(1x,a))", s); }
inline void rule() { line("-------------------------------------------"); }
// Counts and numbers of the store.
inline void count(std::string_view s, int v) { writef(iocom.isout, "(4(1x,a,1x,i3))", s, v); }
// "<text>[ lo , hi ]" in the count format.
inline void outside(std::string_view text, int lo, int hi) {
    writef(iocom.isout, "(4(1x,a,1x,i3))", text, lo, ",", hi, "]");
}
// A value line of a menu.
inline void ival(std::string_view s, int v) { writef(iocom.isout, "(1x,a,1x,i6)", s, v); }
inline void rval(std::string_view s, float v) { writef(iocom.isout, "(1x,a,1x,g14.6)", s, v); }
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

// The menu of every setter ends the same way: the tail, then "your choice"
// with 99 as default.
int choice();

}  // namespace hst
