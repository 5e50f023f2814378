#include "plot/attributes.h"

#include "plot/attributes_internal.h"
#include "plot/device/psdevice.h"
#include "plot/pages.h"
#include "shell/intera.h"
#include "shell/menus.h"
#include "shell/prompts.h"
#include "shell/textlen.h"

plt2blk_t plt2blk;
pltcharblk_t pltcharblk;

using namespace attrdetail;

namespace {

// What the device may read of the attributes.
const psattribute_source DEVICE_VIEW{
    [] { return plt2blk.lcolor != 0; },
    [](int role) {
        return role == 1 ? plt2blk.ilinecol : role == 2 ? plt2blk.ifillcol : plt2blk.itextcol;
    },
    [](int i, float* c) {
        c[0] = plt2blk.RED(i);
        c[1] = plt2blk.GREEN(i);
        c[2] = plt2blk.BLUE(i);
    },
    []() -> int& { return plt2blk.icolcur; },
    [] { return plt2blk.ifillsty != 0; },
    [] { return plt2blk.ijustif; },
    [] { return plt2blk.textangle; },
};
[[maybe_unused]] const bool DEVICE_VIEW_REGISTERED = (psattributesource(DEVICE_VIEW), true);

constexpr version_block VB_SLINEWIDTH{"slinewidth ", " 7.0", "2020-10-11"};
constexpr version_block VB_STEXTSIZE{"stextsize  ", " 8.0", "2020-10-12"};
constexpr version_block VB_STEXTFONT{"stextfont           ", " 4.0", "2020-10-13"};
constexpr version_block VB_STEXTANGLE{"stextangle          ", " 3.0", "2020-10-12"};
constexpr version_block VB_STEXTALIGN{"stextalign          ", " 3.0", "2020-10-12"};
constexpr version_block VB_SLINECOLOR{"slinecolor          ", " 3.0", "2020-10-12"};
constexpr version_block VB_SFILLCOLOR{"sfillcolor          ", " 3.0", "2020-10-16"};
// The text colour setter was made from the line colour one and kept its head.
constexpr version_block VB_STEXTCOLOR{"slinecolor          ", " 2.5", "2020-10-12"};
constexpr version_block VB_SFILLSTYLE{"sfillstyle          ", " 4.0", "2020-10-12"};
constexpr version_block VB_SSYMBOLTYPE{"ssymboltype         ", " 2.6", "2019-10-04"};
constexpr version_block VB_SSYMBOLSIZE{"ssymbolsize         ", " 3.0", "2020-10-14"};

void send_linewidth() {
    float w = 0.0f;
    lengthcm2de(w, plt2blk.linewidcm);
    intslinewidth(w);
}
void send_textsize() { intstextsize(plt2blk.textsizcm); }
void send_textfont() { intstextfont(plt2blk.ifont); }
void nothing_to_send() {}

void panel_head(const version_block& vb, std::string_view title) {
    submenuhead(vb);
    if (!iocom.LWITO(2)) return;
    menurule();
    textline(title);
    menurule();
}

void colour_setter(int& value, const int& inter, const version_block& vb, int& field, int def,
                   std::string_view initline, std::string_view title, std::string_view prompt) {
    if (!attr_source(value, field, def, inter, vb, nothing_to_send)) return;
    check_colour_index(value, vb);
    if (inter == 5) {
        submenuhead(vb);
        textline(initline, trimmed(pltcharblk.COLORNAM(value)));
    }
    if (inter == 3) return;
    if (mode_talks(inter)) {
        panel_head(vb, title);
        if (iocom.LWITO(2)) {
            writef(iocom.isout, "(1x,a,1x,i3,1x,a)", "current value:", field,
                   pltcharblk.COLORNAM(field));
            writef(iocom.isout, "(1x,a,1x,i3,1x,a)", "new     value:", value,
                   pltcharblk.COLORNAM(value));
            menurule();
            colour_list();
            menurule();
        }
        menutail();
        int ierr = 0;
        inintegvindef(value, prompt, value, 0, plt2blk.ncolors, ierr);
    }
    field = value;
}

const char* const SYMBOL_MENU[] = {
    "circle   .................. 0", "circle   .................. 1",
    "circle   .................. 2", "triangle .................. 3",
    "square   .................. 4", "pentagon .................. 5",
    "hexagon  .................. 6", "heptagon .................. 7",
    "octogon  .................. 8", "enneagon .................. 9",
    "   .     ................. 10", "   -     ................. 11",
    "   |     ................. 12", "   +     ................. 13",
    "   x     ................. 14", "   *     ................. 15",
    "   *     ................. 16", "   *     ................. 17",
    "circle . ................. 20", "circle - ................. 21",
    "circle | ................. 22", "circle + ................. 23",
    "square   ..................40", "circle   ....... other values",
};

}  // namespace

namespace attrdetail {

void bad_inter(const version_block& vb, int inter, std::string_view range) {
    warninghead(vb);
    intline("inter =", inter);
    if (!range.empty()) textline(range);
    textline("===> NO ACTION");
    warningtail00();
}

void closed_plot_warning(const version_block& vb) {
    warninghead(vb);
    textline("TRYING TO PROPAGATE PLOT ATTRIBUTE");
    textline(" WITH CLOSED PLOT FILE");
    textline("===> NO ACTION");
    warningtail00();
}

void check_colour_index(int& index, const version_block& vb) {
    if (index < 0) {
        warninghead(vb);
        intline("trying to set color nb =", index);
        textline("when min color nb      = 0");
        index = 1;
        intline("===> RESET color nb    =", index);
        warningtail00();
    } else if (index > plt2blk.ncolors) {
        warninghead(vb);
        intline("trying to set color nb =", index);
        intline("when max color nb      =", plt2blk.ncolors);
        // Colour numbers wrap around the table, the background left out.
        index = index % (plt2blk.ncolors + 1);
        if (index == 0) index = 1;
        intline("===> RESET color nb    =", index);
        warningtail00();
    }
}

void colour_list() {
    for (int i = 0; i <= plt2blk.ncolors; ++i)
        writef(iocom.isout, "(1x,a8,17('.'),i3)", pltcharblk.COLORNAM(i), i);
}

}  // namespace attrdetail

void slinewidth(float& value, const int& inter) {
    const version_block& vb = VB_SLINEWIDTH;
    if (!attr_source(value, plt2blk.linewidcm, 0.02f, inter, vb, send_linewidth)) return;
    if (mode_from_caller(inter) && (value <= 0.01f || value > 1000.0f)) {
        warninghead(vb);
        textline("LINE THICKNESS OUT OF RANGE:");
        real_line(" line thickness (cm) =", value);
        real_line(" min =", 0.01f);
        real_line(" max =", 1000.0f);
        value = 0.02f;
        real_line("==> RESET line thickness =", value);
        warningtail00();
    }
    if (inter == 5) {
        submenuhead(vb);
        writef(iocom.isout, "(1x,a,1x,f8.3,1x,a)", "INITIALISING LINE THICKNESS TO:", value, "cm");
    }
    if (inter == 3) return;
    if (mode_talks(inter)) {
        panel_head(vb, "          LINE THICKNESS");
        if (iocom.LWITO(2)) {
            writef(iocom.isout, "(1x,a,f8.3)", "present value in cm ....... ", plt2blk.linewidcm);
            menurule();
        }
        menutail();
        int ierr = 0;
        inrealvindef(value, "line thickness in cm", value, 0.01f, 1000.0f, ierr);
    }
    plt2blk.linewidcm = value;
    if (iocom.lplotopen) send_linewidth();
}

void slinestyle(int&, const int&) {
    // All lines are solid; the setter stays so that menus and callers keep
    // their shape.
}

void slinecolor(int& value, const int& inter) {
    colour_setter(value, inter, VB_SLINECOLOR, plt2blk.ilinecol, 1, "INITIALISING LINE COLOR TO:",
                  "     LINE COLOR", "color number");
}

void sfillcolor(int& value, const int& inter) {
    colour_setter(value, inter, VB_SFILLCOLOR, plt2blk.ifillcol, 8, "INITIALISING FILL COLOR TO:",
                  "     FILL COLOR", "your choice");
}

void stextcolor(int& value, const int& inter) {
    colour_setter(value, inter, VB_STEXTCOLOR, plt2blk.itextcol, 1, "INITIALISING TEXT COLOR TO:",
                  "TEXT COLOR                                 ", "your choice");
}

void sfillstyle(int& value, const int& inter) {
    const version_block& vb = VB_SFILLSTYLE;
    if (!attr_source(value, plt2blk.ifillsty, 1, inter, vb, nothing_to_send)) return;
    if (mode_from_caller(inter) && value < 0) {
        warninghead(vb);
        intline("trying to set nb of style  =", value);
        textline("min style nb = 0");
        value = 1;
        intline("===> RESET style nb =", value);
        warningtail00();
    } else if (mode_from_caller(inter) && value > 1) {
        warninghead(vb);
        intline("trying to set style nb =", value);
        intline("max style nb =", 1);
        value = value % 2;
        intline("===> RESET style nb =", value);
        warningtail00();
    }
    if (inter == 5) {
        submenuhead(vb);
        textline("INITIALISING FILL STYLE TO: filled");
    }
    if (inter == 3) return;
    if (mode_talks(inter)) {
        panel_head(vb, "     POLYGON FILL STYLES");
        if (iocom.LWITO(2)) {
            intline("currently stored   :", plt2blk.ifillsty);
            intline("suggested new value:", value);
            menurule();
            textline("hollow ....................0");
            textline("filled ....................1");
            menurule();
        }
        menutail();
        int ierr = 0;
        inintegvindef(value, "your choice", value, 0, 1, ierr);
    }
    plt2blk.ifillsty = value;
}

void stextfont(int& value, const int& inter) {
    const version_block& vb = VB_STEXTFONT;
    if (!attr_source(value, plt2blk.ifont, 1, inter, vb, send_textfont)) return;
    if (mode_from_caller(inter) && (value < 1 || value > 16)) {
        warninghead(vb);
        intline("trying to set font number =", value);
        textline("font number must be in [1,16]");
        value = 1;
        intline("===> RESET font number =", value);
        warningtail00();
    }
    if (inter == 5) {
        submenuhead(vb);
        textline("INITIALISING TEXT FONT TO: 1 = Helvetica");
    }
    if (inter == 3) return;
    if (mode_talks(inter)) {
        static const char* const fonts[16] = {
            "Helvetica...............................1", "Helvetica-Bold..........................2",
            "Helvetica-Oblique.......................3", "Helvetica-BoldOblique...................4",
            "Times-Roman.............................5", "Times-Bold..............................6",
            "Times-Italic............................7", "Times-BoldItalic........................8",
            "Courier.................................9", "Courier-Bold...........................10",
            "Courier-Oblique........................11", "Courier-BoldOblique....................12",
            "Symbol.................................13", "Symbol-Bold............................14",
            "Symbol-Oblique.........................15", "Symbol-BoldOblique.....................16"};
        panel_head(vb, "                 TEXT FONT");
        if (iocom.LWITO(2)) {
            intline("present value.=", plt2blk.ifont);
            menurule();
            for (const char* f : fonts) textline(f);
            menurule();
        }
        menutail();
        int ierr = 0;
        inintegvindef(value, "your choice", value, 1, 16, ierr);
    }
    plt2blk.ifont = value;
    if (iocom.lplotopen) send_textfont();
}

void stextsize(float& value, const int& inter) {
    const version_block& vb = VB_STEXTSIZE;
    if (!attr_source(value, plt2blk.textsizcm, 0.5f, inter, vb, send_textsize)) return;
    if (mode_from_caller(inter) && (value <= 0.02f || value > 1000.0f)) {
        warninghead(vb);
        textline("TEXT HEIGHT (cm) OUT OF RANGE:");
        real_line(" text height =", value);
        real_line(" min         =", 0.02f);
        real_line(" max         =", 1000.0f);
        value = value <= 0.02f ? 0.02f : 0.5f;
        real_line("==> RESET text height =", value);
        warningtail00();
    }
    if (inter == 5) {
        submenuhead(vb);
        writef(iocom.isout, "(1x,a,1x,f8.3,1x,a)", "INITIALISING TEXT SIZE TO:", value, "cm");
    }
    if (inter == 3) return;
    if (mode_talks(inter)) {
        panel_head(vb, "                TEXT SIZE");
        if (iocom.LWITO(2)) {
            writef(iocom.isout, "(1x,a,f8.3)", "present value in cm .......... ", plt2blk.textsizcm);
            menurule();
        }
        menutail();
        int ierr = 0;
        inrealvindef(value, "text height in cm", value, 0.02f, 1000.0f, ierr);
    }
    plt2blk.textsizcm = value;
    if (iocom.lplotopen) send_textsize();
}

void stextalign(int& value, const int& inter) {
    const version_block& vb = VB_STEXTALIGN;
    if (!attr_source(value, plt2blk.ijustif, -1, inter, vb, nothing_to_send)) return;
    if (mode_from_caller(inter) && (value < -11 || value > 11)) {
        warninghead(vb);
        intline("trying to set justif =", value);
        textline("justif must be in [-11,11]");
        value = -1;
        intline("===> RESET justif =", value);
        warningtail00();
    }
    // Multiples of 4 name no horizontal position.
    if (value == 0 || value == -4 || value == -8 || value == 4 || value == 8) {
        warninghead(vb);
        intline("just =", value);
        value = value > 0 ? 1 : -1;
        intline("===> RESET just =", value);
        warningtail00();
    }
    if (inter == 5) {
        submenuhead(vb);
        textline("INITIALISING TEXT ALIGNMENT TO: -1");
        textline("=====> left-bottom trimmed");
    }
    if (inter == 3) return;
    if (mode_talks(inter)) {
        submenuhead(vb);
        if (iocom.LWITO(2)) {
            static const char* const panel[] = {
                "-------------------------------------------",
                "          SETTING TEXT ALIGNMENT           ",
                "  scheme after the PLOTPS SYMBOL call, 1987",
                "-------------------------------------------",
                " |just| indicates where the x,y point      ",
                "      is relative to the textstring        ",
                " if just < 0 leading and trailing blanks   ",
                "      will be ignored                      ",
                "                                           ",
                "   9              10              11       ",
                "   |---------------|---------------|       ",
                "   5<==textstring==6==============>7       ",
                "   |---------------|---------------|       ",
                "   1               2               3       ",
                "                                           ",
                "-------------------------------------------",
            };
            for (const char* l : panel) textline(l);
            intline("currently stored   :", plt2blk.ijustif);
            intline("suggested new value:", value);
        }
        menutail();
        int ierr = 0;
        inintegvindef(value, "value of just", value, -11, 11, ierr);
    }
    plt2blk.ijustif = value;
}

void stextangle(float& value, const int& inter) {
    const version_block& vb = VB_STEXTANGLE;
    if (!attr_source(value, plt2blk.textangle, 0.0f, inter, vb, nothing_to_send)) return;
    if (inter == 5) {
        submenuhead(vb);
        textline("INITIALISING TEXT ANGLE TO: 0.0");
    }
    if (inter == 3) return;
    if (mode_talks(inter)) {
        panel_head(vb, "         TEXT ANGLE (degrees)");
        if (iocom.LWITO(2)) {
            writef(iocom.isout, "(1x,a,1x,f8.2)", "currently stored   :", plt2blk.textangle);
            writef(iocom.isout, "(1x,a,1x,f8.2)", "suggested new value:", value);
            menurule();
        }
        menutail();
        int ierr = 0;
        inrealdef(value, "text angle in degrees", value, ierr);
    }
    plt2blk.textangle = value;
}

void ssymboltype(int& value, const int& inter) {
    const version_block& vb = VB_SSYMBOLTYPE;
    if (inter == 102) {
        for (const char* l : SYMBOL_MENU) textline(l);
        return;
    }
    if (inter != 200) {
        if (!mode_known(inter)) {
            bad_inter(vb, inter, "");
            return;
        }
        if (mode_from_store(inter)) value = plt2blk.isymtype;
        if (mode_resets(inter)) value = 1;
        if (inter == 5) {
            submenuhead(vb);
            intline("INITIALISING SYMBOL TYPE =", value);
        }
    }
    if (mode_talks(inter)) {
        submenuhead(vb);
        if (iocom.LWITO(2)) {
            menurule();
            textline("SYMBOL TYPE:");
            textline(" Negative number => filled symbol");
            textline(" N.B. Symbols also depend on");
            textline("      polygon & line attributes");
            menurule();
            if (inter == 200) {
                intline("ready to set type =", value);
            } else {
                intline("currently stored type =", plt2blk.isymtype);
                intline("ready to  store  type =", value);
            }
            menurule();
            textline("Symbol type ... symbol number");
            for (const char* l : SYMBOL_MENU) textline(l);
        }
        menutail();
        int ierr = 0;
        inintegdef(value, "symbol number", value, ierr);
    }
    if (inter != 200) plt2blk.isymtype = value;
}

void ssymbolsize(float& value, const int& inter) {
    const version_block& vb = VB_SSYMBOLSIZE;
    if (!mode_known(inter)) {
        bad_inter(vb, inter, "");
        return;
    }
    if (mode_from_store(inter)) value = plt2blk.symsizcm;
    if (mode_resets(inter)) value = 0.4f;
    if (inter == 5) {
        submenuhead(vb);
        writef(iocom.isout, "(1x,a,1x,f8.3)", "INITIALISING SYMBOL SIZE (cm) =", value);
    }
    if (mode_talks(inter)) {
        panel_head(vb, "SYMBOL SIZE (cm):");
        if (iocom.LWITO(2)) {
            writef(iocom.isout, "(1x,a,1x,f8.3)", "currently stored size =", plt2blk.symsizcm);
            writef(iocom.isout, "(1x,a,1x,f8.3)", "ready to  store  size =", value);
            menurule();
        }
        menutail();
        int ierr = 0;
        inrealdef(value, "symbol size in cm", value, ierr);
    }
    plt2blk.symsizcm = value;
}
