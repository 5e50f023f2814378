// The menu over all drawing attributes, and their reset and propagation.
#include "plot/attributes.h"
#include "plot/attributes_internal.h"
#include "shell/format.h"
#include "shell/intera.h"
#include "shell/menus.h"
#include "shell/prompts.h"

using namespace attrdetail;

namespace {
constexpr version_block VB_SPLOTATTRIBUTES{"splotattributes     ", " 1.0", "2020-10-16"};

void menu(bool iscur) {
    menurule();
    textline("         SETTING PLOT ATTRIBUTES");
    menurule();
    textline("GET SETTINGS");
    flagline(" from currently stored..... 1", iscur);
    flagline(" from initialisation....... 1", !iscur);
    textline("LINE ATTRIBUTES:");
    textline(" thickness ................10");
    textline(" style ....................11");
    textline(" color ....................12");
    textline("POLYGON FILL ATTRIBUTES:");
    textline(" interior style ...........20");
    textline(" interior color ...........21");
    textline("TEXT ATTRIBUTES:");
    textline(" font .....................30");
    textline(" size .....................31");
    textline(" justification ............32");
    textline(" angle ....................33");
    textline(" color ....................34");
    textline("SYMBOL ATTRIBUTES:");
    textline(" type .....................40");
    textline(" size .....................41");
    textline("COLOR:");
    textline(" color table ..............50");
    menurule();
    textline("EXIT THIS SET UP  .........99");
}
}  // namespace

void splotattributes(const int& inter) {
    const version_block& vb = VB_SPLOTATTRIBUTES;
    if (inter == 7 && !iocom.lplotopen) {
        errorhead(vb);
        textline("TRYING TO PROPAGATE PLOT ATTRIBUTES");
        textline(" WITH CLOSED PLOT FILE");
        textline("===> NO ACTION");
        errortail00();
        return;
    }

    // Work copies: each setter fills its own from the store or the default.
    int ival = 0;
    float rval = 0.0f;
    if (mode_resets(inter) || inter == 7) {
        submenuhead(vb);
        textline(inter == 7 ? "UPDATING PLOT ATTRIBUTESS" : "INITIALIZING PLOT ATTRIBUTESS");
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
    menuloop(vb, [&] { menu(iscur); }, [&](int choice) {
        int ierr = 0;
        switch (choice) {
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
        default: break;
        }
    });
}
