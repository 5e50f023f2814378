// Filling a histogram: clearing, counting values into bins, finishing.
#include <string>

#include "histogram/hst_internal.h"
#include "shell/frames.h"
#include "shell/prompts.h"
#include "shell/textconv.h"

blkhst8_t blkhst8;

namespace hst {

bool checked(int h, const version_block& vb, std::string_view closing) {
    if (valid(h)) return true;
    errorhead(vb);
    badnumber(h);
    line(closing);
    errortail00();
    return false;
}

}  // namespace hst

namespace {

void valuereport(bool error, std::string_view head, bool close, int h, std::string_view endname,
                 float bound, float x, std::string_view tail) {
    const blkhst8_t& b = blkhst8;
    if (error)
        errorhead(VB_HSTADD);
    else
        warninghead(VB_HSTADD);
    hst::line(head);
    if (close) hst::line(" but close enough");
    hst::count("Histogram number =", h);
    hst::tval("X axis label     =", b.LABELHST0(5, h).sv());
    writef(iocom.isout, "(5(1x,a,1x,f12.3))", endname, bound);
    writef(iocom.isout, "(5(1x,a,1x,f12.3))", "Value            =", x);
    hst::line(tail);
    if (error)
        errortail00();
    else
        warningtail00();
}

}  // namespace

void hstclear(int& h) {
    blkhst8_t& b = blkhst8;
    if (!hst::checked(h, VB_HSTCLEAR, "==> EXITING WITHOUT ACTION")) return;
    const int nb = b.NBINHST0(b.IXHST0(h));
    for (int j = 1; j <= nb; ++j) b.NYCTHST0(j, h) = 0;
    b.NTOTHST0(h) = 0;
    b.NREJHST0(h) = 0;
    b.MODEHST0(h) = 0;
    b.MINIHST0(h) = 0;
    b.SUMHST0(h) = 0.0f;
    b.AVGHST0(h) = 0.0f;
    b.ITYPEHST0(h) = 0;
}

void hstadd(const float* x, const int& n, int& h) {
    blkhst8_t& b = blkhst8;
    if (!hst::checked(h, VB_HSTADD, "==> EXITING WITHOUT ACTION")) return;
    const int ix = b.IXHST0(h);
    const int nb = b.NBINHST0(ix);
    const float lo = b.XBNDHST0(1, ix), hi = b.XBNDHST0(nb + 1, ix);
    const float lofar = lo - 1.0e-5f, lonear = lo - 2.0e-6f;
    const float hifar = hi + 1.0e-5f, hinear = hi + 2.0e-6f;
    const float* bound = b.XBNDHST0.col(ix);  // bound[j-1] is bound j
    int* cnt = b.NYCTHST0.col(h);             // cnt[j-1] is bin j
    for (int i = 0; i < n; ++i) {
        const float v = x[i];
        if (v < lofar) {
            valuereport(true, "VALUE BELOW LOWEST HISTOGRAM BIN", false, h, "Lowest bin value =",
                        lo, v, "==> Value is discarded");
            b.NREJHST0(h) += 1;
            continue;
        }
        if (v < lonear) {
            valuereport(false, "Value below lowest histogram bin", true, h, "lowest bin value =",
                        lo, v, "==> Value added to first bin");
            cnt[0] += 1;
        } else {
            // A linear search over the stored bounds, never arithmetic on
            // the width: the bounds are what the listing shows.
            int j = 2;
            while (j <= nb + 1 && !(v < bound[j - 1])) ++j;
            if (j <= nb + 1) {
                cnt[j - 2] += 1;
            } else if (v > hifar) {
                valuereport(true, "VALUE ABOVE HIGHEST HISTOGRAM BIN", false, h,
                            "highest bin value =", hi, v, "==> Value is discarded");
                b.NREJHST0(h) += 1;
                continue;
            } else {
                if (v > hinear)
                    valuereport(false, "Value above highest histogram bin", true, h,
                                "highest bin value =", hi, v, "==> Value added to last bin");
                cnt[nb - 1] += 1;
            }
        }
        b.NTOTHST0(h) += 1;
        b.SUMHST0(h) += v;
    }
    b.ITYPEHST0(h) = 1;
}

void hstcompend(int& h) {
    blkhst8_t& b = blkhst8;
    if (!hst::checked(h, VB_HSTCOMPEND, "==> EXITING WITHOUT ACTION")) return;
    const int nb = b.NBINHST0(b.IXHST0(h));
    for (int j = 1; j <= nb; ++j) {
        const int c = b.NYCTHST0(j, h);
        if (c > b.MODEHST0(h)) b.MODEHST0(h) = c;
        if (c < b.MINIHST0(h)) b.MINIHST0(h) = c;
    }
    if (b.NTOTHST0(h) > 0) {
        b.AVGHST0(h) = b.SUMHST0(h) / float(b.NTOTHST0(h));
    } else {
        errorhead(VB_HSTCOMPEND);
        hst::count("histogram nb           =", h);
        hst::count("nb of retained data    =", b.NTOTHST0(h));
        hst::count("nb of rejected data    =", b.NREJHST0(h));
        b.AVGHST0(h) = 0.0f;
        writef(iocom.isout, "(1x,a,1x,f10.3)", "==> SETTING AVERAGE    =", b.AVGHST0(h));
        errortail00();
    }
    const int m = b.NYEXTYPHST0(h);
    if (m == 1 || m == 3) b.YMAXHST0(h) = float(b.MODEHST0(h));
    if (m == 2 || m == 3) b.YMINHST0(h) = float(b.MINIHST0(h));
    shstlabntot(6, h);
    b.ITYPEHST0(h) = 2;
}

void ghstsize(float& xmin, float& xmax, float& ymin, float& ymax, int& h) {
    blkhst8_t& b = blkhst8;
    if (!hst::valid(h)) {
        errorhead(VB_GHSTSIZE);
        hst::badnumber(h);
        h = b.NHST0;
        hst::count("==> RESET histogram nb =", h);
        errortail00();
    }
    // With no histogram at all there is no box to give.
    if (h < 1) {
        xmin = xmax = ymin = ymax = 0.0f;
        return;
    }
    const int ix = b.IXHST0(h);
    xmin = b.XBNDHST0(1, ix);
    xmax = b.XBNDHST0(b.NBINHST0(ix) + 1, ix);
    ymin = b.YMINHST0(h);
    ymax = b.YMAXHST0(h);
}

void shstlabntot(const int& k, int& h) {
    blkhst8_t& b = blkhst8;
    if (!hst::checked(h, VB_SHSTLABNTOT, "==> NO ACTION")) return;
    if (k < 1 || k > MAXLABHST) {
        errorhead(VB_SHSTLABNTOT);
        hst::count("histogram nb =", h);
        hst::count("label number =", k);
        hst::outside("outside [", 1, MAXLABHST);
        hst::line("==> NO ACTION");
        errortail00();
        return;
    }
    fstr<21> num;
    int len = 0;
    intg2char(num, len, 21, b.NTOTHST0(h));
    b.LABELHST0(k, h) = "N = " + std::string(num.sub(1, len));
}
