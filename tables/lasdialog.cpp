// The dialogues of a LAS file: what the file holds, then which curve each
// variable takes, in what unit, over which depths, and the read.
#include <algorithm>
#include <limits>
#include <string>

#include "shell/format.h"
#include "shell/frames.h"
#include "shell/menus.h"
#include "shell/prompts.h"
#include "shell/sio.h"
#include "shell/textlen.h"
#include "shell/units.h"
#include "tables/las.h"
#include "tables/readreal_io.h"

namespace {

constexpr version_block VB_LASOPEN1{"lasopen1   ", " 1.0", "2026-11-23"};
constexpr version_block VB_READLAS1{"readlas1   ", " 1.0", "2026-11-23"};
constexpr int MAXVARLAS = 99;

void curve_list() {
    const lasfile_t& f = lasfile;
    for (int j = 1; j <= f.ncurve; j += 3) {
        const int n = std::min(3, f.ncurve - j + 1);
        if (n == 3)
            writef(iocom.isout, "(3(1x,i3,1x,a10,1x,a6))", j, f.MNEM(j), f.UNIT(j), j + 1,
                   f.MNEM(j + 1), f.UNIT(j + 1), j + 2, f.MNEM(j + 2), f.UNIT(j + 2));
        else if (n == 2)
            writef(iocom.isout, "(3(1x,i3,1x,a10,1x,a6))", j, f.MNEM(j), f.UNIT(j), j + 1,
                   f.MNEM(j + 1), f.UNIT(j + 1));
        else
            writef(iocom.isout, "(3(1x,i3,1x,a10,1x,a6))", j, f.MNEM(j), f.UNIT(j));
    }
}

void line_reason(const version_block& vb, std::string_view fname, int line,
                 std::string_view reason) {
    errorhead(vb);
    textline("LAS FILE:", trimmed(fname));
    writef(iocom.isout, "(1x,a,1x,i6,1x,a)", "LINE", line, trimmed(reason));
}

constexpr float ALL = std::numeric_limits<float>::max();

}  // namespace

void lasopen1(int& ierr, std::string_view fname, int unit) {
    ierr = 0;
    const lasfile_t& f = lasfile;
    int line = 0, nin = 0;
    fstr<80> reason;
    int e = las_header(unit, line, reason);
    const int jdep = e == 0 ? las_alias("Depth") : 0;
    if (e == 0 && jdep == 0) {
        e = 1;
        line = f.cline != 0 ? f.cline : f.aline;
        reason = "NO DEPTH CURVE: DEPT, DEPTH OR MD";
    }
    if (e == 0) e = las_scan(unit, jdep, 1.0, -ALL, ALL, nin, line, reason);
    if (e != 0) {
        line_reason(VB_LASOPEN1, fname, line, reason.sv());
        unit_close(unit);
        textline("input file", trimmed(fname), "closed");
        errortail00();
        ierr = 1;
        return;
    }

    submenuhead(VB_LASOPEN1);
    textline("LAS FILE:", trimmed(fname));
    writef(iocom.isout, "(5(1x,a))", "LAS version:",
           f.vers.trimmed().empty() ? "none given" : f.vers.trimmed(), "  wrapped:",
           f.wrapped ? "YES" : "NO");
    textline("well name  :", f.well.trimmed().empty() ? "none given" : f.well.trimmed());
    textline("NULL value :", f.hasnull ? f.nulltext.trimmed() : "none given");
    intline("curves     :", f.ncurve);
    curve_list();
    menurule();
    writef(iocom.isout, "(5(1x,a))", "depth curve:", f.MNEM(jdep).trimmed(), "  unit:",
           f.UNIT(jdep).trimmed());
    writef(iocom.isout, "(1x,a,1x,f12.4,1x,a,1x,f12.4,1x,a)", "depth from", f.dfirst, "to",
           f.dlast, f.UNIT(jdep).trimmed());
    textline("step       :", f.steptext.trimmed().empty() ? "none given" : f.steptext.trimmed());
    intline("rows in file      :", f.nrow);
    intline("rows without depth:", f.ndrop);
    if (f.hasbs) writef(iocom.isout, "(1x,a,1x,f10.4,1x,a)", "bit size BS:", f.bs, f.bsunit.trimmed());
    menutail();
}

namespace {

// One stay in the correspondence menu: the variables, their curves and unit
// factors, the depth interval and the decimation.
struct las_session {
    std::string_view fname;
    int unit;
    fstr_array_ref namvar;
    int nvar;
    int* jcurve;
    int maxlines;
    farr<double, MAXVARLAS> factor;
    int kdep = 0;  // the depth variable
    float zlo = -ALL, zhi = ALL;
    int ndec = 1, nin = 0, line = 0;
    fstr<80> reason;

    las_session(std::string_view fn, int u, fstr_array_ref nv, int n, int* jc, int ml)
        : fname(fn), unit(u), namvar(nv), nvar(std::clamp(n, 0, MAXVARLAS)), jcurve(jc),
          maxlines(ml) {
        factor.fill(0.0);
    }

    int jdep() const { return kdep != 0 ? jcurve[kdep - 1] : lasfile.jdep; }
    double fdep() const { return kdep != 0 ? factor(kdep) : 1.0; }
    int nread() const { return (nin + ndec - 1) / ndec; }
    int rescan() { return las_scan(unit, jdep(), fdep(), zlo, zhi, nin, line, reason); }

    void full_range() {
        const lasfile_t& f = lasfile;
        const float a = float(f.dmin * fdep()), b = float(f.dmax * fdep());
        zlo = std::min(a, b);
        zhi = std::max(a, b);
        nin = f.nrow - f.ndrop;
    }

    // The unit factor of variable k; one the reader doesn't know, the user
    // says what it is worth.
    void decide(int k) {
        const lasfile_t& f = lasfile;
        const int j = jcurve[k - 1];
        factor(k) = 0.0;
        if (j == 0) return;
        const las_kind kind = las_kind_of(namvar.sv(k));
        const std::string_view unitname = f.UNIT(j).trimmed();
        double fac = las_factor(kind, unitname);
        if (fac == 0.0) {
            warninghead(VB_READLAS1);
            writef(iocom.isout, "(5(1x,a))", "UNIT", unitname.empty() ? "(none)" : unitname,
                   "OF CURVE", f.MNEM(j).trimmed(), "NOT KNOWN");
            writef(iocom.isout, "(5(1x,a))", "variable", trimmed(namvar.sv(k)), "is read in",
                   las_own_unit(kind));
            warningtail00();
            float x = 1.0f;
            int ie = 0;
            inrealdef(x, "factor from " + std::string(unitname) + " to " +
                             std::string(las_own_unit(kind)),
                      1.0f, ie);
            fac = x;
        }
        factor(k) = fac;
    }

    void too_many() const {
        warninghead(VB_READLAS1);
        intline("DEPTH STEPS TO READ:", nread());
        intline("THE STORE HOLDS   :", maxlines);
        textline("==> CHOOSE A DEPTH INTERVAL AND/OR");
        textline("    A DECIMATION: COMMAND 300");
        warningtail00();
    }

    void show() const {
        const lasfile_t& f = lasfile;
        submenuhead(VB_READLAS1);
        textline("          VARIABLE  <--  LAS CURVE");
        menurule();
        textline("|nb| variable |nb |  curve   |  unit  |   conversion   |");
        textline("|--|----------|---|----------|--------|----------------|");
        for (int k = 1; k <= nvar; ++k) {
            const int j = jcurve[k - 1];
            const std::string_view own = las_own_unit(las_kind_of(namvar.sv(k)));
            std::string conv;
            if (j != 0 && factor(k) == 1.0)
                conv = std::string(own);
            else if (j != 0)
                conv = "x" + std::string(trimmed(formatf("(g12.5)", factor(k)))) + " -> " +
                       std::string(own);
            writef(iocom.isout, "(1x,'|',i2,'|',a10,'|',i3,'|',a10,'|',a8,'|',a16,'|')", k,
                   namvar.sv(k), j, j != 0 ? f.MNEM(j).sv() : "none",
                   j != 0 ? f.UNIT(j).sv() : "", conv);
        }
        textline("Command to pick a curve: variable nb");
        menurule();
        writef(iocom.isout, "(2(1x,a,1x,i6))", "rows in file  :", f.nrow, "without depth:",
               f.ndrop);
        writef(iocom.isout, "(1x,a,1x,f12.4,1x,a,1x,f12.4,1x,a)", "depth interval:", zlo, "to",
               zhi, "m");
        intline("keep one row in:", ndec);
        writef(iocom.isout, "(2(1x,a,1x,i6))", "rows to read  :", nread(), "at most", maxlines);
        menurule();
        textline("DEPTH INTERVAL, DECIMATION ......300");
        textline("CURVES OK => READ ..............1000");
        textline("EXIT WITHOUT READING .............99");
    }

    // Variable k takes another curve; a new depth curve is checked first.
    void pick(int k) {
        const lasfile_t& f = lasfile;
        curve_list();
        const int old = jcurve[k - 1];
        const double oldf = factor(k);
        int j = old, ie = 0;
        inintegvindef(j, "curve nb for " + std::string(trimmed(namvar.sv(k))), old, 0, f.ncurve,
                      ie);
        if (k == kdep && j == 0) {
            warninghead(VB_READLAS1);
            textline("THE DEPTH NEEDS A CURVE");
            textline("==> NO ACTION");
            warningtail00();
            return;
        }
        jcurve[k - 1] = j;
        decide(k);
        if (k != kdep) return;
        zlo = -ALL;
        zhi = ALL;
        if (rescan() != 0) {
            line_reason(VB_READLAS1, fname, line, reason.sv());
            textline("==> DEPTH CURVE KEPT:", f.MNEM(old).trimmed());
            errortail00();
            jcurve[k - 1] = old;
            factor(k) = oldf;
            rescan();
        }
        full_range();
        ndec = 1;
    }

    // The depth interval, then the decimation, offered as the smallest
    // that lets the interval fit.
    void interval() {
        int ie = 0;
        float top = zlo, bot = zhi;
        inrealdef(top, "top of the depth interval, m", top, ie);
        inrealdef(bot, "bottom of the depth interval, m", bot, ie);
        zlo = std::min(top, bot);
        zhi = std::max(top, bot);
        rescan();
        const int fit = std::max(1, (nin + maxlines - 1) / maxlines);
        inintegvindef(ndec, "keep one row in", std::max(ndec, fit), 1, 1000000, ie);
    }

    // True if every variable has a curve and the rows fit.
    bool ready() const {
        for (int k = 1; k <= nvar; ++k) {
            if (jcurve[k - 1] != 0) continue;
            warninghead(VB_READLAS1);
            textline("NO CURVE FOR VARIABLE", trimmed(namvar.sv(k)));
            textline("==> PICK ONE BY ITS NB");
            warningtail00();
            return false;
        }
        if (nread() > maxlines) {
            too_many();
            return false;
        }
        if (nread() == 0) {
            warninghead(VB_READLAS1);
            textline("NO DEPTH STEP IN THE INTERVAL");
            warningtail00();
            return false;
        }
        return true;
    }
};

}  // namespace

void readlas1(int& ierr, std::string_view fname, int unit, fstr_array_ref namvar, int nvar,
              int* jcurve, const int* jcol, float* data, fstr_array_ref namcol, int& nlines,
              int& ncolused, int maxlines, int maxcols) {
    ierr = 1;
    const lasfile_t& f = lasfile;
    las_session s(fname, unit, namvar, nvar, jcurve, maxlines);
    for (int k = 1; k <= s.nvar; ++k) {
        if (s.kdep == 0 && las_kind_of(namvar.sv(k)) == las_kind::depth) s.kdep = k;
        if (jcurve[k - 1] == 0) jcurve[k - 1] = las_alias(namvar.sv(k));
    }
    for (int k = 1; k <= s.nvar; ++k) s.decide(k);

    // lasopen1 has checked the file with the depth curve found by its name.
    if (s.jdep() == 0 || (s.jdep() != f.jdep && s.rescan() != 0)) {
        if (s.jdep() == 0) {
            s.line = f.cline;
            s.reason = "NO DEPTH CURVE: DEPT, DEPTH OR MD";
        }
        line_reason(VB_READLAS1, fname, s.line, s.reason.sv());
        unit_close(unit);
        textline("input file", trimmed(fname), "closed");
        errortail00();
        return;
    }
    s.full_range();
    if (s.nread() > maxlines) s.too_many();

    for (;;) {
        s.show();
        const int choice = menuchoice(1000);
        if (choice >= 1 && choice <= s.nvar) {
            s.pick(choice);
        } else if (choice == 300) {
            s.interval();
        } else if (choice == 1000 && s.ready()) {
            farr<int, MAXVARLAS> jc;
            ncolused = 0;
            for (int k = 1; k <= s.nvar; ++k) {
                jc(k) = std::clamp(jcol[k - 1], 1, maxcols);
                ncolused = std::max(ncolused, jc(k));
            }
            int nbad = 0;
            las_read(unit, s.jdep(), s.fdep(), s.zlo, s.zhi, s.ndec, s.nvar, jcurve,
                     s.factor.data(), jc.data(), data, maxlines, nlines, nbad);
            for (int c = 1; c <= maxcols; ++c) rrio::numbered_name(namcol(c), "Nodata.", c);
            for (int k = 1; k <= s.nvar; ++k)
                namcol(jc(k)).assign(f.MNEM(jcurve[k - 1]).trimmed());
            unit_close(unit);
            submenuhead(VB_READLAS1);
            intline("rows in file             :", f.nrow);
            intline("rows read                :", nlines);
            intline("left out: interval, step :", f.nrow - f.ndrop - nlines);
            intline("dropped: no depth        :", f.ndrop);
            intline("NULL or unreadable values:", nbad);
            textline("input file", trimmed(fname), "closed");
            menutail();
            ierr = 0;
            return;
        } else if (choice == 99) {
            unit_close(unit);
            submenuhead(VB_READLAS1);
            textline("EXITING WITHOUT READING DATA FILE");
            textline("input file", trimmed(fname), "closed");
            menutail();
            return;
        }
    }
}
