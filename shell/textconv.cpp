#include "shell/textconv.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <string>

#include "shell/format.h"
#include "shell/frames.h"
#include "shell/sio.h"
#include "shell/textlen.h"

namespace {
constexpr version_block VB_INTG2CHAR{"intg2char  ", "3.00", "16-12-98  "};
constexpr version_block VB_REAL2CHARF1{"real2charf1", "1.00", "16-12-98  "};
constexpr version_block VB_CAREAFMPN{"careafmpn", "1.00", "16-12-98  "};

void real_size_frame(float value, int m, long long count) {
    errorhead(VB_REAL2CHARF1);
    writef(iocom.isout, "(1x,a,1x,f30.5)", "Cannot get size of real =", value);
    writef(iocom.isout, "(1x,a,1x,i6)", "set n before =", m);
    writef(iocom.isout, "(1x,a,1x,i6)", "set nchar =",
           int(std::clamp(count, (long long)INT_MIN, (long long)INT_MAX)));
    textline("Watch for NaN or +/-Inf in output ?");
    errortail00();
}

void fill_nines(fstr_ref text, int maximum) {
    text.assign("");
    for (int k = 1; k <= maximum && k <= int(text.size()); ++k) text(k) = '9';
}
}  // namespace

void path2basename(int& length, fstr_ref basename, std::string_view path) {
    int first, last;
    textlen(first, last, path);
    if (last - first + 1 == 1) {
        basename.assign(path.substr(std::size_t(first - 1), 1));
        length = 1;
        return;
    }
    int k = last - 1;
    while (k >= first && path[std::size_t(k - 1)] != '/') --k;
    int start = k >= first ? k + 1 : first;
    // A path that ends in "/" keeps that "/" as its base name.
    if (start > last) start = last;
    basename.assign(path.substr(std::size_t(start - 1), std::size_t(last - start + 1)));
    length = last - start + 1;
}

void intg2char(fstr_ref text, int& count, int maximum, int value) {
    if (value < -9)
        count = int(std::log(std::fabs(float(value)) + 1e-07f) * 0.4342945f) + 2;
    else if (value < 0)
        count = 2;
    else if (value <= 9)
        count = 1;
    else
        count = int(std::log(float(value) + 1e-07f) * 0.4342945f) + 1;

    if (maximum < count) {
        errorhead(VB_INTG2CHAR);
        writef(iocom.isout, "(1x,a,1x,i20)", "Cannot write integer =", value);
        writef(iocom.isout, "(1x,a,1x,i3,1x,a)", "with only ", maximum, "digits");
        textline("==> NEED LONGER CHARACTER STRING");
        writef(iocom.isout, "(1x,a,1x,i3)", "==> fill with 9 and set nchar =", maximum);
        errortail00();
        fill_nines(text, maximum);
        count = maximum;
        return;
    }
    if (count >= 1 && count <= 99) {
        std::string f = count < 10 ? formatf("('(i',i1,')')", count) : formatf("('(i',i2,')')", count);
        text.assign(formatf(f, value));
    } else if (count >= 100) {
        errorhead(VB_INTG2CHAR);
        writef(iocom.isout, "(1x,a,1x,i6)", "nchar =", count);
        textline("preset formats require nchar < 100");
        textline("==> NEED TO ENHANCE SOURCE CODE");
        textline("==> Exiting without action");
        errortail00();
    } else {
        errorhead(VB_INTG2CHAR);
        writef(iocom.isout, "(1x,a,1x,i6)", "nchar =", count);
        textline("UNEXPECTED");
        textline("==> Exiting without action");
        errortail00();
    }
}

void real2charf1(fstr_ref text, int& count, int decimals, int maximum, float value) {
    int d = decimals;
    float t = std::pow(10.f, -float(d)) + 1e-07f;
    float low = value - t, high = value + t;
    // The length is summed wide: a digit count near the int range would
    // overflow it.
    long long count_wide = 0;
    int m;
    if (std::isinf(value)) {
        // The logarithm of an infinity has no digits to count: reported as
        // a NaN is.
        m = 4;
        count_wide = (long long)d + 5;
        real_size_frame(value, m, count_wide);
    } else if (high <= -1.f) {
        m = int(std::log(std::fabs(low)) * 0.4342945f) + 1;
        count_wide = (long long)m + d + 2;
    } else if (value < 0.f) {
        m = 1;
        count_wide = (long long)d + 3;
    } else if (low < 1.f) {
        m = 1;
        count_wide = (long long)d + 2;
    } else if (low >= 1.f) {
        m = int(std::log(std::fabs(high)) * 0.4342945f) + 1;
        count_wide = (long long)m + d + 1;
    } else {
        // Only a NaN gets here.
        m = 4;
        count_wide = (long long)d + 5;
        real_size_frame(value, m, count_wide);
    }
    if (count_wide > maximum) {
        count_wide = maximum;
        d = maximum - m - 2;
    }
    count = int(std::clamp(count_wide, (long long)INT_MIN, (long long)INT_MAX));
    if (d < 0) {
        errorhead(VB_REAL2CHARF1);
        writef(iocom.isout, "(1x,a,1x,f30.5)", "Cannot write real =", value);
        writef(iocom.isout, "(1x,a,1x,i3,1x,a)", "with only ", maximum, "digits");
        textline("==> NEED LONGER CHARACTER STRING");
        writef(iocom.isout, "(1x,a,1x,i3)", "==> fill with 9 and set nchar =", maximum);
        errortail00();
        fill_nines(text, maximum);
        count = maximum;  // as the frame says, whatever the decimals asked for
        return;
    }
    careafmpn(text, count, d, value);
}

void careafmpn(fstr_ref text, int m, int n, float value) {
    if (!(0 < m && m < 100 && n < m) || n < 0) {
        errorhead(VB_CAREAFMPN);
        writef(iocom.isout, "(2(1x,a,1x,i6))", "m =", m, "n =", n);
        textline("fm.n is not a valid format");
        textline(" ===> fill with X");
        errortail00();
        text.assign("X");
        return;
    }
    std::string f;
    if (m < 10)
        f = formatf("('(f',i1,'.',i1,')')", m, n);
    else if (n < 10)
        f = formatf("('(f',i2,'.',i1,')')", m, n);
    else
        f = formatf("('(f',i2,'.',i2,')')", m, n);
    text.assign(formatf(f, value));
}

std::string realtext(float value, int decimals, int maximum) {
    fstr<32> t;
    int k = 0;
    real2charf1(t, k, decimals, maximum, value);
    return std::string(t.sub(1, k));
}

std::string integtext(int value) {
    fstr<12> t;
    int k = 0;
    intg2char(t, k, 12, value);
    return std::string(t.sub(1, k));
}
