// Intervals picked outside the program: breakouts ("BO") and washouts
// ("POW"), each a table of depth and azimuth, drawn beside the classes the
// program finds itself. Both files are asked for and read anew on every
// page, so an edited pick list shows on the next one.
#include <string>
#include <string_view>

#include "borehole/tracks.h"
#include "plot/symbols.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/sio.h"
#include "shell/textlen.h"
#include "shell/valuesearch.h"
#include "tables/readreal.h"
#include "well/welldat.h"
#include "well/wellpara.h"

namespace {

constexpr version_block VB_SELECT{"log_azcm_select_plot", " 2.1", "2019-02-26"};

constexpr int UNIT_SELECTION = 56;
constexpr int JSELAZ = JWORK9;    // the picks' azimuth
constexpr int JSELDEP = JWORK10;  // and depth

struct selection {
    std::string_view name;       // heads the reader's dialogue
    std::string_view shortname;  // track label, behind "AzCmax_" the azimuth's name
    int subplot, frame;
};
constexpr selection SELECTIONS[] = {
    {"Selected BO", "BO", 35, 4},
    {"Selected POW", "POW", 36, 2},
};

// The last file named for each list: the default of the next question.
fstr<80> selfile[2];

void skipframe(std::string_view a, std::string_view b, std::string_view c) {
    warninghead(VB_SELECT);
    textline(a);
    if (!b.empty()) textline(b);
    textline(c);
    warningtail00();
}

// Reads one list into the work columns; false if it wasn't read.
bool readselection(const selection& s, fstr<80>& fname, fstr<80>& title, int& nread) {
    welldat_t& w = welldat;
    // The layout of a pick table is fixed: title and names on lines 1 and
    // 2, the azimuth in file column 8 and the depth in column 1.
    int nlinedisp = 4, iskip = 2, ititle = 1, iheader = 2;
    int jcola[2] = {JSELAZ, JSELDEP};
    int jfcola[2] = {8, 1};
    farr<fstr<11>, 2> namvara;
    namvara(1) = "AzCmax_" + std::string(s.shortname);
    namvara(2) = "Depth";
    int nvar = 2;
    // Column names of a local table: welldat keeps its own.
    farr<fstr<11>, MAXCOLWD> namrcol;
    int ncolused = 0, ierr = 0;
    nread = 0;
    readreal6(ierr, title, fname, s.name, UNIT_SELECTION, nlinedisp, iskip, ititle, iheader,
              jcola, jfcola, namvara, nvar, 2, w.RWD1.a, namrcol, nread, ncolused, MAXDATWD,
              MAXCOLWD, 0, 0);
    return ierr == 0;
}

void selectiontable(const selection& s, std::string_view fname, std::string_view title,
                    int nread, int first, int last) {
    const welldat_t& w = welldat;
    const wellpara_t& p = wellpara;
    const int out = iocom.isout;
    textline(DASHED);
    textline(s.name);
    textline("input file name =", fname);
    textline("Title =", title);
    writef(out, "(1x,a,1x,i6)", "Total Number of data   =", nread);
    writef(out, "(1x,a,1x,i6)", "Number of data to plot =", last - first + 1);
    textline(DASHED);
    writef(out, "(1x,'|',a15,'|',a5,'|',a12,'|')", " ", "index", "depth");
    writef(out, "(1x,'|',a15,'|',5x,'|',f12.3,'|')", "Interval top   ", p.ztop);
    writef(out, "(1x,'|',a15,'|',5x,'|',f12.3,'|')", "Interval bottom", p.zbot);
    writef(out, "(1x,'|',a15,'|',i5,'|',f12.3,'|')", "First data", first,
           w.RWD1(first, JSELDEP));
    writef(out, "(1x,'|',a15,'|',i5,'|',f12.3,'|')", "Last data", last, w.RWD1(last, JSELDEP));
    textline(DASHED);
}

}  // namespace

void log_azcm_select_plot() {
    welldat_t& w = welldat;
    const wellpara_t& p = wellpara;
    for (int k = 0; k < 2; ++k) {
        const selection& s = SELECTIONS[k];
        fstr<80> title;
        int nread = 0;
        if (!readselection(s, selfile[k], title, nread)) {
            skipframe("PROBLEM IN INPUT FILE", "INPUT FILE HAS NOT BEEN READ",
                      "====> SKIPPING PLOT");
            continue;
        }
        int status = 0, first = 0, last = 0;
        inval2inind2(status, first, last, p.ztop, p.zbot, 1, nread, w.RWD1.col(JSELDEP),
                     MAXDATWD, 0);
        if (status == 1 || status == 2) {
            skipframe(status == 1 ? "INDICES PROBLEM OR FAILED SEARCH" : "DATA OUT OF RANGE", "",
                      "=> SKIPPING PLOT");
            continue;
        }
        const int n = last - first + 1;
        selectiontable(s, trimmed(selfile[k].sv()), trimmed(title.sv()), nread, first, last);
        slogbox(s.subplot, AXAZCMAXCAT, AXDEPTH, s.frame, s.shortname);
        // The picks as they stand in the file: their azimuths aren't wrapped.
        if (n >= 1) trackpoints(trackcolumn(JSELAZ, first), trackcolumn(JSELDEP, first), n);
    }
}
