#include "math/stats.h"

#include <cmath>

#include "math/angles.h"
#include "math/ranind.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/runinfo.h"
#include "shell/sio.h"

namespace {

constexpr version_block VB_STAT1D0{"stat1d0    ", " 2.1", "2016-12-19"};
constexpr version_block VB_STATCIRC{"statcirc360", " 1.0", "2016-12-20"};

const char EQUALS[] = "===========================================";

void text(int unit, const char* s) { writef(unit, "(5(1x,a))", s); }
void count(int unit, const char* s, int v) { writef(unit, "(4(1x,a,1x,i8))", s, v); }
void real(int unit, const char* s, float v) { writef(unit, "(5(1x,a,1x,g14.8))", s, v); }

// The head of every report: the run information, lifted for this one
// report when the code keeps it out of the unit.
void opening(int unit) {
    text(unit, EQUALS);
    int code = 0;
    swpinfo(code, 3);
    const int saved = code;
    if (code % 2 == 0) {
        code += 1;
        swpinfo(code, 1);
    }
    writeruninfo2(unit);
    code = saved;
    swpinfo(code, 1);
    text(unit, EQUALS);
}

void nodata(const version_block& vb, int n) {
    errorhead(vb);
    textline("NO DATA:");
    count(iocom.isout, "Nb of data =", n);
    textline("==> EXITING WITHOUT ACTION");
    errortail00();
}

// The median of v(a..b), v(k) = x(IXWK(k)).
float halfmedian(const int* ixwk, const float* x, int a, int b) {
    auto v = [&](int k) { return x[ixwk[k - 1] - 1]; };
    const int len = b - a + 1;
    if (len % 2 == 1) return v(a + (len - 1) / 2);
    const int hh = len / 2 + a;
    return (v(hh) + v(hh - 1)) * 0.5f;
}

}  // namespace

void stat1d0(int* IXWK, const float* x, const int& n, const int& unit, const int& iflag) {
    if (n < 1) {
        nodata(VB_STAT1D0, n);
        return;
    }
    float s = 0.0f, q = 0.0f, xmin = x[0], xmax = x[0];
    for (int i = 0; i < n; ++i) {
        s = s + x[i];
        q = q + x[i] * x[i];
        if (x[i] > xmax)
            xmax = x[i];
        else if (x[i] < xmin)
            xmin = x[i];
    }
    const float fn = float(n);
    float var = q - s * s / fn;
    if (n > 1) {
        var = var / float(n - 1);
    } else {
        warninghead(VB_STAT1D0);
        textline("NOT ENOUGH DATA:");
        count(iocom.isout, "Nb of data =", n);
        real(iocom.isout, "==> Variance =", var);
        warningtail00();
    }
    const float mean = s / fn;
    float sd = 0.0f;
    if (var >= 0.0f) {
        sd = std::sqrt(var);
    } else {
        errorhead(VB_STAT1D0);
        textline("VARIANCE < 0:");
        count(iocom.isout, "Nb of data =", n);
        real(iocom.isout, "==> Variance =", var);
        real(iocom.isout, "==> SETTING STD DEVIATION =", 0.0f);
        errortail00();
    }
    ranind(n, x, IXWK);
    auto v = [&](int k) { return x[IXWK[k - 1] - 1]; };
    float median, q1, q3;
    if (n % 2 == 0) {
        const int m = n / 2;
        median = (v(m + 1) + v(m)) * 0.5f;
        q1 = halfmedian(IXWK, x, 1, m);
        q3 = halfmedian(IXWK, x, m + 1, n);
    } else {
        // The median belongs to both halves.
        const int m = n / 2 + 1;
        median = v(m);
        q1 = halfmedian(IXWK, x, 1, m);
        q3 = halfmedian(IXWK, x, m, n);
    }
    if (iflag % 2 != 0) return;
    opening(unit);
    text(unit, "STANDARD STATISTICS:");
    text(unit, EQUALS);
    count(unit, "Number of data                =", n);
    real(unit, "Minimum                       =", xmin);
    real(unit, "Lower quartile Q1             =", q1);
    real(unit, "Median Q2                     =", median);
    real(unit, "Upper quartile Q3             =", q3);
    real(unit, "Maximum                       =", xmax);
    real(unit, "Average                       =", mean);
    real(unit, "Range                         =", xmax - xmin);
    real(unit, "Variance                      =", var);
    real(unit, "Standard deviation            =", sd);
    text(unit, "-------------------------------------------");
}

void statcirc360k(const float* theta, const int& n, const int& K, const int& unit,
                  const int& iflag) {
    if (n < 1) {
        nodata(VB_STATCIRC, n);
        return;
    }
    if (K < 1) {
        errorhead(VB_STATCIRC);
        textline("K > 0 required for folding in 360/K");
        count(iocom.isout, "K                             =", K);
        textline("==> EXITING WITHOUT ACTION");
        errortail00();
        return;
    }
    const float kr = float(K);
    float cs = 0.0f, sn = 0.0f;
    if (K == 1) {
        for (int i = 0; i < n; ++i) {
            cs = cs + std::cos(theta[i]);
            sn = sn + std::sin(theta[i]);
        }
    } else {
        for (int i = 0; i < n; ++i) {
            cs = cs + std::cos(kr * theta[i]);
            sn = sn + std::sin(kr * theta[i]);
        }
    }
    cs = cs / float(n);
    sn = sn / float(n);
    float r = 0.0f, am0 = 0.0f;
    xy2rt(&r, &am0, &cs, &sn, 1);
    const float S0 = 1.0f - r;
    bool nomodule = false;
    float s0 = 9999.99f;
    if (r != 0.0f)
        s0 = std::sqrt(-2.0f * std::log(r));
    else
        nomodule = true;
    float am1 = am0, S1 = S0, s1 = s0;
    if (K != 1) {
        am1 = am0 / kr;
        S1 = 1.0f - std::pow(1.0f - S0, 1.0f / (kr * kr));
        s1 = s0 / kr;
    }
    if (iflag % 2 != 0) return;
    const char* dashes = "-------------------------------------------";
    opening(unit);
    text(unit, "CIRCULAR STATISTICS [360/K]");
    text(unit, EQUALS);
    count(unit, "K                             =", K);
    real(unit, "360/K                         =", 360.0f / kr);
    text(unit, dashes);
    text(unit, K == 1 ? "Computations results modulo [360]" : "1- Intermediate results modulo [360]");
    text(unit, dashes);
    text(unit, "S0 = 1-R");
    text(unit, "s0 = sqrt (-2.0*log(R))");
    count(unit, "Number of data                =", n);
    real(unit, "Xmean (C)                     =", cs);
    real(unit, "Ymean (S)                     =", sn);
    real(unit, "Mean module (R)               =", r);
    if (nomodule) {
        text(unit, "********************************");
        text(unit, "WARNING:  Module = 0");
        text(unit, "Mean angle         = +pi/2");
        text(unit, "Standard deviation = 9999.99");
        text(unit, "  are arbitrary and meaningless");
        text(unit, "********************************");
    }
    real(unit, "Variance (S0)                 =", S0);
    real(unit, "Mean angle (Am0) (radians)    =", am0);
    real(unit, "Mean angle (Am0) (degrees)    =", deg(am0));
    real(unit, "Standard deviation (s0) (rad) =", s0);
    real(unit, "Standard deviation (s0) (deg) =", deg(s0));
    if (K != 1) {
        text(unit, dashes);
        text(unit, "2- Final results modulo [360/K]");
        text(unit, dashes);
        text(unit, "Am1 = Am0 / K");
        text(unit, "S1 = 1-(1-S0)**(1/(K**2))");
        text(unit, "s1 = s0/K");
        real(unit, "Variance (S1)                 =", S1);
        real(unit, "Mean angle (Am1) (radians)    =", am1);
        real(unit, "Mean angle (Am1) (degrees)    =", deg(am1));
        real(unit, "Standard deviation (s1) (rad) =", s1);
        real(unit, "Standard deviation (s1) (deg) =", deg(s1));
    }
    text(unit, dashes);
}
