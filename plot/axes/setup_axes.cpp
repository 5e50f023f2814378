// Setting up the 15 axes and the box: defaults, checks and menus.
#include "plot/axes/axes.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/intera.h"
#include "shell/menus.h"
#include "shell/prompts.h"
#include "shell/sio.h"

axisblk7a_t axisblk7a;
axisblk7b_t axisblk7b;

namespace {

constexpr version_block VB_G1AXBD{"g1axbd     ", " 1.3", "2012-05-04"};
constexpr version_block VB_S1AXIS{"s1axis     ", " 3.1", "2012-05-09"};
constexpr version_block VB_S1AXIS1{"s1axis1    ", " 3.1", "2012-05-09"};
constexpr version_block VB_S1AXUSWDTYP{"s1axuswdtyp", " 1.1", "2012-05-09"};
constexpr version_block VB_S1BX2D{"s1bx2d     ", " 1.4", "2012-05-09"};
constexpr version_block VB_SNAXIS{"snaxis     ", " 2.1", "2012-05-09"};

constexpr std::string_view RULE35 = "-----------------------------------";
constexpr std::string_view DEFAULT_AXIS_LABEL = "Generic 0-10 axis";
constexpr std::string_view DEFAULT_BOX_LABEL = "Generic box";


bool fetches(int inter) { return mode_from_store(inter) || inter == 10; }
bool resets(int inter) { return mode_resets(inter); }

// The refusal of an axis number out of 1 to 15; true when refused.
bool bad_axis(const version_block& vb, int iaxis) {
    if (iaxis >= 1 && iaxis <= MAXAXIS) return false;
    errorhead(vb);
    intline("trying to set axis nb =", iaxis);
    intline("max axis nb =", MAXAXIS);
    textline("===> NO ACTION");
    errortail00();
    return true;
}

// An increment that doesn't lead from the first annotation value to the
// last.
bool inconsistent(float wau1, float wau2, float waud) {
    return waud == 0.0f || (waud > 0.0f && wau2 < wau1) || (waud < 0.0f && wau1 < wau2);
}

// The label of an axis, blank for a number that names none (a box that was
// never set up).
std::string_view label_of(int iaxis) {
    if (iaxis < 1 || iaxis > MAXAXIS) return {};
    return axisblk7b.WALAB(iaxis).sv();
}

// The axis labels with their numbers, as the axis and box menus list them.
void axis_list() {
    for (int i = 1; i <= MAXAXIS; ++i)
        writef(iocom.isout, "(1x,a20,1x,12('.'),i2)", axisblk7b.WALAB(i), i);
}

// s1axis1 and s1axis: one routine, with or without the number of tic
// intervals between numbers (nlabintk null leaves the stored one alone).
void set_axis(const version_block& vb, float& USA1, float& USA2, float& WAU1, float& WAU2,
              float& WAUD, float& WALAS, fstr_ref WALAB, int& NAWDIG, int& NASUBINT,
              int* nlabintk, int iaxis, int inter) {
    if (bad_axis(vb, iaxis)) return;
    axisblk7a_t& a = axisblk7a;
    if (fetches(inter)) {
        USA1 = a.USA1(iaxis);
        USA2 = a.USA2(iaxis);
        WAU1 = a.WAU1(iaxis);
        WAU2 = a.WAU2(iaxis);
        WAUD = a.WAUD(iaxis);
        WALAS = a.WALAS(iaxis);
        WALAB.assign(axisblk7b.WALAB(iaxis).sv());
        NAWDIG = a.NAWDIG(iaxis);
        NASUBINT = a.NASUBINT(iaxis);
        if (nlabintk) *nlabintk = a.NLABINTK(iaxis);
    }
    if (resets(inter)) {
        submenuhead(vb);
        writef(iocom.isout, "(1x,a,1x,i3)", "INITIALIZING AXIS NB", iaxis);
        USA1 = 0.0f;
        USA2 = 10.0f;
        WAU1 = 0.0f;
        WAU2 = 10.0f;
        WAUD = 5.0f;
        WALAS = 0.5f;
        WALAB.assign(DEFAULT_AXIS_LABEL);
        NAWDIG = 0;
        NASUBINT = 5;
        if (nlabintk) *nlabintk = 1;
    }

    const bool menu = mode_talks(inter);
    for (;;) {
        while (menu) {
            submenuhead(vb);
            if (iocom.LWITO(2)) {
                textline("Sizes:");
                intline("max nb of axis    =", MAXAXIS);
                intline("axis label length =", AXLABLEN);
                intline("SETTING UP AXIS #", iaxis);
                if (a.IUSWDTYP(iaxis) == 1) {
                    textline("user space = annotation");
                } else {
                    textline("user space:");
                    realline("initial value ....................1", USA1);
                    realline("final   value ....................2", USA2);
                    textline("annotation:");
                }
                realline("initial value ...................20", WAU1);
                realline("final   value ...................21", WAU2);
                realline("increment .......................22", WAUD);
                realline("size in cm ......................23", WALAS);
                intline("nb of digits after dec. point ...24", NAWDIG);
                intline("nb of subtics intervals..........25", NASUBINT);
                textline("axis label ......................26", WALAB.sv());
                if (nlabintk) intline("nb of tics intervals for label ..27", *nlabintk);
                textline("EXIT.............................99");
            }
            const int choice = menuchoice();
            int ierr = 0;
            if (choice == 99) break;
            const bool user = a.IUSWDTYP(iaxis) != 1;
            switch (choice) {
            case 1:
                if (user) inrealdef(USA1, "user initial value", USA1, ierr);
                break;
            case 2:
                if (user) inrealdef(USA2, "user final value", USA2, ierr);
                break;
            case 20: inrealdef(WAU1, "annotation initial value", WAU1, ierr); break;
            case 21: inrealdef(WAU2, "annotation final value", WAU2, ierr); break;
            case 22: inrealdef(WAUD, "annotation increment", WAUD, ierr); break;
            case 23: inrealdef(WALAS, "annotation size in cm", WALAS, ierr); break;
            case 24: inintegdef(NAWDIG, "nb of digits after dec. point", NAWDIG, ierr); break;
            case 25: inintegdef(NASUBINT, "nb of intervals between tics", NASUBINT, ierr); break;
            case 26: {
                const fstr<AXLABLEN> old = WALAB.sv();
                inchardef(WALAB, "axis label", old.sv(), ierr);
                break;
            }
            case 27:
                if (nlabintk)
                    inintegdef(*nlabintk, "nb of tics intervals for label", *nlabintk, ierr);
                break;
            default: break;
            }
        }
        if (!inconsistent(WAU1, WAU2, WAUD)) break;
        warninghead(vb);
        textline("Inconsistent annotation increment:");
        realline("initial value      =", WAU1);
        realline("final   value      =", WAU2);
        realline("increment          =", WAUD);
        WAUD = WAUD == 0.0f ? (WAU2 - WAU1) * 0.5f : -WAUD;
        realline("=> RESET increment =", WAUD);
        warningtail00();
        if (!menu) break;
    }

    if (a.IUSWDTYP(iaxis) == 1) {
        USA1 = WAU1;
        USA2 = WAU2;
    } else if (a.IUSWDTYP(iaxis) == 2) {
        USA1 = WAU1 / a.WAOUS(iaxis);
        USA2 = WAU2 / a.WAOUS(iaxis);
    }
    a.USA1(iaxis) = USA1;
    a.USA2(iaxis) = USA2;
    a.WAU1(iaxis) = WAU1;
    a.WAU2(iaxis) = WAU2;
    a.WAUD(iaxis) = WAUD;
    a.WALAS(iaxis) = WALAS;
    axisblk7b.WALAB(iaxis) = WALAB.sv();
    a.NAWDIG(iaxis) = NAWDIG;
    a.NASUBINT(iaxis) = NASUBINT;
    if (nlabintk) a.NLABINTK(iaxis) = *nlabintk;
}

// The stored fields of one axis in working variables, for the menus that
// hand an axis on to s1axis1 or s1axis.
struct axis_fields {
    float USA1 = 0, USA2 = 0, WAU1 = 0, WAU2 = 0, WAUD = 0, WALAS = 0;
    fstr<AXLABLEN> WALAB;
    int NAWDIG = 0, NASUBINT = 0, NLABINTK = 0;
};

void edit_axis(int iaxis, int inter) {
    if (inter >= 10) {
        int type = 0;
        float scale = 1.0f;
        s1axuswdtyp(type, scale, iaxis, 2);
    }
    axis_fields f;
    s1axis1(f.USA1, f.USA2, f.WAU1, f.WAU2, f.WAUD, f.WALAS, f.WALAB, f.NAWDIG, f.NASUBINT,
            f.NLABINTK, iaxis, 2);
}

}  // namespace

void s1axis1(float& USA1, float& USA2, float& WAU1, float& WAU2, float& WAUD, float& WALAS,
             fstr_ref WALAB, int& NAWDIG, int& NASUBINT, int& NLABINTK, const int& iaxis,
             const int& inter) {
    set_axis(VB_S1AXIS1, USA1, USA2, WAU1, WAU2, WAUD, WALAS, WALAB, NAWDIG, NASUBINT, &NLABINTK,
             iaxis, inter);
}

void s1axis(float& USA1, float& USA2, float& WAU1, float& WAU2, float& WAUD, float& WALAS,
            fstr_ref WALAB, int& NAWDIG, int& NASUBINT, const int& iaxis, const int& inter) {
    set_axis(VB_S1AXIS, USA1, USA2, WAU1, WAU2, WAUD, WALAS, WALAB, NAWDIG, NASUBINT, nullptr,
             iaxis, inter);
}

void s1axuswdtyp(int& IUSWDTYP, float& WAOUS, const int& iaxis, const int& inter) {
    const version_block& vb = VB_S1AXUSWDTYP;
    if (bad_axis(vb, iaxis)) return;
    axisblk7a_t& a = axisblk7a;
    if (fetches(inter)) {
        IUSWDTYP = a.IUSWDTYP(iaxis);
        WAOUS = a.WAOUS(iaxis);
    } else if (resets(inter)) {
        submenuhead(vb);
        writef(iocom.isout, "(1x,a,1x,i3)", "INITIALIZING US-WD FOR AXIS NB", iaxis);
        IUSWDTYP = 0;
        WAOUS = 1.0f;
    } else if (IUSWDTYP < 0 || IUSWDTYP > 1) {
        // The scaled link is only to be chosen in the menu.
        warninghead(vb);
        intline("trying to set us/wd type =", IUSWDTYP);
        textline("UNKNOWN TYPE");
        IUSWDTYP = 0;
        intline("==> RESET TYPE =", IUSWDTYP);
        warningtail00();
    }

    if (mode_talks(inter)) {
        for (;;) {
            if (WAOUS == 0.0f) {
                warninghead(vb);
                realline("trying to set wd/us scaling =", WAOUS);
                WAOUS = 1.0f;
                realline("==> RESET SCALING =", WAOUS);
                warningtail00();
            }
            submenuhead(vb);
            if (iocom.LWITO(2)) {
                intline("SETTING UP AXIS #", iaxis);
                intline("max nb of axis    =", MAXAXIS);
                textline(DASHED);
                textline(IUSWDTYP == 1 ? "user space = annotation"
                                       : "user space and annotations independent");
                intline("user space versus annotations ...10", IUSWDTYP);
                realline("annotations/user scaling  .......20", WAOUS);
                textline(DASHED);
                textline("EXIT.............................99");
            }
            const int choice = menuchoice();
            int ierr = 0;
            if (choice == 99) break;
            if (choice == 10) {
                textline("link between user units and annotations:");
                textline("annotation & user independent ....0");
                textline("annotation = user ................1");
                textline("annotation = user * scale ........2");
                inintegvindef(IUSWDTYP, "your choice (0-2)", IUSWDTYP, 0, 2, ierr);
            } else if (choice == 20) {
                inrealdef(WAOUS, "annotation/user scaling", WAOUS, ierr);
            }
        }
    }
    a.IUSWDTYP(iaxis) = IUSWDTYP;
    a.WAOUS(iaxis) = WAOUS;
}

void snaxis(const int& inter) {
    if (resets(inter)) {
        submenuhead(VB_SNAXIS);
        textline("INITIALIZING AXES");
        for (int i = 1; i <= MAXAXIS; ++i) {
            int type = 0;
            float scale = 1.0f;
            s1axuswdtyp(type, scale, i, 1);
            axis_fields f;
            f.USA2 = 10.0f;
            f.WAU2 = 10.0f;
            f.WAUD = 5.0f;
            f.WALAS = 0.5f;
            f.WALAB = DEFAULT_AXIS_LABEL;
            f.NASUBINT = 5;
            f.NLABINTK = 1;
            s1axis1(f.USA1, f.USA2, f.WAU1, f.WAU2, f.WAUD, f.WALAS, f.WALAB, f.NAWDIG,
                    f.NASUBINT, f.NLABINTK, i, 1);
        }
    }
    if (mode_silent(inter)) return;
    for (;;) {
        submenuhead(VB_SNAXIS);
        if (iocom.LWITO(2)) {
            textline("AXIS SET UP");
            textline(DASHED);
            writef(iocom.isout, "(1x,a10,18x,a7)", "axis label", "axis nb");
            textline(RULE35);
            axis_list();
            textline(DASHED);
            textline("Go through all axes.............100");
            textline("EXIT.............................99");
        }
        const int choice = menuchoice();
        if (choice == 99) break;
        if (choice >= 1 && choice <= MAXAXIS) {
            edit_axis(choice, inter);
        } else if (choice == 100) {
            for (int i = 1; i <= MAXAXIS; ++i) edit_axis(i, inter);
        }
    }
}

void g1axbd(float& usa1, float& usa2, const int& iaxis) {
    if (iaxis < 1 || iaxis > MAXAXIS) {
        errorhead(VB_G1AXBD);
        intline("trying to get bounds of axis nb =", iaxis);
        intline("max axis nb =", MAXAXIS);
        textline("===> RETURNING [0, 10]");
        errortail00();
        usa1 = 0.0f;
        usa2 = 10.0f;
        return;
    }
    usa1 = axisblk7a.USA1(iaxis);
    usa2 = axisblk7a.USA2(iaxis);
}

void s1bx2d(int& ixaxisbx, int& iyaxisbx, int& left, int& right, int& bottom, int& top,
            int& iclipbx, int& izerobx, fstr_ref boxlabel, const int& ibox, const int& inter) {
    const version_block& vb = VB_S1BX2D;
    if (ibox != 1) {
        errorhead(vb);
        intline("trying to set box nb =", ibox);
        intline("max box nb =", MAXBOX);
        textline("===> NO ACTION");
        errortail00();
        return;
    }
    axisblk7a_t& a = axisblk7a;
    if (fetches(inter)) {
        ixaxisbx = a.ixaxisbx;
        iyaxisbx = a.iyaxisbx;
        left = a.IBBORDER(1);
        right = a.IBBORDER(2);
        bottom = a.IBBORDER(3);
        top = a.IBBORDER(4);
        iclipbx = a.iclipbx;
        izerobx = a.izerobx;
        boxlabel.assign(axisblk7b.walabbx.sv());
    } else if (resets(inter)) {
        submenuhead(vb);
        writef(iocom.isout, "(1x,a,1x,i3)", "INITIALIZING BOX NB", ibox);
        ixaxisbx = 1;
        iyaxisbx = 2;
        left = right = bottom = top = 1;
        iclipbx = 0;
        izerobx = 0;
        boxlabel.assign(DEFAULT_BOX_LABEL);
    } else {
        int* axes[2] = {&ixaxisbx, &iyaxisbx};
        for (int k = 0; k < 2; ++k) {
            int& n = *axes[k];
            if (n >= 1 && n <= MAXAXIS) continue;
            errorhead(vb);
            intline("trying to set axis nb =", n);
            intline("max axis nb =", MAXAXIS);
            n = k + 1;
            intline("==> RESET axis nb =", n);
            errortail00();
        }
    }

    if (mode_talks(inter)) {
        for (;;) {
            submenuhead(vb);
            if (iocom.LWITO(2)) {
                intline("SETTING BOX #", ibox);
                textline(DASHED);
                textline("X axis label:", label_of(ixaxisbx));
                intline("X axis nb........................10", ixaxisbx);
                textline("X axis params ...................11");
                textline(RULE35);
                textline("Y axis label:", label_of(iyaxisbx));
                intline("Y axis nb........................20", iyaxisbx);
                textline("Y axis params ...................21");
                textline(DASHED);
                textline("Border types:");
                intline("left ............................30", left);
                intline("right ...........................31", right);
                intline("bottom ..........................32", bottom);
                intline("top .............................33", top);
                textline(DASHED);
                textline("Box label   :", boxlabel.sv());
                intline("Clipping ........................40", iclipbx);
                intline("X=0 & Y=0 mark line .............50", izerobx);
                textline("Change box label ................60");
                textline(DASHED);
                textline("EXIT.............................99");
            }
            const int choice = menuchoice();
            int ierr = 0;
            if (choice == 99) break;
            switch (choice) {
            case 10:
            case 20: {
                textline("Available axes:");
                writef(iocom.isout, "(1x,a20,1x,12x,a2)", "label:", "nb");
                axis_list();
                int& n = choice == 10 ? ixaxisbx : iyaxisbx;
                inintegvindef(n, choice == 10 ? "X axis nb" : "Y axis nb", n, 1, MAXAXIS, ierr);
                break;
            }
            case 11:
            case 21: {
                axis_fields f;
                s1axis(f.USA1, f.USA2, f.WAU1, f.WAU2, f.WAUD, f.WALAS, f.WALAB, f.NAWDIG,
                       f.NASUBINT, choice == 11 ? ixaxisbx : iyaxisbx, 2);
                break;
            }
            case 30:
            case 31:
            case 32:
            case 33: {
                textline("Border types:");
                textline("line+tics+ticmarks+axelabel.......1");
                textline("line+tics+ticmarks................2");
                textline("line+tics.........................3");
                textline("line..............................4");
                textline("nothing...........................5");
                static constexpr std::string_view prompts[4] = {
                    "left border type", "right border type", "bottom border type",
                    "top border type"};
                int* types[4] = {&left, &right, &bottom, &top};
                int& v = *types[choice - 30];
                inintegvindef(v, prompts[choice - 30], v, 1, 5, ierr);
                break;
            }
            case 40: inintegvindef(iclipbx, "clipping (0/1)", iclipbx, 0, 1, ierr); break;
            case 50:
                inintegvindef(izerobx, "draw X=0 & Y=0 lines (0/1)", izerobx, 0, 1, ierr);
                break;
            case 60: {
                const fstr<BOXLABLEN> old = boxlabel.sv();
                inchardef(boxlabel, "box label", old.sv(), ierr);
                break;
            }
            default: break;
            }
        }
    }

    a.ixaxisbx = ixaxisbx;
    a.iyaxisbx = iyaxisbx;
    a.IBBORDER(1) = left;
    a.IBBORDER(2) = right;
    a.IBBORDER(3) = bottom;
    a.IBBORDER(4) = top;
    a.iclipbx = iclipbx;
    a.izerobx = izerobx;
    axisblk7b.walabbx = boxlabel.sv();
}
