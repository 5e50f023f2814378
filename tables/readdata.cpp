// The column table reader: the correspondence of variables, array columns
// and file columns (scol2var2), and the reading of the data lines (getfreal).
#include <algorithm>
#include <string>
#include <vector>

#include "shell/format.h"
#include "shell/frames.h"
#include "shell/intera.h"
#include "shell/menus.h"
#include "shell/prompts.h"
#include "shell/sio.h"
#include "shell/textlen.h"
#include "shell/units.h"
#include "tables/readreal.h"
#include "tables/readreal_io.h"

using namespace rrio;

namespace {

constexpr int MAXFCOL = 99;  // file columns that can be addressed

// The correspondence of one variable at reset: file column i, array column
// i, and a name that says it is not yet known.
void default_variable(int i, int* jcola, int* jfcola, fstr_array_ref namvara, int maxcols) {
    jfcola[i - 1] = std::min(i, MAXFCOL);
    jcola[i - 1] = std::min(i, maxcols);
    numbered_name(namvara(i), "Variable.", i);
}

void correspondence_table(int nvar, const int* jcola, const int* jfcola, fstr_array_ref namvara,
                          fstr_array_ref namrcol, int ilevel) {
    const readrealsetup_t& s = readrealsetup;
    textline("|-----------------------------------------|");
    textline("|          CORRESPONDANCE STATUS          |");
    textline("|-----------------------------------------|");
    textline("|   VARIABLE  |  ARRAY col  |  FILE col   |");
    textline("|-------------|-------------|-------------|");
    textline("|nb|   name   |nb|   name   |nb|   name   |");
    textline("|--|----------|--|----------|--|----------|");
    const bool editable = ilevel >= 1 && ilevel <= 4;
    for (int k = 1; k <= nvar; ++k) {
        int jc = jcola[k - 1], jf = jfcola[k - 1];
        std::string_view rname = jc >= 1 && jc <= namrcol.n ? namrcol.sv(jc) : std::string_view();
        std::string_view fname = jf >= 1 && jf <= MAXFCOL ? s.NAMFCOL(jf).sv() : std::string_view();
        if (editable)
            writef(iocom.isout, "(1x,3('|',i2,'|',a10),'|',i2)", k, namvara.sv(k), jc, rname, jf,
                   fname, k);
        else
            writef(iocom.isout, "(1x,3('|',i2,'|',a10),'|',i2)", k, namvara.sv(k), jc, rname, jf,
                   fname);
    }
    if (editable) {
        textline("------------------------------------------- |");
        textline("Command to modify correspondance <----------+");
    } else {
        textline(DASHED);
    }
}

}  // namespace

void scol2var2(int& ierr, int* jcola, int* jfcola, fstr_array_ref namvara, int& nvar, int maxvar,
               fstr_array_ref namrcol, int& ncolused, int maxcols, std::string_view fname,
               int unit, int ilevel, int inter) {
    readrealsetup_t& s = readrealsetup;
    ierr = 0;
    const int most = std::min(maxvar, 99);
    int ilist = 0;

    if (mode_from_caller(inter)) {
        if (nvar > most) {
            warninghead(VB_SCOL2VAR2);
            numline("Trying to set nvar =", nvar, "variables");
            numline("Max nb of variables =", most);
            nvar = most;
            numline("===> RESET nvar =", nvar);
            warningtail00();
        }
    } else if (mode_from_store(inter)) {
        nvar = s.nvarfile;
        if (nvar > most) {
            errorhead(VB_SCOL2VAR2);
            numline("Currently set nvar =", nvar, "variables");
            numline("Max nb of variables =", most);
            nvar = most;
            numline("===> RESET nvar =", nvar);
            errortail00();
        }
        for (int k = 1; k <= most; ++k) {
            jcola[k - 1] = s.JCOL(k);
            jfcola[k - 1] = s.JFCOL(k);
            namvara(k).assign(s.NAMVAR(k).sv());
        }
    } else if (mode_resets(inter)) {
        submenuhead(VB_SCOL2VAR2);
        textline("INITIALIZING VARIABLES<->COLUMNS");
        for (int i = 1; i <= maxvar; ++i) default_variable(i, jcola, jfcola, namvara, maxcols);
        for (int i = 1; i <= 99; ++i) {
            s.JFCOL(i) = std::min(i, MAXFCOL);
            s.JCOL(i) = std::min(i, maxcols);
            numbered_name(s.NAMVAR(i), "Variable.", i);
        }
        s.nvarfile = 0;
        ncolused = 0;
        for (int j = 1; j <= maxcols; ++j) numbered_name(namrcol(j), "Nodata.", j);
    } else {
        inter_outside(VB_SCOL2VAR2, inter);
    }

    fstr<50> title = "Untitled";
    if (is_even(inter)) {
        if (unit_is_open(unit)) {
            int e = 0;
            getftitle1(e, title, fname, unit, s.ititle, 1);
            if (e != 0) ierr = 1;
        } else if (inter == 4) {
            submenuhead(VB_SCOL2VAR2);
            textline("Input file not yet open");
            textline("===> initializing title =", trimmed(title.sv()));
        } else {
            warninghead(VB_SCOL2VAR2);
            textline("Input file is not opened");
            textline("===> cannot read title");
            textline("setting title =", trimmed(title.sv()));
            warningtail00();
        }
    }

    for (;;) {
        // Columns out of reach are brought back before anything is read.
        s.nfcolmax = 0;
        for (int k = 1; k <= nvar; ++k) {
            if (jfcola[k - 1] > MAXFCOL) {
                warninghead(VB_SCOL2VAR2);
                numline("            variable nb =", k);
                numline("    file col nb to read =", jfcola[k - 1]);
                numline("max file col nb to read =", MAXFCOL);
                jfcola[k - 1] = 1;
                numline("====> RESET file col nb =", jfcola[k - 1]);
                warningtail00();
            }
            s.nfcolmax = std::max(s.nfcolmax, jfcola[k - 1]);
        }
        ncolused = 0;
        for (int k = 1; k <= nvar; ++k) {
            if (jcola[k - 1] > maxcols) {
                warninghead(VB_SCOL2VAR2);
                numline("               variable nb =", k);
                numline("    array col nb to store  =", jcola[k - 1]);
                numline("max array col nb available =", maxcols);
                jcola[k - 1] = maxcols;
                numline("=======> RESET file col nb =", jcola[k - 1]);
                warningtail00();
            }
            ncolused = std::max(ncolused, jcola[k - 1]);
        }

        bool names_read = false;
        if (unit_is_open(unit)) {
            int e = 0;
            getfnamcol(e, s.NAMFCOL, MAXFCOL, s.nfcolmax, fname, unit, s.iheader,
                       is_even(inter) ? 0 : 1);
            if (e != 0) {
                errorhead(VB_SCOL2VAR2);
                textline("COULD NOT READ COLUMN HEADERS");
                textline("IN FILE:", trimmed(fname));
                textline("===> setting default header");
                ierr = 1;
                errortail00();
            } else {
                names_read = true;
            }
        } else if (mode_resets(inter)) {
            submenuhead(VB_SCOL2VAR2);
            textline("Input file not yet open");
            textline("===> initializing header");
        } else {
            warninghead(VB_SCOL2VAR2);
            textline("Input file is not opened");
            textline("===> cannot read header");
            textline("===> setting default header");
            warningtail00();
        }
        if (!names_read)
            for (int i = 1; i <= MAXFCOL; ++i) numbered_name(s.NAMFCOL(i), "File.col.", i);

        for (int j = 1; j <= maxcols; ++j) numbered_name(namrcol(j), "Nodata.", j);
        for (int k = 1; k <= nvar; ++k) {
            int jc = jcola[k - 1], jf = jfcola[k - 1];
            if (jc >= 1 && jc <= maxcols && jf >= 1 && jf <= MAXFCOL)
                namrcol(jc).assign(s.NAMFCOL(jf).sv());
        }

        if (!is_even(inter)) break;

        submenuhead(VB_SCOL2VAR2);
        textline("        PROGRAM            <-->  INPUT FILE");
        textline(DASHED);
        textline("VARIABLE <--> ARRAY COLUMN <--> FILE COLUMN");
        textline("RECORD   <--> ARRAY LINE   <--> FILE LINE");
        textline(" CAN ALTER THE COLUMN CORRESPONDANCE ONLY ");
        textline(DASHED);
        textline("    Input file status");
        textline("Input file name:", trimmed(fname));
        textline("Title:", trimmed(title.sv()));
        textline("    Number of variable status");
        numline("Could read up to     :", most);
        numline("Planning to read     :", nvar);
        textline("    Number of array columns status");
        numline("Can use up to        :", maxcols);
        numline("Planning to use up to:", ncolused);
        textline("    Number of input file columns status");
        numline("Can read up to       :", MAXFCOL);
        numline("Planning to read     :", s.nfcolmax);
        textline("    Listing type");
        numline("ilist                :", ilist);

        if (ilist == 1) {
            textline("|-----------------------------------------|");
            textline("|               ARRAY STATUS              |");
            textline("|-----------------------------------------|");
            textline("|  ARRAY col  |                           |");
            textline("|-------------|---------------------------|");
            textline("|nb|   name   |                           |");
            textline("|--|----------|---------------------------|");
            for (int j = 1; j <= maxcols; ++j)
                writef(iocom.isout, "(1x,'|',i2,'|',a10,'|',27x,'|')", j, namrcol.sv(j));
        }
        correspondence_table(nvar, jcola, jfcola, namvara, namrcol, ilevel);
        if (ilevel == 4) textline("Change nb of variables to read...200");
        textline("Change listing type .............300");
        textline("SET UP IS OK, EXIT AND PROCEED ...99");
        const int choice = menuchoice();
        int ie = 0;
        if (choice == 200 && ilevel == 4) {
            int old = nvar;
            inintegvindef(nvar, "total nb of variables to store", nvar, 0, most, ie);
            for (int i = std::max(1, old); i <= nvar; ++i)
                default_variable(i, jcola, jfcola, namvara, maxcols);
        } else if (ilevel >= 1 && ilevel <= 4 && choice >= 1 && choice <= nvar) {
            const int k = choice;
            int jc = jcola[k - 1], jf = jfcola[k - 1];
            textline("Modifying correspondance");
            textline(" Variable name  =", trimmed(namvara.sv(k)));
            numline(" Array col nb   =", jc);
            textline(" Array col name =",
                     jc >= 1 && jc <= maxcols ? trimmed(namrcol.sv(jc)) : std::string_view());
            numline(" File col nb    =", jf);
            textline(" File col name  =",
                     jf >= 1 && jf <= MAXFCOL ? trimmed(s.NAMFCOL(jf).sv()) : std::string_view());
            if (ilevel > 2) {
                std::string cur(namvara.sv(k));
                inchardef(namvara(k), "New variable name", cur, ie);
            }
            if (ilevel > 1)
                inintegvindef(jcola[k - 1], "New array column nb", jc, 1, maxcols, ie);
            inintegvindef(jfcola[k - 1], "New file column nb", jf, 1, MAXFCOL, ie);
        } else if (choice == 300) {
            inintegvindef(ilist, "Show array status ? (0/1)", ilist, 0, 1, ie);
        } else if (choice == 99) {
            break;
        }
    }

    s.nvarfile = nvar;
    for (int k = 1; k <= nvar && k <= 99; ++k) {
        s.JCOL(k) = jcola[k - 1];
        s.JFCOL(k) = jfcola[k - 1];
        s.NAMVAR(k).assign(namvara.sv(k));
    }
}

// ---------------------------------------------------------------------------

void getfreal(int& ierr, int& nlines, int& ncolused, float* data, int maxlines, int maxcols,
              std::string_view fname, int unit, int inter) {
    readrealsetup_t& s = readrealsetup;
    ierr = 0;
    ncolused = 0;
    for (int k = 1; k <= s.nvarfile; ++k) {
        if (s.JCOL(k) > maxcols) {
            errorhead(VB_GETFREAL);
            numline("         variable nb   =", k);
            numline("array col nb to fill   =", s.JCOL(k));
            numline("max array col nb       =", maxcols);
            s.JCOL(k) = maxcols;
            numline("==> RESET array col nb =", s.JCOL(k));
            textline("==> NEED TO GO BACK TO SETTINGS");
            textline("==> AND READ THE FILE AGAIN");
            errortail00();
            ierr = 2;
        }
        ncolused = std::max(ncolused, s.JCOL(k));
    }

    fstr<50> title;
    int e = 0;
    getftitle1(e, title, fname, unit, s.ititle, 0);

    bool failed = false;
    for (int n = 1; n <= s.iskip; ++n) {
        if (!skip_record(unit)) {
            errorhead(VB_GETFREAL);
            numline("WHILE READING", n, "th HEADER LINE");
            failed = true;
            break;
        }
    }

    if (!failed) {
        // The items of one data line are laid out once; the loop itself then
        // only reads and copies.
        const int nf = std::min(s.nfcolmax, MAXFCOL);
        std::vector<litem> items;
        items.reserve(std::size_t(nf));
        for (int j = 1; j <= nf; ++j) items.emplace_back(s.RR(j));
        const int nv = s.nvarfile;

        int i = 1;
        bool full = true;
        for (; i <= maxlines; ++i) {
            got g;
            if (nf > 0)
                g = list_in(unit, items);
            else
                g = skip_record(unit) ? got::ok : got::end;
            if (g == got::end) {
                full = false;
                break;
            }
            if (g == got::bad) {
                errorhead(VB_GETFREAL);
                numline("WHILE READING", i, "th DATA LINE");
                failed = true;
                break;
            }
            for (int k = 1; k <= nv; ++k) {
                int jc = s.JCOL(k), jf = s.JFCOL(k);
                if (jc >= 1 && jf >= 1 && jf <= nf)
                    data[std::size_t(jc - 1) * std::size_t(maxlines) + std::size_t(i - 1)] =
                        s.RR(jf);
            }
        }

        if (!failed) {
            if (full) {
                warninghead(VB_GETFREAL);
                textline("The array size has been reached");
                textline("==> the data may not have been fully read");
                warningtail00();
                nlines = maxlines;
            } else {
                nlines = i - 1;
            }
            unit_close(unit);
            submenuhead(VB_GETFREAL);
            if (is_even(inter)) {
                textline("Input file name:", trimmed(fname));
                textline("Title:", trimmed(title.sv()));
                textline("    Number of variable status");
                numline("Could read up to:", 99);
                numline("Actually read   :", s.nvarfile);
                textline("        Array status             ");
                numline("Could read up to:", maxlines, "lines");
                numline("Actually read   :", nlines, "lines");
                numline("Can use up to   :", maxcols, "columns");
                numline("Actually used   :", ncolused, "columns");
            } else {
                writef(iocom.isout, "(1x,a,1x,i6,1x,a,1x,i6,1x,a)", "Stored", s.nvarfile,
                       "variables and", nlines, "lines");
            }
            textline("input file", trimmed(fname), "closed");
            menutail();
            return;
        }
    }

    textline("IN FILE:", trimmed(fname));
    ierr = 1;
    rewind_unit(unit);
    textline("input file", trimmed(fname), "rewound");
    errortail00();
}
