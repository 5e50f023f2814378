#include "math/matrix.h"

#include <functional>

#include "shell/format.h"
#include "shell/frames.h"
#include "shell/sio.h"

namespace {
constexpr version_block VB_M22INVERT{"m22invert", " 1.4", "2024-02-10"};

// Work arrays live on the stack: the callers multiply 2 by 2 and 3 by 3
// matrices and short point lists. A larger product that doesn't overlap its
// operands is summed straight into its result, which gives the same values.
constexpr int WORKMAX = 4096;

bool overlaps(const float* a, int na, const float* b, int nb) {
    std::less<const float*> lt;
    return lt(a, b + nb) && lt(b, a + na);
}
}  // namespace

void m22determt(float& det, const float* a) {
    // a(1,1)=a[0], a(2,1)=a[1], a(1,2)=a[2], a(2,2)=a[3]
    det = a[3] * a[0] - a[2] * a[1];
}

void m22invert(float* c, const float* b) {
    float det = b[3] * b[0] - b[2] * b[1];
    if (det == 0.0f) {
        errorhead(VB_M22INVERT);
        writef(iocom.isout, "(5(1x,a,1x,g15.3))", "det(B) =", det);
        writef(iocom.isout, "(5(1x,a,1x,g15.3))", "b(1,1) =", b[0], "b(1,2) =", b[2]);
        writef(iocom.isout, "(5(1x,a,1x,g15.3))", "b(2,1) =", b[1], "b(2,2) =", b[3]);
        textline("=> Cannot Invert B");
        errortailstop(1);
        return;
    }
    // The adjugate goes to a work array first, so that c may be b.
    float CTMP[4] = {b[3], -b[1], -b[2], b[0]};
    for (int k = 0; k < 4; ++k) c[k] = CTMP[k] / det;
}

void mnpxmpq(float* a, const float* b, const float* c, const int& n, const int& p,
             const int& q) {
    if (n <= 0 || p <= 0 || q <= 0) return;
    const int nq = n * q;
    float TNQ[WORKMAX];
    float* t = TNQ;
    if (nq > WORKMAX) {
        if (overlaps(a, nq, b, n * p) || overlaps(a, nq, c, p * q)) {
            errorhead("mnpxmpq", "", "");
            writef(iocom.isout, "(5(1x,a,1x,i6))", "n =", n, "q =", q, "n*q >", WORKMAX);
            textline("=> product too large to be done in place");
            errortailstop(2);
            return;
        }
        t = a;
    }
    for (int j = 0; j < q; ++j) {
        for (int i = 0; i < n; ++i) {
            float s = 0.0f;
            for (int k = 0; k < p; ++k) s += b[k * n + i] * c[j * p + k];
            t[j * n + i] = s;
        }
    }
    if (t != a)
        for (int k = 0; k < nq; ++k) a[k] = t[k];
}

void mnpxvp(float* v, const float* a, const float* w, const int& n, const int& p) {
    if (n <= 0 || p <= 0) return;
    float VTN[WORKMAX];
    float* t = VTN;
    if (n > WORKMAX) {
        if (overlaps(v, n, w, p) || overlaps(v, n, a, n * p)) {
            errorhead("mnpxvp", "", "");
            writef(iocom.isout, "(5(1x,a,1x,i6))", "n =", n, "n >", WORKMAX);
            textline("=> product too large to be done in place");
            errortailstop(2);
            return;
        }
        t = v;
    }
    for (int i = 0; i < n; ++i) {
        float s = 0.0f;
        for (int k = 0; k < p; ++k) s += a[k * n + i] * w[k];
        t[i] = s;
    }
    if (t != v)
        for (int i = 0; i < n; ++i) v[i] = t[i];
}
