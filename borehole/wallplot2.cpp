// The perspective wall plot: its saved settings, its menu and the page of
// command 100. The columns of welldat serve as buffers for whole sections,
// so that a curve of 15000 points needs no allocation.
#include "borehole/wallplot2.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "borehole/derived.h"
#include "borehole/tracks.h"
#include "borehole/wellplot.h"
#include "math/angles.h"
#include "plot/attributes.h"
#include "plot/pages.h"
#include "plot/symbols.h"
#include "projection/projection.h"
#include "shell/format.h"
#include "shell/menus.h"
#include "shell/prompts.h"
#include "shell/runinfo.h"
#include "shell/sio.h"
#include "shell/textconv.h"
#include "shell/valuesearch.h"
#include "well/welldat.h"
#include "well/wellpara.h"

namespace {

// Work columns of RWD1 and IWD1.
constexpr int JAZ = 9, JRAD = 10, JZ = 11, JX = 12, JY = 13, JPX = 14, JPY = 15;
constexpr int ILOOP = 1, ISAT = 2;
constexpr int NARC = 90;  // points of a bit size half circle
// Tics of one scale at most, whatever the settings: a depth typed with
// digits too many would otherwise fill the disk with tics.
constexpr int MAXWALLTICS = 500;

struct wallsaved_t {
    fstr<40> fplotw;  // plot file name
    int icpers;       // caliper: 1 C1, 2 C2
    int icsatw;       // marks: 0 none, 1 saturated, 2 unsaturated samples
    int ibsinc;       // rows between bit size circles
    bool lcin, lcout, lcspike, lcoutp, lbshole, lazframe;
    float zplot0;    // depth of Z = 0
    float zscalew;   // depth to Z
    float zincw;     // step of the depth tics
    float rtic0w;    // depth tics: start beyond the bit radius, fraction of it
    float rticlw;    // their length, same fraction
    float azshift;   // rotation of the azimuths, degrees
    float azfirstw;  // azimuth tics: first, last and step, degrees
    float azlastw;
    float azincw;
    float atic0w;    // azimuth tics: start off the bit radius, fraction of it
    float aticlw;    // their length, same fraction
    float dlabelw;   // depth numbers off their tic, plot x units
    int isymw;       // symbol of the marks
    float symsizw;   // its size, cm
};
const wallsaved_t WALL_DEFAULTS{"wellpers.ps", 1, 0, 1, true, true, true, false, true, true,
                                0.0f, 0.5f, 10.0f, 0.4f, 0.12f, 0.0f, 0.0f, 180.0f, 30.0f,
                                0.04f, 0.12f, 1.0f, -1, 0.2f};
wallsaved_t ws = WALL_DEFAULTS;

const char* const SATNAME[3] = {"no", "saturated", "unsaturated"};

void real_item(std::string_view s, float v) { writef(iocom.isout, "(2(1x,a,1x,f10.3))", s, v); }
void int_item(std::string_view s, int v, std::string_view name = {}) {
    if (name.empty())
        writef(iocom.isout, "(1x,a,1x,i5,1x,a)", s, v);
    else
        writef(iocom.isout, "(1x,a,1x,i5,1x,a)", s, v, name);
}

void menu() {
    menublock("PLOT PARAMS                       Command");
    textline("Open plot file ........................10");
    flagline("Landscape(T)/Portrait(F) ..............11", wellplot.llandscape);
    textline("Set local scaling .....................12");
    textline("Set plot and axes params ..............13");
    textline("Set projection ........................14");
    textline("Close plot file .......................20");
    int ilist = 1;
    wellstatus(ilist);
    swellparam(10);
    textline("Change hole parameters .....50");
    menublock("PARAMETERS                        Command");
    real_item("Ztop for plot ........................800", ws.zplot0);
    real_item("depth axis increment .................801", ws.zincw);
    real_item("Zscale ...............................805", ws.zscalew);
    real_item("Azshift ..............................806", ws.azshift);
    int_item("C1 or C2 .............................850", ws.icpers);
    int_item("Csat activated ? .....................855", ws.icsatw,
             ws.icsatw >= 0 && ws.icsatw <= 2 ? SATNAME[ws.icsatw] : "");
    int_item("Bit size hole increment ..............860", ws.ibsinc);
    flagline("curve Ci in ..........................901", ws.lcin);
    flagline("curve Ci out .........................902", ws.lcout);
    flagline("Ci vectors ...........................903", ws.lcspike);
    flagline("Ci out points ........................904", ws.lcoutp);
    flagline("Drilled hole .........................905", ws.lbshole);
    flagline("Azimuth / Depth frame ................907", ws.lazframe);
    menurule();
    textline("PLOT .................................100");
    textline("EXIT ..................................99");
}


// Command 12: the fixed scale of subplot 1.
void localscaling() {
    textline("PERSPECTIVE PLOT SCALING");
    int one = 1;
    ssubplot(one, 1);
    float xcm0 = 0, ycm0 = 0, xu0 = 0, yu0 = 0, xx = 0, xy = 0, yx = 0, yy = 0;
    sus2cm2(xcm0, ycm0, xu0, yu0, xx, xy, yx, yy, 2);
}

// P1Az, C1 and C2 are there.
bool usable_type() {
    const int id = welldat.IDTYPWD(welldat.itypwd);
    return id == 100 || id == 110 || id == 200 || id == 210;
}

void datacheck() {
    errorhead(VB_WALLPLOT2);
    if (welldat.IDTYPWD(welldat.itypwd) == 0) {
        textline("NO DATA !");
        textline("===> NEED TO READ DATA FIRST");
    } else {
        textline("INCORRECT DATA TYPE");
        textline("===> NEED TO READ CORRECT DATA");
    }
    textline("===> DATA PLOTTING DISABLED");
    errortail00();
}


// The run, data and plot information at the top of the page.
void pagetext(int i1, int i2) {
    const welldat_t& w = welldat;
    const wellpara_t& p = wellpara;
    float angle = 0.0f;
    stextangle(angle, 1);
    int entryalign = 0, align = 0;
    stextalign(entryalign, 3);
    const auto [x, y] = wellpagehead(w.finwd.sv());
    align = -3;
    stextalign(align, 1);
    const int jdep = w.JCOL(w.jdepth);
    // The increment is that of the file's first two rows.
    const float inc = w.ndatwd >= 2 ? w.RWD1(2, jdep) - w.RWD1(1, jdep) : 0.0f;
    cmplotcharinfo2("Depth init = " + realtext(w.RWD1(i1, jdep), 2, 7) + " final = " +
                        realtext(w.RWD1(i2, jdep), 2, 7) + " inc = " + realtext(inc, 2, 7),
                    1, x, y);
    cmplotcharinfo2("BS = " + realtext(p.bitsize, 3, 12) + " C1Sat = " + realtext(p.c1sat, 3, 12) +
                        " C2Sat = " + realtext(p.c2sat, 3, 12),
                    2, x, y);
    cmplotcharinfo2("Origin depth = " + realtext(ws.zplot0, 2, 12) + " Azimuth Shift = " +
                        realtext(ws.azshift, 1, 12),
                    3, x, y);
    cmplotcharinfo2(std::string("Symbols on ") + SATNAME[ws.icsatw] + " calipers", 4, x, y);
    cmplotcharinfo2("Bit size hole increment = " + integtext(ws.ibsinc), 5, x, y);
    stextalign(entryalign, 1);
}

// The attributes of the curves and spikes, fetched first so that they can
// be restored; the line colour goes into the caller's work variable.
struct attrs {
    int fill = 0, symtype = 0;
    float symsize = 0.0f;
};
void curve_attributes(attrs& old, int& linecolour, int colour) {
    slinecolor(linecolour, 3);
    sfillcolor(old.fill, 3);
    ssymboltype(old.symtype, 3);
    ssymbolsize(old.symsize, 3);
    int c = colour;
    slinecolor(c, 1);
    c = colour;
    sfillcolor(c, 1);
    ssymboltype(ws.isymw, 1);
    ssymbolsize(ws.symsizw, 1);
}
void restore_attributes(attrs& old, int& linecolour) {
    slinecolor(linecolour, 1);
    sfillcolor(old.fill, 1);
    ssymboltype(old.symtype, 1);
    ssymbolsize(old.symsize, 1);
}

// The n rows from row j1: polar (JRAD, JAZ) to X, Y with Y counted
// clockwise, projected and drawn.
void section_curve(int j1, int n) {
    auto& R = welldat.RWD1;
    float* x = &R(j1, JX);
    float* y = &R(j1, JY);
    rt2xy(x, y, &R(j1, JRAD), &R(j1, JAZ), n);
    for (int i = 0; i < n; ++i) y[i] = -y[i];
    projxyzn(&R(j1, JPX), &R(j1, JPY), x, y, &R(j1, JZ), n);
    trackline(&R(j1, JPX), &R(j1, JPY), n);
}

// Two points at radii r1 and r2 on one azimuth (radians) and one Z,
// projected.
void radial_pair(farr<float, 2>& px, farr<float, 2>& py, float r1, float r2, float t, float z) {
    farr<float, 2> r, a, x, y, zz;
    r(1) = r1;
    r(2) = r2;
    a(1) = a(2) = t;
    zz(1) = zz(2) = z;
    rt2xy(x.data(), y.data(), r.data(), a.data(), 2);
    y(1) = -y(1);
    y(2) = -y(2);
    projxyzn(px.data(), py.data(), x.data(), y.data(), zz.data(), 2);
}

float depth_to_z(float depth) { return -(depth - ws.zplot0) * ws.zscalew; }

// The step of the depth tics: the one set, or a whole multiple of it that
// keeps the tics within bounds, with a warning.
float depth_step(float ztop, float zbot) {
    const float n = (zbot - ztop) / ws.zincw;
    if (!(ws.zincw > 0.0f) || !(n > float(MAXWALLTICS))) return ws.zincw;
    const float step = std::isfinite(n) ? ws.zincw * std::ceil(n / float(MAXWALLTICS))
                                        : (zbot / float(MAXWALLTICS) - ztop / float(MAXWALLTICS));
    warninghead(VB_WALLPLOT2);
    textline("Too many depth tics:");
    realline("Ztop =", ztop);
    realline("Zbot =", zbot);
    realline("depth increment =", ws.zincw);
    realline("=> RESET increment =", step);
    warningtail00();
    return step;
}

// The number of azimuth tics, at most the bound, with a warning when the
// settings ask for more (or for none that can be counted).
int azimuth_tics() {
    const float n = (ws.azlastw - ws.azfirstw) / ws.azincw + 0.1f;
    if (n < float(MAXWALLTICS)) return n > -1.0f ? int(n) + 1 : 0;
    warninghead(VB_WALLPLOT2);
    textline("Too many azimuth tics:");
    realline("first azimuth =", ws.azfirstw);
    realline("last azimuth =", ws.azlastw);
    realline("increment =", ws.azincw);
    intline("=> DRAWING ONLY", MAXWALLTICS + 1);
    warningtail00();
    return MAXWALLTICS + 1;
}

// Command 100.
void plot(bool ldata) {
    if (iocom.lplotopen) {
        newpage();
    } else {
        plinit(ws.fplotw, 2);
        int one = 1;
        ssubplot(one, 1);
    }
    if (!ldata) return;

    welldat_t& w = welldat;
    const wellpara_t& p = wellpara;
    const int jdep = w.JCOL(w.jdepth);
    int status = 0, i1 = 1, i2 = 1;
    inval2inind2(status, i1, i2, p.ztop, p.zbot, 1, w.ndatwd, w.RWD1.col(jdep), MAXDATWD, 0);
    if (status == 1 || status == 2) {
        warninghead(VB_WALLPLOT2);
        textline(status == 1 ? "INDICES PROBLEM OR FAILED SEARCH" : "DATA OUT OF RANGE");
        textline("=> SKIPPING PLOT");
        warningtail00();
        return;
    }
    int icmd = 100;
    scmndinfo(icmd);
    pagetext(i1, i2);

    const int n = i2 - i1 + 1;
    const float h = p.bitsize * 0.5f;
    const int jcal = w.JCOL(ws.icpers == 2 ? w.jc2 : w.jc1);
    auto& R = w.RWD1;
    auto& I = w.IWD1;
    const bool marks = ws.icsatw == 1 || ws.icsatw == 2;
    const int markkey = ws.icsatw == 1 ? 1 : 0;

    // The line colour in force at the start: the alignment of the last step
    // falls back on this variable when the frame didn't fetch it.
    int iwork = 0;
    slinecolor(iwork, 3);

    // Azimuths folded into a half turn (both pads of an arm pair lie on
    // one diameter), the half turn they came from, and Z.
    int colour = wellplot.jclrc1;
    if (ws.lcin || ws.lcout || ws.lcspike || ws.lcoutp) {
        const int jp1az = w.JCOL(w.jp1az);
        const float turn = ws.icpers == 2 ? 90.0f : 0.0f;
        if (ws.icpers == 2) colour = wellplot.jclrc2;
        for (int i = i1; i <= i2; ++i) {
            float& az = R(i, JAZ);
            int& loop = I(i, ILOOP);
            az = R(i, jp1az) + turn;
            // A null value (NaN) stays in half turn 0 and is left out when drawn.
            const float half = std::trunc(az / 180.0f);
            loop = std::fabs(half) < 1.0e9f ? int(half) : 0;
            if (az < 0.0f) loop -= 1;
            az = az - 180.0f * float(loop) + ws.azshift;
            R(i, JZ) = depth_to_z(R(i, jdep));
        }
        deg2rad(&R(i1, JAZ), &R(i1, JAZ), n);
    }

    if (marks && (ws.lcout || ws.lcspike || ws.lcoutp)) {
        const float csat = ws.icpers == 2 ? p.c2sat : p.c1sat;
        for (int i = i1; i <= i2; ++i) I(i, ISAT) = R(i, jcal) >= csat ? 1 : 0;
    }

    attrs old;
    if (ws.lcin || ws.lcout) {
        curve_attributes(old, iwork, colour);
        const char* fmt_head = "(1x, 2('|',a5), 2('|',a8  ),'|', a12,'|')";
        menurule();
        writef(iocom.isout, fmt_head, "index", "index", "depth", "depth", "loop");
        writef(iocom.isout, fmt_head, "initl", "final", "initl", "final", "type");
        menurule();
        for (int j1 = i1; j1 <= i2;) {
            int j2 = j1;
            while (j2 < i2 && I(j2 + 1, ILOOP) == I(j1, ILOOP)) ++j2;
            const int m = j2 - j1 + 1;
            if (iocom.LWITO(2))
                writef(iocom.isout, "(1x, 2('|',i5), 2('|',f8.1),'|', a12,'|')", j1, j2,
                       R(j1, jdep), R(j2, jdep), m == 1 ? "single point" : "regular");
            if (ws.lcin) {
                // The arm's foot on the bit size hole.
                for (int j = j1; j <= j2; ++j) R(j, JRAD) = h;
                section_curve(j1, m);
            }
            if (ws.lcout) {
                // The near arm is taken at the bit radius: the whole excess
                // of the caliper goes to the far wall.
                for (int j = j1; j <= j2; ++j) R(j, JRAD) = R(j, jcal) - h;
                section_curve(j1, m);
                if (marks) {
                    float* px = &R(j1, JPX);
                    float* py = &R(j1, JPY);
                    int nout = 0;
                    extractxy(px, py, nout, px, py, &I(j1, ISAT), m, markkey);
                    if (nout > 0) trackpoints(px, py, nout);
                }
            }
            j1 = j2 + 1;
        }
        menurule();
        restore_attributes(old, iwork);
    }

    if (ws.lcspike || ws.lcoutp) {
        curve_attributes(old, iwork, colour);
        farr<float, 2> px, py;
        for (int i = i1; i <= i2; ++i) {
            radial_pair(px, py, R(i, jcal) - h, h, R(i, JAZ), R(i, JZ));
            if (!ws.lcspike) {
                px(2) = px(1);
                py(2) = py(1);
            }
            trackline(px.data(), py.data(), 2);
            const int s = I(i, ISAT);
            if ((ws.icsatw == 1 && s == 1) || (ws.icsatw == 2 && s == 0))
                trackpoints(px.data(), py.data(), 1);
        }
        restore_attributes(old, iwork);
    }

    if (ws.lbshole) {
        float* xa = w.RWD1.col(JAZ);
        float* ya = w.RWD1.col(JRAD);
        float* za = w.RWD1.col(JZ);
        arcirclerad(xa, ya, NARC, 0.0f, 0.0f, h, rad(ws.azshift), rad(ws.azshift + 180.0f));
        for (int k = 0; k < NARC; ++k) ya[k] = -ya[k];
        for (int i = i1; i <= i2; i += ws.ibsinc) {
            const float zc = depth_to_z(R(i, jdep));
            for (int k = 0; k < NARC; ++k) za[k] = zc;
            projxyzn(w.RWD1.col(JX), w.RWD1.col(JY), xa, ya, za, NARC);
            usline(w.RWD1.col(JX), w.RWD1.col(JY), NARC);
        }
    }

    if (ws.lazframe) {
        stextalign(iwork, 3);
        const float r1 = (ws.rtic0w + 1.0f) * h, r2 = (ws.rtic0w + 1.0f + ws.rticlw) * h;
        const float step = depth_step(p.ztop, p.zbot);
        farr<float, 2> px, py;
        for (int k = 1; k <= 2; ++k) {
            const float t = rad(float(k - 1) * 180.0f + ws.azshift);
            // Without a positive step the tics would never end.
            if (step <= 0.0f) break;
            for (int j = 0; j <= MAXWALLTICS; ++j) {
                const float d = p.ztop + float(j) * step;
                if (!(d <= p.zbot)) break;
                radial_pair(px, py, r1, r2, t, depth_to_z(d));
                usline(px.data(), py.data(), 2);
                int just = k == 1 ? -5 : -7;
                stextalign(just, 1);
                const float xl = px(2) + (k == 1 ? ws.dlabelw : -ws.dlabelw);
                ustext2(xl, py(2), integtext(int(std::clamp(d, -2.0e9f, 2.0e9f))));
            }
        }
    }

    // Azimuth tics, inward at the top and outward at the bottom, whether
    // the frame is drawn or not.
    {
        const int nt = azimuth_tics();
        farr<float, 2> px, py;
        for (int k = 1; k <= 2; ++k) {
            const float ra = k == 1 ? (1.0f - ws.atic0w) * h : (ws.atic0w + 1.0f) * h;
            const float rb = k == 1 ? (1.0f - ws.atic0w - ws.aticlw) * h
                                    : (ws.atic0w + 1.0f + ws.aticlw) * h;
            const float zt = depth_to_z(k == 1 ? p.ztop : p.zbot);
            for (int j = 1; j <= nt; ++j) {
                const float t = rad(ws.azincw * float(j - 1) + ws.azfirstw + ws.azshift);
                radial_pair(px, py, ra, rb, t, zt);
                usline(px.data(), py.data(), 2);
            }
        }
    }
    trackend();
    stextalign(iwork, 1);
}

}  // namespace

void wallplot2(const int& intera) {
    if (intera == 5 || intera == 6) {
        submenuhead(VB_WALLPLOT2);
        textline("INITIALIZING WALL PLOT PARAMETERS");
        ws = WALL_DEFAULTS;
        return;
    }
    ssubinfo2(VB_WALLPLOT2.name, VB_WALLPLOT2.version, VB_WALLPLOT2.date);
    const bool ldata = usable_type();
    if (!ldata) datacheck();
    if (iocom.lplotopen) {
        int one = 1;
        ssubplot(one, 1);
    }

    int icmd = 0, ierr = 0;
    for (;;) {
        if (iocom.LWITO(1)) submenuhead(VB_WALLPLOT2);
        if (iocom.LWITO(2)) menu();
        ininteg1(icmd, "your choice", ierr);
        switch (icmd) {
        case 10: {
            plinit(ws.fplotw, 2);
            int one = 1;
            ssubplot(one, 1);
            break;
        }
        case 11: swellorientation("to use Landscape(1) or Portrait(0) A4", true); break;
        case 12: localscaling(); break;
        case 13: swellplot(2); break;
        case 14: {
            int iproj = 0;
            sprojxyz(iproj, 2);
            break;
        }
        case 20: plend(); break;
        case 50: swellparam(0); break;
        case 800: inrealdef(ws.zplot0, "top plot depth", ws.zplot0, ierr); break;
        case 801: inrealdef(ws.zincw, "depth increment", ws.zincw, ierr); break;
        case 805: inrealdef(ws.zscalew, "relative z scale", ws.zscalew, ierr); break;
        case 806:
            inrealdef(ws.azshift, "azimuth shift for perspective (deg)", ws.azshift, ierr);
            break;
        case 850:
            inintegvindef(ws.icpers, "whether to plot c1 or c2 (1/2)", ws.icpers, 1, 2, ierr);
            break;
        case 855:
            textline("do not mark saturated calipers ..0");
            textline("mark saturated calipers .........1");
            textline("mark unsaturated calipers .......2");
            inintegvindef(ws.icsatw, "your choice", ws.icsatw, 0, 2, ierr);
            break;
        case 860:
            // A step below 1 would never leave the circle loop.
            inintegvindef(ws.ibsinc, "increment between bit size hole circles", ws.ibsinc, 1,
                          MAXDATWD, ierr);
            break;
        case 901: inlogicdef(ws.lcin, "plot Ci in curve", ws.lcin, ierr); break;
        case 902: inlogicdef(ws.lcout, "plot Ci out curve", ws.lcout, ierr); break;
        case 903: inlogicdef(ws.lcspike, "plot Ci spikes", ws.lcspike, ierr); break;
        case 904: inlogicdef(ws.lcoutp, "plot Ci out points", ws.lcoutp, ierr); break;
        case 905: inlogicdef(ws.lbshole, "plot bit size hole", ws.lbshole, ierr); break;
        case 907: inlogicdef(ws.lazframe, "plot azimuht & depth frame", ws.lazframe, ierr); break;
        case 100: plot(ldata); break;
        default: break;
        }
        if (icmd == 99) break;
    }
    ssubexitinfo(VB_WALLPLOT2.name, VB_WALLPLOT2.version, VB_WALLPLOT2.date);
}
