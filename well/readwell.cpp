// Command 100: the choice of the data type of a well file, and its reading
// into welldat through the column table reader.
#include <string>

#include "shell/format.h"
#include "shell/frames.h"
#include "shell/intera.h"
#include "shell/prompts.h"
#include "shell/sio.h"
#include "shell/textlen.h"
#include "shell/units.h"
#include "tables/las.h"
#include "tables/readreal.h"
#include "well/welldat.h"
#include "well/wellpara.h"

namespace {

constexpr version_block VB_READWELL{"readwell   ", " 5.1", "2019-07-26"};
constexpr int WELL_UNIT = 12;

// The file header layout, kept from one read to the next.
struct {
    int nlinedisp, iskip, ititle, iheader;
} layout;

void read_summary() {
    welldat_t& w = welldat;
    const int cdep = w.JCOL(w.jdepth), caz = w.JCOL(w.jp1az);
    float dmin = 100000.0f, dmax = -100000.0f;
    float amin = 100000.0f, amax = -100000.0f;
    for (int i = 1; i <= w.ndatwd; ++i) {
        const float d = w.RWD1(i, cdep), a = w.RWD1(i, caz);
        if (d < dmin) dmin = d;
        if (d > dmax) dmax = d;
        if (a < amin) amin = a;
        if (a > amax) amax = a;
    }
    textline(DASHED);
    writef(iocom.isout, "(3(1x,a,1x,i6))", "Number of read data = ", w.ndatwd);
    textline(DASHED);
    writef(iocom.isout, "(1x,'|',1x,a8, 2 (1x,'|',1x,a7,  1x,'|') )", "Variable", "Minimum",
           "Maximum");
    writef(iocom.isout, "(1x,'|',1x,a8, 2 (1x,'|',1x,f7.2,1x,'|') )", w.NAMVAR(w.jdepth), dmin,
           dmax);
    writef(iocom.isout, "(1x,'|',1x,a8, 2 (1x,'|',1x,f7.2,1x,'|') )", w.NAMVAR(w.jp1az), amin,
           amax);
    textline(DASHED);
}

// The type a LAS file's curves allow, found by their names: the fullest of
// the four-arm types, else the single caliper; else the pending one.
int las_type(int pid) {
    auto has = [](const char* v) { return las_alias(v) != 0; };
    if (!has("Depth")) return pid;
    if (has("P1Az") && has("C1") && has("C2")) {
        const int az = has("AzCmax") ? 10 : 0;
        return (has("RB") && has("DEVI") && has("HAZI") ? 200 : 100) + az;
    }
    return has("CAL") ? 300 : pid;
}

// A LAS file, left open on the unit by the column table reader: its
// dialogue instead of the table's. The type the curves allow is offered
// first, in the type menu of command 100. True if the file was read.
bool read_las(int& pid, int& pidx) {
    welldat_t& w = welldat;
    int ierr = 0;
    lasopen1(ierr, w.finwd.sv(), WELL_UNIT);
    if (ierr != 0) return false;
    pid = las_type(pid);
    typeselect1(pidx, pid, "WELL", w.TYPWDNAM.data(), w.IDTYPWD.data(), w.imaxtypwd, 36, 1, 0);
    // The file is open already: a change of type forgets the data, not its name.
    const fstr<80> fin = w.finwd;
    wdtype(pid, 1);
    w.finwd = fin;
    if (pid == 0) {
        unit_close(WELL_UNIT);
        return false;
    }
    farr<int, MAXVARWD> jcurve;
    jcurve.fill(0);
    readlas1(ierr, w.finwd.sv(), WELL_UNIT, w.NAMVAR, w.nvarwd, jcurve.data(), w.JCOL.data(),
             w.RWD1.a, w.NAMCOL, w.ndatwd, w.ncolwd, MAXDATWD, MAXCOLWD);
    if (ierr != 0) return false;
    for (int k = 1; k <= w.nvarwd; ++k) w.JFCOL(k) = jcurve(k);
    w.titlewd = lasfile.well.trimmed().empty() ? std::string_view("Untitled")
                                                : lasfile.well.trimmed();

    // The bit size the file gives, offered as the nominal hole size.
    const double fbs = las_factor(las_kind::diameter, lasfile.bsunit.sv());
    if (lasfile.hasbs && fbs != 0.0) {
        const float bs = float(lasfile.bs * fbs);
        submenuhead(VB_READWELL);
        writef(iocom.isout, "(1x,a,1x,f10.4,1x,a,1x,f10.4,1x,a)", "bit size BS in the file:",
               lasfile.bs, lasfile.bsunit.trimmed(), bs, "cm");
        writef(iocom.isout, "(1x,a,1x,f10.4,1x,a)", "bitsize now            :", wellpara.bitsize,
               "cm");
        menutail();
        bool set = true;
        inlogicdef(set, "set bitsize from BS", true, ierr);
        if (set) wellpara.bitsize = bs;
    }
    return true;
}

// Command 1000 of the menu: the type is set before the file is opened, so a
// change of type forgets what was loaded even if the read then fails.
void read_file(int& pid, int& pidx) {
    welldat_t& w = welldat;
    wdtype(pid, 1);

    fstr<25> label = std::string(trimmed(w.TYPWDNAM(w.itypwd).sv())) + " data input";
    for (int k = 1; k <= w.nvarwd; ++k) w.JFCOL(k) = k;

    int ierr = 0;
    readreal6(ierr, w.titlewd, w.finwd, label, WELL_UNIT, layout.nlinedisp, layout.iskip,
              layout.ititle, layout.iheader, w.JCOL.data(), w.JFCOL.data(), w.NAMVAR, w.nvarwd,
              MAXVARWD, w.RWD1.a, w.NAMCOL, w.ndatwd, w.ncolwd, MAXDATWD, MAXCOLWD, 1, 0,
              las_detect);
    if (ierr == 3) ierr = read_las(pid, pidx) ? 0 : 1;
    if (ierr != 0) {
        int none = 0;
        wdtype(none, 1);
        warninghead(VB_READWELL);
        textline("INPUT FILE HAS NOT BEEN READ");
        textline("====> DATA RESET TO NONE");
        warningtail00();
        return;
    }
    unit_hold(WELL_UNIT);
    const int id = w.IDTYPWD(w.itypwd);
    if (id == 100 || id == 110 || id == 200 || id == 210) read_summary();
}

}  // namespace

void readwell2(int intera) {
    welldat_t& w = welldat;
    if (mode_resets(intera)) {
        submenuhead(VB_READWELL);
        textline("INITIALIZING WELL DATA INPUT");
        // The reader's own defaults and the column correspondence first; a
        // well file dialogue then shows one line more than the reader's.
        int ierr = 0;
        readreal6(ierr, w.titlewd, w.finwd, "well data input", WELL_UNIT, layout.nlinedisp,
                  layout.iskip, layout.ititle, layout.iheader, w.JCOL.data(), w.JFCOL.data(),
                  w.NAMVAR, w.nvarwd, MAXVARWD, w.RWD1.a, w.NAMCOL, w.ndatwd, w.ncolwd,
                  MAXDATWD, MAXCOLWD, 1, 5);
        layout.nlinedisp = 4;
        layout.iskip = 2;
        layout.ititle = 1;
        layout.iheader = 2;
        return;
    }

    // The pending type: the loaded one, or the full caliper type with
    // orientation when nothing is loaded.
    int pidx = w.itypwd;
    int pid = w.IDTYPWD(w.itypwd);
    if (pid == 0) {
        pid = 200;
        typeselect1(pidx, pid, "WELL", w.TYPWDNAM.data(), w.IDTYPWD.data(), w.imaxtypwd, 36, 1,
                    1);
    }

    for (;;) {
        submenuhead(VB_READWELL);
        if (iocom.LWITO(2)) {
            typestatus1("CURRENTLY LOADED", "WELL", w.TYPWDNAM(w.itypwd).sv(),
                        w.IDTYPWD(w.itypwd), w.itypwd, w.imaxtypwd, iocom.isout, 3);
            writef(iocom.isout, "(3(1x,a,1x,i6))", "Currently stored", w.ndatwd, "data");
            textline(DASHED);
            textline("DATA TYPE");
            textline(DASHED);
            textline("CURRENT DEFAULT TYPE:");
            typestatus1("READY TO READ", "WELL", w.TYPWDNAM(pidx).sv(), pid, pidx, w.imaxtypwd,
                        iocom.isout, 5);
            writef(iocom.isout, "(3(1x,a,1x,i6))", "Can read at most", MAXDATWD, "data lines");
            textline("- - - - - - - - - - - - - - - - - - - - -");
            textline("CHANGE TYPE ..........................100");
            textline(DASHED);
            textline("TYPE OK => READ FILE ................1000");
            textline("EXIT ..................................99");
            menutail();
        }
        int command = 0, ierr = 0;
        ininteg1(command, "command", ierr);
        if (command == 99) return;
        if (command == 100) {
            typeselect1(pidx, pid, "WELL", w.TYPWDNAM.data(), w.IDTYPWD.data(), w.imaxtypwd, 36,
                        1, 0);
        } else if (command == 1000) {
            read_file(pid, pidx);
        } else {
            warninghead(VB_READWELL);
            textline("UNKNOWN ANSWER !");
            textline("==> BACK TO MENU WITHOUT ACTION");
            warningtail00();
        }
    }
}
