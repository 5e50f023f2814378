#include "shell/valuesearch.h"

#include <utility>

#include "shell/format.h"
#include "shell/frames.h"
#include "shell/intera.h"
#include "shell/prompts.h"
#include "shell/sio.h"

namespace {
constexpr version_block VB_INVAL2ININD{"inval2inind", " 5.1", "2024-02-13"};
}

void ival2ind1(int& index, int value, const int* array, int first, int last, int& ierr) {
    for (int k = first; k <= last; ++k) {
        if (array[k - 1] == value) {
            index = k;
            ierr = 0;
            return;
        }
    }
    index = 1;
    ierr = 1;
}

void inval2inind2(int& ierr, int& first, int& last, float Rmin, float Rmax, int Imin, int Imax,
                  const float* rdat, int size, int inter) {
    const bool show = iocom.LWITO(1) && mode_talks(inter);
    const bool more = iocom.LWITO(2) && show;
    auto R = [&](int k) { return rdat[k - 1]; };
    int lo = Imin, hi = Imax;

    int r1 = 0, r2 = 0;
    cinvin3(Imin, 1, size, "initial search index", "inval2inind", 1, r1);
    cinvin3(Imax, 1, size, "final search index", "inval2inind", 1, r2);
    if (r1 != 0 || r2 != 0) {
        errorhead(VB_INVAL2ININD);
        textline("SEARCH INDEX BOUNDS ARE OUT OF ARRAY BOUNDS");
        textline(" => SET SEARCH INDEX RANGE= [1,1]");
        errortail00();
        first = last = 1;
        ierr = 1;
    } else {
        if (Imin > Imax) {
            warninghead(VB_INVAL2ININD);
            textline("INCORRECT INDEX SEARCH RANGE");
            textline("ARRAY INDEX SEARCH RANGE = [Imin, Imax]");
            writef(iocom.isout, "(1x,a,1x,i6)", "Imin =", Imin);
            writef(iocom.isout, "(1x,a,1x,i6)", "Imax =", Imax);
            textline(" Imin < Imax is REQUIRED");
            textline("=> switching Imin, Imax");
            std::swap(Imin, Imax);
            writef(iocom.isout, "(1x,a,1x,i6)", "Imin =", Imin);
            writef(iocom.isout, "(1x,a,1x,i6)", "Imax =", Imax);
            warningtail00();
            ierr = 3;
        }
        if (Rmin > Rmax) {
            // Reported without a pause: the swap is always what was meant.
            errorhead(VB_INVAL2ININD);
            textline("INCORRECT VALUE SEARCH RANGE");
            textline("SEARCH INTERVAL = [Rmin, Rmax]");
            writef(iocom.isout, "(2(1x,a,1x,f10.3))", "Rmin =", Rmin, "Rmax =", Rmax);
            textline(" Rmin < Rmax is REQUIRED");
            textline("=> switching Rmin < Rmax");
            std::swap(Rmin, Rmax);
            ierr = 3;
        }
        if (show) submenuhead(VB_INVAL2ININD);
        const bool increasing = !(R(Imin) > R(Imax));
        int step, a, b;
        if (increasing) {
            step = 1;
            a = Imin;
            b = Imax;
            if (more) textline("CASE 1: INCREASING DATA");
        } else {
            step = -1;
            a = Imax;
            b = Imin;
            if (more) textline("CASE 2: DECREASING DATA");
        }
        if (R(b) < Rmin) {
            warninghead(VB_INVAL2ININD);
            textline("ALL DATA < Rmin");
            textline("SEARCH INTERVAL = [Rmin, Rmax]");
            textline("=> selecting largest data only");
            warningtail00();
            first = last = lo = hi = b;
            ierr = 2;
        } else if (R(a) > Rmax) {
            warninghead(VB_INVAL2ININD);
            textline("ALL DATA > Rmax");
            textline("SEARCH INTERVAL = [Rmin, Rmax]");
            textline("=> selecting smallest data only");
            warningtail00();
            first = last = lo = hi = a;
            ierr = 2;
        } else {
            hi = b;
            for (int k = b;; k -= step) {
                if (R(k) <= Rmax) {
                    hi = k;
                    break;
                }
                if (k == a) break;
            }
            lo = a;
            for (int k = a;; k += step) {
                if (R(k) >= Rmin) {
                    lo = k;
                    break;
                }
                if (k == b) break;
            }
            if (increasing && hi >= lo) {
                first = lo;
                last = hi;
                ierr = 0;
            } else if (!increasing && hi <= lo) {
                first = hi;
                last = lo;
                ierr = 0;
            } else {
                errorhead(VB_INVAL2ININD);
                textline("INDICES SEARCH FAILED:");
                writef(iocom.isout, "(1x,a,1x,i6)", "Index Mini =", lo);
                writef(iocom.isout, "(1x,a,1x,i6)", "Index Maxi =", hi);
                textline(increasing ? "With increasing data" : "With decreasing data");
                textline("=> SET INDEX MINI AND MAXI = initial");
                errortail00();
                first = last = Imin;
                ierr = 1;
            }
        }
    }
    if (show) {
        textline("+-------+------------------+------------+");
        writef(iocom.isout, "(1x,'|',7x,'|',a18, '|',a12,   '|')", "  Array Results   ",
               "   Search   ");
        textline("|       +------------------+------------+");
        writef(iocom.isout, "(1x,'|',7x,'|',a5,2('|',a12),  '|')", "index", "value",
               "bounds   ");
        writef(iocom.isout, "(1x,'|',a7,'|',i5,2('|',f12.3),'|')", "Initial", first,
               rdat[first - 1], Rmin);
        writef(iocom.isout, "(1x,'|',a7,'|',i5,2('|',f12.3),'|')", "Final", last,
               rdat[last - 1], Rmax);
        textline("+-------+------------------+------------+");
        menutail();
    }
}
