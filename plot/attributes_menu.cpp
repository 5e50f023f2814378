// The menu over all drawing attributes, and their reset and propagation.
#include "plot/attributes.h"
#include "plot/attributes_internal.h"
#include "shell/format.h"
#include "shell/intera.h"
#include "shell/prompts.h"

using namespace attrdetail;

namespace {
constexpr version_block VB_SPLOTATTRIBUTES{"splotattributes     ", " 1.0", "2020-10-16"};

void menu(bool iscur) {
    const int o = iocom.isout;
    rule();
    line("         SETTING PLOT ATTRIBUTES");
    rule();
    line("GET SETTINGS");
    writef(o, "(1x,a,1x,l1)", " from currently stored..... 1", iscur);
    writef(o, "(1x,a,1x,l1)", " from initialisation....... 1", !iscur);
    line("LINE ATTRIBUTES:");
    line(" thickness ................10");
    line(" style ....................11");
    line(" color ....................12");
    line("POLYGON FILL ATTRIBUTES:");
    line(" interior style ...........20");
    line(" interior color ...........21");
    line("TEXT ATTRIBUTES:");
    line(" font .....................30");
    line(" size .....................31");
    line(" justification ............32");
    line(" angle ....................33");
    line(" color ....................34");
    line("SYMBOL ATTRIBUTES:");
    line(" type .....................40");
    line(" size .....................41");
    line("COLOR:");
    line(" color table ..............50");
    rule();
    line("EXIT THIS SET UP  .........99");
}
}  // namespace

void splotattributes(const int& inter) {
    const version_block& vb = VB_SPLOTATTRIBUTES;
    if (inter == 7 && !iocom.lplotopen) {
        errorhead(vb);
        line("TRYING TO PROPAGATE PLOT ATTRIBUTES");
        line(" WITH CLOSED PLOT FILE");
        line("===> NO ACTION");
        errortail00();
        return;
    }

    // Work copies: each setter fills its own from the store or the default.
    int ival = 0;
    float rval = 0.0f;
    if (mode_resets(inter) || inter == 7) {
        submenuhead(vb);
        line(inter == 7 ? "UPDATING PLOT ATTRIBUTESS" : "INITIALIZING PLOT ATTRIBUTESS");
        if (inter != 7) {
            scolortable(inter);
            slinestyle(ival, inter);
            slinecolor(ival, inter);
            stextalign(ival, inter);
            stextangle(rval, inter);
            stextcolor(ival, inter);
            sfillcolor(ival, inter);
            sfillstyle(ival, inter);
            ssymbolsize(rval, inter);
            ssymboltype(ival, inter);
        }
        // The fonts and colours exist by now; only then is the device told
        // of the three attributes it holds itself.
        slinewidth(rval, inter);
        stextsize(rval, inter);
        stextfont(ival, inter);
    }
    if (mode_silent(inter)) return;

    int k = 2;
    bool iscur = true;
    int ierr = 0;
    for (;;) {
        submenuhead(vb);
        if (iocom.LWITO(2)) menu(iscur);
        menutail();
        int irep = 99;
        inintegdef(irep, "your choice", 99, ierr);
        switch (irep) {
        case 1:
            inlogicdef(iscur, "whether to use current(1) or initial(0) parameters", iscur, ierr);
            k = iscur ? 2 : 4;
            break;
        case 10: slinewidth(rval, k); break;
        case 11: slinestyle(ival, k); break;
        case 12: slinecolor(ival, k); break;
        case 20: sfillstyle(ival, k); break;
        case 21: sfillcolor(ival, k); break;
        case 30: stextfont(ival, k); break;
        case 31: stextsize(rval, k); break;
        case 32: stextalign(ival, k); break;
        case 33: stextangle(rval, k); break;
        case 34: stextcolor(ival, k); break;
        case 40: ssymboltype(ival, k); break;
        case 41: ssymbolsize(rval, k); break;
        case 50: scolortable(k); break;
        case 99: return;
        default: break;
        }
    }
}
