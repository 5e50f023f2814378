// The projections themselves: one test of the kind per list of points,
// then a loop that only multiplies and adds.
#include <cmath>

#include "projection/projection.h"
#include "shell/format.h"
#include "shell/sio.h"

projcatype_t projcatype;
axon_t axon;
uaxon_t uaxon;
nape_t nape;
nppf_t nppf;
unape_t unape;
orthocom_t orthocom;

void axonon(float* x, float* y, const float* X, const float* Y, const float* Z, const int& n) {
    const axon_t& a = axon;
    for (int i = 0; i < n; ++i) {
        const float px = X[i], py = Y[i], pz = Z[i];
        x[i] = a.COSA(1) * px + a.COSA(2) * py + a.COSA(3) * pz;
        y[i] = a.SINA(1) * px + a.SINA(2) * py + a.SINA(3) * pz;
    }
}

// A point at the view point divides by zero; nothing guards it.
void natpern(float* x, float* y, const float* X, const float* Y, const float* Z, const int& n) {
    const nape_t& p = nape;
    const float dpp = nppf.dpp;
    for (int i = 0; i < n; ++i) {
        const float p1 = X[i] - p.OPE(1), p2 = Y[i] - p.OPE(2), p3 = Z[i] - p.OPE(3);
        const float q1 = p.MPE(1, 1) * p1 + p.MPE(1, 2) * p2 + p.MPE(1, 3) * p3;
        const float q2 = p.MPE(2, 1) * p1 + p.MPE(2, 2) * p2 + p.MPE(2, 3) * p3;
        const float q3 = p.MPE(3, 1) * p1 + p.MPE(3, 2) * p2 + p.MPE(3, 3) * p3;
        const float f = 1.0f / (q3 / dpp + 1.0f);
        x[i] = f * q1;
        y[i] = f * q2;
    }
}

void orthoprojn(float* x, float* y, const float* X, const float* Y, const float* Z,
                const int& n) {
    const float* u = nullptr;
    const float* v = nullptr;
    switch (orthocom.iortho) {
    case 1: u = Y; v = Z; break;
    case 2: u = X; v = Z; break;
    case 3: u = X; v = Y; break;
    default: return;
    }
    for (int i = 0; i < n; ++i) {
        x[i] = u[i];
        y[i] = v[i];
    }
}

void projxyzn(float* x, float* y, const float* X, const float* Y, const float* Z, const int& n) {
    for (;;) {
        switch (projcatype.iproj) {
        case 1: axonon(x, y, X, Y, Z, n); return;
        case 2: natpern(x, y, X, Y, Z, n); return;
        case 3: orthoprojn(x, y, X, Y, Z, n); return;
        default: break;
        }
        errorhead(VB_PROJXYZN);
        writef(iocom.ieout, "(1x,a,1x,i6)", " iproj =", projcatype.iproj);
        writef(iocom.ieout, "(1x,a)", " NO SUCH PROJECTION AVALAIBLE ");
        writef(iocom.ieout, "(1x,a)", " WILL TRY TO RESET PROJECTION BELOW ");
        errortail00();
        int iproj = 1;
        sprojxyz(iproj, 0);
    }
}

void epll132(farr2<float, 3, 3>& M, const farr<float, 2>& angles) {
    const float c1 = std::cos(angles(1)), s1 = std::sin(angles(1));
    const float c2 = std::cos(angles(2)), s2 = std::sin(angles(2));
    M(1, 1) = -s1;
    M(1, 2) = c1;
    M(1, 3) = 0.0f;
    M(2, 1) = -s2 * c1;
    M(2, 2) = -s2 * s1;
    M(2, 3) = c2;
    M(3, 1) = c2 * c1;
    M(3, 2) = c2 * s1;
    M(3, 3) = s2;
}
