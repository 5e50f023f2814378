// The setters of the histogram store. Each takes the six modes of a menu
// routine: 4, 5 reset, 2, 3 read the stored value, 0, 1 take the caller's;
// an even mode runs the dialogue. Every setter stores its value at its end,
// so a read writes back what it read.
#include <string>

#include "histogram/hst_internal.h"
#include "plot/attributes.h"
#include "shell/frames.h"
#include "shell/intera.h"
#include "shell/menus.h"
#include "shell/prompts.h"

using namespace hst;

namespace {

// The top of a setter's menu: the title between rules and the numbers of
// the store.
void top(std::string_view title, int h) {
    menublock(title);
    if (h > 0) {
        writef(iocom.isout, "(1x,a,1x,i3)", "Histogram nb            :", h);
        writef(iocom.isout, "(1x,a,1x,i3)", "Current nb of histograms:", blkhst8.NHST0);
        writef(iocom.isout, "(1x,a,1x,i3)", "Maximum nb of histograms:", MAXHST);
    }
}

// A bad histogram number where the setter grows the set: the user is asked
// for one more histogram, and the last one is taken.
void growset(int& h, const version_block& vb) {
    errorhead(vb);
    count("histogram nb =", h);
    count("current number of histograms =", blkhst8.NHST0);
    count("maximum number of histograms =", MAXHST);
    outside("nb is outside [", 1, blkhst8.NHST0);
    errortail00();
    int n = blkhst8.NHST0 + 1;
    shstnb(n, 0);
    h = blkhst8.NHST0;
    count("==> RESET histogram nb =", h);
}

// After an error a silent call shows the menu, so the user can put it right.
void lift(int& mode) {
    if (mode_silent(mode)) mode -= 1;
}

}  // namespace

void shstnb(int& n, const int& intera) {
    int mode = intera;
    if (mode_resets(mode)) {
        n = 0;
        submenuhead(VB_SHSTNB);
        writef(iocom.isout, "(1x,a,1x,i3)", "INITIALISING NB OF HISTOGRAMS TO:", n);
    } else if (mode_from_store(mode)) {
        n = blkhst8.NHST0;
    } else if (n < 0 || n > MAXHST) {
        errorhead(VB_SHSTNB);
        count("setting nb of histogram =", n);
        count("maximum nb of histogram =", MAXHST);
        n = MAXHST;
        count("==> RESET nb of histogram to max=", n);
        errortail00();
        lift(mode);
    }
    if (mode_talks(mode)) {
        auto show = [&] {
            top("Setting number of histograms", 0);
            writef(iocom.isout, "(1x,a,1x,i3)", "Maximum nb of histograms:", MAXHST);
            writef(iocom.isout, "(1x,a,1x,i3)", "Current nb of histograms:", blkhst8.NHST0);
            writef(iocom.isout, "(1x,a,1x,i3)", "New     nb of histograms:", n);
            line("Choose nb of histograms ...100");
            line("EXIT .......................99");
        };
        auto act = [&](int c) {
            int ierr = 0;
            if (c == 100) inintegvindef(n, "nb of histograms to use", n, 1, MAXHST, ierr);
        };
        menuloop(VB_SHSTNB, show, act);
    }
    blkhst8.NHST0 = n;
}

void shstxind(int& ix, int& h, const int& intera) {
    blkhst8_t& b = blkhst8;
    int mode = intera;
    if (!valid(h)) growset(h, VB_SHSTXIND);
    if (h < 1) return;
    if (mode_resets(mode)) {
        ix = h;
    } else if (mode_from_store(mode)) {
        ix = b.IXHST0(h);
    } else if (ix < 1 || ix > MAXXHST) {
        errorhead(VB_SHSTXIND);
        count("histogram nb =", h);
        count("current number of histograms =", b.NHST0);
        count("maximum number of histograms =", MAXHST);
        count("X axis nb    =", h);
        count("maximum number of X axis     =", MAXXHST);
        outside("axis nb is outside [", 1, MAXXHST);
        ix = h < MAXXHST ? h : MAXXHST;
        count("==> RESET axis nb =", ix);
        errortail00();
        lift(mode);
    }
    if (mode_talks(mode)) {
        auto show = [&] {
            top("X axis index setting", h);
            writef(iocom.isout, "(1x,a,1x,i3)", "Maximum number of X axis:", MAXXHST);
            writef(iocom.isout, "(1x,a,1x,i3)", "Current X axis index    :", b.IXHST0(h));
            writef(iocom.isout, "(1x,a,1x,i3)", "New     X axis index    :", ix);
            line("Choose new X axis index ...100");
            line("EXIT .......................99");
        };
        auto act = [&](int c) {
            int ierr = 0;
            if (c == 100) inintegvindef(ix, "X axis index", ix, 1, MAXXHST, ierr);
        };
        menuloop(VB_SHSTXIND, show, act);
    }
    b.IXHST0(h) = ix;
}

namespace {

// The tests of a bin setting, in their order; true when one of the first
// three had to correct a value.
bool bintests(float& xmin, float& xmax, int& nbin, int& nxtic) {
    bool bad = false;
    if (nbin < 1 || nbin > MAXBINHST) {
        errorhead(VB_SHSTXBIN2);
        count("nb of intervals =", nbin);
        outside("is outside [", 1, MAXBINHST);
        nbin = MAXBINHST;
        count("==> RESET nb of intervals to max =", nbin);
        errortail00();
        bad = true;
    }
    // The plot buffer takes 3 points per bin and one more; the bin limit
    // already keeps within it.
    constexpr int PLOTBUFFER = 1000;
    if (3 * nbin + 1 > PLOTBUFFER) {
        warninghead(VB_SHSTXBIN2);
        count("nb of intervals      =", nbin);
        count("nb of points to plot =", 3 * nbin + 1);
        writef(iocom.isout, "(4(1x,a,1x,i4))", "plot buffer size     =", PLOTBUFFER);
        line("==> TOO MANY BINS FOR THIS PLOT BUFFER");
        nbin = MAXBINHST;
        count("==> RESET nb of intervals =", nbin);
        warningtail00();
        bad = true;
    }
    if (!(xmax > xmin)) {
        errorhead(VB_SHSTXBIN2);
        rval("xmin =", xmin);
        rval("xmax =", xmax);
        line("xmin > xmax");
        xmin = 0.0f;
        xmax = 10.0f;
        line("==> RESET to:");
        rval("xmin =", xmin);
        rval("xmax =", xmax);
        errortail00();
        bad = true;
    }
    if (nxtic < 1 || nxtic > nbin) {
        warninghead(VB_SHSTXBIN2);
        count("nb of intervals             =", nbin);
        count("nb of intervals within tics =", nxtic);
        nxtic = nbin;
        count("==> RESET nb of intervals within tics =", nxtic);
        warningtail00();
    }
    return bad;
}

// Command 500: a width that need not divide the range; the number of bins
// follows from it and the width is readjusted.
void binwidth(float xmin, float xmax, int& nbin, float& dx) {
    line("The interval width you enter below");
    line("  need not be accurate.");
    line("It will be readjusted so that");
    line("  the whole range remains a multiple of it");
    float width = dx;
    int ierr = 0;
    for (;;) {
        inrealdef(width, "interval width", dx, ierr);
        if (width > 0.0f) break;
        errorhead(VB_SHSTXBIN2);
        rval("interval width", width);
        line("REQUIRED interval size > 0");
        line("==> ASK AGAIN");
        errortail00();
    }
    nbin = int((xmax - xmin) / width);
    // A width above the whole range leaves no bin; the tests then fall back
    // to the largest number, not to one.
    if (nbin >= 1) {
        dx = (xmax - xmin) / float(nbin);
        rval("adjusted interval width", dx);
    }
}

}  // namespace

void shstxbin2(float& xmin, float& xmax, int& nbin, int& nxtic, int& nxlab, fstr_ref xlabel,
               int& h, const int& intera) {
    blkhst8_t& b = blkhst8;
    int mode = intera;
    if (!valid(h)) {
        growset(h, VB_SHSTXBIN2);
        if (h < 1) return;
        int own = h;
        shstxind(own, h, 0);
    }
    const int ix = b.IXHST0(h);
    if (mode_resets(mode)) {
        submenuhead(VB_SHSTXBIN2);
        writef(iocom.isout, "(1x,a,1x,i3)", "INITIALISING X AXIS OF HISTOGRAM NB:", h);
        xmin = 0.0f;
        xmax = 10.0f;
        nbin = 10;
        nxtic = 5;
        nxlab = 1;
        xlabel = "X-undefined";
    } else if (mode_from_store(mode)) {
        nbin = b.NBINHST0(ix);
        xmin = b.XBNDHST0(1, ix);
        xmax = b.XBNDHST0(nbin + 1, ix);
        nxtic = b.NXTICHST0(ix);
        nxlab = b.NXLABHST0(ix);
        xlabel = b.LABELHST0(5, h).sv();
    }
    if (bintests(xmin, xmax, nbin, nxtic)) lift(mode);
    float dx = (xmax - xmin) / float(nbin);

    if (mode_talks(mode)) {
        auto show = [&] {
            top("X axis bin setting", h);
            tval("x-label ........................120", xlabel.sv());
            rval("value mini .....................200", xmin);
            rval("value maxi .....................300", xmax);
            ival("nb of bins .....................400", nbin);
            ival("bins within major tics .........450", nxtic);
            ival("major intervals between labels .460", nxlab);
            rval("interval size ..................500", dx);
            line("EXIT ............................99");
        };
        auto act = [&](int c) {
            int ierr = 0;
            switch (c) {
            case 120: {
                fstr<LABLENHST> t = xlabel.sv();
                inchardef(t, "histogram x-label", t.sv(), ierr);
                xlabel = t.sv();
                break;
            }
            case 200: inrealdef(xmin, "minimum value", xmin, ierr); break;
            case 300: inrealdef(xmax, "maximum value", xmax, ierr); break;
            case 400: inintegvindef(nbin, "nb of intervals", nbin, 1, MAXBINHST, ierr); break;
            case 450:
                inintegvindef(nxtic, "nb of intervals within major tics", nxtic, 1, nbin, ierr);
                break;
            case 460: {
                const int top = nbin / nxtic > 1 ? nbin / nxtic : 1;
                inintegvindef(nxlab, "major intervals between labels", nxlab, 1, top, ierr);
                break;
            }
            case 500: binwidth(xmin, xmax, nbin, dx); break;
            default: break;
            }
            bintests(xmin, xmax, nbin, nxtic);
            dx = (xmax - xmin) / float(nbin);
        };
        menuloop(VB_SHSTXBIN2, show, act);
    }

    b.NBINHST0(ix) = nbin;
    b.LABELHST0(5, h) = xlabel.sv();
    // Each bound is the one before plus the width, in 4-byte reals, as the
    // listing shows them; the last is the maximum itself.
    b.XBNDHST0(1, ix) = xmin;
    for (int j = 2; j <= nbin; ++j) b.XBNDHST0(j, ix) = b.XBNDHST0(j - 1, ix) + dx;
    b.XBNDHST0(nbin + 1, ix) = xmax;
    b.NXTICHST0(ix) = nxtic;
    b.NXLABHST0(ix) = nxlab;
}

void shstyextype(int& method, int& h, const int& intera) {
    blkhst8_t& b = blkhst8;
    if (!checked(h, VB_SHSTYEXTYPE, "==> NO ACTION")) return;
    if (mode_resets(intera)) {
        method = 0;
    } else if (mode_from_store(intera)) {
        method = b.NYEXTYPHST0(h);
    } else if (method < 0 || method > 3) {
        warninghead(VB_SHSTYEXTYPE);
        count("y extrema type =", method);
        outside("outside [", 0, 3);
        method = 0;
        count("==> RESET ihymaxtypea =", method);
        warningtail00();
    }
    if (mode_talks(intera)) {
        auto show = [&] {
            top("Y axis extrema method setting", h);
            ival("Current y extrema type  :", b.NYEXTYPHST0(h));
            ival("New     y extrema type  :", method);
            line("ymin & ymax = last set ........0");
            line("ymax = data mode ..............1");
            line("ymin = data minimum ...........2");
            line("ymin & ymax = mode & mini......3");
            line("SET & EXIT ...................99");
        };
        auto act = [&](int c) {
            if (c >= 0 && c <= 3) {
                method = c;
            } else {
                warninghead(VB_SHSTYEXTYPE);
                count("y extrema type =", c);
                outside("outside [", 0, 3);
                line("==> NO ACTION");
                warningtail00();
            }
        };
        menuloop(VB_SHSTYEXTYPE, show, act);
    }
    b.NYEXTYPHST0(h) = method;
}

void shstyext(float& ymin, float& ymax, int& h, const int& intera) {
    blkhst8_t& b = blkhst8;
    if (!valid(h)) growset(h, VB_SHSTYEXT);
    if (h < 1) return;
    if (mode_resets(intera)) {
        ymin = 0.0f;
        ymax = 10.0f;
    } else if (mode_from_store(intera)) {
        ymin = b.YMINHST0(h);
        ymax = b.YMAXHST0(h);
    }
    if (mode_talks(intera)) {
        auto show = [&] {
            const int ix = b.IXHST0(h);
            rule();
            line("Y axis min-max setting");
            rule();
            writef(iocom.isout, "(1x,a,1x,i3)", "Histogram nb            :", h);
            writef(iocom.isout, "(1x,a,1x,i3)", "Current nb of histograms:", b.NHST0);
            writef(iocom.isout, "(1x,a,1x,i3)", "Maximum nb of histograms:", MAXHST);
            ival("X axis    nb              :", ix);
            ival("Max nb of x axes          :", MAXXHST);
            ival("Current nb of x intervals :", b.NBINHST0(ix));
            ival("Max nb of x intervals     :", MAXBINHST);
            rval("current ymax              :", b.YMAXHST0(h));
            rval("current ymin              :", b.YMINHST0(h));
            ival("current mode              :", b.MODEHST0(h));
            ival("current min               :", b.MINIHST0(h));
            ival("current number of data    :", b.NTOTHST0(h));
            rval("estimated ymax ..............100", ymax);
            rval("estimated ymin ..............200", ymin);
            line("EXIT .........................99");
        };
        auto act = [&](int c) {
            int ierr = 0;
            if (c == 100) inrealdef(ymax, "y axis max value", ymax, ierr);
            if (c == 200) inrealdef(ymin, "y axis min value", ymin, ierr);
        };
        menuloop(VB_SHSTYEXT, show, act);
    }
    b.YMINHST0(h) = ymin;
    b.YMAXHST0(h) = ymax;
}

namespace {

void typewarning(int value, std::string_view last) {
    warninghead(VB_SHSTPLOTYPE);
    count("plot type =", value);
    line("outside");
    outside("[", 1, 9);
    if (last.empty())
        count("==> RESET plot type =", 1);
    else
        line(last);
    warningtail00();
}

void stylewarning(int value, bool union_text, std::string_view last) {
    warninghead(VB_SHSTPLOTSTYLE);
    count("plot style =", value);
    line("outside");
    if (union_text)
        writef(iocom.isout, "(5(1x,a,1x,i3))", "[", 0, ",", 1, "]U[", 10, ",", 12, "]");
    else
        outside("[", 0, 12);
    if (last.empty())
        count("==> RESET plot style =", 11);
    else
        line(last);
    warningtail00();
}

bool goodstyle(int s) { return s == 0 || s == 1 || s == 10 || s == 11 || s == 12; }

}  // namespace

void shstplotype(int& type, int& h, const int& intera) {
    blkhst8_t& b = blkhst8;
    if (!checked(h, VB_SHSTPLOTYPE, "==> NO ACTION")) return;
    if (mode_resets(intera)) {
        type = 1;
    } else if (mode_from_store(intera)) {
        type = b.IPLTYPEHST0(h);
    } else if (type < 1 || type > 9) {
        typewarning(type, "");
        type = 1;
    }
    if (mode_talks(intera)) {
        auto show = [&] {
            top("Plot type setting", h);
            ival("Current plot type       :", b.IPLTYPEHST0(h));
            ival("New     plot type       :", type);
            line("Type of plot ..............command");
            line("Standard X-Y histogram ........1");
            line("Polar (rose) diagram:");
            line(" Origin   Angle");
            line("  axis  direction");
            line("   X    direct ................2");
            line("   X    retrograde ............3");
            line("   Y    direct ................4");
            line("   Y    retrograde ............5");
            line("  -X    direct ................6");
            line("  -X    retrograde ............7");
            line("  -Y    direct ................8");
            line("  -Y    retrograde ............9");
            line("SET & EXIT ...................99");
        };
        auto act = [&](int c) {
            if (c >= 1 && c <= 9)
                type = c;
            else
                typewarning(c, "==> NO ACTION");
        };
        menuloop(VB_SHSTPLOTYPE, show, act);
    }
    b.IPLTYPEHST0(h) = type;
}

void shstplotstyle(int& style, int& h, const int& intera) {
    blkhst8_t& b = blkhst8;
    if (!checked(h, VB_SHSTPLOTSTYLE, "==> NO ACTION")) return;
    if (mode_resets(intera)) {
        style = 11;
    } else if (mode_from_store(intera)) {
        style = b.IPLSTYLEHST0(h);
    } else if (style < 0 || style > 12) {
        stylewarning(style, false, "");
        style = 11;
    } else if (!goodstyle(style)) {
        stylewarning(style, true, "");
        style = 11;
    }
    if (mode_talks(intera)) {
        auto show = [&] {
            top("Plot style setting", h);
            ival("Current plot style      :", b.IPLSTYLEHST0(h));
            ival("New     plot style      :", style);
            line("Plot Style ................command");
            line(" Outline top line .............0");
            line(" Outline line going to zero ...1");
            line(" One global polygon ..........10");
            line(" One rectangle per bin .......11");
            line(" One rectangle per data ......12");
            line("SET & EXIT ...................99");
        };
        auto act = [&](int c) {
            if (goodstyle(c))
                style = c;
            else
                stylewarning(c, true, "==> NO ACTION");
        };
        menuloop(VB_SHSTPLOTSTYLE, show, act);
    }
    b.IPLSTYLEHST0(h) = style;
}

void shstfillcolor(int& colour, int& h, const int& intera) {
    blkhst8_t& b = blkhst8;
    if (!checked(h, VB_SHSTFILLCOLOR, "==> NO ACTION")) return;
    // The library's fill colour checks the number; it is put back at the end.
    int saved = 0;
    sfillcolor(saved, 3);
    if (mode_resets(intera))
        colour = 8;
    else if (mode_from_store(intera))
        colour = b.IPLFLCOLHST0(h);
    sfillcolor(colour, 1);
    if (mode_talks(intera)) {
        auto show = [&] {
            top("Plot fill color setting", h);
            ival("Current fill color      :", b.IPLFLCOLHST0(h));
            ival("New     fill color      :", colour);
            line("Change new fill color .......100");
            line("SET & EXIT ...................99");
        };
        auto act = [&](int c) {
            if (c == 100) {
                sfillcolor(colour, 0);
            } else {
                warninghead(VB_SHSTFILLCOLOR);
                line("Unexpected answer ==> NO ACTION");
                warningtail00();
            }
        };
        menuloop(VB_SHSTFILLCOLOR, show, act);
    }
    b.IPLFLCOLHST0(h) = colour;
    sfillcolor(saved, 1);
}

void shstlabel(fstr_ref text, int& on, int& k, int& h, const int& intera) {
    blkhst8_t& b = blkhst8;
    if (!checked(h, VB_SHSTLABEL, "==> NO ACTION")) return;
    int mode = intera;
    if (k < 1 || k > MAXLABHST) {
        errorhead(VB_SHSTLABEL);
        count("label number =", k);
        outside("outside [", 1, MAXLABHST);
        k = 6;
        count("==> label number reset to =", k);
        errortail00();
        if (mode_silent(mode)) mode = 2;
    }
    if (mode_resets(mode)) {
        static const char* const texts[MAXLABHST] = {"East", "North", "---", "---",
                                                     "X-Axis", "---", "---", "N"};
        text = texts[k - 1];
        on = (k == 1 || k == 2 || k == 5) ? 1 : 0;
    } else if (mode_from_store(mode)) {
        text = b.LABELHST0(k, h).sv();
        on = b.ONLABELHST0(k, h) ? 1 : 0;
    } else if (on != 0 && on != 1) {
        errorhead(VB_SHSTLABEL);
        count("histogram nb   =", h);
        count("label number   =", k);
        count("drawing switch =", on);
        line("should be in [0,1]");
        on = 0;
        count("==>reset to =", on);
        errortail00();
        if (mode_silent(mode)) {
            mode = 2;
            text = b.LABELHST0(k, h).sv();
            on = b.ONLABELHST0(k, h) ? 1 : 0;
        }
    }
    if (mode_talks(mode)) {
        auto show = [&] {
            top("HISTOGRAM LABELS SETTING", h);
            line("POSITIONS <-> INDEX:");
            line("| ROSE DIAGRAM: |    X-Y BOX:   |");
            line("| 7     2     6 |       6       |");
            line("|       |       |   |-------|   |");
            line("|  3----|----1  | 8 |       | 8 |");
            line("|       |       |   |-------|   |");
            line("| 8     4     5 |       5       |");
            line("|                               |");
            line("|          5: X axis            |");
            line("|          8: Y axis            |");
            line("|          6: N = Ntotal        |");
            ival("label index...........1", k);
            tval("label text............2", text.sv());
            ival("draw label (0/1)......3", on);
            line("EXIT ................99");
        };
        auto act = [&](int c) {
            int ierr = 0;
            if (c == 1) {
                inintegvindef(k, "label index", k, 1, MAXLABHST, ierr);
                text = b.LABELHST0(k, h).sv();
                on = b.ONLABELHST0(k, h) ? 1 : 0;
            } else if (c == 2) {
                fstr<LABLENHST> t = text.sv();
                inchardef(t, "text to draw", t.sv(), ierr);
                text = t.sv();
            } else if (c == 3) {
                inintegvindef(on, "whether to draw label (0=no/1=yes)", on, 0, 1, ierr);
            }
        };
        menuloop(VB_SHSTLABEL, show, act);
    }
    b.ONLABELHST0(k, h) = on == 1;
    b.LABELHST0(k, h) = text.sv();
}
