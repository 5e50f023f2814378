// The colour table: number of colours, one colour, the whole table.
#include <string>

#include "plot/attributes.h"
#include "plot/attributes_internal.h"
#include "shell/format.h"
#include "shell/intera.h"
#include "shell/menus.h"
#include "shell/prompts.h"
#include "shell/textlen.h"
#include "shell/units.h"
#include "tables/fileopen.h"

using namespace attrdetail;

namespace {

constexpr version_block VB_SCOLORNB{"scolornb            ", " 1.6", "2020-10-14"};
// The one-colour setter has always shown this head.
constexpr version_block VB_SCOLORRGB{"scolorgb            ", " 3.1", "2024-02-13"};
constexpr version_block VB_SCOLORTABLE{"scolortable", " 1.6", "2020-10-14"};

constexpr int MAXCOLORS = 18;

struct colour_row {
    const char* name;
    float r, g, b;
};
// The table at initialisation. The grey names give the percentage of black.
const colour_row INITIAL_COLOURS[MAXCOLORS + 1] = {
    {"White-bkg", 100, 100, 100}, {"Black", 0, 0, 0},
    {"Red", 100, 0, 0},           {"Green", 0, 100, 0},
    {"Blue", 0, 0, 100},          {"Cyan", 0, 100, 100},
    {"Magenta", 100, 0, 100},     {"Yellow", 100, 100, 0},
    {"Grey20", 80, 80, 80},       {"Grey30", 70, 70, 70},
    {"Grey40", 60, 60, 60},       {"Grey50", 50, 50, 50},
    {"Grey70", 30, 30, 30},       {"Orange", 100, 50, 0},
    {"Chartreuse green", 50, 100, 0}, {"Spring Green", 0, 100, 50},
    {"Azure", 0, 50, 100},        {"Violet", 50, 0, 100},
    {"Rose", 100, 0, 50},
};

// The name of the colour table file, kept from one reading to the next as
// the default.
fstr<250> colour_file = "colortable.txt";

void apply_nb(int ncol, int inter) {
    // One colour means a black and white plot.
    plt2blk.lcolor = ncol == 1 ? 0 : 1;
    if (mode_talks(inter) || inter == 5) {
        intline("NB of colors =", ncol);
        textline(plt2blk.lcolor == 0 ? "==> Black & White plot" : "==> Color plot");
    }
    const int old = plt2blk.ncolors;
    plt2blk.ncolors = ncol;
    if (ncol < old) {
        textline("The nb of colors has been reduced");
        textline("==> checking current set up versus new max");
        // Mode 3 stores nothing: an index now past the table is reported
        // and left as it is.
        int scratch = 0;
        slinecolor(scratch, 3);
        sfillcolor(scratch, 3);
        stextcolor(scratch, 3);
        textline("==> checking done");
    }
}

void rgb_row(std::string_view label, float r, float g, float b) {
    writef(iocom.isout, "(1x,a7,'|',3(1x,f6.1,1x,'|'))", label, r, g, b);
}

// Reads records from a unit for a list read, counting them, and telling
// the end of the file from a bad value.
struct colour_source : record_source {
    int unit;
    bool at_end = false;
    explicit colour_source(int u) : unit(u) {}
    bool next(std::string& rec) override {
        if (unit_read(unit, rec)) return true;
        at_end = true;
        return false;
    }
};

void read_failure(colour_source& src, int iline) {
    errorhead(VB_SCOLORTABLE);
    if (src.at_end) textline("END OF FILE REACHED UNEXPECTEDLY");
    intline("WHILE READING LINE NUMBER ", iline);
    unit_close(UNIT_COLOURS);
    textline("Input file", trimmed(colour_file), "is closed");
    errortail00();
}

void read_colour_file() {
    opef2(colour_file, "color table input", UNIT_COLOURS, "old ", 0);
    colour_source src(UNIT_COLOURS);

    int iline = 1;
    int ncol = 0;
    {
        litem items[] = {litem(ncol)};
        if (!list_read(src, items)) {
            read_failure(src, iline);
            return;
        }
    }
    scolornb(ncol, 1);

    for (int i = 0; i <= plt2blk.ncolors; ++i) {
        ++iline;
        int index = 0;
        float r = 0, g = 0, b = 0;
        fstr<20> name;
        litem items[] = {litem(index), litem(r), litem(g), litem(b), litem(name)};
        if (!list_read(src, items)) {
            read_failure(src, iline);
            return;
        }
        scolorrgb(index, name, r, g, b, 1);
    }
    unit_close(UNIT_COLOURS);
    textline("Input file", trimmed(colour_file), "is closed");
    writef(iocom.isout, "(1x,a,1x,i3,a)", "Could read up to:", plt2blk.ncolors, " DATA");
    writef(iocom.isout, "(1x,a,1x,i3,a)", "Actually read   :", plt2blk.ncolors, " DATA");
}

}  // namespace

void scolornb(int& ncol, const int& inter) {
    const version_block& vb = VB_SCOLORNB;
    switch (inter) {
    case 0:
    case 1:
        if (ncol > MAXCOLORS) {
            warninghead(vb);
            intline("trying to set nb of color  =", ncol);
            intline("max nb of color  =", MAXCOLORS);
            ncol = MAXCOLORS;
            intline("===> RESET nb of color =", ncol);
            warningtail00();
        } else if (ncol < 1) {
            warninghead(vb);
            intline("trying to set nb of color  =", ncol);
            textline("min nb of color  = 1");
            ncol = 1;
            intline("===> RESET nb of color =", ncol);
            warningtail00();
        }
        break;
    case 2:
    case 3:
        ncol = plt2blk.ncolors;
        if (inter == 3) return;
        break;
    case 4:
    case 5:
        submenuhead(vb);
        ncol = 4;
        plt2blk.ncolors = 4;
        plt2blk.lcolor = 1;
        intline("INITIALIZING NUMBER OF COLORS TO:", ncol);
        break;
    default: bad_inter(vb, inter, "Accepted range = [0,5]"); return;
    }

    if (mode_talks(inter)) {
        int ierr = 0;
        for (;;) {
            submenuhead(vb);
            textline("SETTING THE NUMBER OF COLORS:");
            menurule();
            writef(iocom.isout, "(1x,a,i3)", "max nb of colors ................", MAXCOLORS);
            writef(iocom.isout, "(1x,a,i3)", "current nb of colors ............", plt2blk.ncolors);
            writef(iocom.isout, "(1x,a,i3)", "new nb of colors to apply .....10", ncol);
            menurule();
            textline("CANCEL AND EXIT ...............98");
            textline("UPDATE AND EXIT ...............99");
            const int irep = menuchoice();
            if (irep == 10) {
                inintegvindef(ncol, "new nb of colors", ncol, 1, MAXCOLORS, ierr);
            } else if (irep == 98) {
                ncol = plt2blk.ncolors;
                return;
            } else if (irep == 99) {
                break;
            }
        }
    }
    apply_nb(ncol, inter);
}

void scolorrgb(int& index, fstr_ref name, float& red, float& green, float& blue,
               const int& inter) {
    const version_block& vb = VB_SCOLORRGB;
    if (index < 0 || index > plt2blk.ncolors) {
        errorhead(vb);
        intline("trying to set color nb =", index);
        writef(iocom.isout, "(1x,a,i3,a)", "When color index range = [0,", plt2blk.ncolors, "]");
        textline("===> NO ACTION");
        errortail00();
        return;
    }
    int res = 0;
    switch (inter) {
    case 0:
    case 1:
        crevin3(red, 0.0f, 100.0f, "red (%)", vb.name, 10, res);
        crevin3(green, 0.0f, 100.0f, "green (%)", vb.name, 10, res);
        crevin3(blue, 0.0f, 100.0f, "blue (%)", vb.name, 10, res);
        break;
    case 2:
    case 3:
        name = pltcharblk.COLORNAM(index).sv();
        red = plt2blk.RED(index);
        green = plt2blk.GREEN(index);
        blue = plt2blk.BLUE(index);
        if (inter == 3) return;
        break;
    case 4:
    case 5:
        submenuhead(vb);
        writef(iocom.isout, "(1x,a,1x,i3,1x,a)", "INITIALIZING Color nb =", index, "as 50% Grey");
        name = "50% Grey";
        red = green = blue = 50.0f;
        break;
    default: bad_inter(vb, inter, "Accepted range = [0,5]"); return;
    }

    if (mode_talks(inter)) {
        int ierr = 0;
        fstr<80> newname = name.sv();
        for (;;) {
            submenuhead(vb);
            textline("               SETTING COLOR               ");
            menurule();
            writef(iocom.isout, "(1x,a,1x,i3)", "max nb of colors ... =", MAXCOLORS);
            writef(iocom.isout, "(1x,a,1x,i3)", "current nb of colors =", plt2blk.ncolors);
            menurule();
            writef(iocom.isout, "(1x,a,1x,i3)", "MODIFYING SETTING FOR COLOR INDEX =", index);
            menurule();
            textline("Color name:");
            textline("current =", pltcharblk.COLORNAM(index).sv());
            textline("new     =", trimmed(newname.sv()));
            textline("change new name........................20");
            textline("-----------------------------------------");
            textline("RGB components:");
            writef(iocom.isout, "(1x,a7,'|',3(1x,a6,1x,'|'))", "", "  red%", "green%", " blue%");
            rgb_row("current", plt2blk.RED(index), plt2blk.GREEN(index), plt2blk.BLUE(index));
            rgb_row("new", red, green, blue);
            textline("change new rgb setting ................30");
            menurule();
            textline("DO NOT APPLY NEW SETTINGS AND EXIT ....98");
            textline("APPLY NEW SETTINGS AND EXIT ...........99");
            const int irep = menuchoice();
            if (irep == 20) {
                inchardef(newname, "new color name", newname.sv(), ierr);
            } else if (irep == 30) {
                inrealvindef(red, "red component (%)", red, 0.0f, 100.0f, ierr);
                inrealvindef(green, "green component (%)", green, 0.0f, 100.0f, ierr);
                inrealvindef(blue, "blue component (%)", blue, 0.0f, 100.0f, ierr);
            } else if (irep == 98) {
                return;
            } else if (irep == 99) {
                name = newname.sv();
                break;
            }
        }
    }
    pltcharblk.COLORNAM(index) = name.sv();
    plt2blk.RED(index) = red;
    plt2blk.GREEN(index) = green;
    plt2blk.BLUE(index) = blue;
}

void scolortable(const int& inter) {
    const version_block& vb = VB_SCOLORTABLE;
    if (!mode_known(inter)) {
        bad_inter(vb, inter, "Accepted range = [0,5]");
        return;
    }
    if (mode_resets(inter)) {
        submenuhead(vb);
        textline("INITIALIZING COLOR TABLE WITH 19 COLORS");
        textline("0/1         : BKG,WHITE / FRG,BLACK");
        textline("2/3/4/5/6/7 : R/G/B/C/M/Y");
        textline("8/9/10/11/12: GREY 20/30/40/50/70 %");
        textline("13/14/15    : Orange/C Green/S Green");
        textline("16/17/18    : Azure/Violet/Pink");
        int ncol = MAXCOLORS;
        scolornb(ncol, 1);
        for (int i = 0; i <= MAXCOLORS; ++i) {
            int index = i;
            fstr<20> name = INITIAL_COLOURS[i].name;
            float r = INITIAL_COLOURS[i].r, g = INITIAL_COLOURS[i].g, b = INITIAL_COLOURS[i].b;
            scolorrgb(index, name, r, g, b, 1);
        }
    }
    if (mode_silent(inter)) return;

    int ierr = 0;
    for (;;) {
        submenuhead(vb);
        textline("SETTING COLOR TABLE");
        menurule();
        intline("Current nb of colors:", plt2blk.ncolors);
        menurule();
        writef(iocom.isout, "(1x,a5,1x,a8,3(1x,a6))", "index", "name    ", "  red%", "green%", " blue%");
        for (int i = 0; i <= plt2blk.ncolors; ++i)
            writef(iocom.isout, "(1x,i5,1x,a8,3(1x,f6.1))", i, pltcharblk.COLORNAM(i),
                   plt2blk.RED(i), plt2blk.GREEN(i), plt2blk.BLUE(i));
        menurule();
        textline("change nb of colors ..........100");
        textline("set 1 rgb color ..............200");
        textline("read color table from file ...300");
        menurule();
        textline("EXIT ..........................99");
        const int irep = menuchoice();
        if (irep == 100) {
            int ncol = plt2blk.ncolors;
            scolornb(ncol, 2);
        } else if (irep == 200) {
            int index = 0;
            inintegvindef(index, "index of color to modify", index, 0, plt2blk.ncolors, ierr);
            fstr<20> name;
            float r = 0, g = 0, b = 0;
            scolorrgb(index, name, r, g, b, 2);
        } else if (irep == 300) {
            read_colour_file();
        } else if (irep == 99) {
            return;
        }
    }
}
