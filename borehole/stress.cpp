#include "borehole/stress.h"

#include <cmath>
#include <limits>
#include <string>

#include "borehole/derived.h"
#include "borehole/rotation.h"
#include "borehole/shaperules.h"
#include "borehole/tracks.h"
#include "histogram/blkhst8.h"
#include "math/angles.h"
#include "plot/attributes.h"
#include "plot/pages.h"
#include "plot/symbols.h"
#include "shell/format.h"
#include "shell/runinfo.h"
#include "shell/textlen.h"
#include "shell/units.h"
#include "well/wellpara.h"

stresspara_t stresspara;
stresscom_t stresscom;

namespace {

constexpr float NaN = std::numeric_limits<float>::quiet_NaN();
// Depths are single precision: a few thousand metres hold to a tenth of a
// millimetre, so lengths are compared to the millimetre.
constexpr float ZTOL = 1.0e-3f;
constexpr int JAZU = JWORK9;    // RWD1: pad-1 azimuth unwrapped
constexpr int JKEPT = IWD_WORK; // IWD1: 1 where the depth passes the test

// Weights and azimuths of the zones for the well's mean; the azimuths of
// the kept rows of one zone.
farr<float, MAXZONE> ZAZ, ZW;
farr<float, MAXDATWD> KAZ;

}  // namespace

void stressparadefaults() { stresspara = stresspara_t{5.0f, 10.0f, 1.0f, 0.3f, 15.0f}; }

void axialmean(float& mean, float& sd, const float* a, const float* w, int n) {
    mean = sd = NaN;
    float sc = 0.0f, ss = 0.0f, sw = 0.0f;
    for (int i = 0; i < n; ++i) {
        const float wi = w ? w[i] : 1.0f;
        const float t = 2.0f * rad(a[i]);
        sc += wi * std::cos(t);
        ss += wi * std::sin(t);
        sw += wi;
    }
    if (!(sw > 0.0f)) return;
    sc /= sw;
    ss /= sw;
    float r = 0.0f, t = 0.0f;
    xy2rt(&r, &t, &sc, &ss, 1);
    mean = 0.5f * deg(t);
    if (mean < 0.0f) mean += 180.0f;
    if (mean >= 180.0f) mean -= 180.0f;
    if (r >= 1.0f)
        sd = 0.0f;
    else if (r > 0.0f)
        sd = 0.5f * deg(std::sqrt(-2.0f * std::log(r)));
    else
        sd = std::numeric_limits<float>::infinity();
}

char stressrank(int nzone, float length, float sd) {
    if (nzone < 1 || !(sd <= 40.0f)) return 'E';
    const float l = length + ZTOL;
    if (nzone >= 10 && l >= 100.0f && sd <= 12.0f) return 'A';
    if (nzone >= 6 && l >= 40.0f && sd <= 20.0f) return 'B';
    if (nzone >= 4 && l >= 20.0f && sd <= 25.0f) return 'C';
    return 'D';
}

namespace {

// Closes the group of kept rows i1..i2: dropped if short or if the tool
// turns in it, else a zone with its means.
void closezone(int i1, int i2) {
    stresscom_t& s = stresscom;
    const welldat_t& w = welldat;
    const stresspara_t& p = stresspara;
    const int jdep = w.JCOL(w.jdepth);
    const float top = w.RWD1(i1, jdep), bottom = w.RWD1(i2, jdep);
    const float length = std::fabs(bottom - top);
    if (length + ZTOL < p.minlen) {
        ++s.nshort;
        return;
    }
    float lo = w.RWD1(i1, JAZU), hi = lo;
    for (int i = i1 + 1; i <= i2; ++i) {
        const float a = w.RWD1(i, JAZU);
        if (a < lo) lo = a;
        if (a > hi) hi = a;
    }
    // The tool stops in a breakout; where it turns the elongation is its own
    // drag or a spiral hole.
    const float turn = hi - lo;
    if (turn > p.maxturn) {
        ++s.nturn;
        return;
    }
    stresszone& z = s.Z(++s.nzone);
    z.i1 = i1;
    z.i2 = i2;
    z.nsamp = i2 - i1 + 1;
    z.top = top;
    z.bottom = bottom;
    z.length = length;
    z.turn = turn;
    const int jc1 = w.JCOL(w.jc1), jc2 = w.JCOL(w.jc2), jaz = w.JCOL(w.jazcmax);
    float c1 = 0, c2 = 0, devi = 0, kept = 0;
    int n = 0;
    for (int i = i1; i <= i2; ++i) {
        if (w.IWD1(i, JKEPT) != 1) continue;
        KAZ(++n) = w.RWD1(i, jaz);
        c1 += w.RWD1(i, jc1);
        c2 += w.RWD1(i, jc2);
        if (s.lrb) devi += w.RWD1(i, w.JCOL(w.jdevi));
        if (i < i2 && w.IWD1(i + 1, JKEPT) == 1)
            kept += std::fabs(w.RWD1(i + 1, jdep) - w.RWD1(i, jdep));
    }
    z.nkept = n;
    z.keptlen = kept;
    z.c1 = c1 / float(n);
    z.c2 = c2 / float(n);
    z.dc = z.c1 - z.c2;
    z.devi = s.lrb ? devi / float(n) : NaN;
    axialmean(z.az, z.sd, KAZ.data(), nullptr, n);
    // Breakout + 90 is the horizontal stress only in a near-vertical hole.
    z.used = !(z.devi > p.maxdevi);
}

}  // namespace

void stresswell(int& ierr) {
    stresscom_t& s = stresscom;
    welldat_t& w = welldat;
    const wellpara_t& wp = wellpara;
    const stresspara_t& p = stresspara;
    ierr = 0;
    s.itop = 1;
    s.ibot = 0;
    s.nkept = s.nshort = s.nturn = s.nzone = s.nused = 0;
    s.length = 0.0f;
    s.az = s.sd = s.shmax = NaN;
    s.rank = 'E';

    farr<int, 2> jcc;
    jcc.fill(0);
    bool ldata = false, lcal = false, lazc = false, lrb = false;
    logdatacheck(jcc, ldata, lcal, lazc, lrb);
    s.lrb = lrb;
    if (!lcal) {
        ierr = 1;
        return;
    }
    logstage1(lazc, jcc, IWD_MAX, lcal, lrb);
    bool lupdate = true;
    int e = 0, itop = 1, ibot = 0, nsel = 0;
    logstage2(e, itop, ibot, nsel, lupdate, jcc, IWD_SIZE, IWD_DC, IWD_MAX, IWD_RB, ldata, lcal, lrb);
    if (e != 0 || nsel < 1) {
        ierr = 2;
        return;
    }
    s.itop = itop;
    s.ibot = ibot;

    rotunwrap(w.RWD1.col(JAZU) + (itop - 1), w.RWD1.col(w.JCOL(w.jp1az)) + (itop - 1), nsel,
              wp.azorig);

    // The elongation test without its RB part, which is added only where the
    // hole is deviated enough for a key seat: near vertical the high side,
    // and so RBCmax, is noise.
    const int jdevi = lrb ? w.JCOL(w.jdevi) : 0;
    for (int i = itop; i <= ibot; ++i) {
        const shaperow row{w.IWD1(i, IWD_SIZE), w.IWD1(i, IWD_DC), w.IWD1(i, IWD_RB),
                           w.RWD1(i, jcc(1)), w.RWD1(i, jcc(2))};
        bool keep = shapepass(shaperule::TASE2, row, wp.c1sat, wp.c2sat);
        if (keep && lrb && w.RWD1(i, jdevi) > p.keyseatdevi) keep = row.r != 0;
        w.IWD1(i, JKEPT) = keep ? 1 : 0;
        if (keep) ++s.nkept;
    }

    // Zones: runs of kept rows, bridged over a run of rejected rows no
    // longer than maxgap (its length counted from its first row to the
    // next kept one, the samples it holds times their step).
    const int jdep = w.JCOL(w.jdepth);
    int i1 = 0, ilast = 0;
    for (int i = itop; i <= ibot; ++i) {
        if (w.IWD1(i, JKEPT) != 1) continue;
        if (i1 != 0 && i > ilast + 1 &&
            std::fabs(w.RWD1(i, jdep) - w.RWD1(ilast + 1, jdep)) > p.maxgap + ZTOL) {
            closezone(i1, ilast);
            i1 = 0;
        }
        if (i1 == 0) i1 = i;
        ilast = i;
    }
    if (i1 != 0) closezone(i1, ilast);

    for (int k = 1; k <= s.nzone; ++k) {
        const stresszone& z = s.Z(k);
        if (!z.used) continue;
        ++s.nused;
        ZAZ(s.nused) = z.az;
        ZW(s.nused) = z.length;
        s.length += z.length;
    }
    axialmean(s.az, s.sd, ZAZ.data(), ZW.data(), s.nused);
    if (s.nused > 0) s.shmax = std::fmod(s.az + 90.0f, 180.0f);
    s.rank = stressrank(s.nused, s.length, s.sd);
}

// ---------------------------------------------------------------------------
// The zone table.

namespace {

std::string num(float v, int decimals) {
    if (std::isnan(v)) return "NaN";
    const std::string f = decimals == 3 ? formatf("(f14.3)", v)
                          : decimals == 2 ? formatf("(f14.2)", v)
                                          : formatf("(f14.1)", v);
    return std::string(trimmed(f));
}
std::string num(int v) { return std::string(trimmed(formatf("(i12)", v))); }

void line(int unit, const std::string& s) { writef(unit, "(a)", s); }

}  // namespace

void stresstable(int unit, std::string_view file) {
    const stresscom_t& s = stresscom;
    const wellpara_t& wp = wellpara;
    const stresspara_t& p = stresspara;
    const welldat_t& w = welldat;
    line(unit, "# tarnolix stress zones of " + std::string(file));
    line(unit, "# well " + std::string(trimmed(w.titlewd.sv())));
    line(unit, "# interval " + num(wp.ztop, 3) + " to " + num(wp.zbot, 3) + " m, rows " +
                   num(s.itop) + " to " + num(s.ibot));
    line(unit, "# bit size " + num(wp.bitsize, 3) + " cm, gauge band " + num(wp.cbsmin, 2) +
                   " to " + num(wp.cbsmax, 2) + " cm, saturation C1 " + num(wp.c1sat, 2) +
                   " C2 " + num(wp.c2sat, 2) + " cm, caliper difference " + num(wp.cdiff, 3) +
                   " cm");
    line(unit, "# RBCmax at least " + num(wp.rbcmaxthr, 1) + " deg off the high side where DEVI > " +
                   num(p.keyseatdevi, 1) + " deg" + (s.lrb ? "" : " (no RB in the data)"));
    line(unit, "# zones at least " + num(p.minlen, 3) + " m, gaps merged up to " +
                   num(p.maxgap, 3) + " m, tool turn at most " + num(p.maxturn, 1) +
                   " deg; zones with DEVI > " + num(p.maxdevi, 1) + " deg out of the mean");
    line(unit, "# depths kept " + num(s.nkept) + "; groups dropped: " + num(s.nshort) +
                   " short, " + num(s.nturn) + " with the tool turning");
    line(unit, "# zones " + num(s.nzone) + ", in the mean " + num(s.nused) + ", length " +
                   num(s.length, 3) + " m, breakout azimuth " + num(s.az, 1) + " s.d. " +
                   num(s.sd, 1) + " deg, SHmax azimuth " + num(s.shmax, 1) + " deg, rank " +
                   std::string(1, s.rank));
    line(unit, "top\tbottom\tlength\tsamples\tkept_length\tazimuth\tsd\tC1\tC2\tDC\tDEVI\tturn\tin_mean");
    for (int k = 1; k <= s.nzone; ++k) {
        const stresszone& z = s.Z(k);
        line(unit, num(z.top, 3) + "\t" + num(z.bottom, 3) + "\t" + num(z.length, 3) + "\t" +
                       num(z.nsamp) + "\t" + num(z.keptlen, 3) + "\t" + num(z.az, 2) + "\t" +
                       num(z.sd, 2) + "\t" + num(z.c1, 2) + "\t" + num(z.c2, 2) + "\t" +
                       num(z.dc, 2) + "\t" + num(z.devi, 2) + "\t" + num(z.turn, 2) + "\t" +
                       (z.used ? "yes" : "no"));
    }
}

// ---------------------------------------------------------------------------
// The page.

namespace {

constexpr int HROSE = 6;      // the rose's histogram and X axis
constexpr int SUBROSE = 38;   // a subplot no log layout uses
constexpr int SUBTRACK = 39;  // nor this one

// A tic spacing of 1, 2 or 5 times a power of ten giving about n tics.
float nicestep(float range, int n) {
    if (!(range > 0.0f)) return 1.0f;
    const float raw = range / float(n);
    const float p = std::pow(10.0f, std::floor(std::log10(raw)));
    const float m = raw / p;
    return (m < 1.5f ? 1.0f : m < 3.5f ? 2.0f : m < 7.5f ? 5.0f : 10.0f) * p;
}

void rosesetup() {
    int n = HROSE;
    shstnb(n, 1);
    int h = HROSE, ix = HROSE;
    shstxind(ix, h, 1);
    float lo = 0.0f, hi = 360.0f;
    int nb = 36, tic = 3, lab = 3;
    fstr<LABLENHST> xl = "Zone azimuth";
    shstxbin2(lo, hi, nb, tic, lab, xl, h, 1);
    int method = 1, style = 11, type = 5, colour = 5;
    shstyextype(method, h, 1);
    shstplotstyle(style, h, 1);
    shstplotype(type, h, 1);
    shstfillcolor(colour, h, 1);
    const char* names[4] = {"E", "N", "W", "S"};
    for (int k = 1; k <= 4; ++k) {
        fstr<LABLENHST> t = names[k - 1];
        int on = 1, kk = k;
        shstlabel(t, on, kk, h, 1);
    }
    for (int k = 5; k <= 8; ++k) {
        fstr<LABLENHST> t;
        int on = 0, kk = k;
        shstlabel(t, on, kk, h, 1);
    }
}

// A diameter of the rose at azimuth a (0 at the top, clockwise), r long
// each way.
void diameter(float a, float r) {
    const float t = rad(a);
    const float x[2] = {-r * std::sin(t), r * std::sin(t)};
    const float y[2] = {-r * std::cos(t), r * std::cos(t)};
    usline(x, y, 2);
}

}  // namespace

void stresspage(std::string_view file) {
    const stresscom_t& s = stresscom;
    welldat_t& w = welldat;
    const bool land = wellplot.llandscape;
    const int jdep = w.JCOL(w.jdepth);

    // The head: data, run and result.
    wellpagehead(file);

    // The depth track of the zones.
    const float z1 = s.ibot >= s.itop ? w.RWD1(s.itop, jdep) : 0.0f;
    const float z2 = s.ibot >= s.itop ? w.RWD1(s.ibot, jdep) : 1.0f;
    {
        axisedit a(AXDEPTH);
        a.usa1 = a.wau1 = z1;
        a.usa2 = a.wau2 = z2 > z1 ? z2 : z1 + 1.0f;
        a.waud = nicestep(std::fabs(z2 - z1), 10);
        a.nasubint = 5;
        a.nlabintk = 1;
        a.walab = w.NAMVAR(w.jdepth);
    }
    trackaxisrange(AXAZCMAXCAT, 0.0f, 180.0f);
    {
        axisedit a(AXAZCMAXCAT);
        a.waud = 30.0f;
        a.nasubint = 3;
        a.nlabintk = 2;
    }
    {
        // A box of its own, wider than a log track; slogbox then gives it
        // the scales.
        int sub = SUBTRACK;
        ssubplot(sub, 1);
        float xcm0 = land ? 2.5f : 2.0f, ycm0 = land ? 2.5f : 3.0f;
        float xl = land ? 7.0f : 5.0f, yl = land ? 15.5f : 23.0f;
        float u1 = 0.0f, u2 = 1.0f, v1 = 0.0f, v2 = 1.0f;
        int ixy = 0;
        sus2cm3(xcm0, ycm0, xl, yl, u1, u2, v1, v2, ixy, 1);
        boxedit b;
        b.top = 1;
        b.bottom = 0;
    }
    slogbox(SUBTRACK, AXAZCMAXCAT, AXDEPTH, 1, "Zone azimuth");
    {
        attributekept<int> fill(sfillstyle);
        attributekept<int> fillcolour(sfillcolor);
        int c = 5;
        sfillcolor(c, 1);
        for (int k = 1; k <= s.nzone; ++k) {
            const stresszone& z = s.Z(k);
            const float half = z.sd > 2.0f ? z.sd : 2.0f;
            const float xa = std::fmax(z.az - half, 0.0f), xb = std::fmin(z.az + half, 180.0f);
            const float x[5] = {xa, xb, xb, xa, xa};
            const float y[5] = {z.top, z.top, z.bottom, z.bottom, z.top};
            int f = z.used ? 1 : 0;
            sfillstyle(f, 1);
            uspolygon(x, y, 5);
            const float mx[2] = {z.az, z.az};
            const float my[2] = {z.top - 0.01f * (z2 - z1), z.bottom + 0.01f * (z2 - z1)};
            usline(mx, my, 2);
        }
    }
    if (!std::isnan(s.az)) trackrefline(s.az);

    // The rose, weighted by the samples of each zone (its length over the
    // step), each azimuth counted both ways of its axis.
    rosesetup();
    int h = HROSE;
    hstclear(h);
    float* buf = w.RWD1.col(JWORK10);
    for (int k = 1; k <= s.nzone; ++k) {
        const stresszone& z = s.Z(k);
        if (!z.used) continue;
        const float period = 360.0f, origin = 0.0f;
        for (const float a : {z.az, z.az + 180.0f}) {
            for (int i = 0; i < z.nsamp; ++i) buf[i] = a;
            modulro(buf, buf, period, origin, z.nsamp);
            hstadd(buf, z.nsamp, h);
        }
    }
    hstcompend(h);
    float xmin, xmax, ymin, ymax;
    ghstsize(xmin, xmax, ymin, ymax, h);
    if (!(ymax > 0.0f)) ymax = 1.0f;
    {
        int sub = SUBROSE;
        ssubplot(sub, 1);
        const float side = 10.0f;
        float xcm0 = land ? 14.0f : 9.0f, ycm0 = land ? 5.5f : 12.0f, xl = side, yl = side;
        float u1 = -ymax, u2 = ymax, v1 = -ymax, v2 = ymax;
        int ixy = 1;
        sus2cm3(xcm0, ycm0, xl, yl, u1, u2, v1, v2, ixy, 1);
    }
    hstfrmplt(h);
    hstvalplt(h);
    if (!std::isnan(s.az)) {
        attributekept<int> colour(slinecolor);
        attributekept<float> width(slinewidth);
        float lw = 0.06f;
        slinewidth(lw, 1);
        int c = 1;
        slinecolor(c, 1);
        diameter(s.az, 1.15f * ymax);
        c = 2;
        slinecolor(c, 1);
        diameter(s.shmax, 1.15f * ymax);
    }

    // The result beside the rose.
    {
        attributekept<int> align(stextalign);
        int a = -1;
        stextalign(a, 1);
        const float x = land ? 14.0f : 9.0f;
        float y = land ? 3.8f : 10.5f;
        const std::string lines[3] = {
            "Zones " + num(s.nzone) + ", in the mean " + num(s.nused) + ", length " +
                num(s.length, 1) + " m",
            "Breakout azimuth " + num(s.az, 1) + " +- " + num(s.sd, 1) + " deg (black)",
            "SHmax azimuth " + num(s.shmax, 1) + " deg (red), rank " + std::string(1, s.rank)};
        for (const std::string& l : lines) {
            cmtext2(x, y, l);
            y -= 0.6f;
        }
    }
}
