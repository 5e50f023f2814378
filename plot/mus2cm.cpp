// The panels that show a subplot's map as it is about to be stored, and let
// the user change it.
#include "plot/pages.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/prompts.h"
#include "shell/sio.h"

namespace {

constexpr version_block VB_MUS2CM1{"mus2cm1             ", " 6.6", "2019-10-02"};
constexpr version_block VB_MUS2CM2{"mus2cm2             ", " 7.6", "2019-10-02"};
constexpr version_block VB_MUS2CM3{"mus2cm3             ", " 4.5", "2019-10-02"};

void equals() { writef(iocom.isout, "(1x,42('='))"); }

void conversion_head() {
    equals();
    textline("          CONVERSION SET UP               ");
    equals();
    textline("|  cm  |                   |user units|");
    textline("|  on  | <---------------- |   used   |");
    textline("| plot |                   | in calls |");
    textline(" ");
    textline(" |xcm|                         |xu|");
    textline(" |   | <---------------------- |  |");
    textline(" |ycm|                         |yu|");
    textline(" ");
}

void current_setup_head() {
    equals();
    textline("            Current set up:");
    equals();
}

// Asks whether to alter the values shown; false keeps them.
bool wants_to_alter() {
    bool alter = false;
    int ierr = 0;
    inlogicdef(alter, "Do you want to alter this", false, ierr);
    return alter;
}

void ask(float& v, std::string_view text) {
    int ierr = 0;
    inrealdef(v, text, v, ierr);
}

// The origin and matrix of a map, in the order both map panels ask them.
void ask_map(float& xcm0, float& ycm0, float& xx, float& xy, float& yx, float& yy) {
    ask(xcm0, "xcm0");
    ask(ycm0, "ycm0");
    ask(xx, "xx");
    ask(xy, "xy");
    ask(yx, "yx");
    ask(yy, "yy");
}

}  // namespace

void mus2cm1(float& xcm0, float& ycm0, float& xx, float& xy, float& yx, float& yy) {
    submenuhead(VB_MUS2CM1);
    if (iocom.LWITO(2)) {
        conversion_head();
        textline(" |xcm|     |xx   xy|   |xu|   |xcm0|");
        textline(" |   |  =  |       | * |  | + |    |");
        textline(" |ycm|     |yx   yy|   |yu|   |ycm0|");
        current_setup_head();
        writef(iocom.isout,
               "(1x,a5     ,3x   ,'|',f7.3,1x,f7.3,'|',3x   ,a4    ,3x   ,'|',f7.3,'|')", "|xcm|",
               xx, xy, "|xu|", xcm0);
        writef(iocom.isout, "(1x,'|   |',' = ','|',15x         ,'|',' * ','|  |',' + ','|',7x  ,'|')");
        writef(iocom.isout,
               "(1x,a5     ,3x   ,'|',f7.3,1x,f7.3,'|',3x   ,a4    ,3x   ,'|',f7.3,'|')", "|ycm|",
               yx, yy, "|yu|", ycm0);
        equals();
    }
    if (!wants_to_alter()) return;
    ask_map(xcm0, ycm0, xx, xy, yx, yy);
}

void mus2cm2(float& xcm0, float& ycm0, float& xu0, float& yu0, float& xx, float& xy, float& yx,
             float& yy) {
    submenuhead(VB_MUS2CM2);
    if (iocom.LWITO(2)) {
        conversion_head();
        textline(" |xcm|   |xx   xy|   |xu-xu0|   |xcm0|");
        textline(" |   | = |       | * |      | + |    |");
        textline(" |ycm|   |yx   yy|   |yu-yu0|   |ycm0|");
        current_setup_head();
        writef(iocom.isout,
               "(1x,'|',a3,'|',3x   ,'|',f7.3,1x,f7.3,'|',3x   ,'|',a3,f7.3,'|',3x   ,'|',f7.3,'|')",
               "xcm", xx, xy, "xu-", xu0, xcm0);
        // The middle row is the one of mus2cm1, narrow user column and all.
        writef(iocom.isout, "(1x,'|   |',' = ','|',15x         ,'|',' * ','|  |',' + ','|',7x  ,'|')");
        writef(iocom.isout,
               "(1x,'|',a3,'|',3x   ,'|',f7.3,1x,f7.3,'|',3x   ,'|',a3,f7.3,'|',3x   ,'|',f7.3,'|')",
               "ycm", yx, yy, "yu-", yu0, ycm0);
        equals();
    }
    if (!wants_to_alter()) return;
    ask_map(xcm0, ycm0, xx, xy, yx, yy);
    textline("USER COORDINATES xu0, yu0 OF THE POINT ");
    textline("THAT WILL BE AT  xcm0,ycm0:");
    ask(xu0, "xu0");
    ask(yu0, "yu0");
}

void mus2cm3(float& xcm0, float& ycm0, float& xlcm, float& ylcm, float& xumin, float& xumax,
             float& yumin, float& yumax, int& ixy) {
    submenuhead(VB_MUS2CM3);
    if (iocom.LWITO(2)) {
        current_setup_head();
        textline("     1 - USER UNITS IN USER SPACE         ");
        equals();
        writef(iocom.isout, "(1x,a,f9.3)", "   _|_________________|_  yumax = ", yumax);
        textline("    |                 |");
        textline("    |                 |");
        writef(iocom.isout, "(1x,a,f9.3)", "   _|_________________|_  yumin = ", yumin);
        textline("  xumin             xumax");
        textline(" ");
        textline(" user limits:          xu,yu in user units");
        writef(iocom.isout, "(2(1x,a,f9.3))", " xumin = ", xumin, " yumin = ", yumin);
        writef(iocom.isout, "(2(1x,a,f9.3))", " xumax = ", xumax, " yumax = ", yumax);
        equals();
        textline("     2 - CM UNITS ON PLOT                 ");
        equals();
        textline(" paper limits:               xcm,ycm in cm");
        writef(iocom.isout, "(2(1x,a,f9.3))", " xlcm  = ", xlcm, " ylcm  = ", ylcm);
        writef(iocom.isout, "(2(1x,a,f9.3))", " xcm0  = ", xcm0, " ycm0  = ", ycm0);
        equals();
        if (ixy == 1) {
            textline("X & Y scale imposed equal");
        } else if (ixy == 0) {
            textline("X & Y scale will adjust xlcm & ylcm");
        } else {
            writef(iocom.isout, "(1x,a,i6,a)", "WARNING: ixy = ", ixy, " neither 0 nor 1");
            textline("      will have same effect as ixy = 0");
        }
        equals();
    }
    if (!wants_to_alter()) return;
    ask(xumin, "xumin");
    ask(xumax, "xumax");
    ask(yumin, "yumin");
    ask(yumax, "yumax");
    ask(xcm0, "xcm0");
    ask(ycm0, "ycm0");
    ask(xlcm, "xlcm");
    ask(ylcm, "ylcm");
    int ierr = 0;
    inintegvindef(ixy, "Whether X scale = Y scale (0/1) ?", ixy, 0, 1, ierr);
}
