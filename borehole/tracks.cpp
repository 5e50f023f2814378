// Helpers shared by the track routines.
#include "borehole/tracks.h"

#include <cmath>

#include "borehole/derived.h"
#include "math/angles.h"
#include "plot/pages.h"
#include "plot/symbols.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/sio.h"
#include "well/welldat.h"

const trackplace* trackplaceof(std::span<const trackplace> table, int icmd) {
    for (const trackplace& p : table)
        if (icmd >= p.first && icmd <= p.last) return &p;
    return nullptr;
}

trackskip_t trackskip;

float* trackcolumn(int j, int itop) { return welldat.RWD1.col(j) + (itop - 1); }

namespace {

// Hands each run of finite points to draw, and counts the others.
void finiteruns(const float* x, const float* y, int n, void (*draw)(const float*, const float*,
                                                                    const int&)) {
    int start = 0;
    for (int i = 0; i <= n; ++i) {
        if (i < n && std::isfinite(x[i]) && std::isfinite(y[i])) continue;
        const int len = i - start;
        if (len > 0) draw(x + start, y + start, len);
        if (i < n) ++trackskip.nleftout;
        start = i + 1;
    }
}

}  // namespace

void trackline(const float* x, const float* y, int n) { finiteruns(x, y, n, usline); }

void trackpoints(const float* x, const float* y, int n) { finiteruns(x, y, n, ussymbol); }

void trackcurve(int j, int itop, int n) {
    trackline(trackcolumn(j, itop), trackcolumn(welldat.JCOL(welldat.jdepth), itop), n);
}

void tracksymbols(int j, int itop, int n) {
    trackpoints(trackcolumn(j, itop), trackcolumn(welldat.JCOL(welldat.jdepth), itop), n);
}

void trackend() {
    if (trackskip.nleftout == 0) return;
    writef(iocom.isout, "(1x,a,1x,i6)", "Number of data left out (not finite) = ",
           trackskip.nleftout);
    trackskip.nleftout = 0;
}

void trackrefline(float x) {
    float* xs = welldat.RWD1.col(JWORK9);
    float* ys = welldat.RWD1.col(JWORK10);
    g1axbd(ys[0], ys[1], AXDEPTH);
    xs[0] = xs[1] = x;
    usline(xs, ys, 2);
}

int trackkept(int keycolumn, int value, int itop, int nsel) {
    welldat_t& w = welldat;
    int count = 0;
    extractxy(trackcolumn(JWORK10, itop), trackcolumn(JWORK11, itop), count,
              trackcolumn(w.JCOL(w.jazcmax), itop), trackcolumn(w.JCOL(w.jdepth), itop),
              w.IWD1.col(keycolumn) + (itop - 1), nsel, value);
    return count;
}

void trackkeptsymbols(int itop, int count) {
    if (count >= 1) trackpoints(trackcolumn(JWORK10, itop), trackcolumn(JWORK11, itop), count);
}

void trackcounts(int nsel, int count) {
    writef(iocom.isout, "(1x,a,1x,i6,1x,a)", "Number of   tested data = ", nsel);
    writef(iocom.isout, "(1x,a,1x,i6,1x,a)", "Number of retained data = ", count);
    textline(DASHED);
}

void trackhead(std::string_view message, std::string_view counttext, int n) {
    trackend();
    textline(DASHED);
    textline(message);
    writef(iocom.isout, "(1x,a,1x,i6)", counttext, n);
    textline(DASHED);
}

void trackaxisrange(int iaxis, float first, float last) {
    axisedit a(iaxis);
    a.usa1 = a.wau1 = first;
    a.usa2 = a.wau2 = last;
}

bool drawcircular(const circulartrack& t, int j, float origin, int itop, int n, int icmd) {
    const trackplace* at = trackplaceof(t.places, icmd);
    if (!at) return false;
    trackaxisrange(t.iaxis, origin, origin + 360.0f);
    slogbox(at->subplot, t.iaxis, AXDEPTH, at->frame, t.label);
    trackhead(t.message, "Number of data = ", n);
    if (origin == 0.0f && !t.wrapatzero) {
        trackcurve(j, itop, n);
        return true;
    }
    const float period = 360.0f;
    modulro(trackcolumn(JWORK9, itop), trackcolumn(j, itop), period, origin, n);
    trackcurve(JWORK9, itop, n);
    return true;
}

void axis_fields::access(int mode) {
    s1axis1(usa1, usa2, wau1, wau2, waud, walas, walab, nawdig, nasubint, nlabintk, iaxis, mode);
}

void box_fields::access(int mode) {
    s1bx2d(ix, iy, left, right, bottom, top, iclip, izero, label, 1, mode);
}

void map_fields::access(int mode) {
    sus2cm3(xcm0, ycm0, xlcm, ylcm, xumin, xumax, yumin, yumax, ixy, mode);
}
