// The full output of the log menu (command 500): every variable of the well
// table for all its rows, as the computations left them, in a table beside
// the input file.
#include <string>

#include "borehole/logplot2.h"
#include "shell/textlen.h"
#include "shell/units.h"
#include "tables/writetable.h"
#include "well/welldat.h"

void log_full_output() {
    welldat_t& w = welldat;
    // The input file's extension stays inside the new name (a.txt gives
    // a.txt.all.out.txt); the field keeps its first 80 characters.
    w.foutwd = std::string(trimmed(w.finwd.sv())) + ".all.out.txt";
    int ifmt = 1, ihd = 2, ioca = 1;
    writereal6(ifmt, ihd, ioca, UNIT_TABLES, w.foutwd, w.finwd.sv(), w.titlewd.sv(), "WELL",
               w.TYPWDNAM(w.itypwd).sv(), w.IDTYPWD(w.itypwd), w.RWD1.a, MAXDATWD, MAXCOLWD,
               w.ndatwd, w.NAMVAR, w.JCOL.data(), MAXVARWD, w.nvarwd, 0);
}
