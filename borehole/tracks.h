// The track routines of a log page and the helpers they share.
//
// logplot2 calls every track routine on every pass of its menu with the
// command number last; each decides by the number alone what it draws and
// where, so one pass draws a whole page. They read the well data and the
// results of the derived quantities, and write only the work columns of
// welldat.
//
// A track file includes this header only (it brings slogbox and the axis
// set names of wellplot.h along). The usual shape of a track:
//
//   constexpr trackplace MY_PLACES[] = {{320, 320, 5, 4}, {350, 351, 9, 1}};
//   if (const trackplace* at = trackplaceof(MY_PLACES, icmd)) {
//       slogbox(at->subplot, AXDC, AXDEPTH, at->frame, "label");
//       trackhead("label plot", "Number of data = ", n);
//       trackcurve(JWORK9, itop, n);
//   }
#pragma once

#include <exception>

#include <span>
#include <string_view>

#include "borehole/wellplot.h"
#include "plot/axes/axes.h"
#include "shell/fixed.h"

// ---------------------------------------------------------------------------
// The track routines, in the order logplot2 calls them.

// The tracks of the measured and derived quantities: AzCmax, the AzCmax -
// |DC| cross plot (101), the calipers, Cmin and Cmax, the cross section,
// C1 - C2, Cmin - BS, |DC|, DEVI, HAZI, RB and RBCmax. Rows itop to ibot.
void log_dat_plot3(const int& itop, const int& ibot, const bool& ldata, const bool& lcal,
                   const bool& lazc, const bool& lrb, const int& icmd);

// P1Az against depth: folded on [0, 90] in loops (302, 303), folded on
// [azcmaxorig, +180) in loops (361, 362), wrapped on [azorig, +360) in one
// curve (301 to 305, 353, 357, 359, 360). Called only with the calipers.
void log_p1az_plot(const int& itop, const int& ibot, const int& icmd);

// The rotation rate of the tool in degrees per metre, from P1Az: the
// simple difference and the least-squares rate over nrotf intervals forward
// (302, 353) or nrotc centred (303, 304, 305). Called only with the
// calipers and for those commands. The numerical steps are in rotation.h.
void log_rot_plot(const int& itop, const int& ibot, const int& nrotf, const int& nrotc,
                  const int& icmd);

// The borehole shape tests (ASE, ADE, ARK, |DC| levels, saturation,
// Cmin - BS): AzCmax at the depths that pass (or fail) each test of the
// page, with the counts on the console; 333 and 335 also write the rows
// kept by the global test to a table. Rows itop..ibot (nsel of them);
// the tests that need RB run only with lrb. Writes IWD1 column icwork.
void log_azcm_tst_plot(const int& icwork, const int& icsize, const int& icdc, const int& icrb,
                       const int& itop, const int& ibot, const int& nsel,
                       const farr<int, 2>& jcc, const bool& lrb, const int& icmd);

// The shape classes: every selected depth falls into exactly one class of a
// scheme, and each class shows AzCmax at its depths, with the counts on the
// console. The 11 size codes (355) and the saturated ones (361).
void log_azcm_11cdcat_plot2(const int& icsize, const int& itop, const int& ibot,
                            const int& nsel, const int& icmd);
// The 8 hole-shape categories of the size code and the DC and RB tests
// (356, 357), written to IWD1 column icwork.
void log_azcm_8hgcat_plot(const int& icwork, const int& icsize, const int& icdc,
                          const int& icrb, const int& itop, const int& ibot, const int& nsel,
                          const int& icmd);
// The 7 categories (358 to 362), in IWD1 column icwork; on 361 and 362 all
// of them as coloured symbols over the P1Az loops, with a legend at the
// foot of the page.
void log_azcm_7hgcat_plot(const int& icwork, const int& icsize, const int& icdc,
                          const int& icrb, const int& itop, const int& ibot, const int& nsel,
                          const int& icmd);

// The breakouts and washouts picked outside the program ("BO" and "POW"
// tables of depth and azimuth) as the last two tracks of 360 and 362. Asks
// for both files each time; uses work columns 9 and 10 of RWD1.
void log_azcm_select_plot();

// ---------------------------------------------------------------------------
// Work columns of RWD1 that the tracks fill for drawing. Rows 1 and 2 of
// columns 9 and 10 also carry the two points of a reference line.
inline constexpr int JWORK9 = 9;
inline constexpr int JWORK10 = 10;
inline constexpr int JWORK11 = 11;

// ---------------------------------------------------------------------------
// Places: where a track goes for a range of commands.

struct trackplace {
    int first, last;    // commands first to last
    int subplot, frame; // the box, and the frame code slogbox takes
};

// The place of icmd in a table; nullptr when the track isn't on that page.
const trackplace* trackplaceof(std::span<const trackplace> table, int icmd);

// ---------------------------------------------------------------------------
// Drawing in the box slogbox made current (user units: the track's axis
// set across, depth down).

// Column j of RWD1 from row itop on.
float* trackcolumn(int j, int itop);
// n points as a line broken at every point that isn't finite (a null value
// of the table), and as symbols without those points. Both count the
// points left out for the track's line of trackend.
void trackline(const float* x, const float* y, int n);
void trackpoints(const float* x, const float* y, int n);
// Rows itop .. itop + n - 1 of column j against depth, as a line.
void trackcurve(int j, int itop, int n);
// The same rows as symbols of the type and size in force.
void tracksymbols(int j, int itop, int n);
// A vertical line at x over the whole depth range of the box.
void trackrefline(float x);

// The kept depths of a class or test: AzCmax and depth of the rows among
// itop .. itop + nsel - 1 whose IWD1 column keycolumn holds value, into
// work columns 10 and 11 from row itop; returns their number.
int trackkept(int keycolumn, int value, int itop, int nsel);
// Those count points as symbols of the type and size in force.
void trackkeptsymbols(int itop, int count);
// The end of a count frame: the tested and retained numbers, a rule.
void trackcounts(int nsel, int count);

// The console head of a track, the count frame: a rule, the message, the
// count with its text ("Number of data = " or "Total number of data = "),
// a rule.
void trackhead(std::string_view message, std::string_view counttext, int n);

// Ends the track drawn last: if it left points out, one line says how many.
// slogbox and trackhead call it for the track before theirs, logplot2 after
// the last track of a pass.
void trackend();

// The points the track being drawn has left out so far.
struct trackskip_t {
    int nleftout;
};
extern trackskip_t trackskip;

// Gives axis set iaxis the range [first, last], as scale and as labels.
void trackaxisrange(int iaxis, float first, float last);

// ---------------------------------------------------------------------------
// A circular quantity (HAZI, RB, P1Az) on [origin, origin + 360): the axis
// set gets that range, the curve is wrapped into work column 9 and drawn
// as one line, so a curve that passes the range's end jumps across the box.

struct circulartrack {
    std::span<const trackplace> places;
    int iaxis;
    std::string_view label;    // on the axis set
    std::string_view message;  // of the count frame
    bool wrapatzero;           // false: from origin 0 the column is drawn as read
};

// Draws column j of rows itop .. itop + n - 1 if icmd has a place in the
// track's table; true if it drew.
bool drawcircular(const circulartrack& t, int j, float origin, int itop, int n, int icmd);

// ---------------------------------------------------------------------------
// Changing a stored set-up: the constructor fetches the stored fields
// (mode 3), the caller changes the ones it needs, and leaving the scope
// stores them all back (mode 1). For example
//
//   { axisedit a(AXAZCMAXTEST); a.walab = "AzCmax[180]"; }

template <class Fields>
class scoped_edit : public Fields {
public:
    template <class... A>
    explicit scoped_edit(A... a) : Fields(a...) {
        Fields::access(3);
    }
    // Storing may warn and wait for the return key, and so end the run
    // (the console closed): the destructor lets that through. When the run
    // is already ending, nothing is stored and nobody is asked.
    ~scoped_edit() noexcept(false) {
        if (std::uncaught_exceptions() == pending) Fields::access(1);
    }
    scoped_edit(const scoped_edit&) = delete;
    scoped_edit& operator=(const scoped_edit&) = delete;

private:
    int pending = std::uncaught_exceptions();
};

// One axis set (s1axis1).
struct axis_fields {
    explicit axis_fields(int i) : iaxis(i) {}
    int iaxis;
    float usa1 = 0, usa2 = 0, wau1 = 0, wau2 = 0, waud = 0, walas = 0;
    fstr<AXLABLEN> walab;
    int nawdig = 0, nasubint = 0, nlabintk = 0;
    void access(int mode);
};
using axisedit = scoped_edit<axis_fields>;

// Box 1 (s1bx2d).
struct box_fields {
    int ix = 0, iy = 0, left = 0, right = 0, bottom = 0, top = 0, iclip = 0, izero = 0;
    fstr<BOXLABLEN> label;
    void access(int mode);
};
using boxedit = scoped_edit<box_fields>;

// The map of the current subplot (sus2cm3).
struct map_fields {
    float xcm0 = 0, ycm0 = 0, xlcm = 0, ylcm = 0, xumin = 0, xumax = 0, yumin = 0, yumax = 0;
    int ixy = 0;
    void access(int mode);
};
using mapedit = scoped_edit<map_fields>;

// An attribute kept for a scope: the value in force is read on
// construction (mode 3) and set again on leaving (mode 1), whatever the
// scope set in between. For example
//
//   attributekept<int> colour(slinecolor);  ...  colour.entry()
template <class T>
class attributekept {
public:
    using setter = void (*)(T&, const int&);
    explicit attributekept(setter set) : set_(set) { set_(entry_, 3); }
    // As scoped_edit: a setter may warn and wait; an ending run sets nothing.
    ~attributekept() noexcept(false) {
        if (std::uncaught_exceptions() == pending_) set_(entry_, 1);
    }
    attributekept(const attributekept&) = delete;
    attributekept& operator=(const attributekept&) = delete;
    // The value found on entry.
    T entry() const { return entry_; }

private:
    setter set_;
    T entry_{};
    int pending_ = std::uncaught_exceptions();
};
