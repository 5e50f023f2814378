#include "host/terminal/stress_cmd.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <string>
#include <string_view>

#include "borehole/stress.h"
#include "borehole/wellplot.h"
#include "plot/device/psdevice.h"
#include "plot/pages.h"
#include "shell/console.h"
#include "shell/format.h"
#include "shell/main_program.h"
#include "shell/runinfo.h"
#include "shell/sio.h"
#include "shell/stop.h"
#include "shell/textlen.h"
#include "shell/units.h"
#include "tables/las.h"
#include "tables/readreal.h"
#include "well/welldat.h"
#include "well/wellpara.h"

namespace {

constexpr int UNIT_SUMMARY = 56;

const char* const HELP =
    "usage: tarnolix stress [options] FILE...\n"
    "\n"
    "Stress orientation from borehole breakouts in four-arm caliper logs. Each\n"
    "FILE is a column table (title line, quoted column names: Depth, P1Az, C1,\n"
    "C2 and where logged RB, DEVI, HAZI, AzCmax) or a LAS file. Depths that\n"
    "pass the elongation test (Cmin in the gauge band, Cmax in gauge or above,\n"
    "|C1 - C2| at least the caliper difference, and where the hole is deviated\n"
    "more than --keyseat-devi the long axis off the high side) are grouped\n"
    "into breakout zones. For each file FILE go to the output folder:\n"
    "FILE.stress.txt (zone table), FILE.stress.ps and FILE.stress.pdf (page);\n"
    "for several files also stress_summary.txt, a row per well.\n"
    "\n"
    "Hole and caliper (cm, angles in degrees):\n"
    "  --bitsize CM        bit size; required unless a LAS file gives BS\n"
    "  --gauge-min CM      lower end of the gauge band, bit size + this (-1)\n"
    "  --gauge-max CM      upper end of the gauge band, bit size + this (1)\n"
    "  --c1sat CM          C1 saturation, the arm fully open (37)\n"
    "  --c2sat CM          C2 saturation (37)\n"
    "  --cdiff CM|N%       least |C1 - C2| of an elongation, in cm or in percent\n"
    "                      of the bit size (2.9 cm; the World Stress Map uses 10%)\n"
    "  --rbthr DEG         least angle of the long axis from the high side (10)\n"
    "  --keyseat-devi DEG  the high side test applies only where DEVI exceeds\n"
    "                      this: near vertical the high side is noise (5)\n"
    "Depths (m):\n"
    "  --top M, --bottom M the interval analysed (default: the whole file)\n"
    "Zones:\n"
    "  --min-length M      least zone length, top to bottom (1)\n"
    "  --max-gap M         largest run of rejected depths merged inside a zone (0.3)\n"
    "  --max-turn DEG      largest turn of pad 1 inside a zone: the tool stops\n"
    "                      in a breakout (15)\n"
    "  --max-devi DEG      zones deviated more are listed but left out of the\n"
    "                      mean and the rank (10)\n"
    "Output:\n"
    "  --out DIR           output folder (.)\n"
    "  --summary FILE      the summary table, also for one file (with several:\n"
    "                      DIR/stress_summary.txt)\n"
    "  --no-pdf            no PDF (the PDF needs ps2pdf)\n"
    "  --help              this text\n"
    "\n"
    "The mean breakout azimuth is the length-weighted axial mean of the zones;\n"
    "SHmax = breakout + 90. Rank (World Stress Map): A >= 10 zones, >= 100 m,\n"
    "s.d. <= 12; B >= 6, >= 40 m, <= 20; C >= 4, >= 20 m, <= 25; D other with\n"
    "s.d. <= 40; E no zone or s.d. > 40. Exit status 1 when a file failed.\n";

// The engine's console for this command: its text goes nowhere but the
// last lines are kept, to say why a well failed. Answers come from a short
// script; a question beyond it means the file can't be read unattended.
struct stress_console : console {
    std::deque<std::string> keys;
    std::string last[8];
    int nlast = 0;
    std::string why;  // the failures the engine reported for this well
    bool full = false;  // the table filled the well store
    void put_line(std::string_view l) override {
        if (l.find("The array size has been reached") != std::string_view::npos) full = true;
        // Rules and frame borders say nothing.
        if (l.find_first_not_of(" *@/-=|") == std::string_view::npos) return;
        last[nlast % 8].assign(l);
        ++nlast;
        if (l.find("WHILE") != std::string_view::npos || l.find("FAILED") != std::string_view::npos ||
            l.find("COULD NOT") != std::string_view::npos) {
            if (!why.empty()) why += "; ";
            // The fixed fields of a frame line, closed up.
            for (char c : trimmed(l))
                if (c != ' ' || (!why.empty() && why.back() != ' ')) why += c;
        }
    }
    std::string get_line() override {
        if (keys.empty()) throw console_closed{"an answer was asked for"};
        std::string k = keys.front();
        keys.pop_front();
        return k;
    }
    // Why the engine gave up: the failures it reported, or else the last
    // few lines it said.
    std::string said(int n) const {
        if (!why.empty()) return why;
        std::string s;
        for (int k = std::max(0, nlast - n); k < nlast; ++k) {
            std::string_view l = trimmed(last[k % 8]);
            if (l.empty()) continue;
            if (!s.empty()) s += "; ";
            s += l;
        }
        return s;
    }
};

struct options {
    bool bitsize = false, top = false, bottom = false, cdiffpct = false, pdf = true;
    float bs = 0, ztop = 0, zbot = 0, cbsmin = -1, cbsmax = 1, c1sat = 37, c2sat = 37,
          cdiff = 2.9f, rbthr = 10;
    std::string out = ".", summary;
};

struct well_result {
    std::string file, well, loc, why, note;
    bool ok = false;
};

bool number(std::string_view text, float& v) {
    std::string t(trimmed(text));
    if (t.empty()) return false;
    return readlist_str(t, v) && std::isfinite(v);
}

std::string basename(std::string_view path) {
    const std::size_t k = path.rfind('/');
    return std::string(k == std::string_view::npos ? path : path.substr(k + 1));
}

bool same_name(std::string_view a, std::string_view b) {
    a = trimmed(a);
    b = trimmed(b);
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(a[i])) !=
            std::tolower(static_cast<unsigned char>(b[i])))
            return false;
    return true;
}

// Sets the data type and its file columns from the names on the column
// names line; without names the type goes by the number of columns.
bool table_layout(const std::string& path, std::string& why) {
    welldat_t& w = welldat;
    if (!unit_open(UNIT_DATA, path, "old", "read")) {
        why = "cannot open the file";
        return false;
    }
    std::string rec;
    unit_read(UNIT_DATA, rec);
    const bool got = unit_read(UNIT_DATA, rec);
    unit_close(UNIT_DATA);
    if (!got) {
        why = "no column names line";
        return false;
    }
    farr<fstr<16>, 20> names;
    int ncol = 0;
    for (int k = 1; k <= 20; ++k) {
        litem items[20] = {names(1), names(2), names(3), names(4), names(5), names(6), names(7),
                           names(8), names(9), names(10), names(11), names(12), names(13),
                           names(14), names(15), names(16), names(17), names(18), names(19),
                           names(20)};
        if (!list_read_str(rec, std::span<const litem>(items, std::size_t(k)))) break;
        ncol = k;
    }
    const char* vars[8] = {"Depth", "P1Az", "C1", "C2", "RB", "DEVI", "HAZI", "AzCmax"};
    int at[8] = {};
    for (int v = 0; v < 8; ++v)
        for (int k = 1; k <= ncol && at[v] == 0; ++k)
            if (same_name(names(k).sv(), vars[v])) at[v] = k;
    int id = 0;
    if (at[0] && at[1] && at[2] && at[3]) {
        id = (at[4] && at[5] && at[6] ? 200 : 100) + (at[7] ? 10 : 0);
    } else if (!at[0] && !at[1]) {
        // Unnamed columns in the program's order.
        id = ncol >= 8 ? 210 : ncol == 7 ? 200 : ncol == 5 ? 110 : ncol == 4 ? 100 : 0;
        for (int v = 0; v < 8; ++v) at[v] = v + 1;
    }
    if (id == 0) {
        why = "no Depth, P1Az, C1 and C2 columns";
        return false;
    }
    wdtype(id, 1);
    const int var[8] = {w.jdepth, w.jp1az, w.jc1, w.jc2, w.jrb, w.jdevi, w.jhazi, w.jazcmax};
    const int nv = id == 100 ? 4 : id == 110 ? 5 : id == 200 ? 7 : 8;
    for (int v = 0; v < 8; ++v) {
        if (v >= 4 && v < 7 && nv < 7) continue;
        if (v == 7 && id % 100 != 10) continue;
        w.JFCOL(var[v]) = at[v];
    }
    return true;
}

bool read_table(const std::string& path, std::string& why, const stress_console& con) {
    welldat_t& w = welldat;
    if (!table_layout(path, why)) return false;
    fstr<250> fname = path;
    int ierr = 0, nlinedisp = 0, iskip = 2, ititle = 1, iheader = 2;
    readreal6(ierr, w.titlewd, fname, "well data input", UNIT_DATA, nlinedisp, iskip, ititle,
              iheader, w.JCOL.data(), w.JFCOL.data(), w.NAMVAR, w.nvarwd, MAXVARWD, w.RWD1.a,
              w.NAMCOL, w.ndatwd, w.ncolwd, MAXDATWD, MAXCOLWD, 1, 1);
    unit_close(UNIT_DATA);
    if (ierr != 0) {
        why = "the table could not be read";
        if (!con.why.empty()) why = con.why;
        return false;
    }
    w.finwd = basename(path);
    return true;
}

bool read_las(const std::string& path, float& bs, bool& hasbs, std::string& why,
              const options& o) {
    welldat_t& w = welldat;
    const lasfile_t& f = lasfile;
    int line = 0;
    fstr<80> reason;
    auto fail = [&](const std::string& r) {
        unit_close(UNIT_DATA);
        why = r;
        return false;
    };
    if (las_header(UNIT_DATA, line, reason) != 0)
        return fail("LAS line " + std::to_string(line) + ": " + std::string(trimmed(reason.sv())));
    const char* vars[7] = {"Depth", "P1Az", "C1", "C2", "RB", "DEVI", "HAZI"};
    int jc[7];
    for (int v = 0; v < 7; ++v) jc[v] = las_alias(vars[v]);
    if (!jc[0] || !jc[1] || !jc[2] || !jc[3]) return fail("no Depth, P1Az, C1 and C2 curves");
    int id = jc[4] && jc[5] && jc[6] ? 200 : 100;
    wdtype(id, 1);
    const int nv = w.nvarwd;
    double factor[7];
    int jcurve[7], jcol[7];
    for (int k = 1; k <= nv; ++k) {
        jcurve[k - 1] = jc[k - 1];
        jcol[k - 1] = w.JCOL(k);
        const std::string_view unit = trimmed(f.UNIT(jc[k - 1]).sv());
        factor[k - 1] = las_factor(las_kind_of(w.NAMVAR(k).sv()), unit);
        if (factor[k - 1] == 0.0)
            return fail("unknown unit '" + std::string(unit) + "' of curve " +
                        std::string(trimmed(f.MNEM(jc[k - 1]).sv())));
    }
    const float zlo = o.top ? o.ztop : -1.0e30f, zhi = o.bottom ? o.zbot : 1.0e30f;
    int nin = 0;
    if (las_scan(UNIT_DATA, jc[0], factor[0], zlo, zhi, nin, line, reason) != 0)
        return fail("LAS line " + std::to_string(line) + ": " + std::string(trimmed(reason.sv())));
    // A longer log is read one step in n, as the table holds 15000.
    const int ndec = nin > MAXDATWD ? (nin + MAXDATWD - 1) / MAXDATWD : 1;
    int nbad = 0;
    las_read(UNIT_DATA, jc[0], factor[0], zlo, zhi, ndec, nv, jcurve, factor, jcol, w.RWD1.a,
             MAXDATWD, w.ndatwd, nbad);
    unit_close(UNIT_DATA);
    w.ncolwd = nv;
    for (int k = 1; k <= nv; ++k) w.NAMCOL(k) = w.NAMVAR(k).sv();
    w.titlewd = f.well.trimmed().empty() ? std::string_view("Untitled") : f.well.trimmed();
    w.finwd = basename(path);
    const double fbs = las_factor(las_kind::diameter, f.bsunit.sv());
    hasbs = f.hasbs && fbs != 0.0;
    if (hasbs) bs = float(f.bs * fbs);
    return true;
}

// Whether a table that filled the store has a data line past it (the two
// header lines, then the samples).
bool more_than_full(const std::string& path) {
    if (!unit_open(UNIT_DATA, path, "old", "read")) return false;
    std::string rec;
    bool more = false;
    for (int k = 1; k <= MAXDATWD + 2 && unit_read(UNIT_DATA, rec); ++k) {
    }
    while (!more && unit_read(UNIT_DATA, rec)) more = !trimmed(rec).empty() && trimmed(rec) != " ";
    unit_close(UNIT_DATA);
    return more;
}

// One well: read, analyse, write its table and page.
void one_well(const std::string& path, const options& o, bool pdf, stress_console& con,
              well_result& r) {
    tarnolix_startup(false);
    iocom.lpause = false;
    runinfo3com.levelrt = 1;
    runinfo3com.ROUTNAME(1) = "tarnolix stress";
    r.file = path;

    bool las = false;
    if (!unit_open(UNIT_DATA, path, "old", "read")) {
        r.why = "cannot open the file";
        return;
    }
    las = las_detect(UNIT_DATA);
    if (!las) unit_close(UNIT_DATA);
    float lasbs = 0;
    bool hasbs = false;
    if (las ? !read_las(path, lasbs, hasbs, r.why, o) : !read_table(path, r.why, con)) return;
    welldat_t& w = welldat;
    if (!las && con.full && more_than_full(path)) {
        r.note = ", first " + std::to_string(MAXDATWD) + " samples only";
        std::fprintf(stderr, "tarnolix stress: %s: more than %d samples, the first read\n",
                     path.c_str(), MAXDATWD);
    }
    r.well = std::string(trimmed(w.titlewd.sv()));
    if (las && !lasfile.loc.trimmed().empty() && lasfile.loc.trimmed() != " ")
        r.loc = std::string(trimmed(lasfile.loc.sv()));
    if (w.ndatwd < 1) {
        r.why = "no data";
        return;
    }

    wellpara_t& p = wellpara;
    if (o.bitsize)
        p.bitsize = o.bs;
    else if (hasbs)
        p.bitsize = lasbs;
    else {
        r.why = "no bit size: give --bitsize";
        return;
    }
    p.cbsmin = o.cbsmin;
    p.cbsmax = o.cbsmax;
    p.c1sat = o.c1sat;
    p.c2sat = o.c2sat;
    p.cdiff = o.cdiffpct ? o.cdiff * 0.01f * p.bitsize : o.cdiff;
    p.rbcmaxthr = o.rbthr;
    const int jdep = w.JCOL(w.jdepth);
    float zmin = w.RWD1(1, jdep), zmax = zmin;
    for (int i = 2; i <= w.ndatwd; ++i) {
        zmin = std::fmin(zmin, w.RWD1(i, jdep));
        zmax = std::fmax(zmax, w.RWD1(i, jdep));
    }
    p.ztop = o.top ? o.ztop : zmin;
    p.zbot = o.bottom ? o.zbot : zmax;

    int ierr = 0;
    stresswell(ierr);
    if (ierr == 1) {
        r.why = "no P1Az, C1 and C2 in the data";
        return;
    }
    if (ierr == 2) {
        r.why = "no depth in the interval";
        return;
    }

    const std::string base = o.out + "/" + basename(path) + ".stress";
    if (!unit_open(UNIT_TABLES, base + ".txt", "replace", "write")) {
        r.why = "cannot write " + base + ".txt";
        return;
    }
    stresstable(UNIT_TABLES, basename(path));
    unit_close(UNIT_TABLES);

    // The page: the format of the page format file, accepted as it stands.
    fstr<250> psname = base + ".ps";
    con.keys = {""};
    plinit(psname, 5);
    swellplot(5);
    wellplot.llandscape = psparams_90.isizeps == 3 || psparams_90.isizeps == 4;
    swellsubplot();
    stresspage(basename(path));
    con.keys = {""};
    plend();
    if (pdf) {
        const std::string cmd = "ps2pdf '" + base + ".ps' '" + base + ".pdf' >/dev/null 2>&1";
        if (std::system(cmd.c_str()) != 0) std::fprintf(stderr, "tarnolix stress: %s: no PDF\n", path.c_str());
    }
    r.ok = true;
}

void summary_row(const well_result& r) {
    const stresscom_t& s = stresscom;
    auto f = [](float v, const char* fmt) {
        return std::isnan(v) ? std::string("NaN") : std::string(trimmed(formatf(fmt, v)));
    };
    std::string row = r.file + "\t" + r.well + "\t" + r.loc + "\t";
    if (r.ok) {
        row += f(wellpara.ztop, "(f14.3)") + "\t" + f(wellpara.zbot, "(f14.3)") + "\t" +
               std::string(trimmed(formatf("(i8)", s.nused))) + "\t" +
               std::string(trimmed(formatf("(i8)", s.nzone - s.nused))) + "\t" +
               f(s.length, "(f14.3)") +
               "\t" + f(s.az, "(f14.1)") + "\t" + f(s.sd, "(f14.1)") + "\t" +
               f(s.shmax, "(f14.1)") + "\t" + std::string(1, s.rank) + "\tok" + r.note;
    } else {
        row += "\t\t\t\t\t\t\t\t\tfailed: " + r.why;
    }
    writef(UNIT_SUMMARY, "(a)", row);
}

bool takes_value(std::string_view a) {
    for (const char* k : {"--bitsize", "--gauge-min", "--gauge-max", "--c1sat", "--c2sat",
                          "--cdiff", "--rbthr", "--keyseat-devi", "--top", "--bottom",
                          "--min-length", "--max-gap", "--max-turn", "--max-devi", "--out",
                          "--summary"})
        if (a == k) return true;
    return false;
}

}  // namespace

int stress_command(int argc, char** argv) {
    options o;
    stressparadefaults();
    stresspara_t sp = stresspara;
    std::deque<std::string> files;
    for (int i = 1; i < argc; ++i) {
        const std::string_view a = argv[i];
        if (a == "--help" || a == "-h") {
            std::fputs(HELP, stdout);
            return 0;
        }
        if (a == "--no-pdf") {
            o.pdf = false;
            continue;
        }
        if (a.size() > 1 && a[0] == '-') {
            if (!takes_value(a) || i + 1 >= argc) {
                std::fprintf(stderr, "tarnolix stress: unknown option or missing value: %s\n(see tarnolix stress --help)\n", argv[i]);
                return 2;
            }
            std::string_view v = argv[++i];
            if (a == "--out" || a == "--summary") {
                (a == "--out" ? o.out : o.summary) = std::string(v);
                continue;
            }
            if (a == "--cdiff" && !v.empty() && v.back() == '%') {
                o.cdiffpct = true;
                v.remove_suffix(1);
            }
            float x = 0;
            if (!number(v, x)) {
                std::fprintf(stderr, "tarnolix stress: %s needs a number, not %s\n", argv[i - 1], argv[i]);
                return 2;
            }
            if (a == "--bitsize") o.bitsize = true, o.bs = x;
            else if (a == "--gauge-min") o.cbsmin = x;
            else if (a == "--gauge-max") o.cbsmax = x;
            else if (a == "--c1sat") o.c1sat = x;
            else if (a == "--c2sat") o.c2sat = x;
            else if (a == "--cdiff") o.cdiff = x;
            else if (a == "--rbthr") o.rbthr = x;
            else if (a == "--keyseat-devi") sp.keyseatdevi = x;
            else if (a == "--top") o.top = true, o.ztop = x;
            else if (a == "--bottom") o.bottom = true, o.zbot = x;
            else if (a == "--min-length") sp.minlen = x;
            else if (a == "--max-gap") sp.maxgap = x;
            else if (a == "--max-turn") sp.maxturn = x;
            else if (a == "--max-devi") sp.maxdevi = x;
            continue;
        }
        files.emplace_back(a);
    }
    if (files.empty()) {
        std::fputs("tarnolix stress: no file (see tarnolix stress --help)\n", stderr);
        return 2;
    }
    const bool pdf = o.pdf && std::system("command -v ps2pdf >/dev/null 2>&1") == 0;

    stress_console con;
    console_scope scope(con);
    const bool several = files.size() > 1 || !o.summary.empty();
    if (several) {
        const std::string name = o.summary.empty() ? o.out + "/stress_summary.txt" : o.summary;
        if (!unit_open(UNIT_SUMMARY, name, "replace", "write")) {
            std::fprintf(stderr, "tarnolix stress: cannot write %s\n", name.c_str());
            return 2;
        }
        writef(UNIT_SUMMARY, "(a)",
               std::string("file\twell\tlocation\ttop\tbottom\tzones\tdeviated\tlength\tazimuth\tsd\t"
                           "shmax\trank\tstatus"));
    }
    int failed = 0;
    for (const std::string& path : files) {
        well_result r;
        con.why.clear();
        con.nlast = 0;
        con.full = false;
        try {
            stresspara = sp;
            one_well(path, o, pdf, con, r);
        } catch (const program_stop&) {
            r.why = con.said(3);
        } catch (const console_closed&) {
            r.why = con.said(3);
        }
        if (!r.ok) {
            // What the engine had open for this well is left behind.
            iocom.lplotopen = false;
            for (int u : {int(UNIT_DATA), int(UNIT_TABLES), int(UNIT_PLOT)}) unit_close(u);
            ++failed;
            std::fprintf(stderr, "tarnolix stress: %s: %s\n", path.c_str(), r.why.c_str());
        }
        if (several) summary_row(r);
    }
    if (several) unit_close(UNIT_SUMMARY);
    return failed > 0 ? 1 : 0;
}
