// The maps between user units, centimetres and device units, how a subplot's
// map is set, and the conversions of point lists.
#include <cmath>

#include "math/matrix.h"
#include "plot/pages.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/intera.h"
#include "shell/sio.h"

namespace {

// The subplots a map setter goes through: all for 6 and 7, else the current.
void subplot_span(int& kfirst, int& klast, int inter) {
    if (inter == 6 || inter == 7) {
        kfirst = 1;
        klast = MAXSUBPLOT;
    } else {
        kfirst = plt1blk.isubplot;
        klast = plt1blk.isubplot;
    }
}

void store_matrix(int k, float xx, float xy, float yx, float yy) {
    plt1blk.USTOCM(1, 1, k) = xx;
    plt1blk.USTOCM(1, 2, k) = xy;
    plt1blk.USTOCM(2, 1, k) = yx;
    plt1blk.USTOCM(2, 2, k) = yy;
}

void fetch_matrix(int k, float& xx, float& xy, float& yx, float& yy) {
    xx = plt1blk.USTOCM(1, 1, k);
    xy = plt1blk.USTOCM(1, 2, k);
    yx = plt1blk.USTOCM(2, 1, k);
    yy = plt1blk.USTOCM(2, 2, k);
}

// The offset that puts the user point (xu0, yu0) at (xcm0, ycm0).
void store_offset(int k, float xcm0, float ycm0, float xu0, float yu0) {
    plt1blk.US0TOCM(1, k) = xcm0 - plt1blk.USTOCM(1, 1, k) * xu0 - plt1blk.USTOCM(1, 2, k) * yu0;
    plt1blk.US0TOCM(2, k) = ycm0 - plt1blk.USTOCM(2, 1, k) * xu0 - plt1blk.USTOCM(2, 2, k) * yu0;
}

// The derived maps follow the current subplot, whichever entry was stored.
void derive_maps() {
    scm2us();
    if (iocom.lplotopen) sus2de();
}

// xout = M xin + o, for a matrix and offset of the table; each point is read
// before it is written, so the output may be the input.
void affine(float* xout, float* yout, const float* xin, const float* yin, int n,
            const farr2<float, 2, 2>& m, float ox, float oy) {
    for (int i = 0; i < n; ++i) {
        const float xa = xin[i];
        const float ya = yin[i];
        xout[i] = m(1, 1) * xa + m(1, 2) * ya + ox;
        yout[i] = m(2, 1) * xa + m(2, 2) * ya + oy;
    }
}

// A map that can be inverted: finite entries and a determinant neither zero
// nor past the range of a real. Anything else would stop the run in the
// inversion, or put NaN on the paper.
bool invertible(float xx, float xy, float yx, float yy) {
    const float det = xx * yy - xy * yx;
    return std::isfinite(xx) && std::isfinite(xy) && std::isfinite(yx) && std::isfinite(yy) &&
           det != 0.0f && std::isfinite(det);
}

// A map refused: the subplot keeps the one it had, and its drawing goes on
// there. Settings come from panels and tables that check no range.
void refused_map(std::string_view routine, float xx, float xy, float yx, float yy) {
    errorhead(routine, "", "");
    writef(iocom.isout, "(1x,a,1x,i6)", "subplot nb =", plt1blk.isubplot);
    textline("Box or scale of zero or non-finite size:");
    writef(iocom.isout, "(5(1x,a,1x,g15.3))", "xx =", xx, "xy =", xy);
    writef(iocom.isout, "(5(1x,a,1x,g15.3))", "yx =", yx, "yy =", yy);
    textline("===> NO ACTION: SUBPLOT KEEPS ITS MAP");
    errortail00();
}

}  // namespace

void scm2de() {
    plt1blk.cm2descale = 28.35f;
    plt1blk.CM0TODE.fill(0.0f);
    plt1blk.CMTODE(1, 1) = plt1blk.cm2descale;
    plt1blk.CMTODE(2, 1) = 0.0f;
    plt1blk.CMTODE(1, 2) = 0.0f;
    plt1blk.CMTODE(2, 2) = plt1blk.cm2descale;
}

void sus2de() {
    const int k = plt1blk.isubplot;
    const auto& a = plt1blk.CMTODE;
    for (int i = 1; i <= 2; ++i) {
        for (int j = 1; j <= 2; ++j)
            plt1blk.USTODE(i, j, k) = a(i, 1) * plt1blk.USTOCM(1, j, k) + a(i, 2) * plt1blk.USTOCM(2, j, k);
        plt1blk.US0TODE(i, k) = a(i, 1) * plt1blk.US0TOCM(1, k) + a(i, 2) * plt1blk.US0TOCM(2, k) +
                                plt1blk.CM0TODE(i, k);
    }
}

void scm2us() {
    const int k = plt1blk.isubplot;
    m22invert(plt1blk.CMTOUS(k).a, plt1blk.USTOCM(k).a);
    for (int i = 1; i <= 2; ++i)
        plt1blk.CM0TOUS(i, k) = -(plt1blk.CMTOUS(i, 1, k) * plt1blk.US0TOCM(1, k) +
                                  plt1blk.CMTOUS(i, 2, k) * plt1blk.US0TOCM(2, k));
}

void us2cm(float* xout, float* yout, const float* xin, const float* yin, const int& n) {
    const int k = plt1blk.isubplot;
    affine(xout, yout, xin, yin, n, plt1blk.USTOCM(k), plt1blk.US0TOCM(1, k), plt1blk.US0TOCM(2, k));
}

void us2de(float* xout, float* yout, const float* xin, const float* yin, const int& n) {
    const int k = plt1blk.isubplot;
    affine(xout, yout, xin, yin, n, plt1blk.USTODE(k), plt1blk.US0TODE(1, k), plt1blk.US0TODE(2, k));
}

void cm2de(float* xout, float* yout, const float* xin, const float* yin, const int& n) {
    const int k = plt1blk.isubplot;
    affine(xout, yout, xin, yin, n, plt1blk.CMTODE, plt1blk.CM0TODE(1, k), plt1blk.CM0TODE(2, k));
}

void cm2us(float* xout, float* yout, const float* xin, const float* yin, const int& n) {
    const int k = plt1blk.isubplot;
    affine(xout, yout, xin, yin, n, plt1blk.CMTOUS(k), plt1blk.CM0TOUS(1, k), plt1blk.CM0TOUS(2, k));
}

void lengthcm2de(float& out, const float& in) { out = plt1blk.cm2descale * in; }

void sus2cm1(float& xcm0, float& ycm0, float& xx, float& xy, float& yx, float& yy,
             const int& inter) {
    int kfirst = 0, klast = 0;
    subplot_span(kfirst, klast, inter);
    for (int k = kfirst; k <= klast; ++k) {
        if (mode_from_store(inter)) {
            xcm0 = plt1blk.US0TOCM(1, k);
            ycm0 = plt1blk.US0TOCM(2, k);
            fetch_matrix(k, xx, xy, yx, yy);
            if (inter == 3) return;
        }
        if (inter >= 4 && inter <= 7) {
            xcm0 = 10.0f;
            ycm0 = 10.0f;
            xx = 1.0f;
            xy = 0.0f;
            yx = 0.0f;
            yy = 1.0f;
        }
        if (mode_talks(inter)) mus2cm1(xcm0, ycm0, xx, xy, yx, yy);
        if (!invertible(xx, xy, yx, yy) || !std::isfinite(xcm0) || !std::isfinite(ycm0)) {
            refused_map("sus2cm1    ", xx, xy, yx, yy);
            return;
        }
        plt1blk.US0TOCM(1, k) = xcm0;
        plt1blk.US0TOCM(2, k) = ycm0;
        store_matrix(k, xx, xy, yx, yy);
    }
    derive_maps();
}

void sus2cm2(float& xcm0, float& ycm0, float& xu0, float& yu0, float& xx, float& xy, float& yx,
             float& yy, const int& inter) {
    int kfirst = 0, klast = 0;
    subplot_span(kfirst, klast, inter);
    for (int k = kfirst; k <= klast; ++k) {
        if (mode_from_store(inter)) {
            xcm0 = plt1blk.USMINTOCM(1, k);
            ycm0 = plt1blk.USMINTOCM(2, k);
            xu0 = plt1blk.USEXTR(1, k);
            yu0 = plt1blk.USEXTR(3, k);
            fetch_matrix(k, xx, xy, yx, yy);
            if (inter == 3) return;
        }
        if (inter >= 4 && inter <= 7) {
            xcm0 = 10.0f;
            ycm0 = 10.0f;
            xu0 = 0.0f;
            yu0 = 0.0f;
            xx = 1.0f;
            xy = 0.0f;
            yx = 0.0f;
            yy = 1.0f;
        }
        if (mode_talks(inter)) mus2cm2(xcm0, ycm0, xu0, yu0, xx, xy, yx, yy);
        if (!invertible(xx, xy, yx, yy) || !std::isfinite(xcm0) || !std::isfinite(ycm0) ||
            !std::isfinite(xu0) || !std::isfinite(yu0)) {
            refused_map("sus2cm2    ", xx, xy, yx, yy);
            return;
        }
        plt1blk.USMINTOCM(1, k) = xcm0;
        plt1blk.USMINTOCM(2, k) = ycm0;
        plt1blk.USEXTR(1, k) = xu0;
        plt1blk.USEXTR(3, k) = yu0;
        store_matrix(k, xx, xy, yx, yy);
        store_offset(k, xcm0, ycm0, xu0, yu0);
    }
    derive_maps();
}

void sus2cm3(float& xcm0, float& ycm0, float& xlcm, float& ylcm, float& xumin, float& xumax,
             float& yumin, float& yumax, int& ixy, const int& inter) {
    int kfirst = 0, klast = 0;
    subplot_span(kfirst, klast, inter);
    for (int k = kfirst; k <= klast; ++k) {
        if (mode_from_store(inter)) {
            xumin = plt1blk.USEXTR(1, k);
            xumax = plt1blk.USEXTR(2, k);
            yumin = plt1blk.USEXTR(3, k);
            yumax = plt1blk.USEXTR(4, k);
            xlcm = plt1blk.CMAXLENGTH(1, k);
            ylcm = plt1blk.CMAXLENGTH(2, k);
            xcm0 = plt1blk.USMINTOCM(1, k);
            ycm0 = plt1blk.USMINTOCM(2, k);
            ixy = plt1blk.ISOXY(k);
            if (inter == 3) return;
        }
        if (inter >= 4 && inter <= 7) {
            xumin = -10.0f;
            yumin = -10.0f;
            xumax = 10.0f;
            yumax = 10.0f;
            xlcm = 15.0f;
            ylcm = 15.0f;
            xcm0 = 2.0f;
            ycm0 = 2.0f;
            ixy = 1;
        }
        if (mode_talks(inter)) mus2cm3(xcm0, ycm0, xlcm, ylcm, xumin, xumax, yumin, yumax, ixy);
        // Reversed limits give a negative scale, so an axis can run downward;
        // an equal scale keeps each axis's own sign.
        float xx = xlcm / (xumax - xumin);
        float yy = ylcm / (yumax - yumin);
        if (ixy == 1) {
            if (std::fabs(yy) < std::fabs(xx))
                xx = std::copysign(std::fabs(yy), xx);
            else
                yy = std::copysign(std::fabs(xx), yy);
        }
        // The offset needs the corner's values themselves finite.
        if (!invertible(xx, 0.0f, 0.0f, yy) || !std::isfinite(xcm0) || !std::isfinite(ycm0) ||
            !std::isfinite(xumin) || !std::isfinite(yumin) || !std::isfinite(xumax) ||
            !std::isfinite(yumax)) {
            refused_map("sus2cm3    ", xx, 0.0f, 0.0f, yy);
            return;
        }
        plt1blk.USEXTR(1, k) = xumin;
        plt1blk.USEXTR(2, k) = xumax;
        plt1blk.USEXTR(3, k) = yumin;
        plt1blk.USEXTR(4, k) = yumax;
        plt1blk.CMAXLENGTH(1, k) = xlcm;
        plt1blk.CMAXLENGTH(2, k) = ylcm;
        plt1blk.USMINTOCM(1, k) = xcm0;
        plt1blk.USMINTOCM(2, k) = ycm0;
        plt1blk.ISOXY(k) = ixy;
        store_matrix(k, xx, 0.0f, 0.0f, yy);
        store_offset(k, xcm0, ycm0, xumin, yumin);
    }
    derive_maps();
}
