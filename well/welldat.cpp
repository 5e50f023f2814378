#include "well/welldat.h"

#include <string>

#include "shell/format.h"
#include "shell/frames.h"
#include "shell/intera.h"
#include "shell/prompts.h"
#include "shell/sio.h"
#include "shell/textlen.h"
#include "shell/valuesearch.h"

welldat_t welldat;

namespace {

constexpr version_block VB_WDTYPE{"wdtype     ", " 2.1", "2019-07-26"};
constexpr version_block VB_TYPESELECT1{"typeselect1", " 1.3", "2019-07-26"};
constexpr version_block VB_TYPESTATUS1{"typestatus1", " 2.0", "12-06-2007"};
constexpr version_block VB_DAT1ASTATUS{"dat1astatus", " 3.1", "2013-02-26"};

// ids[k] for k = first..last, searched as ival2ind1 does on a 1-based array.
void find_id(int& index, int id, const int* ids, int first, int last, int& ierr) {
    ival2ind1(index, id, ids + 1, first, last, ierr);
}

void fill_type_table() {
    welldat_t& w = welldat;
    const int ids[] = {0, 100, 110, 200, 210, 300};
    const char* names[] = {"NONE",
                           "Depth,P1Az,C1,C2",
                           "Depth,P1Az,C1,C2,AzCmax",
                           "Depth,P1Az,C1,C2,RB,DEVI,HAZI",
                           "Depth,P1Az,C1,C2,RB,DEVI,HAZI,AzCmax",
                           "Depth,CAL"};
    for (int k = 0; k <= MAXTYPWD; ++k) {
        w.IDTYPWD(k) = ids[k];
        w.TYPWDNAM(k) = names[k];
    }
}

// The variables of a known type, which fill the first columns of RWD1.
// False for an id that has no layout.
bool set_variables(int id) {
    welldat_t& w = welldat;
    const char* four[] = {"Depth", "P1Az", "C1", "C2", "RB", "DEVI", "HAZI", "AzCmax"};
    switch (id) {
    case 100: w.nvarwd = 4; break;
    case 110: w.nvarwd = 5; break;
    case 200: w.nvarwd = 7; break;
    case 210: w.nvarwd = 8; break;
    case 300:
        w.nvarwd = 2;
        w.jdepth = 1;
        w.jc1 = 2;
        w.NAMVAR(1) = "Depth";
        w.NAMVAR(2) = "CAL";
        for (int k = 1; k <= w.nvarwd; ++k) w.JCOL(k) = k;
        return true;
    default: return false;
    }
    w.jdepth = 1;
    w.jp1az = 2;
    w.jc1 = 3;
    w.jc2 = 4;
    for (int k = 1; k <= 4; ++k) w.NAMVAR(k) = four[k - 1];
    if (id == 200 || id == 210) {
        w.jrb = 5;
        w.jdevi = 6;
        w.jhazi = 7;
        for (int k = 5; k <= 7; ++k) w.NAMVAR(k) = four[k - 1];
    }
    if (id == 110 || id == 210) {
        w.jazcmax = w.nvarwd;
        w.NAMVAR(w.nvarwd) = "AzCmax";
    }
    for (int k = 1; k <= w.nvarwd; ++k) w.JCOL(k) = k;
    return true;
}

void type_lines(std::string_view initial, std::string_view final_) {
    textline("INITIAL DATA TYPE =", trimmed(initial));
    textline("FINAL   DATA TYPE =", trimmed(final_));
}

}  // namespace

// ---------------------------------------------------------------------------

void wdtype(int& id, int intera) {
    welldat_t& w = welldat;
    int index = w.itypwd;
    int ierr = 0;

    if (mode_from_caller(intera) || intera == 10 || intera == 11) {
        find_id(index, id, w.IDTYPWD.data(), 0, w.imaxtypwd, ierr);
        if (ierr != 0) {
            errorhead(VB_WDTYPE);
            writef(iocom.isout, "(1x,a,1x,i4)", "WELL data id =", id);
            textline("NO SUCH DATA TYPE AVALAIBLE");
            textline("==> RESETTING TO:");
            index = 0;
            writef(iocom.isout, "(1x,a,1x,i4)", "    index =", index);
            writef(iocom.isout, "(1x,a,1x,i4)", "    id    =", w.IDTYPWD(0));
            textline("    name  =", trimmed(w.TYPWDNAM(0).sv()));
            errortail00();
        }
    } else if (mode_resets(intera)) {
        submenuhead(VB_WDTYPE);
        textline("INITIALIZING WELL DATA TYPE");
        index = 0;
        w.itypwd = 0;
        w.finwd = "NONE";
        w.foutwd = "NONE";
        w.imaxtypwd = MAXTYPWD;
        fill_type_table();
    }

    if (mode_talks(intera)) {
        submenuhead(VB_WDTYPE);
        if (iocom.LWITO(2))
            typestatus1("CURRENT", "WELL", w.TYPWDNAM(w.itypwd).sv(), w.IDTYPWD(w.itypwd),
                        w.itypwd, w.imaxtypwd, iocom.isout, 3);
        int sel = w.IDTYPWD(index);
        typeselect1(index, sel, "WELL", w.TYPWDNAM.data(), w.IDTYPWD.data(), w.imaxtypwd, 36, 2,
                    0);
    }

    const int old = w.itypwd;
    w.itypwd = index;
    const int newid = w.IDTYPWD(index);

    if (intera < 10) {
        bool done = false;
        if (index != old) {
            // A change of type forgets the data.
            w.titlewd = "none";
            w.finwd = "none";
            w.ndatwd = 0;
        } else if (!mode_resets(intera) && newid != 0) {
            done = true;
        }
        if (!done) {
            if (newid == 0) {
                w.titlewd = "none";
                w.finwd = "none";
                w.ndatwd = 0;
                w.nvarwd = 0;
            } else if (!set_variables(newid)) {
                warninghead(VB_WDTYPE);
                textline("DATA TYPE SETTING:");
                type_lines(w.TYPWDNAM(old).sv(), w.TYPWDNAM(index).sv());
                textline("CANNOT SET THIS TYPE");
                textline("===> NO ACTION");
                textline("===> KEEP INITIAL DATA TYPE");
                w.itypwd = old;
                warningtail00();
            }
        }
    } else {
        const int oldid = w.IDTYPWD(old);
        const bool extends = (intera == 10 || intera == 11) &&
                             ((oldid == 100 && newid == 110) || (oldid == 200 && newid == 210));
        if (extends) {
            // The data stay; AzCmax takes the next column.
            w.nvarwd += 1;
            w.NAMVAR(w.nvarwd) = "AzCmax";
            w.jazcmax = w.nvarwd;
            w.JCOL(w.nvarwd) = w.nvarwd;
        } else {
            errorhead(VB_WDTYPE);
            if (intera == 10 || intera == 11) {
                textline("DATA EXTENSION FAILURE:");
                type_lines(w.TYPWDNAM(old).sv(), w.TYPWDNAM(index).sv());
            } else {
                textline("UNEXPECTED ARGUMENT:");
                writef(iocom.isout, "(1x,a,1x,i4)", "intera =", intera);
            }
            w.itypwd = old;
            textline("===> NO ACTION");
            errortail00();
        }
    }

    id = w.IDTYPWD(w.itypwd);
}

// ---------------------------------------------------------------------------

void typeselect1(int& index, int& id, std::string_view label, const fstr<36>* names,
                 const int* ids, int imax, int namelen, int headcode, int inter) {
    int ierr = 0;
    find_id(index, id, ids, 0, imax, ierr);
    if (ierr != 0) {
        errorhead(VB_TYPESELECT1);
        writef(iocom.isout, "(1x,a,a,1x,i4)", trimmed(label), " data id =", id);
        textline("NO SUCH DATA TYPE AVALAIBLE");
        id = ids[index];
        textline("==> RESETTING TO:");
        writef(iocom.isout, "(1x,a,1x,i4)", " index =", index);
        writef(iocom.isout, "(1x,a,1x,i4)", " id    =", id);
        textline(" name  =", trimmed(names[index].sv()));
        errortail00();
    }
    if (mode_silent(inter)) return;

    for (;;) {
        if (headcode == 1) submenuhead(VB_TYPESELECT1);
        if (iocom.LWITO(2)) {
            typestatus1("SELECTED", label, names[index].sv(), id, index, imax, iocom.isout, 2);
            textline("SELECT DATA TYPE:");
            writef(iocom.isout, "(1x,a4,25x,a12)", "Name", "ID = Command");
            for (int k = 1; k <= imax; ++k) {
                int first = 0, last = 0;
                textlen(first, last, names[k].sv());
                // The dots run the id out to the same column on every row.
                std::string row = formatf("( '(1x,a' ,i2,','' ''',i2, '(''.'')' , ',i3)' )", last,
                                          namelen - last + 1);
                writef(iocom.isout, row, names[k].sv().substr(0, std::size_t(last)), ids[k]);
            }
            textline(DASHED);
            textline("EXIT ..................................99");
            menutail();
        }
        int answer = 99;
        inintegdef(answer, "your choice", 99, ierr);
        if (answer == 99) return;
        int k = 1;
        find_id(k, answer, ids, 0, imax, ierr);
        if (ierr == 0) {
            index = k;
            id = ids[k];
        } else {
            writef(iocom.isout, "(1x,a,1x,i6)", "UNKNOWN TYPE ID =", answer);
            textline("==> BACK TO MENU WITHOUT ACTION");
        }
    }
}

// ---------------------------------------------------------------------------

void typestatus1(std::string_view title, std::string_view label, std::string_view tname, int id,
                 int index, int imax, int unit, int code) {
    if (code == 1)
        submenuhead(VB_TYPESTATUS1);
    else if (code < 5)
        writef(unit, "(5(1x,a))", DASHED);
    if (code < 4) {
        writef(unit, "(5(1x,a))", trimmed(title), std::string(trimmed(label)) + " DATA TYPE");
        writef(unit, "(5(1x,a))", DASHED);
    }
    if (code < 8) writef(unit, "(5(1x,a))", "Type name    :", trimmed(tname));
    if (code < 7) {
        writef(unit, "(1x,a,1x,i3)", "Type ID      :", id);
        writef(unit, "(1x,a,1x,i3)", "Type index   :", index);
    }
    if (code < 6) writef(unit, "(1x,a,1x,i3)", "Maximum index:", imax);
    if (code == 1)
        menutail();
    else if (code < 3)
        writef(unit, "(5(1x,a))", DASHED);
}

// ---------------------------------------------------------------------------

void dat1astatus1(std::string_view label, std::string_view tname, int id, std::string_view fin,
                  std::string_view title, int ndata, int maxdata, fstr_array_ref namvar,
                  int nvar, int maxvar, const int* jcol, fstr_array_ref namcol, int ncol,
                  int maxcol, int& ilist, int intera) {
    static int last = 0;
    (void)maxvar;
    (void)ncol;

    if (mode_from_caller(intera)) {
        if (ilist < 0 || ilist > 3) {
            warninghead(VB_DAT1ASTATUS);
            writef(iocom.isout, "(1x,a,1x,i6)", "Wrong values of ilist", ilist);
            writef(iocom.isout, "(1x,a,1x,i6)", "===> RESET to last value: ilist =", last);
            warningtail00();
            ilist = last;
        }
    } else if (mode_from_store(intera)) {
        ilist = last;
    } else if (mode_resets(intera)) {
        submenuhead(VB_DAT1ASTATUS);
        textline("INITIALIZING DATA STATUS DISPLAY");
        ilist = 0;
        last = 0;
        writef(iocom.isout, "(1x,a,1x,i6)", "ilist =", ilist);
        menutail();
        return;
    }

    for (;;) {
        if (mode_talks(intera)) submenuhead(VB_DAT1ASTATUS);
        textline(DASHED);
        textline(std::string(trimmed(label)) + " DATA STATUS");
        textline(DASHED);
        textline("type name      :", trimmed(tname));
        writef(iocom.isout, "(1x,a,1x,i6,1x,a)", "type id        :", id);
        writef(iocom.isout, "(1x,a,1x,i6,1x,a)", "nb of variables:", nvar);
        writef(iocom.isout, "(1x,a,1x,i6,1x,a)", "nb of data     :", ndata);
        writef(iocom.isout, "(1x,a,1x,i6,1x,a)", "max nb of data :", maxdata);
        textline("input file name:", trimmed(fin));
        textline("title          :", trimmed(title));

        if (ilist == 1 || ilist == 3) {
            textline("|-----------------------------------------|");
            textline("|              DATA <-> ARRAY LINE        |");
            textline("|-----------------------------------------|");
            writef(iocom.isout, "(1x,a32,i9,1x,'|')", "|Number of data = nb of lines = ", ndata);
            textline("|-----------------------------------------|");
            textline("|          VARIABLE <-> ARRAY NB + COLUMN |");
            textline("|--------------------|--------------------|");
            textline("|nb|      name       |n|co|    name       |");
            textline("|--|-----------------|-|--|---------------|");
            for (int k = 1; k <= nvar; ++k) {
                int j = jcol[k - 1];
                std::string_view cname =
                    j >= 1 && j <= namcol.n ? namcol.sv(j) : std::string_view();
                writef(iocom.isout, "(1x,'|',i2,'|',a17,'|',i1,'|',i2,'|',a15,'|')", k,
                       namvar.sv(k), 1, j, cname);
            }
        }
        if (ilist == 2 || ilist == 3) {
            textline("|-----------------------------------------|");
            textline("|              ARRAY 1 COLUMNS            |");
            textline("|-----------------------------------------|");
            textline("|co|      name       |co|      name       |");
            textline("|--|-----------------|--|-----------------|");
            for (int j = 1; j <= maxcol; j += 2) {
                if (j + 1 <= maxcol)
                    writef(iocom.isout, "(1x,2('|',i2,'|',a17),'|')", j, namcol.sv(j), j + 1,
                           namcol.sv(j + 1));
                else
                    writef(iocom.isout, "(1x,2('|',i2,'|',a17),'|')", j, namcol.sv(j));
            }
        }

        if (mode_silent(intera)) break;
        textline(DASHED);
        textline("Change display and show again....100");
        textline("EXIT AND PROCEED .................99");
        menutail();
        int choice = 99, ierr = 0;
        inintegvindef(choice, "your choice", 99, 99, 100, ierr);
        if (choice != 100) break;
        textline(DASHED);
        textline("           DISPLAY SET UP");
        writef(iocom.isout, "(1x,a,1x,i6)", "current =", ilist);
        textline(DASHED);
        textline("Format......................Command");
        textline("Basic.............................0");
        textline("Basic + Variables list ...........1");
        textline("Basic + Array list ...............2");
        textline("Basic + Variables + Array list ...3");
        textline(DASHED);
        inintegvindef(ilist, "your choice", ilist, 0, 3, ierr);
    }
    last = ilist;
}

// ---------------------------------------------------------------------------

void writedatainfo0(std::string_view label, std::string_view tname, int id, std::string_view fin,
                    std::string_view fout, std::string_view title, int ndata, int nvar,
                    int unit) {
    writef(unit, "(5(1x,a))", std::string(trimmed(label)) + " DATA");
    writef(unit, "(5(1x,a))", "type name       :", trimmed(tname));
    writef(unit, "(1x,a,1x,i6)", "type id         :", id);
    writef(unit, "(5(1x,a))", "input file name :", trimmed(fin));
    writef(unit, "(5(1x,a))", "output file name:", trimmed(fout));
    writef(unit, "(5(1x,a))", "title           :", trimmed(title));
    writef(unit, "(1x,a,1x,i6)", "nb of variables :", nvar);
    writef(unit, "(1x,a,1x,i6)", "nb of data      :", ndata);
}

void wellstatus(int& ilist) {
    welldat_t& w = welldat;
    dat1astatus1("WELL", w.TYPWDNAM(w.itypwd).sv(), w.IDTYPWD(w.itypwd), w.finwd.sv(),
                 w.titlewd.sv(), w.ndatwd, MAXDATWD, w.NAMVAR, w.nvarwd, MAXVARWD, w.JCOL.data(),
                 w.NAMCOL, w.ncolwd, MAXCOLWD, ilist, 1);
}
