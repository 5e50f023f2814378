#include "math/lstsq1.h"

#include "shell/format.h"
#include "shell/frames.h"
#include "shell/sio.h"

namespace {
constexpr version_block VB_LSTSQ1{"lstsq1", " 2.1", "2017-12-19"};
}

void lstsq1(float& a1, float& b1, const float* x, const float* y, const int& n) {
    if (n <= 0) return;
    float sx = 0.0f, sy = 0.0f;
    for (int i = 0; i < n; ++i) {
        sx += x[i];
        sy += y[i];
    }
    const float xm = sx / float(n);
    // Centring the abscissa keeps the slope when depths run to thousands of
    // metres in single precision.
    float sty = 0.0f, stt = 0.0f;
    for (int i = 0; i < n; ++i) {
        float t = x[i] - xm;
        sty += t * y[i];
        stt += t * t;
    }
    if (stt != 0.0f) {
        a1 = sty / stt;
        b1 = (sy - sx * a1) / float(n);
        return;
    }

    const int isout = iocom.isout;
    warninghead(VB_LSTSQ1);
    textline("sig(tt) = 0");
    textline(" t = x - xm");
    writef(isout, "(5(1x,a,1x,f18.5))", " sig(x)  =", sx);
    writef(isout, "(5(1x,a,1x,f18.5))", " sig(y)  =", sy);
    writef(isout, "(5(1x,a,1x,f18.5))", " sig(tt) =", stt);
    writef(isout, "(5(1x,a,1x,f18.5))", " sig(ty) =", sty);
    textline("Input parameters:");
    writef(isout, "(1x,a,1x,i6)", " n    =", n);
    writef(isout, "(5(1x,a,1x,f18.5))", " x(1) =", x[0]);
    writef(isout, "(5(1x,a,1x,f18.5))", " y(1) =", y[0]);
    writef(isout, "(5(1x,a,1x,f18.5))", " x(n) =", x[n - 1]);
    writef(isout, "(5(1x,a,1x,f18.5))", " y(n) =", y[n - 1]);
    textline("==> SETTING:");
    // The sentinel slope is what the rotation plot draws for such a fit.
    a1 = 1.0e10f;
    b1 = 0.0f;
    writef(isout, "(5(1x,a,1x,f18.5))", " a1 =", a1);
    writef(isout, "(5(1x,a,1x,f18.5))", " b1 =", b1);
    warningtail00();
}
