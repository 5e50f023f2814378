#include "math/angles.h"

#include <bit>
#include <cmath>
#include <cstdint>

#include "shell/frames.h"

anglerad_t anglerad;
anglebound_t angleradi;
anglebound_t anglerads;

namespace {
constexpr version_block VB_TRIGOSET{"trigoset", " 8.0", "2017-03-10"};

// The constants are given as single precision bit patterns rather than
// rounded from a wider pi at run time, so that every comparison against
// them agrees to the last bit on every platform.
constexpr float bits(std::uint32_t b) { return std::bit_cast<float>(b); }

// The truncating remainder y - trunc(y/period)*period. A quotient of 2**23
// or more has no fractional part in single precision and is used as it is.
inline float truncrem(float y, float period) {
    float q = y / period;
    if (std::fabs(q) < 8388608.0f) q = std::trunc(q);
    return y - q * period;
}

inline float angle_of(float x, float y) {
    if (x > 0.0f) return std::atan(y / x);
    if (x == 0.0f) return y >= 0.0f ? anglerad.halfpi : -anglerad.halfpi;
    if (y >= 0.0f) return std::atan(y / x) + anglerad.pinum;
    return std::atan(y / x) - anglerad.pinum;
}
}  // namespace

void trigoset() {
    submenuhead(VB_TRIGOSET);
    textline("Initializing /anglerad/ block");

    anglerad.quartpi = bits(0x3F490FDB);
    anglerad.thirdpi = bits(0x3F860A92);
    anglerad.halfpi = bits(0x3FC90FDB);
    anglerad.threequartpi = bits(0x4016CBE4);
    anglerad.pinum = bits(0x40490FDB);
    anglerad.threehalfpi = bits(0x4096CBE4);
    anglerad.twopi = bits(0x40C90FDB);
    anglerad.deg2radfac = bits(0x3C8EFA35);
    anglerad.rad2degfac = bits(0x42652EE0);

    angleradi.quartpi = bits(0x3F490F33);
    angleradi.thirdpi = bits(0x3F860A3E);
    angleradi.halfpi = bits(0x3FC90F87);
    angleradi.threequartpi = bits(0x4016CBBA);
    angleradi.pinum = bits(0x40490FB1);
    angleradi.threehalfpi = bits(0x4096CBCF);
    angleradi.twopi = bits(0x40C90FC6);

    anglerads.quartpi = bits(0x3F491083);
    anglerads.thirdpi = bits(0x3F860AE6);
    anglerads.halfpi = bits(0x3FC9102F);
    anglerads.threequartpi = bits(0x4016CC0E);
    anglerads.pinum = bits(0x40491005);
    anglerads.threehalfpi = bits(0x4096CBF9);
    anglerads.twopi = bits(0x40C90FF0);
}

float deg(const float& x) { return x * anglerad.rad2degfac; }
float rad(const float& x) { return x * anglerad.deg2radfac; }

void deg2rad(float* out, const float* in, const int& n) {
    for (int i = 0; i < n; ++i) out[i] = anglerad.deg2radfac * in[i];
}

void rad2deg(float* out, const float* in, const int& n) {
    for (int i = 0; i < n; ++i) out[i] = anglerad.rad2degfac * in[i];
}

void deg2rad1(float& out, const float& in) { out = anglerad.deg2radfac * in; }

void modulro(float* out, const float* in, const float& period, const float& origin,
             const int& n) {
    for (int i = 0; i < n; ++i) {
        float y = in[i] - origin;
        float r;
        if (y >= period) {
            r = truncrem(y, period);
        } else if (y < 0.0f) {
            r = truncrem(y, period);
            if (r != 0.0f) r = r + period;
        } else {
            r = y;
        }
        out[i] = r + origin;
    }
}

void moducr(float* out, const float* in, const float& period, const int& n) {
    float h = period / 2.0f;
    for (int i = 0; i < n; ++i) {
        float x = in[i];
        if (-h < x && x <= h) {
            out[i] = x;
            continue;
        }
        float r;
        if (x > period) {
            r = truncrem(x, period);
        } else if (x < 0.0f) {
            r = truncrem(x, period);
            if (r != 0.0f) r = r + period;
        } else {
            r = x;
        }
        if (r > h) r = r - period;
        out[i] = r;
    }
}

void rt2xy(float* x, float* y, const float* r, const float* t, const int& n) {
    for (int i = 0; i < n; ++i) {
        float ri = r[i], ti = t[i];
        x[i] = ri * std::cos(ti);
        y[i] = ri * std::sin(ti);
    }
}

void xy2rt(float* r, float* t, const float* x, const float* y, const int& n) {
    for (int i = 0; i < n; ++i) {
        float xi = x[i], yi = y[i];
        r[i] = std::sqrt(yi * yi + xi * xi);
        t[i] = angle_of(xi, yi);
    }
}

void xy2t(float* t, const float* x, const float* y, const int& n) {
    for (int i = 0; i < n; ++i) t[i] = angle_of(x[i], y[i]);
}

void circle(float* x, float* y, const int& n, const float& xc, const float& yc, const float& r) {
    if (n <= 0) return;
    float step = anglerad.twopi / float(n - 1);
    for (int i = 0; i < n; ++i) {
        float a = step * float(i);
        x[i] = std::cos(a) * r + xc;
        y[i] = std::sin(a) * r + yc;
    }
}

void arcirclerad(float* x, float* y, const int& n, const float& xc, const float& yc,
                 const float& r, const float& t1, const float& t2) {
    if (n <= 0) return;
    float step = (t2 - t1) / float(n - 1);
    for (int i = 0; i < n; ++i) {
        float a = step * float(i) + t1;
        x[i] = std::cos(a) * r + xc;
        y[i] = std::sin(a) * r + yc;
    }
}
