#include "math/ranind.h"

#include "shell/fixed.h"
#include "shell/format.h"
#include "shell/stop.h"
#include "shell/units.h"

void ranind(const int& n, const float* x, int* ind) {
    if (n <= 0) return;
    // X(i) and IND(i) in the 1-based terms of the algorithm.
    auto X = [x](int i) { return x[i - 1]; };
    auto IND = [ind](int i) -> int& { return ind[i - 1]; };

    for (int i = 1; i <= n; ++i) IND(i) = i;

    // Segment stack: the lower end of the segment in hand is nx(kx), its
    // upper end nx(kx-1).
    farr<int, 40> nx;
    nx.fill(0);
    nx(1) = n;
    nx(2) = 1;
    int kx = 2;

    for (;;) {
        const int l = nx(kx), u = nx(kx - 1);
        bool pop = l >= u;
        int j = u;
        if (!pop) {
            // The mean as pivot: no median search, and a segment of equal
            // values ends at once as nothing lies above it.
            float xm = 0.0f;
            for (int i = l; i <= u; ++i) xm += X(IND(i));
            xm = xm / float(u - l + 1);

            bool above = false;
            int i = l;
            while (i <= j) {
                if (X(IND(i)) <= xm) {
                    ++i;
                    continue;
                }
                above = true;
                int jp = j;
                while (jp > i && !(X(IND(jp)) <= xm)) --jp;
                if (jp == i) {
                    j = i - 1;
                    break;
                }
                int tmp = IND(i);
                IND(i) = IND(jp);
                IND(jp) = tmp;
                j = jp - 1;
                if (j > i) {
                    ++i;
                    continue;
                }
                break;
            }
            if (!above) {
                pop = true;
            } else if (j <= l) {
                // At most one element left of the split, and it is in place.
                nx(kx) = nx(kx) + 1;
                continue;
            } else {
                if (kx > 39) {
                    writef(UNIT_SCREEN, "(1x,'kx gt dim. de nx '/2x,20i6)", nx);
                    stop_run();
                }
                nx(kx + 1) = nx(kx);
                nx(kx) = j;
                kx = kx + 1;
                continue;
            }
        }
        if (pop) {
            kx = kx - 1;
            if (kx < 2) return;
            nx(kx) = nx(kx) + 1;
        }
    }
}
