// The shape test tracks: for each test of a page, AzCmax against depth at
// the depths that pass it (or, for the "< 0" pages, at those that fail),
// with the counts on the console. The blocks run in a fixed order; each
// runs for the commands of its row, and a test fills the work column of
// IWD1 before its block plots it.
#include <cmath>
#include <iterator>
#include <span>
#include <string>

#include "borehole/derived.h"
#include "borehole/shaperules.h"
#include "borehole/tracks.h"
#include "plot/symbols.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/sio.h"
#include "shell/runinfo.h"
#include "shell/textconv.h"
#include "shell/textlen.h"
#include "shell/units.h"
#include "tables/writetable.h"
#include "well/welldat.h"
#include "well/wellpara.h"

namespace {

constexpr version_block VB_TST{"log_azcm_tst_plot   ", " 4.3", "2019-02-26"};

// Which IWD1 column a block plots by.
enum class keycol { work, rb, dc, size };

struct testblock {
    trackplace at[4];  // its commands and their places, unused entries zero
    bool hasrule;
    shaperule rule;
    keycol key;
    int kept;
    bool needsrb;
    std::string_view label;  // the DC blocks add cdiff to it
    std::string_view message;
    std::string_view shape;  // "ASE" or "ADE": the block whose rows are extracted
    int writecmd;            // by this command

    std::span<const trackplace> places() const {
        std::size_t n = 0;
        while (n < std::size(at) && at[n].subplot != 0) ++n;
        return {at, n};
    }
};

constexpr bool R = true, NR = false;
using enum shaperule;
using enum keycol;

// Rows 1 to 18 in routine order; the nine levels of 350 come after them,
// then rows 20 to 28.
constexpr testblock BLOCKS_BEFORE[] = {
    {{{332, 333, 5, 4}}, R, TASE2, work, 1, NR, "ASE DC&C OK",
     "ASE partial test 2 OK: DC & CSize", {}, 0},
    {{{322, 322, 8, 2}, {332, 333, 6, 2}}, R, TASE3, work, 1, R, "ASE DC&C&RB OK",
     "ASE global test 3 OK: DC & CSize & RB", "ASE", 333},
    {{{321, 321, 8, 2}}, R, TASE3, work, 0, R, "ASE tst KO",
     "ASE global test 3 failed: DC & CSize & RB", {}, 0},
    {{{322, 322, 4, 4}}, R, TG, work, 1, NR, "Cmin=G", "Cmin = G:", {}, 0},
    {{{321, 321, 4, 4}}, R, TG, work, 0, NR, "Cmin><G", "Cmin><G:", {}, 0},
    {{{334, 335, 5, 4}}, R, TADE2, work, 1, NR, "ADE DC&C OK",
     "ADE partial test 2 OK: DC & CSize", {}, 0},
    {{{324, 324, 8, 2}, {334, 335, 6, 2}}, R, TADE3, work, 1, R, "ADE DC&C&RB OK",
     "ADE global test 3 OK: DC & CSize & RB", "ADE", 335},
    {{{323, 323, 8, 2}}, R, TADE3, work, 0, R, "ADE tst KO",
     "ADE global test 3 failed: DC & CSize & RB", {}, 0},
    {{{324, 324, 4, 4}}, R, TE, work, 1, NR, "E+E,E+S,S+E", "E+E or E+S or S+E:", {}, 0},
    {{{323, 323, 4, 4}}, R, TE, work, 0, NR, "R+x,G+x,S+S", "R+x,G+x,S+S:", {}, 0},
    {{{326, 326, 4, 4}}, R, TK, work, 1, NR, "R+E,R+S", "ARK possible R+E or R+S:", {}, 0},
    {{{325, 325, 4, 4}}, R, TK, work, 0, NR, "C ARK<0", "ARK < 0 test R+R,R+G,G+x,E+x,S+x:",
     {}, 0},
    {{{326, 326, 7, 2}}, R, TARK3, work, 1, R, "ARK C&RB OK",
     "ARK test OK (R+E or R+S) & RBCmax up/down:", {}, 0},
    {{{325, 325, 7, 2}}, R, TARK3, work, 0, R, "ARK C&RB KO",
     "ARK < 0 test (Csize or RBCmax) non ARK", {}, 0},
    {{{321, 321, 6, 4}, {323, 323, 6, 4}, {326, 326, 6, 4}, {354, 354, 6, 2}}, NR, TG, rb, 0, R,
     "RBtest<0", "RB Negative test", {}, 0},
    {{{322, 322, 6, 4}, {324, 325, 6, 4}, {354, 354, 5, 4}}, NR, TG, rb, 1, R, "RBtest>0",
     "RB Positive test", {}, 0},
    {{{321, 321, 5, 4}, {323, 323, 5, 4}}, NR, TG, dc, 0, NR, "DC<", "|DC| Negative test", {}, 0},
    {{{322, 322, 5, 4}, {324, 324, 5, 4}, {332, 335, 4, 4}}, NR, TG, dc, 1, NR, "DC>",
     "|DC| Positive test", {}, 0},
};
constexpr testblock BLOCKS_AFTER[] = {
    {{{351, 351, 10, 4}}, NR, TG, size, CS_SS, NR, "S1&2", "S1&2 : C1 & C2 saturated:", {}, 0},
    {{{351, 351, 13, 4}}, R, TS1, work, 1, NR, "S1", "S1 : C1 saturated:", {}, 0},
    {{{351, 351, 14, 4}}, R, TS2, work, 1, NR, "S2", "S2 : C2 saturated:", {}, 0},
    {{{351, 351, 11, 4}}, R, TSMAX, work, 1, NR, "Smax", "Smax : Cmax saturated:", {}, 0},
    {{{351, 351, 12, 4}}, R, TSMIN, work, 1, NR, "Smin", "Smin : Cmin saturated:", {}, 0},
    {{{351, 351, 16, 2}}, R, TU12, work, 1, NR, "U1&2", "U1&2 : C1 & C2 unsaturated:", {}, 0},
    {{{351, 351, 15, 4}}, R, TU1O2, work, 1, NR, "U1or2", "U1or2 : C1 or C2 unsaturated:", {},
     0},
    {{{366, 366, 5, 2}}, R, TBS, work, 0, NR, "Cmin < BS+T", "Cmin-BS Negative test", {}, 0},
    {{{365, 365, 5, 4}}, R, TBS, work, 1, NR, "Cmin > BS+T", "Cmin-BS  Positive test", {}, 0},
};

// "DC>" and a threshold with one decimal.
std::string dclabel(std::string_view prefix, float t) {
    fstr<12> text;
    int k = 0;
    real2charf1(text, k, 1, 12, t);
    return std::string(prefix) + std::string(text.sub(1, k));
}

// What every block shares: its columns and the rows of the selection.
struct tstcontext {
    int icwork, icsize, icdc, icrb, itop, ibot, nsel;
    const farr<int, 2>& jcc;

    int column(keycol k) const {
        switch (k) {
        case rb: return icrb;
        case dc: return icdc;
        case size: return icsize;
        case work: break;
        }
        return icwork;
    }
};

void fillrule(const tstcontext& t, shaperule rule) {
    welldat_t& w = welldat;
    const wellpara_t& p = wellpara;
    const int i0 = t.itop - 1;
    const int* c = w.IWD1.col(t.icsize) + i0;
    const int* d = w.IWD1.col(t.icdc) + i0;
    const int* r = w.IWD1.col(t.icrb) + i0;
    const float* c1 = trackcolumn(t.jcc(1), t.itop);
    const float* c2 = trackcolumn(t.jcc(2), t.itop);
    int* out = w.IWD1.col(t.icwork) + i0;
    for (int i = 0; i < t.nsel; ++i)
        out[i] = shapepass(rule, shaperow{c[i], d[i], r[i], c1[i], c2[i]}, p.c1sat, p.c2sat);
}

// Steps 2 to 5 of a block: the box, the kept depths, the counts, the
// symbols. The message lines are written before by the caller.
void plotkept(const tstcontext& t, int subplot, int iaxis, int frame, std::string_view label,
              int keycolumn, int kept) {
    slogbox(subplot, iaxis, AXDEPTH, frame, label);
    const int count = trackkept(keycolumn, kept, t.itop, t.nsel);
    trackcounts(t.nsel, count);
    trackkeptsymbols(t.itop, count);
}

// The rows kept by a global test, as a table behind the input file's name.
void extractedtable(const tstcontext& t, std::string_view shape, std::string_view lower) {
    welldat_t& w = welldat;
    const std::string fin(trimmed(w.finwd.sv()));
    w.foutwd = fin + "_extr_" + std::string(lower) + ".txt";
    const std::string text = std::string(shape) + " output";
    const std::string title = fin + "_extracted_" + std::string(shape);
    beginexfile(UNIT_TABLES, w.foutwd, text);
    int ifmt = 1, ihd = 3, ioca = 3;
    writextreal1(ifmt, ihd, ioca, UNIT_TABLES, w.foutwd, w.finwd.sv(), title, "WELL",
                 w.TYPWDNAM(w.itypwd).sv(), w.IDTYPWD(w.itypwd), t.itop, t.ibot,
                 w.IWD1.col(t.icwork), 1, w.RWD1.a, MAXDATWD, MAXCOLWD, w.ndatwd, w.NAMVAR,
                 w.JCOL.data(), MAXVARWD, w.nvarwd, 0);
}

void runblock(const tstcontext& t, const testblock& b, int icmd, bool lrb) {
    const trackplace* at = trackplaceof(b.places(), icmd);
    if (!at || (b.needsrb && !lrb)) return;
    if (b.hasrule) fillrule(t, b.rule);
    const int iaxis = icmd == 350 || icmd == 351 ? AXAZCMAXCAT : AXAZCMAXTEST;
    const std::string label =
        b.key == dc ? dclabel(b.label, wellpara.cdiff) : std::string(b.label);
    textline(DASHED);
    textline(b.message);
    plotkept(t, at->subplot, iaxis, at->frame, label, t.column(b.key), b.kept);
    if (icmd == b.writecmd) extractedtable(t, b.shape, b.shape == "ASE" ? "ase" : "ade");
}

// Command 350: nine |DC| thresholds from cdiff / 4 to 4 cdiff, each a
// factor sqrt(2) above the last, the fifth cdiff itself.
void dclevels(const tstcontext& t) {
    welldat_t& w = welldat;
    farr<float, 9> DCT0;
    DCT0(1) = 0.25f * wellpara.cdiff;
    const float root2 = std::sqrt(2.0f);
    for (int k = 2; k <= 9; ++k) DCT0(k) = root2 * DCT0(k - 1);
    const float* c1 = trackcolumn(t.jcc(1), t.itop);
    const float* c2 = trackcolumn(t.jcc(2), t.itop);
    int* out = w.IWD1.col(t.icwork) + (t.itop - 1);
    for (int k = 1; k <= 9; ++k) {
        for (int i = 0; i < t.nsel; ++i) out[i] = DCT0(k) > std::fabs(c1[i] - c2[i]) ? 0 : 1;
        textline(DASHED);
        writef(iocom.isout, "(2(1x,a,1x,f10.3))", "|DC| > ", DCT0(k));
        plotkept(t, 10 + k, AXAZCMAXCAT, k == 9 ? 2 : 4, dclabel("DC>", DCT0(k)), t.icwork, 1);
    }
}

}  // namespace

void log_azcm_tst_plot(const int& icwork, const int& icsize, const int& icdc, const int& icrb,
                       const int& itop, const int& ibot, const int& nsel,
                       const farr<int, 2>& jcc, const bool& lrb, const int& icmd) {
    ssubinfo2(VB_TST.name, VB_TST.version, VB_TST.date);
    // Nothing selected: stage 2 had nothing to test.
    if (nsel >= 1) {
        const tstcontext t{icwork, icsize, icdc, icrb, itop, ibot, nsel, jcc};
        for (const testblock& b : BLOCKS_BEFORE) runblock(t, b, icmd, lrb);
        if (icmd == 350) dclevels(t);
        for (const testblock& b : BLOCKS_AFTER) runblock(t, b, icmd, lrb);
    }
    ssubexitinfo(VB_TST.name, VB_TST.version, VB_TST.date);
}
