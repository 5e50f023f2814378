// swellplot: the defaults of the log layouts and their menu, with the
// drawings in characters that show which subplot number is where.
#include <string_view>

#include "borehole/wellplot.h"
#include "plot/attributes.h"
#include "plot/axes/axes.h"
#include "plot/pages.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/intera.h"
#include "shell/prompts.h"
#include "shell/sio.h"

namespace {

struct axis_default {
    std::string_view label;
    float first, last, step;
    int nasubint, nlabintk, iuswdtyp;
};

// Sets 3 and 14 are alike on purpose: the test pages and the category
// pages are scaled apart.
constexpr axis_default AXIS_DEFAULTS[MAXAXIS] = {
    {"Depth (m)", 0.0f, 1000.0f, 50.0f, 5, 2, 1},
    {"Azimuth [90]", 0.0f, 90.0f, 30.0f, 3, 1, 1},
    {"AzCmax [180]", 0.0f, 180.0f, 30.0f, 3, 3, 1},
    {"Diameter (cm)", 10.0f, 40.0f, 5.0f, 5, 2, 1},
    {"DC (cm)", -15.0f, 15.0f, 5.0f, 5, 3, 1},
    {"|DC| (cm)", 0.0f, 15.0f, 5.0f, 5, 2, 1},
    {"Azimuth [360]", 0.0f, 360.0f, 30.0f, 3, 3, 1},
    {"Rotation (deg/m)", -15.0f, 15.0f, 5.0f, 5, 3, 1},
    {"0 -> 100 inc = 10", 0.0f, 100.0f, 5.0f, 5, 2, 0},
    {"HAZI", 0.0f, 360.0f, 30.0f, 3, 3, 1},
    {"DEVI", 0.0f, 5.0f, 0.5f, 5, 2, 1},
    {"RB", 0.0f, 360.0f, 30.0f, 3, 3, 1},
    {"RBCmax [180]", 0.0f, 180.0f, 30.0f, 3, 3, 1},
    {"AzCmax [180]", 0.0f, 180.0f, 30.0f, 3, 3, 1},
    {"X section (cm)", -20.0f, 20.0f, 5.0f, 5, 2, 1},
};

// Sets the 15 axis sets to their defaults, through the dialogue when
// imode is 0.
void swellaxes(int imode) {
    for (int i = 1; i <= MAXAXIS; ++i) {
        const axis_default& d = AXIS_DEFAULTS[i - 1];
        int iuswdtyp = d.iuswdtyp;
        float waous = 1.0f;
        s1axuswdtyp(iuswdtyp, waous, i, imode);
        float usa1 = d.first, usa2 = d.last, wau1 = d.first, wau2 = d.last;
        float waud = d.step, walas = 0.5f;
        fstr<AXLABLEN> walab = d.label;
        int nawdig = 0, nasubint = d.nasubint, nlabintk = d.nlabintk;
        s1axis1(usa1, usa2, wau1, wau2, waud, walas, walab, nawdig, nasubint, nlabintk, i, imode);
    }
}

// The layouts of the log pages, each a title and its drawing. The widths
// follow the landscape page; the portrait one is alike in its order.
struct layout_drawing {
    std::string_view title;
    std::string_view rows[7];  // the lines of the drawing; a short one ends in empty rows
};

const layout_drawing LOG_LAYOUTS[] = {
    {" Full page for perspectives",
     {"+-----------------------------------------------+",
      "|                                               |",
      "|                                               |",
      "|                      (1)                      |",
      "|                                               |",
      "|                                               |",
      "+-----------------------------------------------+"}},
    {" Single box for log",
     {"+-----------------------------------------------+",
      "|                                               |",
      "|                       2                       |",
      "|                                               |",
      "+-----------------------------------------------+"}},
    {" 6 boxes for logs",
     {"+-------+-------+-------+-------+-------+-------+",
      "|       |       |       |       |       |       |",
      "|   3   |   4   |   5   |   6   |   7   |   8   |",
      "|       |       |       |       |       |       |",
      "+-------+-------+-------+-------+-------+-------+"}},
    {" 12 boxes for logs: box 9 larger",
     {"+-----+---+---+---+---+---+---+---+---+---+---+---+",
      "|     |   |   |   |   |   |   |   |   |   |   |   |",
      "|  9  |10 |11 |12 |13 |14 |15 |16 |17 |18 |19 |20 |",
      "|     |   |   |   |   |   |   |   |   |   |   |   |",
      "+-----+---+---+---+---+---+---+---+---+---+---+---+"}},
    {" 11 boxes for logs: boxes 9, 21, 22 larger",
     {"+-----+-----+-----+---+---+---+---+---+---+---+---+",
      "|     |     |     |   |   |   |   |   |   |   |   |",
      "|  9  | 21  | 22  |13 |14 |15 |16 |17 |18 |19 |20 |",
      "|     |     |     |   |   |   |   |   |   |   |   |",
      "+-----+-----+-----+---+---+---+---+---+---+---+---+"}},
    {" 8 boxes for logs: boxes 29, 30, 31, 32 larger",
     {"+-------+-------+-------+-------+---+---+---+---+",
      "|       |       |       |       |   |   |   |   |",
      "|  29   |  30   |  31   |  32   |33 |34 |35 |36 |",
      "|       |       |       |       |   |   |   |   |",
      "+-------+-------+-------+-------+---+---+---+---+"}},
    {" 5 boxes for logs: large 37",
     {"+-------+-------+-------+---------------+---+---+",
      "|       |       |       |               |   |   |",
      "|  29   |  30   |  31   |      37       |35 |36 |",
      "|       |       |       |               |   |   |",
      "+-------+-------+-------+---------------+---+---+"}},
};

// The statistics boxes as they stand on the page of each orientation.
constexpr std::string_view STATS_LANDSCAPE[] = {
    "+---------+   +---------+   +---------+",
    "|         |   |         |   |         |",
    "|   25    |   |   24    |   |   23    |",
    "|         |   |         |   |         |",
    "+---------+   +---------+   +---------+",
    "",
    "+---------+   +---------+   +---------+",
    "|         |   |         |   |         |",
    "|   28    |   |   27    |   |   26    |",
    "|         |   |         |   |         |",
    "+---------+   +---------+   +---------+",
};
constexpr std::string_view STATS_PORTRAIT[] = {
    "+---------+   +---------+",
    "|         |   |         |",
    "|   25    |   |   28    |",
    "|         |   |         |",
    "+---------+   +---------+",
    "",
    "+---------+   +---------+",
    "|         |   |         |",
    "|   24    |   |   27    |",
    "|         |   |         |",
    "+---------+   +---------+",
    "",
    "+---------+   +---------+",
    "|         |   |         |",
    "|   23    |   |   26    |",
    "|         |   |         |",
    "+---------+   +---------+",
};

void showlayouts() {
    textline("  n  : fixed box size, origin at lower left");
    textline(" (n) : fixed scale,    origin at center");
    for (const layout_drawing& l : LOG_LAYOUTS) {
        textline(l.title);
        textline(DASHED);
        for (std::string_view r : l.rows)
            if (!r.empty()) textline(r);
    }
    textline(" 6 boxes for stats");
    textline(" fixed box size, origin at lower left");
    textline(DASHED);
    if (wellplot.llandscape) {
        for (std::string_view r : STATS_LANDSCAPE) textline(r);
    } else {
        for (std::string_view r : STATS_PORTRAIT) textline(r);
    }
}

// Only the subplots 1 to 28 can be set here; 29 to 37 keep their layout.
constexpr int MAXEDIT = 28;

void editsubplot(int n) {
    ssubplot(n, 1);
    float xcm0 = 0, ycm0 = 0, xu0 = 0, yu0 = 0, xx = 0, xy = 0, yx = 0, yy = 0;
    float xlcm = 0, ylcm = 0, xumin = 0, xumax = 0, yumin = 0, yumax = 0;
    int ixy = 0;
    if (n == 1)
        sus2cm2(xcm0, ycm0, xu0, yu0, xx, xy, yx, yy, 2);
    else
        sus2cm3(xcm0, ycm0, xlcm, ylcm, xumin, xumax, yumin, yumax, ixy, 2);
}

void modifyscaling() {
    int ierr = 0;
    for (;;) {
        if (iocom.LWITO(2)) {
            textline("SUBPLOTS LAYOUT");
            writef(iocom.isout, "(1x,a,1x,i3)", "subplot nb mini =", 1);
            writef(iocom.isout, "(1x,a,1x,i3)", "subplot nb maxi =", MAXEDIT);
            textline("Enter a value larger than max to set all");
            textline("EXIT ......................99");
        }
        int n = 99;
        inintegdef(n, "subplot nb to modify", 99, ierr);
        // 99 is the exit, never "all".
        if (n == 99) return;
        if (n >= 1 && n <= MAXEDIT) {
            editsubplot(n);
        } else if (n > MAXEDIT) {
            for (int k = 1; k <= MAXEDIT; ++k) editsubplot(k);
        }
    }
}


}  // namespace

void swellplot(const int& intera) {
    if (mode_resets(intera)) {
        submenuhead(VB_SWELLPLOT);
        textline("INITIALIZING PLOT SCALING, ATTRIBUTES & AXES");
        wellplot.llandscape = true;
        wellplot.jclrc1 = 2;
        wellplot.jclrc2 = 4;
        swellsubplot();
        snaxis(5);
        swellaxes(mode_talks(intera) ? 0 : 1);
    }
    if (mode_silent(intera)) return;

    int ierr = 0;
    for (;;) {
        submenuhead(VB_SWELLPLOT);
        if (iocom.LWITO(2)) {
            textline("MULTIPLE PLOTS LAYOUT");
            textline("modify scaling ............10");
            writef(iocom.isout, "(1x,a,1x,l1)", "Landscape(T)/Portrait(F)...11", wellplot.llandscape);
            textline("modify plot attributes ....15");
            textline("modify axes params ........20");
            textline("show subplot layout .......50");
            textline("EXIT ......................99");
            menutail();
        }
        int choice = 99;
        inintegdef(choice, "your choice", 99, ierr);
        switch (choice) {
        case 10: modifyscaling(); break;
        case 11: swellorientation("to use Landscape(1) or Portrait(0) A4", false); break;
        case 15: splotattributes(0); break;
        case 20: snaxis(0); break;
        case 50: showlayouts(); break;
        case 99: return;
        default: break;
        }
    }
}
