// Lines and texts from user or cm coordinates. A polyline reaches the device
// in slices of at most 501 points, so that no path in the file and no
// buffer grows with the data; each slice begins on the last point of the one
// before, and the line stays unbroken on paper.
#include "plot/device/psdevice.h"
#include "plot/pages.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/sio.h"

namespace {

constexpr version_block VB_BUFFER2{"buffer2             ", " 2.4", "2019-10-02"};

void one_text(float x, float y, std::string_view text, convert_fn convert) {
    float xd = 0.0f, yd = 0.0f;
    convert(&xd, &yd, &x, &y, 1);
    detext2(xd, yd, text);
}

}  // namespace

void draw_sliced(const float* x, const float* y, int n, convert_fn convert, slice_fn draw,
                 void (*between)(int n)) {
    float* xb = pltbuff1.XDEVBUFF.data();
    float* yb = pltbuff1.YDEVBUFF.data();
    int is = 1;
    for (;;) {
        int nb = 0;
        buffer2(xb, yb, PLTBUFFSIZE, nb, x, y, n, is);
        if (nb > 0) {
            convert(xb, yb, xb, yb, nb);
            draw(xb, yb, nb);
        }
        if (is >= n) break;
        if (between) between(n);
    }
}

void buffer2(float* xb, float* yb, const int& nmax, int& nb, const float* x, const float* y,
             const int& n, int& is) {
    if (n < is) {
        warninghead(VB_BUFFER2);
        writef(iocom.isout, "(1x,a,1x,i8)", "is =", is);
        writef(iocom.isout, "(1x,a,1x,i8)", "> nx =", n);
        textline("attempt to read past array");
        warningtail00();
        return;
    }
    int last = is + nmax - 1;
    if (last > n) last = n;
    nb = last - is + 1;
    for (int i = 0; i < nb; ++i) {
        xb[i] = x[is - 1 + i];
        yb[i] = y[is - 1 + i];
    }
    is = last;
}

void usline(const float* x, const float* y, const int& n) { draw_sliced(x, y, n, us2de, deline); }

void cmline(const float* x, const float* y, const int& n) { draw_sliced(x, y, n, cm2de, deline); }

void ustext2(const float& x, const float& y, std::string_view text) { one_text(x, y, text, us2de); }

void cmtext2(const float& x, const float& y, std::string_view text) { one_text(x, y, text, cm2de); }
