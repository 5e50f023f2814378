// Drawing a histogram in the current subplot: the frame (a box with axes,
// or the rings, tics and labels of a rose), then the values as outlines or
// polygons. A rose takes the bin as an angular sector and the count as the
// radius; its eight layouts come from three flags (see rose_flags).
#include <algorithm>
#include <cmath>

#include "histogram/hst_internal.h"
#include "math/angles.h"
#include "plot/attributes.h"
#include "plot/axes/axes.h"
#include "plot/axes/curve.h"
#include "plot/pages.h"
#include "plot/symbols.h"
#include "shell/frames.h"

using namespace hst;

namespace {

// A point of angle a and radius r is first x = r cos a, y = r sin a; negx
// negates x, negy negates y, swap plots (y, x). Type 5 is the compass:
// 0 at the top, angles growing clockwise.
struct rose_flags {
    bool negx = false, negy = false, swap = false;
};
rose_flags flagsof(int type) {
    switch (type) {
    case 3: return {false, true, false};
    case 4: return {false, true, true};
    case 5: return {false, false, true};
    case 6: return {true, true, false};
    case 7: return {true, false, false};
    case 8: return {true, false, true};
    case 9: return {true, true, true};
    default: return {};
    }
}

// An angle in degrees turned for the flags, as a sector limit.
float turned(float a, const rose_flags& f) {
    if (f.negx && f.negy) return a + 180.0f;
    if (f.negx) return 180.0f - a;
    if (f.negy) return -a;
    return a;
}

void drawline(const float* x, const float* y, int n, const rose_flags& f) {
    if (f.swap)
        usline(y, x, n);
    else
        usline(x, y, n);
}
void drawpolygon(const float* x, const float* y, int n, const rose_flags& f) {
    if (f.swap)
        uspolygon(y, x, n);
    else
        uspolygon(x, y, n);
}

// The drawing routines report a bad number and go on with the last one.
bool usable(int& h, const version_block& vb) {
    if (valid(h)) return true;
    errorhead(vb);
    badnumber(h);
    h = blkhst8.NHST0;
    count("==> RESET histogram nb =", h);
    errortail00();
    return h >= 1;
}

// Y tic spacing from the range of counts: tic spacing, tics between
// labels, minor divisions.
void ytics(int r, int& tic, int& lab, int& minor) {
    struct row { int below, tic, lab, minor; };
    static const row table[] = {
        {6, 1, 1, 1},           {11, 1, 2, 1},          {26, 5, 1, 5},
        {51, 5, 2, 5},          {101, 10, 2, 2},        {251, 50, 1, 5},
        {501, 50, 2, 5},        {1001, 100, 2, 2},      {2501, 500, 1, 5},
        {5001, 500, 2, 5},      {10001, 1000, 2, 2},    {25001, 5000, 1, 5},
        {50001, 5000, 2, 5},    {100001, 10000, 2, 2},  {250001, 50000, 1, 5},
        {500001, 50000, 2, 5},
    };
    for (const row& t : table) {
        if (r < t.below) {
            tic = t.tic;
            lab = t.lab;
            minor = t.minor;
            return;
        }
    }
    tic = 100000;
    lab = 2;
    minor = 2;
}

void boxframe(int h, int minor) {
    const blkhst8_t& b = blkhst8;
    const int ix = b.IXHST0(h);
    const float x1 = b.XBNDHST0(1, ix), x2 = b.XBNDHST0(b.NBINHST0(ix) + 1, ix);
    const float major = (b.XBNDHST0(2, ix) - b.XBNDHST0(1, ix)) * float(b.NXTICHST0(ix));
    float size = 0.0f;
    stextsize(size, 3);
    const float ytic = float(b.NYTICHST0(h));
    const int xdig = 1, ydig = 0, zero = 0, top = 0, bottom = 1, left = 1, right = 1;
    usbax6(x1, x2, b.YMINHST0(h), b.YMAXHST0(h), x1, x2, major, b.LABELHST0(5, h).sv(), xdig,
           size, b.NXTICHST0(ix), b.NXLABHST0(ix), b.YMINHST0(h), b.YMAXHST0(h), ytic,
           b.LABELHST0(8, h).sv(), ydig, size, minor, b.NYLABHST0(h), zero, top, bottom, left,
           right);
    if (b.ONLABELHST0(6, h)) {
        const float xu = (x1 + x2) * 0.5f, yu = b.YMAXHST0(h);
        float xc = 0, yc = 0;
        us2cm(&xc, &yc, &xu, &yu, 1);
        int align = -2;
        stextalign(align, 1);
        cmtext2(xc, yc + 0.1f, b.LABELHST0(6, h).sv());
    }
}

void roseframe(int h) {
    const blkhst8_t& b = blkhst8;
    cc2dbuff_t& cb = cc2dbuff;
    const int ix = b.IXHST0(h);
    const int nb = b.NBINHST0(ix);
    const float x1 = b.XBNDHST0(1, ix), x2 = b.XBNDHST0(nb + 1, ix);
    const float ymax = b.YMAXHST0(h);
    const rose_flags f = flagsof(b.IPLTYPEHST0(h));
    const bool full = std::abs(x2 - x1) >= 359.9f;

    // Rings: full circles, or sectors that come back through the centre.
    int np = 90;
    scptnp(np, 1);
    const float t1 = rad(turned(x1, f)), t2 = rad(turned(x2, f));
    const float zero = 0.0f;
    const int tic = b.NYTICHST0(h);
    const int m = (int(ymax + 0.0001f) - 1) / tic;
    auto ring = [&](float r) {
        if (full) {
            circle(cb.XCURVE.data(), cb.YCURVE.data(), np, zero, zero, r);
        } else {
            arcirclerad(cb.XCURVE.data(), cb.YCURVE.data(), np - 2, zero, zero, r, t1, t2);
            cb.XCURVE(np - 1) = 0.0f;
            cb.YCURVE(np - 1) = 0.0f;
            cb.XCURVE(np) = cb.XCURVE(1);
            cb.YCURVE(np) = cb.YCURVE(1);
        }
        drawline(cb.XCURVE.data(), cb.YCURVE.data(), np, f);
    };
    for (int k = 1; k <= m; ++k) ring(float(k * tic));
    ring(ymax);

    // Tics outward from the last ring at the bin bounds: a major one each
    // NXTICHST0 bins, minor ones between, and a last major one at the end.
    np = 2;
    scptnp(np, 1);
    const float r0 = 1.02f * ymax, rmajor = 1.08f * ymax, rminor = 1.05f * ymax;
    auto ticline = [&](int j, float rout) {
        const float a = rad(turned(b.XBNDHST0(j, ix), f));
        const float c = std::cos(a), s = std::sin(a);
        cb.XCURVE(1) = r0 * c;
        cb.YCURVE(1) = r0 * s;
        cb.XCURVE(2) = rout * c;
        cb.YCURVE(2) = rout * s;
        drawline(cb.XCURVE.data(), cb.YCURVE.data(), np, f);
    };
    const int per = b.NXTICHST0(ix);
    const int groups = (nb + per - 1) / per;
    for (int g = 0; g < groups; ++g) {
        const int j = 1 + g * per;
        ticline(j, rmajor);
        for (int k = j + 1; k < j + per && k <= nb + 1; ++k) ticline(k, rminor);
    }
    ticline(nb + 1, rmajor);

    // Labels 1 to 4 at the ends of the page axes, whatever the layout.
    int align = 0;
    const float r1 = 1.1f * ymax;
    struct place { int k; float x, y; int align; };
    const place ends[4] = {{1, r1, 0, -5}, {2, 0, r1, -2}, {3, -r1, 0, -7}, {4, 0, -r1, -10}};
    for (const place& p : ends) {
        if (!b.ONLABELHST0(p.k, h)) continue;
        align = p.align;
        stextalign(align, 1);
        ustext2(p.x, p.y, b.LABELHST0(p.k, h).sv());
    }
    // Corner labels, with their first 10 characters.
    const place corners[4] = {{5, 0.5f * ymax, -ymax, -5},
                              {6, 0.5f * ymax, ymax, -5},
                              {7, -0.5f * ymax, ymax, -7},
                              {8, -0.5f * ymax, -ymax, -7}};
    for (const place& p : corners) {
        if (!b.ONLABELHST0(p.k, h)) continue;
        align = p.align;
        stextalign(align, 1);
        ustext2(p.x, p.y, b.LABELHST0(p.k, h).sub(1, 10));
    }
}

}  // namespace

void hstfrmplt(int& h) {
    if (!usable(h, VB_HSTFRMPLT)) return;
    blkhst8_t& b = blkhst8;
    float angle = 0.0f, zeroangle = 0.0f;
    int align = 0;
    stextangle(angle, 3);
    stextalign(align, 3);
    stextangle(zeroangle, 1);

    int tic = 1, lab = 1, minor = 1;
    ytics(int(b.YMAXHST0(h) - b.YMINHST0(h) + 0.0001f), tic, lab, minor);
    b.NYTICHST0(h) = tic;
    b.NYLABHST0(h) = lab;

    const int type = b.IPLTYPEHST0(h);
    if (type == 1) {
        boxframe(h, minor);
    } else if (type >= 2 && type <= 9) {
        roseframe(h);
    } else {
        warninghead(VB_HSTFRMPLT);
        count("plot type =", type);
        outside("is outside [", 1, 9);
        line("==> NO ACTION");
        warningtail00();
    }
    stextangle(angle, 1);
    stextalign(align, 1);
}

namespace {

// One point of the figure, appended to the curve buffer.
void put(int& n, float x, float y) {
    ++n;
    cc2dbuff.XCURVE(n) = x;
    cc2dbuff.YCURVE(n) = y;
}

// Turns (bound in degrees, count) points into rose coordinates.
void torose(int n, const rose_flags& f) {
    cc2dbuff_t& cb = cc2dbuff;
    float* x = cb.XCURVE.data();
    float* y = cb.YCURVE.data();
    deg2rad(x, x, n);
    for (int i = 0; i < n; ++i) {
        const float a = x[i], r = y[i];
        rt2xy(&x[i], &y[i], &r, &a, 1);
        if (f.negx) x[i] = -x[i];
        if (f.negy) y[i] = -y[i];
    }
}

}  // namespace

void hstvalplt(int& h) {
    if (!usable(h, VB_HSTVALPLT)) return;
    blkhst8_t& b = blkhst8;
    int type = b.IPLTYPEHST0(h), style = b.IPLSTYLEHST0(h);
    if (type < 1 || type > 9) {
        warninghead(VB_HSTVALPLT);
        count("Plot type =", type);
        outside("is outside [", 1, 9);
        shstplotype(type, h, 5);
        count("==> RESET plot type =", type);
        warningtail00();
    }
    if (!(style == 0 || style == 1 || (style >= 10 && style <= 12))) {
        warninghead(VB_HSTVALPLT);
        count("Plot style =", style);
        writef(iocom.isout, "(5(1x,a,1x,i3))", "is outside [", 0, ",", 1, "]U[", 10, ",", 12,
               "]");
        shstplotstyle(style, h, 5);
        count("==> RESET plot style =", style);
        warningtail00();
    }
    // Polygon styles fill in the histogram's colour; outlines draw in the
    // line attributes alone.
    int savedfill = 0;
    if (style >= 10) {
        sfillcolor(savedfill, 3);
        int col = b.IPLFLCOLHST0(h);
        sfillcolor(col, 1);
    }

    const bool rose = type >= 2;
    const rose_flags f = flagsof(type);
    const int ix = b.IXHST0(h);
    const int nb = b.NBINHST0(ix);
    auto bound = [&](int j) { return b.XBNDHST0(j, ix); };
    auto cnt = [&](int j) { return float(b.NYCTHST0(j, h)); };
    float* xc = cc2dbuff.XCURVE.data();
    float* yc = cc2dbuff.YCURVE.data();
    int n = 0;

    if (style == 0 || style == 10) {
        put(n, bound(1), 0.0f);
        for (int j = 1; j <= nb; ++j) {
            put(n, bound(j), cnt(j));
            put(n, bound(j + 1), cnt(j));
        }
        put(n, bound(nb + 1), 0.0f);
        put(n, bound(1), 0.0f);
        scptnp(n, 1);
        if (rose) torose(n, f);
        // The outline leaves the closing point out: it does not run along
        // the base.
        if (style == 0)
            drawline(xc, yc, n - 1, f);
        else
            drawpolygon(xc, yc, n, f);
    } else if (style == 1) {
        for (int j = 1; j <= nb; ++j) {
            put(n, bound(j), 0.0f);
            put(n, bound(j), cnt(j));
            put(n, bound(j + 1), cnt(j));
        }
        put(n, bound(nb + 1), 0.0f);
        scptnp(n, 1);
        if (rose) torose(n, f);
        drawline(xc, yc, n, f);
    } else if (style == 11) {
        for (int j = 1; j <= nb; ++j) {
            n = 0;
            put(n, bound(j), 0.0f);
            put(n, bound(j), cnt(j));
            put(n, bound(j + 1), cnt(j));
            put(n, bound(j + 1), 0.0f);
            put(n, bound(j), 0.0f);
            scptnp(n, 1);
            if (rose) torose(n, f);
            drawpolygon(xc, yc, n, f);
        }
    } else {
        // One rectangle per value: from count k-1 to k. In a rose the
        // bounds are turned once per bin and the flags not applied again.
        for (int j = 1; j <= nb; ++j) {
            float a1 = bound(j), a2 = bound(j + 1);
            if (rose) {
                a1 = rad(turned(a1, f));
                a2 = rad(turned(a2, f));
            }
            for (int k = 1; k <= b.NYCTHST0(j, h); ++k) {
                n = 0;
                const float lo = float(k - 1), hi = float(k);
                put(n, a1, lo);
                put(n, a1, hi);
                put(n, a2, hi);
                put(n, a2, lo);
                put(n, a1, lo);
                scptnp(n, 1);
                if (rose) {
                    for (int i = 0; i < n; ++i) {
                        const float a = xc[i], r = yc[i];
                        rt2xy(&xc[i], &yc[i], &r, &a, 1);
                    }
                }
                drawpolygon(xc, yc, n, f);
            }
        }
    }
    if (style >= 10) sfillcolor(savedfill, 1);
}
