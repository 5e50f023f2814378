// The log analysis menu: one pass of its loop takes one command; a plot
// command (100 to 400) gets a page of its own, the computations it needs,
// the page head and then every track routine, each of which draws what the
// command asks of it.
#include "borehole/logplot2.h"

#include <string>

#include "borehole/derived.h"
#include "borehole/tracks.h"
#include "borehole/wellplot.h"
#include "plot/attributes.h"
#include "plot/axes/axes.h"
#include "plot/pages.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/intera.h"
#include "shell/menus.h"
#include "shell/prompts.h"
#include "shell/runinfo.h"
#include "shell/sio.h"
#include "shell/textconv.h"
#include "well/welldat.h"
#include "well/wellpara.h"

namespace {

// Settings kept from one stay in the menu to the next.
struct logsaved_t {
    fstr<40> fplotlog;  // plot file name
    int icsat;          // "Csat activated ?": asked and listed only; the
                        // saturation limits act through the size codes
    int nrotf;          // intervals of the forward rotation
    int nrotc;          // intervals of the central rotation, even
    int isymlog;        // symbol type of the log tracks
    float symsizelog;   // their symbol size, cm
};
logsaved_t logsaved{"log.ps", 0, 66, 66, 5, 0.2f};


void menu(bool lupdate) {
    const int out = iocom.isout;
    menublock("PLOT PARAMS                       Command");
    textline("Open plot file ........................10");
    flagline("Landscape(T)/Portrait(F) ..............11", wellplot.llandscape);
    textline("Set plot and axes params ..............13");
    textline("Boxes set up ..........................15");
    textline("Local symbol type .....................16");
    textline("Local symbol size .....................17");
    textline("Close plot file .......................20");
    int ilist = 1;
    wellstatus(ilist);
    swellparam(10);
    textline("Change hole parameters ................50");
    menublock("PARAMETERS                        Command");
    flagline("Update computations :", lupdate);
    writef(out, "(1x,a,1x,i6,1x,a)", "Csat activated ?......................855", logsaved.icsat);
    writef(out, "(1x,a,1x,i6,1x,a)", "Nb intervals for forward rotation ....856", logsaved.nrotf);
    writef(out, "(1x,a,1x,i6,1x,a)", "Nb intervals for central rotation ....857", logsaved.nrotc);
    menublock("CROSS PLOT                        Command");
    textline("AzCmax[180]-DC .......................101");
    menublock("MULTIPLE PLOTS (Z)                Command");
    static const char* const plots[] = {
        "Xsct,C12,P1Az360,DEV,HAZ,RB360 .......301",
        "Cex,AzCmx180,P1Az90,P1Az360,Rotf1,2 ..302",
        "Cex,AzCmx180,P1Az90,P1Az360,Rotc1,2 ..303",
        "C12,P1Az360,DEV,HAZ,RB360,Rotcdif.....304",
        "C12,P1Az360,DEV,HAZ,RB360,Rotclsq.....305",
        "C12,|DC|,DC,Cmin-BS,ACmx,RBCmx .......320",
        "ASE test < 0 .........................321",
        "ASE test > 0 .........................322",
        "ADE test < 0 .........................323",
        "ADE test > 0 .........................324",
        "ARK (KS) test < 0 ....................325",
        "ARK (KS) test > 0 ....................326",
        "ASE combined tests > 0 ...............332",
        "ASE combined tests > 0 + W ...........333",
        "ADE combined tests > 0 ...............334",
        "ADE combined tests > 0 + W ...........335",
        "|DC| test ............................350",
        "C Saturation test ....................351",
        "P1Az360,Rotf1,Rotf2,test<0,test>0 ....353",
        "RB,RBCmx,RB test .....................354",
        "C12,11 Csize Couples .................355",
        "C12,|DC|,RBCmx,8 Elong Categories ....356",
        "C12,|DC|,RBCmx,P1Az360,ASE,ADE .......357",
        "C12,|DC|,RBCmx,7 Elong Categories ....358",
        "C12,|DC|,RBCmx,P1Az360,ASE,ADE .......359",
        "C12,|DC|,RBCmx,P1Az360,ASE,ADE,BO,POW.360",
        "C12,|DC|,RBCmx,AzCmax+P1Az180,X+S,S ..361",
        "C12,|DC|,RBCmx,AzCmax+P1Az180,BO,POW .362",
    };
    for (const char* l : plots) textline(l);
    menublock("OUTPUT TO FILE ...................Command");
    textline("FULL OUTPUT ..........................500");
    menurule();
    textline("EXIT THIS SUBROUTINE ..................99");
    menutail();
}


// Command 15: the box every track draws through.
void boxsetup() {
    int bx = 0, by = 0, left = 0, right = 0, bottom = 0, top = 0, iclip = 0, izero = 0;
    fstr<BOXLABLEN> label;
    s1bx2d(bx, by, left, right, bottom, top, iclip, izero, label, 1, 2);
}

// Command 856.
void forwardintervals() {
    menurule();
    textline("             forward rotation");
    textline("       Entering number of intervals");
    textline(" Number of interval = number of points - 1");
    textline("         THIS NUMBER MUST BE > 1");
    menurule();
    int ierr = 0;
    inintegvindef(logsaved.nrotf, "Number of intervals", logsaved.nrotf, 1, 1000, ierr);
}

// Command 857: the central difference needs as many points on each side.
void centralintervals() {
    menurule();
    textline("           central rotation");
    textline("     Entering number of intervals");
    textline(" Number of interval = number of points - 1");
    textline("      THIS NUMBER MUST BE EVEN AND > 1");
    menurule();
    int nint = logsaved.nrotc, ierr = 0;
    inintegvindef(nint, "EVEN number of intervals", logsaved.nrotc, 2, 1000, ierr);
    if (nint % 2 == 0) {
        logsaved.nrotc = nint;
        return;
    }
    warninghead(VB_LOGPLOT2);
    intline("Entered nb of intervals =", nint);
    textline("CENTERED ROTATION");
    textline("NB OF INTERVALS MUST BE EVEN");
    textline("=> DISCARDING INPUT");
    textline("=> KEEPING OLD STORED VALUE");
    intline("Stored nb of intervals =", logsaved.nrotc);
    warningtail00();
}

bool plotcommand(int icmd) { return icmd >= 100 && icmd <= 400; }


// The head of a plot page: the depth and azimuth scales of the selection,
// then the run information, the data information and the parameters that
// the page's tracks depend on.
void pageframe(int icmd, int itop, int ibot, bool ldata, bool lcal) {
    const welldat_t& w = welldat;
    const wellpara_t& p = wellpara;
    if (ldata) {
        axisedit a(AXDEPTH);
        a.usa1 = a.wau1 = p.ztop;
        a.usa2 = a.wau2 = p.zbot;
        a.walab = w.NAMVAR(w.jdepth);
    }
    if (lcal) {
        trackaxisrange(AXAZCMAXTEST, p.azcmaxorig, p.azcmaxorig + 180.0f);
        trackaxisrange(AXAZCMAXCAT, p.azcmaxorig, p.azcmaxorig + 180.0f);
    }

    const auto [x, y] = wellpagehead(w.finwd.sv());
    attributekept<int> entryalign(stextalign);
    int align = -3;
    stextalign(align, 1);
    // The lines need a selection; without data there is none to describe.
    if (ldata && ibot >= itop) {
        auto num = [](float v) { return realtext(v, 2, 12); };
        const int jdep = w.JCOL(w.jdepth);
        // The increment is that of the file's first two rows, wherever the
        // selection starts.
        const float inc = w.ndatwd >= 2 ? w.RWD1(2, jdep) - w.RWD1(1, jdep) : 0.0f;
        cmplotcharinfo2("Depth init = " + num(w.RWD1(itop, jdep)) + " final = " +
                            num(w.RWD1(ibot, jdep)) + " inc = " + num(inc), 1, x, y);
        // 362 stops short of the test parameters on purpose.
        const bool tests = (icmd >= 321 && icmd <= 351) || (icmd >= 354 && icmd <= 361);
        if (tests) {
            cmplotcharinfo2("BS = " + num(p.bitsize) + " t1 = " + num(-p.cbsmin) + " t2 = " +
                                num(p.cbsmax), 2, x, y);
            cmplotcharinfo2("C1Sat = " + num(p.c1sat) + " C2Sat = " + num(p.c2sat), 3, x, y);
            cmplotcharinfo2("DCt = " + num(p.cdiff) + " RBt = " + num(p.rbcmaxthr), 4, x, y);
        } else if (icmd == 303 || icmd == 304 || icmd == 305) {
            cmplotcharinfo2("Centered rotation on " + integtext(logsaved.nrotc) + " intervals", 2,
                            x, y);
        } else if (icmd == 302 || icmd == 353) {
            cmplotcharinfo2("Forward rotation on " + integtext(logsaved.nrotf) + " intervals", 2,
                            x, y);
        }
    }
}

}  // namespace

void logplot2(const int& intera) {
    logsaved_t& s = logsaved;
    if (mode_resets(intera)) {
        submenuhead(VB_LOGPLOT2);
        textline("INITIALIZING LOG PLOT PARAMETERS");
        s = logsaved_t{"log.ps", 0, 66, 66, 5, 0.2f};
        return;
    }
    ssubinfo2(VB_LOGPLOT2.name, VB_LOGPLOT2.version, VB_LOGPLOT2.date);

    // The IWD1 columns, passed on so that no track uses the numbers.
    const int icwork = IWD_WORK;
    const int icsize = IWD_SIZE, icdc = IWD_DC, icmax = IWD_MAX, icrb = IWD_RB;

    // Entering: box 1 across the AzCmax scale and down the depth.
    {
        boxedit b;
        b.ix = AXAZCMAXTEST;
        b.iy = AXDEPTH;
        b.left = b.right = b.bottom = b.top = 1;
        b.label = "log plot";
    }
    // The symbols of the tracks are the log's own; those in force come back
    // on leaving.
    int isymentry = 0;
    float symsizentry = 0.0f;
    ssymboltype(isymentry, 3);
    ssymbolsize(symsizentry, 3);
    ssymboltype(s.isymlog, 1);
    ssymbolsize(s.symsizelog, 1);

    farr<int, 2> jcc;
    jcc.fill(0);
    bool ldata = false, lcal = false, lazc = false, lrb = false;
    logdatacheck(jcc, ldata, lcal, lazc, lrb);
    logstage1(lazc, jcc, icmax, lcal, lrb);

    bool lupdate = true;
    int itop = 1, ibot = 0, nsel = 0;
    int icmd = 0, ierr = 0;
    for (;;) {
        if (iocom.LWITO(1)) submenuhead(VB_LOGPLOT2);
        if (iocom.LWITO(2)) menu(lupdate);
        ininteg1(icmd, "your choice", ierr);
        if (icmd >= 100 && icmd <= 500) scmndinfo(icmd);

        switch (icmd) {
        case 11: swellorientation("Use Landscape(1) or Portrait(0) A4", true); break;
        case 13: swellplot(2); break;
        case 15: boxsetup(); break;
        case 16: ssymboltype(s.isymlog, 2); break;
        case 17: ssymbolsize(s.symsizelog, 2); break;
        case 50:
            swellparam(0);
            lupdate = true;
            break;
        case 855:
            inintegvindef(s.icsat, "whether to filter out saturation (0/1)", s.icsat, 0, 1, ierr);
            lupdate = true;
            break;
        case 856:
            forwardintervals();
            lupdate = true;
            break;
        case 857:
            centralintervals();
            lupdate = true;
            break;
        default: break;
        }
        if (icmd == 99) break;

        // Without data a plot command would have nothing to stand on: say
        // so again and take no page.
        if (plotcommand(icmd) && !ldata) {
            logdatacheck(jcc, ldata, lcal, lazc, lrb);
            continue;
        }
        // Equal depths leave the tracks no height to draw on: no page.
        if (plotcommand(icmd) && wellpara.ztop == wellpara.zbot) {
            warninghead(VB_LOGPLOT2);
            textline("Depth interval of zero size:");
            realline("Ztop =", wellpara.ztop);
            realline("Zbot =", wellpara.zbot);
            textline("=> SKIPPING PLOT");
            warningtail00();
            continue;
        }

        if (icmd == 20)
            plend();
        else if (iocom.lplotopen && plotcommand(icmd))
            newpage();
        else if (icmd == 10 || plotcommand(icmd))
            plinit(s.fplotlog, 2);

        if (plotcommand(icmd) && lupdate) {
            int fail = 0;
            logstage2(fail, itop, ibot, nsel, lupdate, jcc, icsize, icdc, icmax, icrb, ldata,
                      lcal, lrb);
            // The page already begun stays blank; the next plot command
            // tries the selection again.
            if (fail != 0) continue;
        }
        if (plotcommand(icmd)) pageframe(icmd, itop, ibot, ldata, lcal);

        // The tracks, in their fixed order.
        log_dat_plot3(itop, ibot, ldata, lcal, lazc, lrb, icmd);
        if (lcal) log_p1az_plot(itop, ibot, icmd);
        if (lcal && (icmd == 302 || icmd == 303 || icmd == 304 || icmd == 305 || icmd == 353))
            log_rot_plot(itop, ibot, s.nrotf, s.nrotc, icmd);
        if (lazc) {
            if (icmd == 355 || icmd == 361)
                log_azcm_11cdcat_plot2(icsize, itop, ibot, nsel, icmd);
            // The category pages (with RB) are the category routines';
            // every other command goes to the shape tests.
            if (lrb && (icmd == 356 || icmd == 357))
                log_azcm_8hgcat_plot(icwork, icsize, icdc, icrb, itop, ibot, nsel, icmd);
            else if (lrb && icmd >= 358 && icmd <= 362)
                log_azcm_7hgcat_plot(icwork, icsize, icdc, icrb, itop, ibot, nsel, icmd);
            else
                log_azcm_tst_plot(icwork, icsize, icdc, icrb, itop, ibot, nsel, jcc, lrb, icmd);
        }
        if (lazc && (icmd == 360 || icmd == 362)) log_azcm_select_plot();
        trackend();
        if (ldata && icmd == 500) log_full_output();
    }

    ssymboltype(isymentry, 1);
    ssymbolsize(symsizentry, 1);
    ssubexitinfo(VB_LOGPLOT2.name, VB_LOGPLOT2.version, VB_LOGPLOT2.date);
}
