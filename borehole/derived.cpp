#include "borehole/derived.h"

#include <cmath>

#include "math/angles.h"
#include "shell/format.h"
#include "shell/sio.h"
#include "shell/valuesearch.h"
#include "well/welldat.h"
#include "well/wellpara.h"

const char* csizename(int code) {
    static const char* const names[] = {"R+R", "R+G", "R+E", "R+S", "G+G", "G+E",
                                        "G+S", "E+E", "E+S", "S+E", "S+S"};
    if (code < CS_RR || code > CS_SS || code % 10 != 0) return "???";
    return names[code / 10 - 1];
}

void logdataflags(bool& ldata, bool& lcal, bool& lazc, bool& lrb) {
    const int id = welldat.IDTYPWD(welldat.itypwd);
    lcal = id == 100 || id == 110 || id == 200 || id == 210;
    ldata = lcal || id == 300;
    lazc = id == 110 || id == 210;
    lrb = id == 200 || id == 210;
}

void logdatacheck(farr<int, 2>& jcc, bool& ldata, bool& lcal, bool& lazc, bool& lrb) {
    welldat_t& w = welldat;
    logdataflags(ldata, lcal, lazc, lrb);
    if (ldata) jcc(1) = w.JCOL(w.jc1);
    if (lcal) jcc(2) = w.JCOL(w.jc2);
    if (!ldata) nodataframe(VB_LOGPLOT2);
}

void nodataframe(const version_block& vb) {
    errorhead(vb);
    if (welldat.IDTYPWD(welldat.itypwd) == 0) {
        textline("NO DATA !");
        textline("===> NEED INPUT DATA FIRST");
    } else {
        textline("INCORRECT DATA TYPE");
        textline("===> NEED CORRECT INPUT DATA");
    }
    textline("===> PLOTTING DISABLED");
    errortail00();
}

// ---------------------------------------------------------------------------
// Stage 1

void logstage1(bool& lazc, const farr<int, 2>& jcc, int icmax, bool lcal, bool lrb) {
    if (!lcal) return;
    welldat_t& w = welldat;
    const int n = w.ndatwd;

    textline(DASHED);
    textline("COMPUTATIONS");
    textline(DASHED);
    writef(iocom.isout, "(1x,a,1x,i6)", "Total number of data =", n);
    textline("DATA WITH C1,C2,P1Az");

    // An equal pair counts C1 as the larger.
    {
        const float* c1 = w.RWD1.col(jcc(1));
        const float* c2 = w.RWD1.col(jcc(2));
        int* kmax = w.IWD1.col(icmax);
        for (int i = 0; i < n; ++i) kmax[i] = c1[i] >= c2[i] ? 1 : 2;
    }
    const int* kmax = w.IWD1.col(icmax);
    float* rbcmax = w.RWD1.col(JRBCMAX);

    if (lazc) {
        textline("CASE 1: AzCmax already defined");
        if (lrb) {
            textline("CASE 1.1: with RB");
            textline(" => Finding Cmax");
            textline(" => Computing RBCmax");
            const float* rb = w.RWD1.col(w.JCOL(w.jrb));
            for (int i = 0; i < n; ++i) rbcmax[i] = kmax[i] == 1 ? rb[i] : rb[i] + 90.0f;
        } else {
            textline("CASE 1.2: without RB");
            textline(" => Finding Cmax");
        }
        return;
    }

    textline("CASE 2: Extending data type with AzCmax");
    int id = w.IDTYPWD(w.itypwd) + 10;
    wdtype(id, 11);
    bool ldata = false, lcal2 = false, lrb2 = false;
    logdataflags(ldata, lcal2, lazc, lrb2);
    // Marks the column as computed in the data status block.
    if (lazc) w.NAMCOL(w.JCOL(w.jazcmax)) = "AzCmax.cmptd";

    // C1 lies along P1Az and C2 along P1Az + 90; the angles are wrapped in
    // stage 2, not here.
    if (lrb) {
        textline("CASE 2.1: with RB");
        textline("=> Finding Cmax");
        textline("=> Computing AzCmax & RBCmax");
    } else {
        textline("CASE 2.2: without RB");
        textline("=> Finding Cmax");
        textline("=> Computing AzCmax");
    }
    if (!lazc) return;  // the extension was refused: there is no column to fill
    const float* p1az = w.RWD1.col(w.JCOL(w.jp1az));
    float* azcmax = w.RWD1.col(w.JCOL(w.jazcmax));
    if (lrb) {
        const float* rb = w.RWD1.col(w.JCOL(w.jrb));
        for (int i = 0; i < n; ++i) {
            if (kmax[i] == 1) {
                azcmax[i] = p1az[i];
                rbcmax[i] = rb[i];
            } else {
                azcmax[i] = p1az[i] + 90.0f;
                rbcmax[i] = rb[i] + 90.0f;
            }
        }
    } else {
        for (int i = 0; i < n; ++i) azcmax[i] = kmax[i] == 1 ? p1az[i] : p1az[i] + 90.0f;
    }
}

// ---------------------------------------------------------------------------
// Stage 2

void logstage2(int& ierr, int& itop, int& ibot, int& nsel, bool& lupdate, const farr<int, 2>& jcc,
               int icsize, int icdc, int icmax, int icrb, bool ldata, bool lcal, bool lrb) {
    ierr = 0;
    if (!lupdate) return;
    welldat_t& w = welldat;
    const wellpara_t& p = wellpara;
    const int n = w.ndatwd;
    const float period = 180.0f;

    textline("COMPUTING:");

    if (lcal) {
        textline(DASHED);
        textline("Normalizing AzCmax ");
        textline("in [ azcmx0 , azcmx0 + 180 [");
        writef(iocom.isout, "(1x,a,1x,f8.2)", "with azcmx0 = ", p.azcmaxorig);
        writef(iocom.isout, "(1x,a,1x,i6)", "Total number of data = ", n);
        textline(DASHED);
        // Stage 1 has given every caliper type its AzCmax; without it there
        // is no column to wrap.
        bool ld = false, lc = false, lazc = false, lr = false;
        logdataflags(ld, lc, lazc, lr);
        if (lazc) {
            float* azcmax = w.RWD1.col(w.JCOL(w.jazcmax));
            modulro(azcmax, azcmax, period, p.azcmaxorig, n);
        }
    }

    if (!ldata) {
        // Nothing to select: an empty interval, so that no reader touches data.
        itop = 1;
        ibot = 0;
        nsel = 0;
        lupdate = false;
        return;
    }

    int status = 0, first = 1, last = 1;
    inval2inind2(status, first, last, p.ztop, p.zbot, 1, n, w.RWD1.col(w.JCOL(w.jdepth)),
                 MAXDATWD, 0);
    if (status == 1 || status == 2) {
        warninghead(VB_LOGPLOT2);
        textline(status == 1 ? "INDICES PROBLEM OR FAILED SEARCH" : "DATA OUT OF RANGE");
        textline("=> SKIPPING PLOT");
        warningtail00();
        ierr = status;
        return;
    }
    itop = first;
    ibot = last;
    nsel = ibot - itop + 1;
    const int i0 = itop - 1;  // offset of row itop in a column

    if (lcal) {
        textline("Csize & DC tests");
        writef(iocom.isout, "(1x,a,1x,i6)", "Number of data = ", nsel);
        const float cbslo = p.bitsize + p.cbsmin;
        const float cbshi = p.bitsize + p.cbsmax;
        const float csat[2] = {p.c1sat, p.c2sat};
        const float* cal[2] = {w.RWD1.col(jcc(1)) + i0, w.RWD1.col(jcc(2)) + i0};
        const int* kmax = w.IWD1.col(icmax) + i0;
        int* size = w.IWD1.col(icsize) + i0;
        int* dc = w.IWD1.col(icdc) + i0;
        for (int i = 0; i < nsel; ++i) {
            const int k = kmax[i] - 1;  // 0 for C1, 1 for C2
            size[i] = csizecode(cal[1 - k][i], cal[k][i], cbslo, cbshi, csat[1 - k], csat[k]);
            // A difference equal to cdiff passes, and so does a NaN.
            dc[i] = p.cdiff > std::fabs(cal[0][i] - cal[1][i]) ? 0 : 1;
        }
    }

    if (lcal && lrb) {
        textline("RB test");
        writef(iocom.isout, "(1x,a,1x,i6)", "Number of data = ", nsel);
        float* rbcmax = w.RWD1.col(JRBCMAX) + i0;
        int* rbt = w.IWD1.col(icrb) + i0;
        const float zero = 0.0f;
        const float t = p.rbcmaxthr;
        const float tmax = period - t;
        // The test is made on [0, 180) whatever the plotting origin, so that
        // rbcmaxorig never changes its result.
        modulro(rbcmax, rbcmax, period, zero, nsel);
        for (int i = 0; i < nsel; ++i) rbt[i] = rbcmax[i] >= t && rbcmax[i] <= tmax ? 1 : 0;
        modulro(rbcmax, rbcmax, period, p.rbcmaxorig, nsel);
    } else if (lcal) {
        // Without RB the orientation test counts as passed.
        textline("RB test skipped");
        int* rbt = w.IWD1.col(icrb) + i0;
        for (int i = 0; i < nsel; ++i) rbt[i] = 1;
    }

    lupdate = false;
}

// ---------------------------------------------------------------------------

void extractxy(float* xout, float* yout, int& nout, const float* x, const float* y,
               const int* key, int n, int value) {
    int m = 0;
    for (int i = 0; i < n; ++i) {
        if (key[i] == value) {
            xout[m] = x[i];
            yout[m] = y[i];
            ++m;
        }
    }
    nout = m;
}
