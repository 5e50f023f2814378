// The head of an extraction file: how the run was made and with which hole
// parameters, so that the rows that follow can be judged on their own.
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/runinfo.h"
#include "shell/sio.h"
#include "shell/textlen.h"
#include "shell/units.h"
#include "tables/fileopen.h"
#include "tables/writetable.h"
#include "well/wellpara.h"

namespace {
constexpr version_block VB_BEGINEXFILE{"beginexfile", " 1.0", "2018-12-12"};
}

void beginexfile(int unit, fstr_ref fname, std::string_view label) {
    if (unit_is_open(unit)) {
        submenuhead(VB_BEGINEXFILE);
        textline("output file status:");
        textline("file name:", trimmed(fname.sv()));
        writef(iocom.isout, "(1x,a,1x,i6,1x,a)", "unit     :", unit);
        textline("is already opened");
        textline("==>  data will be appended to it");
        menutail();
    } else {
        // An existing file is never overwritten: its name is asked again.
        opef2(fname, label, unit, "new ", 0);
    }
    const wellpara_t& p = wellpara;
    auto line = [unit](std::string_view s) { writef(unit, "(5(1x,a))", s); };
    line(DASHED);
    writeruninfo2(unit);
    line(DASHED);
    line(trimmed(label));
    line(DASHED);
    line("BOREHOLE GEOMETRY PARAMETERS");
    line(DASHED);
    writef(unit, "(2(1x,a,1x,f10.3))", "Ztop             =", p.ztop, "Zbot             =", p.zbot,
           "Bit Size         =", p.bitsize, "C1sat            =", p.c1sat,
           "C2sat            =", p.c2sat, "Cdiff            =", p.cdiff,
           "C-BS mini        =", p.cbsmin, "C-BS maxi        =", p.cbsmax,
           "RBCmax threshold =", p.rbcmaxthr);
}
