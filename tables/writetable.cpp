// The two table writers share one shape: codes checked, the set-up menu,
// the file made ready, the blocks written, the report. The extraction
// writer adds its criteria to the menu and to the head of the file, and
// keeps only the rows that pass its test.
#include "tables/writetable.h"

#include <span>
#include <string>
#include <vector>

#include "shell/format.h"
#include "shell/frames.h"
#include "shell/intera.h"
#include "shell/menus.h"
#include "shell/runinfo.h"
#include "shell/sio.h"
#include "shell/textlen.h"
#include "shell/units.h"
#include "tables/fileopen.h"
#include "well/welldat.h"

namespace {

constexpr version_block VB_WRITEREAL6{"writereal  ", " 5.0", "2024-06-07"};
constexpr version_block VB_WRITEXTREAL1{"writextreal1", " 3.0", "2024-06-07"};

constexpr std::string_view FORMATS[] = {"f15.4,tab", "f15.4,space"};
constexpr std::string_view HEADERS_ALL[] = {"Standard: Title + Col headers",
                                            "Full: Prog + data info + Std"};
constexpr std::string_view HEADERS_EXTR[] = {"Standard header: Title +Col names",
                                             "Prog +Data +Extraction +Std header",
                                             "Data +Extraction +Std header"};

// What the dialogues of the two writers differ in.
struct writerkind {
    version_block vb;
    std::span<const std::string_view> headers;
    std::string_view headerrange;
    std::string_view numformat;  // of the counts in the report
    std::string_view formathead, headerhead, okline, exitline;
};
constexpr writerkind ALL{VB_WRITEREAL6,
                         HEADERS_ALL,
                         "not in [1,2]",
                         "(4(1x,a,1x,i4))",
                         "Format......................Command",
                         "Header......................Command",
                         "SET UP IS OK, WRITE & EXIT ......90",
                         "EXIT WITHOUT WRITING ............99"};
constexpr writerkind EXTR{VB_WRITEXTREAL1,
                          HEADERS_EXTR,
                          "not in [1,3]",
                          "(4(1x,a,1x,i6))",
                          "Format............................Command",
                          "Header............................Command",
                          "SET UP IS OK, WRITE & EXIT ............90",
                          "EXIT WITHOUT WRITING ..................99"};

// The rows an extraction looks at and the test they must pass.
struct extraction {
    int first, last, ntotal;
    const int* key;  // key[i-1] for row i
    int itest;
};

// Everything one call writes.
struct job {
    const writerkind& kind;
    int& ifmt;
    int& ihd;
    int& ioca;
    int unit;
    fstr_ref fout;
    std::string_view fin, title, label, tname;
    int tid;
    const float* rdat;
    int rows, nlines;
    fstr_array_ref namvar;
    const int* jcol;
    int nvar;
    int intera;
    const extraction* ex;  // none for writereal6

    float value(int i, int k) const {
        return rdat[std::size_t(jcol[k - 1] - 1) * std::size_t(rows) + std::size_t(i - 1)];
    }
    bool keeps(int i) const { return !ex || ex->key[i - 1] == ex->itest; }
    int firstrow() const { return ex ? ex->first : 1; }
    int lastrow() const { return ex ? ex->last : nlines; }
    bool terminal() const { return unit == iocom.isout; }
};

void resetframe(const version_block& vb, std::string_view what, std::string_view name, int value,
                std::string_view range, int to) {
    errorhead(vb);
    textline(what);
    intline(name, value);
    textline(range);
    intline("==> RESET TO", to);
    errortail00();
}

// Step 1. The header code has always been shown under the format's name.
void checkcodes(job& j) {
    const version_block& vb = j.kind.vb;
    if (j.ioca < 0 || j.ioca > 3) {
        resetframe(vb, "file managment pb", "ioca     =", j.ioca, "not in [0,3]", 1);
        j.ioca = 1;
    }
    if (j.ifmt < 1 || j.ifmt > 2) {
        resetframe(vb, "format pb", "ifmtouta =", j.ifmt, "not in [1,2]", 1);
        j.ifmt = 1;
    }
    if (j.ihd < 1 || j.ihd > int(j.kind.headers.size())) {
        resetframe(vb, "format pb", "ifmtouta =", j.ihd, j.kind.headerrange, 2);
        j.ihd = 2;
    }
}

// Choice rows with the command under the end of "Command".
void choicerows(std::span<const std::string_view> names, int base, std::string_view head) {
    textline(head);
    for (std::size_t k = 0; k < names.size(); ++k) {
        const int len = int(names[k].size());
        const std::string f = formatf("( '(x,a' ,i2,',',i2, '(''.'')' , ',i2)' )", len,
                                      int(head.size()) - len - 2);
        writef(iocom.isout, f, names[k], base + int(k) + 1);
    }
}

// Step 2: true to write, false to leave without writing.
bool setupmenu(job& j) {
    const writerkind& k = j.kind;
    for (;;) {
        submenuhead(k.vb);
        if (j.ex) {
            menublock("EXTRACTION CRITERIA");
            intline("1st   line:", j.ex->first);
            intline("last  line:", j.ex->last);
            intline("total line:", j.ex->ntotal);
            intline("test value:", j.ex->itest);
        }
        menublock("CURRENT FILE MANAGEMENT");
        intline("index:", j.ioca);
        intline("unit :", j.unit);
        textline("name :", trimmed(j.fout.sv()));
        menublock("CURRENT FORMAT");
        textline("name :", FORMATS[j.ifmt - 1]);
        intline("index:", j.ifmt);
        textline("---------------------");
        textline("modify format:");
        choicerows(FORMATS, 10, k.formathead);
        menublock("CURRENT HEADER");
        textline("name :", k.headers[std::size_t(j.ihd - 1)]);
        intline("index:", j.ihd);
        textline("---------------------");
        textline("modify header:");
        choicerows(k.headers, 20, k.headerhead);
        menurule();
        textline(k.okline);
        textline(k.exitline);
        const int choice = menuchoice(90);
        if (choice == 90) return true;
        if (choice == 99) return false;
        if (choice == 11 || choice == 12) j.ifmt = choice - 10;
        if (choice > 20 && choice <= 20 + int(k.headers.size())) j.ihd = choice - 20;
    }
}

void statuslines(const job& j) {
    textline("output file status:");
    textline("file name:", trimmed(j.fout.sv()));
    writef(iocom.isout, "(1x,a,1x,i6,1x,a)", "unit     :", j.unit);
}

enum class ready { yes, menu, no };

// Steps 3 to 5: the unit made ready for writing, by the file code.
ready readyfile(job& j) {
    const version_block& vb = j.kind.vb;
    if (j.terminal()) {
        submenuhead(vb);
        statuslines(j);
        textline("==> output to terminal");
        menutail();
        return ready::yes;
    }
    const bool open = unit_is_open(j.unit);
    if (j.ioca == 0 || j.ioca == 3) {
        if (open) {
            submenuhead(vb);
            statuslines(j);
            textline("is already opened");
            textline("==>  data will be appended to it");
            menutail();
            return ready::yes;
        }
        errorhead(vb);
        statuslines(j);
        textline("is not already opened");
        textline("==> it must be opened before writing");
        textline("==> back to menu in interactive mode");
        errortail00();
        // Without a menu nothing would change on a second try.
        return mode_talks(j.intera) ? ready::menu : ready::no;
    }
    if (open) {
        warninghead(vb);
        statuslines(j);
        textline("is already opened");
        textline("==>  data will be appended to it");
        warningtail00();
        return ready::yes;
    }
    opef2(j.fout, std::string(trimmed(j.label)) + " data output", j.unit, "new",
          mode_talks(j.intera) ? 0 : 1);
    return ready::yes;
}

// The run information of a table leaves out the command.
void runblock(int unit) {
    int& code = runinfo3com.iruninfo;
    const int keep = code;
    if (code % 2 == 0) ++code;
    writeruninfo2(unit);
    code = keep;
}

void dashed(int unit) { writef(unit, "(5(1x,a))", DASHED); }

// The header blocks in front of the title; nkept is the number of rows an
// extraction will keep.
void headblocks(const job& j, int nkept) {
    const int u = j.unit;
    const bool datainfo = j.ex ? j.ihd >= 2 : j.ihd == 2;
    if (j.ihd == 2) {
        dashed(u);
        runblock(u);
    }
    if (!datainfo) return;
    dashed(u);
    writedatainfo0(j.label, j.tname, j.tid, j.fin, j.fout.sv(), j.title,
                   j.ex ? j.ex->ntotal : j.nlines, j.nvar, u);
    if (j.ex) {
        dashed(u);
        writef(u, "(5(1x,a))", "EXTRACTION PARAMETERS");
        dashed(u);
        const std::string_view f = "(4(1x,a,1x,i6))";
        writef(u, f, "Test value               =", j.ex->itest);
        writef(u, f, "1st  searched line       =", j.ex->first);
        writef(u, f, "last searched line       =", j.ex->last);
        writef(u, f, "Total number of data     =", j.ex->ntotal);
        writef(u, f, "Number of searched data  =", j.ex->last - j.ex->first + 1);
        writef(u, f, "Number of extracted data =", nkept);
    }
    dashed(u);
}

// Title, names and the rows; returns the number of rows written.
int tableblocks(const job& j) {
    const int u = j.unit;
    const bool tab = j.ifmt == 1;
    writef(u, "(1x,'''',a,'''')", trimmed(j.title));
    std::vector<fitem> items;
    items.reserve(std::size_t(2 * j.nvar));
    for (int k = 1; k <= j.nvar; ++k) {
        items.emplace_back(j.namvar.sv(k));
        if (tab) items.emplace_back("\t");
    }
    writev(u, tab ? "(1x,20('''',a,'''',a1))" : "(100(1x,a15))", items);
    // The items are set once and their values replaced row by row.
    items.clear();
    for (int k = 1; k <= j.nvar; ++k) {
        items.emplace_back(0.0f);
        if (tab) items.emplace_back("\t");
    }
    const int step = tab ? 2 : 1;
    const std::string_view f = tab ? "(1x,20(f15.4,a1))" : "(100(1x,f15.4))";
    int n = 0;
    for (int i = j.firstrow(); i <= j.lastrow(); ++i) {
        if (!j.keeps(i)) continue;
        for (int k = 1; k <= j.nvar; ++k) items[std::size_t((k - 1) * step)].r = j.value(i, k);
        writev(u, f, items);
        ++n;
    }
    return n;
}

void report(const job& j, int nsaved) {
    // A table the disk did not take is reported as such, not as written.
    if (!j.terminal() && !unit_flush(j.unit)) {
        wrerrf("output table", j.unit);
        return;
    }
    const std::string_view f = j.kind.numformat;
    const std::string_view name = trimmed(j.fout.sv());
    submenuhead(j.kind.vb);
    textline("WRITING COMPLETED");
    textline("OUTPUT FILE:", name);
    writef(iocom.isout, f, "NUMBER OF SAVED COLUMNS =", j.nvar);
    if (j.ex) {
        textline("NUMBER OF LINES:");
        writef(iocom.isout, f, "  SAVED                 =", nsaved);
        writef(iocom.isout, f, "  IN SEARCH INTERVAL    =", j.ex->last - j.ex->first + 1);
        writef(iocom.isout, f, "  IN FULL DATA SET      =", j.ex->ntotal);
        writef(iocom.isout, f, "  IN ARRAY SIZE         =", j.rows);
    } else {
        writef(iocom.isout, f, "NUMBER OF SAVED LINES   =", nsaved);
    }
    if (j.ioca == 0 || j.ioca == 2 || j.terminal()) {
        textline("OUTPUT FILE", name, "REMAINS OPEN");
    } else {
        unit_close(j.unit);
        textline("OUTPUT FILE", name, "CLOSED");
    }
    menutail();
}

void writetable(job& j) {
    checkcodes(j);
    for (;;) {
        if (mode_talks(j.intera) && !setupmenu(j)) return;
        const ready r = readyfile(j);
        if (r == ready::no) return;
        if (r == ready::yes) break;
    }
    int nkept = 0;
    if (j.ex && j.ihd >= 2)
        for (int i = j.ex->first; i <= j.ex->last; ++i) nkept += j.keeps(i);
    headblocks(j, nkept);
    report(j, tableblocks(j));
}

}  // namespace

void writereal6(int& ifmtouta, int& ihdtouta, int& ioca, int unit, fstr_ref fout,
                std::string_view fin, std::string_view title, std::string_view label,
                std::string_view tname, int tid, const float* rdat, int rows, int cols,
                int nlines, fstr_array_ref namvar, const int* jcol, int maxvar, int nvar,
                int intera) {
    (void)cols;
    (void)maxvar;
    job j{ALL,  ifmtouta, ihdtouta, ioca,   unit,   fout, fin,  title, label, tname,
          tid,  rdat,     rows,     nlines, namvar, jcol, nvar, intera, nullptr};
    writetable(j);
}

void writextreal1(int& ifmtouta, int& ihdtouta, int& ioca, int unit, fstr_ref fout,
                  std::string_view fin, std::string_view title, std::string_view label,
                  std::string_view tname, int tid, int first, int last, const int* itstdat,
                  int itest, const float* rdat, int rows, int cols, int ntotal,
                  fstr_array_ref namvar, const int* jcol, int maxvar, int nvar, int intera) {
    (void)cols;
    (void)maxvar;
    const extraction ex{first, last, ntotal, itstdat, itest};
    job j{EXTR, ifmtouta, ihdtouta, ioca,   unit,   fout, fin,  title,  label, tname,
          tid,  rdat,     rows,     ntotal, namvar, jcol, nvar, intera, &ex};
    writetable(j);
}
