// Drawing axes and boxes. Everything is built on cmaxis11, which draws one
// axis along any straight line on the paper; a box is four such lines, or
// plain lines where an edge carries no axis.
#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "math/angles.h"
#include "math/matrix.h"
#include "plot/attributes.h"
#include "plot/axes/axes.h"
#include "plot/pages.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/menus.h"
#include "shell/sio.h"
#include "shell/textconv.h"
#include "shell/textlen.h"

namespace {

constexpr version_block VB_CMAXIS11{"cmaxis11   ", " 3.2", "2017-12-26"};
constexpr version_block VB_CMTIC2{"cmtic2     ", " 4.1", "2012-05-09"};
constexpr version_block VB_D1BX2D{"d1bx2d     ", " 2.1", "2012-05-09"};

constexpr int NUMLEN = 20;  // characters of a number text

// Bounds on what one axis writes, whatever its settings: a depth typed
// with three digits too many would otherwise put millions of tics on a page.
constexpr int MAXTICS = 500;    // tics
constexpr int MAXMARKS = 5000;  // tics and subtics together


// An angle in degrees wrapped into (-period/2, period/2].
float wrapped(float angle, float period) {
    float r = 0.0f;
    moducr(&r, &angle, period, 1);
    return r;
}

// The integer part, held inside the range of an int so that a wild bound
// can't overflow the conversion.
int trunc_int(float v) {
    if (std::isnan(v)) return 0;
    if (v >= 2.0e9f) return 2000000000;
    if (v <= -2.0e9f) return -2000000000;
    return int(v);
}

// Angle and justification of a text that runs along a line of direction
// axang, standing off it on the side of the tics (ang): it reads from left
// to right and its near edge faces the line.
void along_line(float& tangle, int& just, float axang, float ang) {
    tangle = wrapped(axang, 360.0f);
    if (tangle > -90.0f && tangle <= 90.0f) {
        just = ang >= 0.0f ? -2 : -10;
    } else {
        tangle = wrapped(tangle, 180.0f);
        just = ang >= 0.0f ? -10 : -2;
    }
}

// Estimated width, in characters, of the widest number of an axis. The
// minus sign takes half a character off rather than adding it: kept so, as
// the placement of every label depends on it.
float number_width(float wau1, float wau2, int nawdig) {
    fstr<NUMLEN> text;
    int n1 = 0, n2 = 0;
    float w;
    if (nawdig != 0) {
        real2charf1(text, n1, nawdig, NUMLEN, std::fabs(wau1));
        real2charf1(text, n2, nawdig, NUMLEN, std::fabs(wau2));
        w = float(n1 > n2 ? n1 : n2) - 0.5f;
    } else {
        intg2char(text, n1, NUMLEN, trunc_int(std::fabs(wau1)));
        intg2char(text, n2, NUMLEN, trunc_int(std::fabs(wau2)));
        w = float(n1 > n2 ? n1 : n2);
    }
    if (wau1 < 0.0f || wau2 < 0.0f) w -= 0.5f;
    return w;
}

void bounds_lines(float wau1, float wau2, float waud) {
    realline("initial value      =", wau1);
    realline("final   value      =", wau2);
    realline("increment          =", waud);
}

// The settings an axis was last bounded for: every track of a log page
// draws the same depth axis, and one warning for them is enough.
struct bounded_axis {
    float wau1, wau2, waud;
    int nasubint;
    bool operator==(const bounded_axis&) const = default;
};
bounded_axis last_bounded{0.0f, 0.0f, 0.0f, 0};

// True the first time in a row that these settings need a warning.
bool first_warning(float wau1, float wau2, float waud, int nasubint) {
    const bounded_axis now{wau1, wau2, waud, nasubint};
    if (now == last_bounded) return false;
    last_bounded = now;
    return true;
}

// Fits the tics (nint intervals of d) and the subtics into the bounds; a
// warning, once for the same settings, says what was changed.
void bound_marks(float& nint, float& d, int& nsub, float wau1, float wau2, float waud) {
    const bool many_tics = nint > float(MAXTICS);
    if (many_tics) {
        // Whole multiples of the increment keep the tics on its values.
        const float k = std::ceil(nint / float(MAXTICS));
        d *= k;
        nint /= k;
    }
    const int ntics = trunc_int(nint + 0.0001f) + 1;
    const int nsub0 = nsub;
    if (nsub > MAXMARKS / ntics) nsub = std::max(1, MAXMARKS / ntics);
    if (!many_tics && nsub == nsub0) return;
    if (!first_warning(wau1, wau2, waud, nsub0)) return;
    warninghead(VB_CMAXIS11);
    textline("Too many tics for one axis:");
    bounds_lines(wau1, wau2, waud);
    writef(iocom.isout, "(1x,a,1x,i12)", "nb of subtics intervals =", nsub0);
    if (many_tics) realline("=> RESET increment =", d);
    if (nsub != nsub0) writef(iocom.isout, "(1x,a,1x,i12)", "=> RESET subtics intervals =", nsub);
    warningtail00();
}

// One axis's annotation, as usbax6 hands it on to cmaxis11.
struct axis_annotation {
    const float& WAU1;
    const float& WAU2;
    const float& WAUD;
    std::string_view WALAB;
    const int& NAWDIG;
    const float& WALAS;
    const int& NASUBINT;
    const int& NLABINTK;
};

// One edge of a box from user point a to user point b: a full axis for any
// type but 0, else a plain line.
void box_edge(float xa, float ya, float xb, float yb, float ticangle, int iorient, int type,
              const axis_annotation& ax) {
    const float xu[2] = {xa, xb};
    const float yu[2] = {ya, yb};
    if (type == 0) {
        usline(xu, yu, 2);
        return;
    }
    float xc[2], yc[2];
    us2cm(xc, yc, xu, yu, 2);
    cmaxis11(xc[0], yc[0], xc[1], yc[1], ticangle, ax.NASUBINT, ax.NLABINTK, ax.WAU1, ax.WAU2,
             ax.WAUD, ax.NAWDIG, ax.WALAS, iorient, ax.WALAB);
}

}  // namespace

void cmtic2(const farr<float, 2>& ORIG, const farr<float, 2>& DTIC, const farr<float, 2>& VTIC,
            const float& ratio, const int& ntics, const int& NASUBINT, const int& nrest) {
    if (ntics < 1) {
        warninghead(VB_CMTIC2);
        intline("ntics =", ntics);
        textline("< 1 ==> NO TICKMARKS");
        warningtail00();
        return;
    }
    farr<float, 2> DSA{{0.0f, 0.0f}};
    if (NASUBINT != 0) {
        DSA(1) = DTIC(1) / float(NASUBINT);
        DSA(2) = DTIC(2) / float(NASUBINT);
    }
    const float vsx = VTIC(1) * ratio;
    const float vsy = VTIC(2) * ratio;

    // The tic's foot and head start one step before the origin, so that the
    // first move puts them on it.
    float xt[2], yt[2];
    xt[0] = ORIG(1) - DTIC(1);
    yt[0] = ORIG(2) - DTIC(2);
    xt[1] = xt[0] + VTIC(1);
    yt[1] = yt[0] + VTIC(2);
    for (int i = 1; i <= ntics; ++i) {
        for (int e = 0; e < 2; ++e) {
            xt[e] += DTIC(1);
            yt[e] += DTIC(2);
        }
        cmline(xt, yt, 2);

        // Subtics grow from the tic's foot, on the tic's side of the line.
        float xs[2] = {xt[0], xt[0] + vsx};
        float ys[2] = {yt[0], yt[0] + vsy};
        const int nsub = i < ntics ? NASUBINT - 1 : nrest;
        for (int k = 1; k <= nsub; ++k) {
            for (int e = 0; e < 2; ++e) {
                xs[e] += DSA(1);
                ys[e] += DSA(2);
            }
            cmline(xs, ys, 2);
        }
    }
}

void cmaxis11(const float& x0, const float& y0, const float& x1, const float& y1,
              const float& ticangle, const int& NASUBINT, const int& NLABINTK, const float& WAU1,
              const float& WAU2, const float& WAUD, const int& NAWDIG, const float& WALAS,
              const int& iorient, std::string_view WALAB) {
    // The caller's text attributes come back at the end.
    float hsave = 0.0f, asave = 0.0f;
    int jsave = 0;
    stextsize(hsave, 3);
    stextangle(asave, 3);
    stextalign(jsave, 3);

    float s = WALAS * 0.8f;  // height of the numbers
    const float t = s * 0.5f;  // tic length
    const float subratio = 0.5f;

    const farr<float, 2> OAXIS{{x0, y0}};
    const farr<float, 2> VAXIS{{x1 - x0, y1 - y0}};
    float axang = 0.0f;
    xy2t(&axang, &VAXIS(1), &VAXIS(2), 1);
    axang = deg(axang);
    {
        const float xl[2] = {x0, x1};
        const float yl[2] = {y0, y1};
        cmline(xl, yl, 2);
    }

    float d = WAUD != 0.0f ? WAUD : WAU2 - WAU1;
    // Equal bounds with no increment would divide zero by zero.
    float nint = d != 0.0f ? (WAU2 - WAU1) / d : 0.0f;
    // Bounds or an increment past the range of a real leave no tic to place.
    const bool finite = std::isfinite(WAU1) && std::isfinite(WAU2) && std::isfinite(d) &&
                        std::isfinite(nint);

    const float ang = wrapped(ticangle, 360.0f);
    const float tdir = rad(ang + axang);
    const farr<float, 2> VTIC0{{std::cos(tdir), std::sin(tdir)}};
    const float labw = finite ? s * number_width(WAU1, WAU2, NAWDIG) * 0.6f : 0.0f;

    if (!finite) {
        if (first_warning(WAU1, WAU2, WAUD, NASUBINT)) {
            warninghead(VB_CMAXIS11);
            textline("Annotation bounds not finite:");
            bounds_lines(WAU1, WAU2, WAUD);
            textline("=> SKIPPING TICS");
            warningtail00();
        }
    } else if (nint == 0.0f) {
        warninghead(VB_CMAXIS11);
        textline("Identical annotation bounds:");
        bounds_lines(WAU1, WAU2, d);
        textline("=> SKIPPING TICS");
        warningtail00();
    } else {
        if (WAUD == 0.0f || nint < 0.0f) {
            if (nint < 0.0f) {
                d = -d;
                nint = -nint;
            }
            warninghead(VB_CMAXIS11);
            textline("Inconsistent annotation increment:");
            bounds_lines(WAU1, WAU2, WAUD);
            realline("=> RESET increment =", d);
            warningtail00();
        }

        int nsub = NASUBINT;
        bound_marks(nint, d, nsub, WAU1, WAU2, WAUD);

        // A range that isn't a whole number of increments ends in a partial
        // run of subtics after the last tic.
        const int nwhole = trunc_int(nint + 0.0001f);
        const int ntics = nwhole + 1;
        const int nrest = trunc_int((nint - float(nwhole)) * float(nsub) + 0.0001f);

        const farr<float, 2> DAXTIC{{VAXIS(1) / nint, VAXIS(2) / nint}};
        const farr<float, 2> VTIC1{{t * VTIC0(1), t * VTIC0(2)}};
        cmtic2(OAXIS, DAXTIC, VTIC1, subratio, ntics, nsub, nrest);

        float tangle = 0.0f;
        int just = -1;
        if (iorient == 2) {
            along_line(tangle, just, axang, ang);
        } else {
            tangle = wrapped(ang + axang, 360.0f);
            if (tangle > -90.0f && tangle <= 90.0f) {
                just = -5;
            } else {
                tangle = wrapped(tangle, 180.0f);
                just = -7;
            }
        }
        stextsize(s, 1);
        stextangle(tangle, 1);
        stextalign(just, 1);

        const float ax = 1.5f * t * VTIC0(1) + OAXIS(1);
        const float ay = 1.5f * t * VTIC0(2) + OAXIS(2);
        // A step below 1 would never leave the first tic.
        const int step = NLABINTK > 0 ? NLABINTK : 1;
        fstr<NUMLEN> text;
        for (int i = 1; i <= ntics; i += step) {
            const float value = d * float(i - 1) + WAU1;
            int n = 0;
            if (NAWDIG != 0)
                real2charf1(text, n, NAWDIG, NUMLEN, value);
            else
                intg2char(text, n, NUMLEN, trunc_int(value));
            if (n < 1) n = 1;
            if (n > NUMLEN) n = NUMLEN;
            const float px = DAXTIC(1) * float(i - 1) + ax;
            const float py = DAXTIC(2) * float(i - 1) + ay;
            cmtext2(px, py, text.sub(1, n));
        }
    }

    // The label, centred along the axis beyond the numbers.
    float langle = 0.0f;
    int ljust = -2;
    along_line(langle, ljust, axang, ang);
    const float dist = iorient == 2 ? 2.0f * t + s : 2.0f * t + labw;
    const float lx = OAXIS(1) + 0.5f * VAXIS(1) + dist * VTIC0(1);
    const float ly = OAXIS(2) + 0.5f * VAXIS(2) + dist * VTIC0(2);
    float lheight = WALAS;
    stextsize(lheight, 1);
    stextangle(langle, 1);
    stextalign(ljust, 1);
    cmtext2(lx, ly, trimmed(WALAB));

    stextsize(hsave, 1);
    stextangle(asave, 1);
    stextalign(jsave, 1);
}

void usbax6(const float& xfirst, const float& xlast, const float& yfirst, const float& ylast,
            const float& xWAU1, const float& xWAU2, const float& xWAUD, std::string_view xWALAB,
            const int& xNAWDIG, const float& xWALAS, const int& xNASUBINT, const int& xNLABINTK,
            const float& yWAU1, const float& yWAU2, const float& yWAUD, std::string_view yWALAB,
            const int& yNAWDIG, const float& yWALAS, const int& yNASUBINT, const int& yNLABINTK,
            const int& izerobx, const int& top, const int& bottom, const int& left,
            const int& right) {
    const axis_annotation xax{xWAU1, xWAU2, xWAUD, xWALAB, xNAWDIG, xWALAS, xNASUBINT, xNLABINTK};
    const axis_annotation yax{yWAU1, yWAU2, yWAUD, yWALAB, yNAWDIG, yWALAS, yNASUBINT, yNLABINTK};

    // A map that mirrors the paper turns the tics round as well.
    farr<float, 2> V0;
    farr2<float, 2, 2> M;
    splotunits(V0, M, 1, 3);
    float det = 0.0f;
    m22determt(det, &M(1, 1));
    const float dsign = det >= 0.0f ? 1.0f : -1.0f;

    // Cases 1 to 4: x and y ascending; x descending; y descending; both.
    const bool xasc = xfirst <= xlast;
    const bool yasc = yfirst <= ylast;
    const float qsign = xasc == yasc ? 1.0f : -1.0f;
    const float tang = qsign * dsign * 90.0f;

    // Edge types go by where the edge stands on the paper.
    const int type1 = yasc ? top : bottom;
    const int type2 = yasc ? bottom : top;
    const int type3 = xasc ? left : right;
    const int type4 = xasc ? right : left;

    box_edge(xfirst, ylast, xlast, ylast, tang, 2, type1, xax);
    box_edge(xfirst, yfirst, xlast, yfirst, -tang, 2, type2, xax);
    box_edge(xfirst, yfirst, xfirst, ylast, tang, 1, type3, yax);
    box_edge(xlast, yfirst, xlast, ylast, -tang, 1, type4, yax);

    if (izerobx == 1) {
        // Tested on first and last as given: a descending range has none.
        if (xfirst < 0.0f && 0.0f < xlast) {
            const float xu[2] = {0.0f, 0.0f};
            const float yu[2] = {yfirst, ylast};
            usline(xu, yu, 2);
        }
        if (yfirst < 0.0f && 0.0f < ylast) {
            const float xu[2] = {xfirst, xlast};
            const float yu[2] = {0.0f, 0.0f};
            usline(xu, yu, 2);
        }
    }
}

void d1bx2d(const int& ibox) {
    if (ibox != 1) {
        errorhead(VB_D1BX2D);
        intline("trying to draw box nb =", ibox);
        intline("max box nb =", MAXBOX);
        textline("===> NO ACTION");
        errortail00();
        return;
    }
    const axisblk7a_t& a = axisblk7a;
    const int ix = a.ixaxisbx;
    const int iy = a.iyaxisbx;
    // Only a box never set up can hold such numbers: s1bx2d resets them.
    for (int iaxis : {ix, iy}) {
        if (iaxis < 1 || iaxis > MAXAXIS) {
            errorhead(VB_D1BX2D);
            intline("trying to set axis nb =", iaxis);
            intline("max axis nb =", MAXAXIS);
            textline("===> NO ACTION");
            errortail00();
            return;
        }
    }
    usbax6(a.USA1(ix), a.USA2(ix), a.USA1(iy), a.USA2(iy),
           a.WAU1(ix), a.WAU2(ix), a.WAUD(ix), axisblk7b.WALAB(ix).sv(), a.NAWDIG(ix), a.WALAS(ix),
           a.NASUBINT(ix), a.NLABINTK(ix),
           a.WAU1(iy), a.WAU2(iy), a.WAUD(iy), axisblk7b.WALAB(iy).sv(), a.NAWDIG(iy), a.WALAS(iy),
           a.NASUBINT(iy), a.NLABINTK(iy),
           a.izerobx, a.IBBORDER(4), a.IBBORDER(3), a.IBBORDER(1), a.IBBORDER(2));
}
