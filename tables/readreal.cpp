// The column table reader: its entry readreal6, the header layout dialogue
// and the reading of the head of the file (title, column names).
#include "tables/readreal.h"

#include <algorithm>
#include <string>
#include <vector>

#include "shell/format.h"
#include "shell/frames.h"
#include "shell/intera.h"
#include "shell/menus.h"
#include "shell/prompts.h"
#include "shell/sio.h"
#include "shell/textconv.h"
#include "shell/textlen.h"
#include "shell/units.h"
#include "tables/fileopen.h"
#include "tables/readreal_io.h"

readrealsetup_t readrealsetup;

namespace rrio {

namespace {

// Free-format reads take their records from the unit one by one and note
// whether the file ran out, which is not an error for the callers.
struct unit_source : record_source {
    int unit;
    bool ended = false;
    explicit unit_source(int u) : unit(u) {}
    bool next(std::string& rec) override {
        if (unit_read(unit, rec)) return true;
        ended = true;
        return false;
    }
};

}  // namespace

void rewind_unit(int unit) {
    if (!unit_is_open(unit)) return;
    std::string name = unit_name(unit);
    unit_open(unit, name, "old", "read");
}

bool skip_record(int unit) {
    static std::string rec;
    return unit_read(unit, rec);
}

got list_in(int unit, std::span<const litem> items) {
    unit_source src(unit);
    if (list_read(src, items)) return got::ok;
    return src.ended ? got::end : got::bad;
}

void numbered_name(fstr_ref out, std::string_view prefix, int n) {
    fstr<2> digits;
    int count = 0;
    intg2char(digits, count, 2, n);
    out.assign(std::string(prefix) + std::string(digits.sv().substr(0, std::size_t(count))));
}

void inter_outside(const version_block& vb, int inter) {
    warninghead(vb);
    writef(iocom.isout, "(1x,a,1x,i6,1x,a)", "inter =", inter, "outside [0,5]");
    textline(is_even(inter) ? "==> same as inter = 0" : "==> same as inter = 1");
    warningtail00();
}

void numline(std::string_view text, int value) {
    writef(iocom.isout, "(1x,a,1x,i6)", text, value);
}
void numline(std::string_view text, int value, std::string_view after) {
    writef(iocom.isout, "(1x,a,1x,i6,1x,a)", text, value, after);
}

}  // namespace rrio

using namespace rrio;

// ---------------------------------------------------------------------------

void readreal6(int& ierr, fstr_ref title, fstr_ref fname, std::string_view label, int unit,
               int& nlinedisp, int& iskip, int& ititle, int& iheader, int* jcola, int* jfcola,
               fstr_array_ref namvara, int& nvar, int maxvar, float* data,
               fstr_array_ref namrcol, int& nlines, int& ncolused, int maxlines, int maxcols,
               int ilevel, int inter, bool (*own_kind)(int unit)) {
    ierr = 0;
    if (mode_resets(inter)) {
        submenuhead(VB_READREAL6);
        textline("INITIALIZING INPUT FILE TYPE");
        sfheader1(ierr, nlinedisp, iskip, ititle, iheader, fname, unit, inter);
        scol2var2(ierr, jcola, jfcola, namvara, nvar, maxvar, namrcol, ncolused, maxcols, fname,
                  unit, 1, inter);
        return;
    }
    if (!mode_known(inter)) inter_outside(VB_READREAL6, inter);
    const bool even = is_even(inter);

    bool open_file = true;
    for (;;) {
        if (open_file) {
            opef2(fname, label, unit, "old", even ? 0 : 1);
            if (own_kind && own_kind(unit)) {
                ierr = 3;
                return;
            }
        }
        open_file = false;

        // The stages; the first to fail names itself in the recovery frame.
        std::string_view failed;
        int e = 0;
        sfheader1(e, nlinedisp, iskip, ititle, iheader, fname, unit, inter);
        if (e != 0) failed = "WHILE READING HEADER LINES";
        if (failed.empty()) {
            getftitle1(e, title, fname, unit, ititle, 0);
            if (e != 0) failed = "WHILE READING TITLE";
        }
        if (failed.empty()) {
            scol2var2(e, jcola, jfcola, namvara, nvar, maxvar, namrcol, ncolused, maxcols,
                      fname, unit, ilevel, inter);
            if (e != 0) failed = "WHILE READING COLUMN HEADERS";
        }

        // A plain rejected answer reaches the recovery menu with no head.
        bool head = true;
        if (failed.empty()) {
            int choice = 1000;
            if (even) {
                submenuhead(VB_READREAL6);
                textline("READ AND EXIT ..................1000");
                textline("EXIT WITHOUT READING .............99");
                menutail();
                int ie = 0;
                inintegdef(choice, "your choice", 1000, ie);
            }
            if (choice == 1000) {
                getfreal(e, nlines, ncolused, data, maxlines, maxcols, fname, unit, inter);
                if (e != 1) {
                    ierr = 0;
                    return;
                }
                failed = "WHILE READING DATA";
            } else if (choice == 99) {
                unit_close(unit);
                submenuhead(VB_READREAL6);
                textline("EXITING WITHOUT READING DATA FILE");
                textline("input file", trimmed(fname), "closed");
                menutail();
                ierr = 1;
                return;
            } else {
                head = false;
            }
        }

        // Recovery.
        if (head) {
            errorhead(VB_READREAL6);
            writef(iocom.ieout, "(5(1x,a))", failed);
        }
        writef(iocom.ieout, "(5(1x,a))", "IN FILE:", trimmed(fname));
        writef(iocom.ieout, "(5(1x,a))", "------------------------------");
        writef(iocom.ieout, "(5(1x,a))", "Try again on same file ......1");
        writef(iocom.ieout, "(5(1x,a))", "New file ....................0");
        writef(iocom.ieout, "(5(1x,a))", "Exit .......................99");
        errortail00();
        int choice = 0, ie = 0;
        inintegdef(choice, "your choice", 0, ie);
        if (choice == 1) {
            rewind_unit(unit);
            textline("input file", trimmed(fname), "rewound");
        } else if (choice == 0) {
            unit_close(unit);
            textline("input file", trimmed(fname), "closed");
            open_file = true;
        } else {
            unit_close(unit);
            textline("input file", trimmed(fname), "closed");
            ierr = 1;
            return;
        }
    }
}

// ---------------------------------------------------------------------------

namespace {

void header_help() {
    submenuhead(VB_SFHEADER1);
    textline("          ACCEPTABLE FILE FORMAT           ");
    textline(DASHED);
    textline("Default file header");
    textline("line nb", "content");
    textline(DASHED);
    writef(iocom.isout, "(1x,i7,1x,a)", 1, "  'Title of the data set'");
    writef(iocom.isout, "(1x,i7,1x,a)", 2, "  'header1'   'header2'   'header3'");
    writef(iocom.isout, "(1x,i7,1x,a)", 3, "      65.3           5         6.3");
    textline(DASHED);
    textline("line nb for title  = 0 => do not read title");
    textline("line nb for header = 0 => do not read header");
    textline(DASHED);
    textline("numerical data are read in");
    textline("  quartos free format");
    textline("  => they can be separated by tabs or spaces");
    textline("");
    textline("character strings are read in");
    textline("  quartos free format");
    textline("  => they must be enclosed within quotes");
    textline("     as above. If not, do not read them.");
    menutail();
}

}  // namespace

void sfheader1(int& ierr, int& nlinedisp, int& iskip, int& ititle, int& iheader,
               std::string_view fname, int unit, int inter) {
    ierr = 0;
    readrealsetup_t& s = readrealsetup;
    if (mode_from_store(inter)) {
        nlinedisp = s.nlinedisp;
        iskip = s.iskip;
        ititle = s.ititle;
        iheader = s.iheader;
    } else if (mode_resets(inter)) {
        submenuhead(VB_SFHEADER1);
        textline("INITIALIZING INPUT FILE HEADER");
        nlinedisp = 3;
        iskip = 2;
        ititle = 1;
        iheader = 2;
    } else if (!mode_known(inter)) {
        inter_outside(VB_SFHEADER1, inter);
    }

    if (ititle > iskip) {
        warninghead(VB_SFHEADER1);
        writef(iocom.isout, "(2(1x,a,1x,i4))", "ititle =", ititle, "> iskip =", iskip);
        ititle = 0;
        numline("===> RESET ititle =", ititle);
        warningtail00();
    }
    if (iheader > iskip) {
        // This frame is left open: the header menu follows at once.
        warninghead(VB_SFHEADER1);
        writef(iocom.isout, "(2(1x,a,1x,i4))", "iheader =", iheader, "> iskip =", iskip);
        iheader = 0;
        numline("===> RESET iheader =", iheader);
    }

    if (is_even(inter)) {
        for (;;) {
            if (unit_is_open(unit)) {
                // The head is shown as a help; a short file is judged when it
                // is read, so its end here is no failure of the layout.
                int e = 0;
                showfhead1(e, nlinedisp, iskip, ititle, iheader, fname, unit);
            } else {
                warninghead(VB_SFHEADER1);
                textline("Input file", trimmed(fname), "is not opened");
                textline("======> cannot display header");
                warningtail00();
            }
            submenuhead(VB_SFHEADER1);
            textline("            FILE HEADER SET UP             ");
            textline(DASHED);
            writef(iocom.isout, "(3(1x,a,1x,i3))", "nb of lines to display in dialog.100",
                   nlinedisp);
            writef(iocom.isout, "(3(1x,a,1x,i3))", "nb of header lines without data .110",
                   iskip);
            writef(iocom.isout, "(3(1x,a,1x,i3))", "line nb to read title ...........120",
                   ititle);
            writef(iocom.isout, "(3(1x,a,1x,i3))", "line nb to read column header....130",
                   iheader);
            textline("HELP ............................900");
            textline("SET UP IS OK, EXIT AND PROCEED ...99");
            const int choice = menuchoice();
            int ie = 0;
            if (choice == 99) break;
            switch (choice) {
            case 100: inintegdef(nlinedisp, "Number of header lines to display", nlinedisp, ie); break;
            case 110: inintegdef(iskip, "Number of dataless lines to skip", iskip, ie); break;
            case 120:
                inintegvindef(ititle, "line number to read title from", ititle, 0, iskip, ie);
                break;
            case 130:
                inintegvindef(iheader, "line number to read column headers from", iheader, 0,
                              iskip, ie);
                break;
            case 900: header_help(); break;
            default: break;
            }
        }
    }

    s.nlinedisp = nlinedisp;
    s.iskip = iskip;
    s.ititle = ititle;
    s.iheader = iheader;
}

// ---------------------------------------------------------------------------

void showfhead1(int& ierr, int nlinedisp, int iskip, int ititle, int iheader,
                std::string_view fname, int unit) {
    ierr = 0;
    submenuhead(VB_SHOWFHEAD1);
    textline("         DISPLAYING FILE HEADER            ");
    textline("OF FILE:", trimmed(fname));
    textline(DASHED);
    std::string rec;
    for (int n = 1; n <= nlinedisp; ++n) {
        std::string_view what;
        if (n > iskip)
            what = "= Data ====================";
        else if (n == ititle && n == iheader)
            what = "= Header: Title =========== = Header: Column names ====";
        else if (n == ititle)
            what = "= Header: Title ===========";
        else if (n == iheader)
            what = "= Header: Column names ====";
        else
            what = "= Header to skip ==========";
        writef(iocom.isout, "(3(1x,a,1x,i3))", "==>Line nb:", n, what);

        if (!unit_read(unit, rec)) {
            warninghead(VB_SHOWFHEAD1);
            textline("REACHED END OF FILE");
            textline("IN FILE:", trimmed(fname));
            numline("WHILE READING", n, "th LINE");
            rewind_unit(unit);
            textline("==> FILE", trimmed(fname), "IS REWOUND");
            ierr = 1;
            warningtail00();
            return;
        }
        // Shown as read in "(a)" into 400 characters, trimmed at the right,
        // in pieces of 100.
        if (rec.size() > 400) rec.resize(400);
        std::size_t len = rec.size();
        while (len > 0 && rec[len - 1] == ' ') --len;
        if (len == 0) {
            textline("");
        } else {
            for (std::size_t at = 0; at < len; at += 100)
                textline(std::string_view(rec).substr(at, std::min<std::size_t>(100, len - at)));
        }
    }
    textline("===========================================");
    rewind_unit(unit);
    textline("==> FILE", trimmed(fname), "IS REWOUND");
    menutail();
}

// ---------------------------------------------------------------------------

void getftitle1(int& ierr, fstr_ref title, std::string_view fname, int unit, int ititle,
                int inter) {
    ierr = 0;
    title.assign("Untitled");
    if (ititle < 1) {
        warninghead(VB_GETFTITLE1);
        textline("Input file name  :", trimmed(fname));
        numline("Title line nb =", ititle);
        textline("==> NOT ATTEMPTING TO READ TITLE");
        textline("Title set to default:", trimmed(title.sv()));
        textline("INPUT FILE", trimmed(fname), "UNTOUCHED");
        warningtail00();
        return;
    }

    bool ok = true;
    for (int n = 1; n < ititle; ++n) {
        if (!skip_record(unit)) {
            errorhead(VB_GETFTITLE1);
            numline("READING ERROR WHILE SKIPPING", n, "th LINE");
            ierr = 2;
            ok = false;
            break;
        }
    }
    if (ok) {
        litem it[] = {litem(title)};
        if (list_in(unit, it) == got::ok) {
            rewind_unit(unit);
            if (is_even(inter)) {
                submenuhead(VB_GETFTITLE1);
                textline("Input file name:", trimmed(fname));
                textline("Read title from header:", trimmed(title.sv()));
                textline("INPUT FILE", trimmed(fname), "IS REWOUND");
                menutail();
            }
            return;
        }
        // A failed read may have left part of a value behind.
        title.assign("Untitled");
        errorhead(VB_GETFTITLE1);
        numline("WHILE TRYING TO READ TITLE IN", ititle, "th LINE");
        ierr = 1;
    }
    rewind_unit(unit);
    textline("==> COULD NOT READ TITLE");
    textline("IN INPUT FILE:", trimmed(fname));
    textline("==> SETTING title =", trimmed(title.sv()));
    textline("INPUT FILE", trimmed(fname), "IS REWOUND");
    errortail00();
}

// ---------------------------------------------------------------------------

void getfnamcol(int& ierr, fstr_array_ref namfcol, int size, int ncol, std::string_view fname,
                int unit, int iheader, int iflag) {
    ierr = 0;
    if (ncol > size) ncol = size;
    for (int i = 1; i <= size; ++i) numbered_name(namfcol(i), "File.col.", i);

    auto list_names = [&]() {
        for (int i = 1; i <= ncol; ++i)
            writef(iocom.isout, "(1x,a,1x,i2,1x,a)", "Name of column", i, namfcol.sv(i));
    };

    if (iheader < 1) {
        warninghead(VB_GETFNAMCOL);
        textline("Input file name  :", trimmed(fname));
        numline("Column headers line nb =", iheader);
        textline("==> NOT ATTEMPTING TO READ HEADERS");
        textline("==> Headers set to defaults:");
        if (iflag == 0) list_names();
        warningtail00();
        return;
    }

    for (int n = 1; n < iheader; ++n) {
        if (!skip_record(unit)) {
            errorhead(VB_GETFNAMCOL);
            numline("WHILE SKIPPING", n, "th LINE");
            ierr = 2;
            break;
        }
    }
    if (ierr == 0 && ncol > 0) {
        // Names of all columns up to the highest one used are read, so a line
        // with fewer names goes on into the next line.
        std::vector<litem> items;
        items.reserve(std::size_t(ncol));
        for (int i = 1; i <= ncol; ++i) items.emplace_back(namfcol(i));
        if (list_in(unit, items) != got::ok) {
            errorhead(VB_GETFNAMCOL);
            numline("WHILE TRYING TO READ HEADERS IN", iheader, "th LINE");
            ierr = 1;
        }
    }
    rewind_unit(unit);
    if (ierr != 0) {
        textline("IN FILE:", trimmed(fname));
        textline("INPUT FILE", trimmed(fname), "IS REWOUND");
        errortail00();
        return;
    }
    submenuhead(VB_GETFNAMCOL);
    if (iflag == 0) {
        textline("Input file name  :", trimmed(fname));
        list_names();
    }
    textline("INPUT FILE", trimmed(fname), "IS REWOUND");
    menutail();
}
