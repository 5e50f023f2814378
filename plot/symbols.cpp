// Symbols are built once per call as offsets in device units from the
// symbol's centre, so that the user map moves a symbol but never scales it.
#include "plot/symbols.h"

#include <climits>
#include <cmath>
#include <cstdlib>

#include "math/angles.h"
#include "plot/attributes.h"
#include "plot/device/psdevice.h"
#include "plot/pages.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/sio.h"

namespace {

constexpr version_block VB_USPOLYGON{"uspolygon           ", " 3.2", "2019-10-01"};

constexpr int NSYMTAB = 20;

// The points of one symbol: an outline, closed by repeating its first point
// (XS1, YS1), and loose segments given as pairs of points (XS2, YS2).
struct symbol_shape {
    float XS1[NSYMTAB], YS1[NSYMTAB];
    float XS2[NSYMTAB], YS2[NSYMTAB];
    int n1 = 0;  // points of the outline, 0 for none
    int n2 = 0;  // points of the segments, two per segment
};

void add_segment(symbol_shape& s, float xa, float ya, float xb, float yb) {
    s.XS2[s.n2] = xa;
    s.YS2[s.n2] = ya;
    s.XS2[s.n2 + 1] = xb;
    s.YS2[s.n2 + 1] = yb;
    s.n2 += 2;
}

// npts points on the radius r, the first at angle0 degrees and each next one
// step degrees on; the last repeats the first exactly, so that the outline
// closes without a closepath.
void ring(symbol_shape& s, int npts, float r, float angle0, float step) {
    for (int k = 1; k < npts; ++k) {
        const float a = (angle0 + step * float(k - 1)) * anglerad.deg2radfac;
        s.XS1[k - 1] = r * std::cos(a);
        s.YS1[k - 1] = r * std::sin(a);
    }
    s.XS1[npts - 1] = s.XS1[0];
    s.YS1[npts - 1] = s.YS1[0];
    s.n1 = npts;
}

void circle20(symbol_shape& s, float r) { ring(s, NSYMTAB, r, 0.0f, 18.947369f); }

void spoke(symbol_shape& s, float xb, float yb) { add_segment(s, 0.0f, 0.0f, xb, yb); }

void build_shape(symbol_shape& s, int t, float r) {
    const float b = 0.8660254f * r;
    switch (t) {
    case 3: case 4: case 5: case 6: case 7: case 8: case 9:
        // Regular polygon with its first point on top.
        ring(s, t + 1, r, 90.0f, 360.0f / float(t));
        break;
    case 10:
        spoke(s, 0.0f, 0.0f);
        break;
    case 11:
        add_segment(s, -r, 0.0f, r, 0.0f);
        break;
    case 12:
        add_segment(s, 0.0f, -r, 0.0f, r);
        break;
    case 13:
        add_segment(s, -r, 0.0f, r, 0.0f);
        add_segment(s, 0.0f, -r, 0.0f, r);
        break;
    case 14: {
        const float a = 0.70710677f * r;
        add_segment(s, a, a, -a, -a);
        add_segment(s, -a, a, a, -a);
        break;
    }
    case 15:
        add_segment(s, b, 0.5f * r, -b, -0.5f * r);
        add_segment(s, 0.0f, r, 0.0f, -r);
        add_segment(s, -b, 0.5f * r, b, -0.5f * r);
        break;
    case 16:
        spoke(s, b, -0.5f * r);
        spoke(s, 0.0f, r);
        spoke(s, -b, -0.5f * r);
        break;
    case 17: {
        const float c54 = r * std::cos(54.0f * anglerad.deg2radfac);
        const float s54 = r * std::sin(54.0f * anglerad.deg2radfac);
        const float c18 = r * std::cos(18.0f * anglerad.deg2radfac);
        const float s18 = r * std::sin(18.0f * anglerad.deg2radfac);
        spoke(s, c54, -s54);
        spoke(s, c18, s18);
        spoke(s, 0.0f, r);
        spoke(s, -c18, s18);
        spoke(s, -c54, -s54);
        break;
    }
    case 20:
        circle20(s, r);
        spoke(s, 0.0f, 0.0f);
        break;
    case 21:
        circle20(s, r);
        add_segment(s, -r, 0.0f, r, 0.0f);
        break;
    case 22:
        circle20(s, r);
        add_segment(s, 0.0f, -r, 0.0f, r);
        break;
    case 23:
        circle20(s, r);
        add_segment(s, 0.0f, -r, 0.0f, r);
        add_segment(s, -r, 0.0f, r, 0.0f);
        break;
    case 40: {
        // Sides parallel to the page, corners on the radius.
        const float c = r / 1.4142135f;
        const float xs[5] = {c, -c, -c, c, c};
        const float ys[5] = {c, c, -c, -c, c};
        for (int k = 0; k < 5; ++k) {
            s.XS1[k] = xs[k];
            s.YS1[k] = ys[k];
        }
        s.n1 = 5;
        break;
    }
    default:
        circle20(s, r);
        break;
    }
}

// Copies n offsets around the centre into the device buffer.
void place(const float* xs, const float* ys, int n, float xc, float yc) {
    for (int k = 0; k < n; ++k) {
        pltbuff1.XDEVBUFF(k + 1) = xc + xs[k];
        pltbuff1.YDEVBUFF(k + 1) = yc + ys[k];
    }
}

}  // namespace

void ussymbol(const float* x, const float* y, const int& n) {
    const int type = plt2blk.isymtype;
    const bool filled = type < 0;
    const float r = plt1blk.cm2descale * plt2blk.symsizcm * 0.5f;
    symbol_shape s;
    // The most negative type has no positive twin: it asks for an unknown shape.
    build_shape(s, type == INT_MIN ? INT_MAX : std::abs(type), r);

    float* xb = pltbuff1.XDEVBUFF.data();
    float* yb = pltbuff1.YDEVBUFF.data();
    for (int i = 0; i < n; ++i) {
        float xc = 0.0f, yc = 0.0f;
        us2de(&xc, &yc, &x[i], &y[i], 1);
        if (s.n1 > 0) {
            place(s.XS1, s.YS1, s.n1, xc, yc);
            if (filled)
                depolygon(xb, yb, s.n1);
            else
                deline(xb, yb, s.n1);
        }
        for (int k = 0; k < s.n2; k += 2) {
            place(s.XS2 + k, s.YS2 + k, 2, xc, yc);
            deline(xb, yb, 2);
        }
    }
}

// The pieces are closed each on its own: not the polygon asked for.
static void polygon_split_warning(int n) {
    warninghead(VB_USPOLYGON);
    writef(iocom.isout, "(1x,a,1x,i8)", "Polygone vertices =", n);
    writef(iocom.isout, "(1x,a,1x,i8)", "Plot buffer size  =", PLTBUFFSIZE);
    textline("==> Decomposing in smaller polygons");
    warningtail00();
}

void uspolygon(const float* x, const float* y, const int& n) {
    draw_sliced(x, y, n, us2de, depolygon, polygon_split_warning);
}
