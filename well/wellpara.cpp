#include "well/wellpara.h"

#include <string_view>

#include "shell/format.h"
#include "shell/frames.h"
#include "shell/intera.h"
#include "shell/prompts.h"
#include "shell/sio.h"

wellpara_t wellpara;

namespace {

constexpr version_block VB_SWELLPARAM{"swellparam ", " 2.2", "2019-07-29"};

struct param_row {
    float wellpara_t::* field;
    float def;
    std::string_view menu;
    int command;
    std::string_view prompt;
    std::string_view list;
};

// The first nine are the geometry of the hole, the last five the origins of
// the plot scales.
constexpr int NGEOM = 9;
const param_row ROWS[] = {
    {&wellpara_t::ztop, 0.f, "Ztop .................................101", 101, "top depth",
     "Ztop             ="},
    {&wellpara_t::zbot, 1000.f, "Zbot .................................102", 102, "bottom depth",
     "Zbot             ="},
    {&wellpara_t::bitsize, 25.0825f, "Bit size .............................103", 103,
     "drill bit diameter", "Bit Size         ="},
    {&wellpara_t::c1sat, 37.f, "C1sat ................................104", 104, "C1 saturation",
     "C1sat            ="},
    {&wellpara_t::c2sat, 37.f, "C2sat ................................105", 105, "C2 saturation",
     "C2sat            ="},
    {&wellpara_t::cdiff, 2.9f, "Cdiff ................................106", 106,
     "cdiff for filtering", "Cdiff            ="},
    {&wellpara_t::cbsmin, -1.f, "C-BS mini ............................107", 107, "C-BS min",
     "C-BS mini        ="},
    {&wellpara_t::cbsmax, 1.f, "C-BS maxi ............................108", 108, "C-BS max",
     "C-BS maxi        ="},
    {&wellpara_t::rbcmaxthr, 10.f, "RBCmax threshold .....................109", 109,
     "RBCmax theshold", "RBCmax threshold ="},
    {&wellpara_t::azorig, 0.f, "Azimuth origin .......................201", 201,
     "Azimuth origin (deg)", "Azimuth origin   ="},
    {&wellpara_t::azcmaxorig, 0.f, "AzCmax origin ........................202", 202,
     "Azimuth Cmax origin (deg)", "AzCmax origin    ="},
    {&wellpara_t::haziorig, 0.f, "HAZI origin ..........................203", 203, "HAZI origin",
     "HAZI origin      ="},
    {&wellpara_t::rborig, 0.f, "RB origin ............................204", 204, "RB origin",
     "RB origin        ="},
    {&wellpara_t::rbcmaxorig, 0.f, "RBCmax origin ........................205", 205,
     "RB Cmax origin", "RBCmax origin    ="},
};

void value_line(std::string_view label, float v) {
    writef(iocom.isout, "(2(1x,a,1x,f10.3))", label, v);
}

void print_list() {
    textline(DASHED);
    textline("BOREHOLE PARAMETERS:");
    textline(DASHED);
    textline("BOREHOLE GEOMETRY:");
    int k = 0;
    for (const param_row& r : ROWS) {
        if (k++ == NGEOM) textline("PLOT PARAMETERS:");
        value_line(r.list, wellpara.*r.field);
    }
    textline("-----------------------------------------");
}

void menu() {
    for (;;) {
        submenuhead(VB_SWELLPARAM);
        if (iocom.LWITO(2)) {
            textline(DASHED);
            textline("BOREHOLE PARAMETERS               Command");
            textline(DASHED);
            textline("BOREHOLE GEOMETRY:");
            int k = 0;
            for (const param_row& r : ROWS) {
                if (k++ == NGEOM) textline("PLOT PARAMETERS:");
                value_line(r.menu, wellpara.*r.field);
            }
            textline(DASHED);
            textline("EXIT ..................................99");
            menutail();
        }
        int command = 99, ierr = 0;
        inintegdef(command, "command", 99, ierr);
        if (command == 99) return;
        for (const param_row& r : ROWS) {
            if (r.command != command) continue;
            float& v = wellpara.*r.field;
            inrealdef(v, r.prompt, v, ierr);
        }
    }
}

}  // namespace

void swellparam(int intera) {
    if (mode_resets(intera)) {
        submenuhead(VB_SWELLPARAM);
        textline("INITIALIZING BOREHOLE PARAMETERS");
        for (const param_row& r : ROWS) wellpara.*r.field = r.def;
    }
    if (intera == 10) {
        print_list();
        return;
    }
    if (mode_talks(intera)) menu();
}
