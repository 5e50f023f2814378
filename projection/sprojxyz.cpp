// The setting routines of the projections: the choice of kind and, for
// each kind, its parameters with their menus. What the user gave is kept
// apart from what the projection loops use, so that the next dialogue
// starts from the user's own numbers.
#include <cmath>
#include <string>

#include "math/angles.h"
#include "projection/projection.h"
#include "shell/format.h"
#include "shell/intera.h"
#include "shell/prompts.h"
#include "shell/sio.h"

namespace {

void rule(int n) { textline(std::string(std::size_t(n), '-')); }
void value_line(std::string_view s, float v) { writef(iocom.isout, "(1x,5(a,1x,f7.2))", s, v); }

// The fixed axonometric kinds 2 to 7: angles of Ox, Oy, Oz in degrees,
// then their reductions.
struct axono_kind {
    const char* menu;
    float angle[3];
    float red[3];
};
const axono_kind AXONO_KINDS[7] = {
    {"Axonometric general ....................1 ", {0, 0, 0}, {0, 0, 0}},
    {"cavaliere fuite x ......................2 ", {45, 180, 90}, {0.5f, 1, 1}},
    {"cavaliere fuite y ......................3 ", {0, 45, 90}, {1, 0.5f, 1}},
    {"isometric ..............................4 ", {30, 150, 90}, {0.82f, 0.82f, 0.82f}},
    {"trimetric ..............................5 ", {30, 165, 90}, {0.65f, 0.86f, 0.92f}},
    {"dimetric ...............................6 ", {41.5f, 138.5f, 90}, {0.94f, 0.94f, 0.47f}},
    {"dimetric upturned ......................7 ", {15, 165, 90}, {0.73f, 0.73f, 0.96f}},
};

// The general kind: every angle and reduction by hand, until 99.
void axono_general(farr<float, 3>& angles, farr<float, 3>& red) {
    static const char* const items[6] = {
        " Ox angle.....................1", " Oy angle.....................2",
        " Oz angle.....................3", " Ox reduction.................4",
        " Oy reduction.................5", " Oz reduction.................6"};
    int ierr = 0;
    for (;;) {
        submenuhead(VB_SAXONO2);
        rule(39);
        textline("Current parameters (angles in degrees):");
        rule(39);
        for (int k = 1; k <= 6; ++k) value_line(items[k - 1], k <= 3 ? angles(k) : red(k - 3));
        rule(39);
        textline("PARAMETERS ARE OK, PROCEED...99");
        int choice = 99;
        inintegvindef(choice, "your choice", 99, 1, 99, ierr);
        if (choice == 99) return;
        if (choice >= 1 && choice <= 3)
            inrealdef(angles(choice), "angle in degrees", angles(choice), ierr);
        else if (choice >= 4 && choice <= 6)
            inrealdef(red(choice - 3), "reduction", red(choice - 3), ierr);
    }
}

float length3(const farr<float, 3>& v) { return std::sqrt(v(1) * v(1) + v(2) * v(2) + v(3) * v(3)); }

}  // namespace

void saxono2(farr<float, 3>& angles, farr<float, 3>& red, int& itype, const int& inter) {
    if (mode_from_store(inter)) {
        itype = 1;
        angles = uaxon.UALFAX;
        red = uaxon.REDU;
    }
    if (mode_resets(inter)) {
        submenuhead(VB_SAXONO2);
        textline(" INITIALIZING AXONOMETRIC PROJECTION");
        textline(" TO: isometric");
        itype = 4;
    }
    if (mode_talks(inter)) {
        submenuhead(VB_SAXONO2);
        rule(42);
        textline("AVAILABLE AXONOMETRIC PROJECTIONS:        ");
        rule(42);
        for (const axono_kind& k : AXONO_KINDS) textline(k.menu);
        menutail();
        int ierr = 0;
        inintegvindef(itype, "projection number", itype, 1, 7, ierr);
        if (itype == 1) axono_general(angles, red);
    }
    if (itype >= 2 && itype <= 7) {
        const axono_kind& k = AXONO_KINDS[itype - 1];
        for (int i = 1; i <= 3; ++i) {
            angles(i) = k.angle[i - 1];
            red(i) = k.red[i - 1];
        }
    }
    uaxon.UALFAX = angles;
    uaxon.REDU = red;
    for (int i = 1; i <= 3; ++i) {
        axon.ALFAX(i) = rad(angles(i));
        axon.COSA(i) = std::cos(axon.ALFAX(i)) * red(i);
        axon.SINA(i) = std::sin(axon.ALFAX(i)) * red(i);
    }
}

void snatper(float& azim, float& alti, farr<float, 3>& OEPE, float& dist, const int& inter) {
    if (mode_from_store(inter)) {
        azim = unape.uazim;
        alti = unape.ualti;
        OEPE = unape.UOEPE;
        dist = unape.udist;
    }
    if (mode_resets(inter)) {
        submenuhead(VB_SNATPER);
        textline(" INITIALIZING NATURAL PERSPECTIVE");
        azim = -45.0f;
        alti = -45.0f;
        OEPE(1) = -10.0f;
        OEPE(2) = -10.0f;
        OEPE(3) = 10.0f;
        dist = length3(OEPE);
    }
    if (mode_talks(inter)) {
        int ierr = 0;
        for (;;) {
            submenuhead(VB_SNATPER);
            rule(39);
            textline("Current parameters (angles in degrees):");
            rule(39);
            textline("View direction angles (in degrees):");
            value_line(" azimuth......................1", azim);
            value_line(" altitude.....................2", alti);
            textline("View point cartesian coordinates in E:");
            value_line(" X............................3", OEPE(1));
            value_line(" Y............................4", OEPE(2));
            value_line(" Z............................5", OEPE(3));
            textline("Distance to 1:1 scale plane:");
            value_line(" Distance.....................6", dist);
            textline(" Set scale 1:1 at Oe..........7");
            rule(39);
            textline("PARAMETERS ARE OK, PROCEED...99");
            int choice = 99;
            inintegvindef(choice, "your choice", 99, 1, 99, ierr);
            if (choice == 99) break;
            switch (choice) {
            case 1: inrealdef(azim, "azimuth in degrees", azim, ierr); break;
            case 2: inrealdef(alti, "altitude in degrees", alti, ierr); break;
            case 3:
            case 4:
            case 5:
                inrealdef(OEPE(choice - 2), "cartesian coordinate in E", OEPE(choice - 2), ierr);
                break;
            case 6: inrealdef(dist, "distance to 1:1 scale plane", dist, ierr); break;
            case 7: dist = length3(OEPE); break;
            default: break;
            }
        }
    }
    unape.uazim = azim;
    unape.ualti = alti;
    unape.UOEPE = OEPE;
    unape.udist = dist;
    nppf.dpp = dist;
    farr<float, 2> a;
    a(1) = rad(azim);
    a(2) = rad(alti);
    epll132(nape.MPE, a);
    for (int i = 1; i <= 3; ++i) nape.OPE(i) = nppf.dpp * nape.MPE(3, i) + OEPE(i);
}

void sorthoproj(int& iortho, const int& inter) {
    if (mode_from_store(inter)) iortho = orthocom.iortho;
    if (mode_resets(inter)) {
        submenuhead(VB_SORTHOPROJ);
        textline(" INITIALIZING ORTHOGONAL PROJECTION");
        textline(" TO: // z");
        iortho = 3;
    }
    if (mode_talks(inter)) {
        submenuhead(VB_SORTHOPROJ);
        textline("AVAILABLE ORTHOGONAL PROJECTIONS:       ");
        rule(40);
        textline(" // x into y,z plane .................1 ");
        textline(" // y into x,z plane .................2 ");
        textline(" // z into x,y plane .................3 ");
        menutail();
        int ierr = 0;
        inintegvindef(iortho, "your choice", iortho, 1, 3, ierr);
    }
    orthocom.iortho = iortho;
}

void sprojxyz(int& iproj, const int& inter) {
    bool forced = false;
    if (mode_from_caller(inter) && (iproj < 1 || iproj > 3)) {
        errorhead(VB_SPROJXYZ);
        writef(iocom.isout, "(1x,a,1x,i6)", " iproj =", iproj);
        textline(" NO SUCH PROJECTION AVALAIBLE ");
        iproj = 1;
        writef(iocom.isout, "(1x,a,1x,i6)", " ==> RESETTING iproj =", iproj);
        errortail00();
        forced = true;
    }
    if (mode_from_store(inter)) iproj = projcatype.iproj;
    if (mode_resets(inter)) {
        iproj = 1;
        submenuhead(VB_SPROJXYZ);
        textline(" INITIALIZING ");
        textline(" 1 - DEFAULT PROJECTION TO: axonometric");
    }
    if (mode_talks(inter) || forced) {
        submenuhead(VB_SPROJXYZ);
        rule(40);
        textline(" Setting up Projection (X,Y,Z) -> (x,y) ");
        textline("        AVAILABLE PROJECTIONS:          ");
        rule(40);
        textline(" Axonometric  .........................1");
        textline(" Natural perpective ...................2");
        textline(" Orthogonal projection ................3");
        menutail();
        int ierr = 0;
        inintegvindef(iproj, "your choice", iproj, 1, 3, ierr);
    }
    projcatype.iproj = iproj;

    // The parameter routines take the stored values after a choice.
    const int k = inter == 0 ? 2 : inter == 1 ? 3 : inter;
    farr<float, 3> angles{}, red{}, oepe{};
    int itype = 1, iortho = 3;
    float azim = 0.0f, alti = 0.0f, dist = 0.0f;
    if (mode_resets(inter)) {
        submenuhead(VB_SPROJXYZ);
        textline(" INITIALIZING ");
        textline(" 2 - ALL PROJECTIONS PARAMETERS");
        saxono2(angles, red, itype, inter);
        snatper(azim, alti, oepe, dist, inter);
        sorthoproj(iortho, inter);
        return;
    }
    switch (iproj) {
    case 1: saxono2(angles, red, itype, k); break;
    case 2: snatper(azim, alti, oepe, dist, k); break;
    case 3: sorthoproj(iortho, k); break;
    default: break;
    }
}
