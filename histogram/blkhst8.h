// The histogram store: up to 12 numbered histograms in one process-wide
// record. Bin bounds belong to one of 12 numbered X axes and a histogram
// points at one of them, so histograms with the same bins share an axis and
// re-binning the axis re-bins them all. A histogram is used in a fixed
// order: set its axis, hstclear, hstadd (any number of times), hstcompend,
// then list (hstwrite) or draw (hstfrmplt, hstvalplt).
#pragma once

#include <string_view>

#include "shell/fixed.h"
#include "shell/frames.h"

constexpr int MAXHST = 12;     // histograms
constexpr int MAXXHST = 12;    // X axes
constexpr int MAXBINHST = 180; // bins of an axis
constexpr int MAXLABHST = 8;   // labels of a histogram
constexpr int LABLENHST = 25;  // characters of a label

// Labels by number: 1 to 4 stand at the +X, +Y, -X and -Y ends of a rose;
// 5 is the X axis title, 6 the total ("N = ..."), 7 a further corner text
// of a rose, 8 the Y axis title.
struct blkhst8_t {
    farr2<float, MAXBINHST + 1, MAXXHST> XBNDHST0;  // bin bounds by X axis, ascending
    farr<float, MAXHST> YMAXHST0;                   // top of the Y axis, counts
    farr<float, MAXHST> YMINHST0;                   // bottom of the Y axis, counts
    farr<float, MAXHST> SUMHST0;                    // sum of the retained values
    farr<float, MAXHST> AVGHST0;                    // their average
    farr<float, MAXHST> STDHST0;                    // standard deviation (listed for type 3)
    farr<float, MAXBINHST> WEIGHT1;                 // weight by bin (listed for types 11, 12)
    farr2<int, MAXBINHST, MAXHST> NYCTHST0;         // count in each bin
    farr<int, MAXHST> NTOTHST0;                     // retained values
    farr<int, MAXHST> NREJHST0;                     // rejected values
    farr<int, MAXHST> MODEHST0;                     // largest bin count
    farr<int, MAXHST> MINIHST0;                     // smallest bin count, as hstcompend finds it
    farr<int, MAXHST> IXHST0;                       // X axis of the histogram
    farr<int, MAXHST> ITYPEHST0;  // -1 unused, 0 cleared, 1 accumulating, 2 finished
    farr<int, MAXHST> NYEXTYPHST0;  // Y extrema: 0 as set, 1 max = mode, 2 min = minimum, 3 both
    farr<int, MAXHST> NYTICHST0;    // counts between major Y tics (set by the frame)
    farr<int, MAXHST> NYLABHST0;    // major Y tics between labels (set by the frame)
    farr<int, MAXXHST> NBINHST0;    // bins of an X axis, 1 to 180
    farr<int, MAXXHST> NXTICHST0;   // bins within a major X tic
    farr<int, MAXXHST> NXLABHST0;   // major X intervals between labels
    farr<int, MAXHST> IPLTYPEHST0;  // 1 box, 2 to 9 rose layouts
    farr<int, MAXHST> IPLSTYLEHST0; // 0, 1, 10, 11 or 12
    farr<int, MAXHST> IPLFLCOLHST0; // fill colour
    int NHST0;                      // histograms in use, 0 to 12
    farr2<bool, MAXLABHST, MAXHST> ONLABELHST0;               // label k is drawn
    farr2<fstr<LABLENHST>, MAXLABHST, MAXHST> LABELHST0;      // the labels
};
extern blkhst8_t blkhst8;

// ---------------------------------------------------------------------------
// Accumulation.

void hstclear(int& h);
// Counts x(1..n) into histogram h; values just outside the axis fall into
// the end bins with a warning, values further out are rejected.
void hstadd(const float* x, const int& n, int& h);
void hstcompend(int& h);
// The user box of a histogram: its bin range and Y extrema.
void ghstsize(float& xmin, float& xmax, float& ymin, float& ymax, int& h);
// Label k of h becomes "N = " and the number of retained values.
void shstlabntot(const int& k, int& h);

// ---------------------------------------------------------------------------
// Settings, each in the six modes of a menu routine.

// isw: what the user may change; 0 nothing, 1 bins, Y, style, colour and
// labels, 2 also the plot type, 3 also the X axis and number of histograms.
void shstall(int& isw, const int& intera);
void shst1(int& h, int& isw, const int& intera);
void shstnb(int& n, const int& intera);
void shstxind(int& ix, int& h, const int& intera);
void shstxbin2(float& xmin, float& xmax, int& nbin, int& nxtic, int& nxlab, fstr_ref xlabel,
               int& h, const int& intera);
void shstyextype(int& method, int& h, const int& intera);
void shstyext(float& ymin, float& ymax, int& h, const int& intera);
void shstplotype(int& type, int& h, const int& intera);
void shstplotstyle(int& style, int& h, const int& intera);
void shstfillcolor(int& colour, int& h, const int& intera);
// on: 1 draws the label, 0 not.
void shstlabel(fstr_ref text, int& on, int& k, int& h, const int& intera);

// ---------------------------------------------------------------------------
// Drawing, in the current subplot, after hstcompend: the frame, then the
// values. Type 1 is a bar chart in a box, 2 to 9 a rose.
void hstfrmplt(int& h);
void hstvalplt(int& h);

// ---------------------------------------------------------------------------
// Listing of histograms hfirst to hlast on a unit, with tab-separated bin
// rows; an even intera opens its menu first.
void hstwrite(const int& unit, int& hfirst, int& hlast, const int& intera);

// Version blocks of the frames the package shows.
inline constexpr version_block VB_HSTCLEAR{"hstclear   ", " 4.2", "03-09-2009"};
inline constexpr version_block VB_HSTADD{"hstadd     ", " 4.3", "03-09-2009"};
inline constexpr version_block VB_HSTCOMPEND{"hstcompend ", " 2.0", "2013-05-02"};
inline constexpr version_block VB_GHSTSIZE{"ghstsize   ", " 3.4", "03-09-2009"};
inline constexpr version_block VB_SHSTLABNTOT{"shstlabntot", " 1.0", "2013-04-30"};
inline constexpr version_block VB_SHSTALL{"shstall    ", " 7.1", "2012-05-15"};
inline constexpr version_block VB_SHST1{"shst1      ", " 1.2", "04-09-2009"};
inline constexpr version_block VB_SHSTNB{"shstnb     ", " 4.1", "03-09-2009"};
inline constexpr version_block VB_SHSTXIND{"shstxind   ", " 1.1", "03-09-2009"};
inline constexpr version_block VB_SHSTXBIN2{"shstxbin   ", " 7.0", "06-10-2009"};
inline constexpr version_block VB_SHSTYEXTYPE{"shstyextype", " 2.4", "03-09-2009"};
inline constexpr version_block VB_SHSTYEXT{"shstyext   ", " 7.6", "03-09-2009"};
inline constexpr version_block VB_SHSTPLOTYPE{"shistoploty", " 4.4", "03-09-2009"};
inline constexpr version_block VB_SHSTPLOTSTYLE{"shistoplost", " 2.4", "03-09-2009"};
inline constexpr version_block VB_SHSTFILLCOLOR{"shistofillc", " 1.4", "03-09-2009"};
inline constexpr version_block VB_SHSTLABEL{"shstlabel  ", " 2.1", "2015-02-17"};
inline constexpr version_block VB_HSTFRMPLT{"hstfrmplt  ", " 7.2", "2019-07-31"};
inline constexpr version_block VB_HSTVALPLT{"hstvalplt  ", " 5.0", "06-10-2009"};
inline constexpr version_block VB_HSTWRITE{"hstwrite   ", " 3.0", "2012-04-27"};
