#include "shell/runinfo.h"

#include <string>

#include "shell/figures.h"
#include "shell/format.h"
#include "shell/frames.h"
#include "shell/intera.h"
#include "shell/prompts.h"
#include "shell/sio.h"
#include "shell/textlen.h"
#include "shell/units.h"

runinfo3com_t runinfo3com;

namespace {

constexpr version_block VB_SWPINFO{"swpinfo    ", " 1.1", "2021-02-27"};
constexpr version_block VB_WRITERUNINFO{"writeruninf", " 2.3", "2021-02-28"};

// The routine levels the record keeps; deeper ones are counted, not named.
constexpr int MAXLEVEL = 3;

std::string str(std::string_view s) { return std::string(s); }

void level_line(std::string_view text, int value) {
    writef(iocom.isout, "(1x,a,1x,i4)", text, value);
}

void code_line(std::string_view text, int value) {
    writef(iocom.isout, "(1x,a,1x,i5)", text, value);
}

// A banner or report line: a rule and a border.
void rule() { writef(iocom.isout, "(1x,'@',49('-'))"); }
void border() { writef(iocom.isout, "(1x,50('@'))"); }

}  // namespace

void smaininfo2(std::string_view name, std::string_view version, std::string_view date) {
    auto& r = runinfo3com;
    r.levelrt = 1;
    r.ROUTNAME(1) = name;
    r.ROUTVERS(1) = version;
    r.ROUTDATE(1) = date;
    r.icmdrun = 0;

    int code = 0;
    swpinfo(code, 5);

    username(r.usernm);
    hostname(r.hostnam);
    osversion(r.osname);
    hardinfo(r.cpuname);

    date10_time8(r.date0, r.time0);

    // Only the count is kept: the rate and the maximum are read again at
    // the end.
    runinfo_platform.cpu_time(r.tcpu0);
    int rate = 0, count_max = 0;
    runinfo_platform.system_clock(r.iclock0, rate, count_max);
}

void ssubinfo2(std::string_view name, std::string_view version, std::string_view date) {
    auto& r = runinfo3com;
    r.levelrt += 1;
    if (r.levelrt >= 1 && r.levelrt <= MAXLEVEL) {
        r.ROUTNAME(r.levelrt) = name;
        r.ROUTVERS(r.levelrt) = version;
        r.ROUTDATE(r.levelrt) = date;
        return;
    }
    warninghead(name, version, date);
    level_line("Current routine level =", r.levelrt);
    level_line("Can store up to level =", MAXLEVEL);
    textline("=> Subroutine information not registered");
    warningtail00();
}

void ssubexitinfo(std::string_view name, std::string_view version, std::string_view date) {
    auto& r = runinfo3com;
    if (r.levelrt > 1) {
        r.levelrt -= 1;
        return;
    }
    errorhead(name, version, date);
    level_line("Current routine level =", r.levelrt);
    textline("Cannot decrease subroutine level");
    errortail00();
}

void scmndinfo(const int& command) { runinfo3com.icmdrun = command; }

void swpinfo(int& code, const int& intera) {
    if (mode_from_caller(intera)) {
        if (code < 0 || code > 3) {
            warninghead(VB_SWPINFO);
            textline("RUN INFO CODE OUT OF RANGE:");
            code_line(" run info code =", code);
            code_line(" min =", 0);
            code_line(" max =", 3);
            code = 0;
            code_line("==> RESET run info code =", code);
            warningtail00();
        }
    } else if (mode_from_store(intera)) {
        code = runinfo3com.iruninfo;
    } else if (mode_resets(intera)) {
        code = 0;
        if (intera == 5) {
            submenuhead(VB_SWPINFO);
            textline("INITIALISING RUN INFO");
        }
    }

    if (mode_known(intera) && mode_talks(intera)) {
        submenuhead(VB_SWPINFO);
        textline(DASHED);
        textline("   RUN INFORMATION TO WRITE AND PLOT");
        textline(DASHED);
        code_line("run info code current value =", code);
        textline("date+user+host+os+hardw+main+subr+cmnd...0");
        textline("date+user+host+os+hardw+main+subr     ...1");
        textline("date          +os+hardw+main+subr+cmnd...2");
        textline("date          +os+hardw+main+subr     ...3");
        menutail();
        int ierr = 0;
        inintegvindef(code, "run info code", code, 0, 3, ierr);
    }

    if (mode_known(intera)) {
        runinfo3com.iruninfo = code;
    } else {
        warninghead(VB_SWPINFO);
        code_line("inter =", intera);
        textline("===> NO ACTION");
        warningtail00();
    }
}

void progheadzk2() {
    const auto& r = runinfo3com;
    border();
    textline("@");
    textline("@          MAIN PROGRAM:", trimmed(r.ROUTNAME(1).sv()));
    textline("@               Version:", trimmed(r.ROUTVERS(1).sv()));
    textline("@                  Date:", r.ROUTDATE(1).sv());
    textline("@");
    rule();
    textline("@");
    writef(iocom.isout, "(5(1x,a))", "@       Starting on", r.date0, "at", r.time0);
    // Still 0 at this point of the run: the banner names user and host.
    if (r.iruninfo == 0 || r.iruninfo == 1) {
        textline("@      User:", trimmed(r.usernm.sv()));
        textline("@      Host:", trimmed(r.hostnam.sv()));
    }
    textline("@    System:", trimmed(r.osname.sv()));
    textline("@       CPU:", trimmed(r.cpuname.sv()));
    textline("@");
    rule();
    textline("@");
    textline("@                   Written by:");
    textline("@                Ansel KORDEMVAIT");
    textline("@");
    textline("@                   Hosted by:");
    textline("@             Harvenhold Earth Centre");
    textline("@        Ostrelund Polytechnic Foundation");
    textline("@               Ostrelund, Varnesia");
    textline("@         https://github.com/tarnolix/tarnolix");
    textline("@");
    textline("@      Report of any problem is appreciated");
    textline("@");
    rule();
    textline("@             HIT RETURN TO CONTINUE");
    border();
    std::string rec;
    unit_read(iocom.isin, rec);
}

void progtail2() {
    const auto& r = runinfo3com;
    border();
    textline("@ PROGRAM", trimmed(r.ROUTNAME(1).sv()));
    textline("@ Version:", trimmed(r.ROUTVERS(1).sv()));
    writef(iocom.isout, "(5(1x,a))", "@ STARTED    ON:", r.date0, "AT", r.time0);

    fstr<10> date;
    fstr<8> time;
    date10_time8(date, time);
    writef(iocom.isout, "(5(1x,a))", "@ TERMINATED ON:", date, "AT", time);

    int count = 0, rate = 0, count_max = 0;
    runinfo_platform.system_clock(count, rate, count_max);
    if (rate == 0) {
        textline("@ Could not compute elapsed system clock time");
    } else {
        // A count at or below the start has wrapped once.
        long long now = count;
        if (count <= r.iclock0) now += count_max;
        float elapsed = float(now - r.iclock0) / float(rate);
        if (elapsed > 120.0f)
            writef(iocom.isout, "(1x,a,1x,f11.3,1x,a)", "@ ELAPSED TIME =", elapsed / 60.0f, "mn");
        else
            writef(iocom.isout, "(1x,a,1x,f11.3,1x,a)", "@ ELAPSED TIME =", elapsed, "seconds");
        // The period past which the elapsed time is ambiguous.
        writef(iocom.isout, "(1x,a,1x,f11.3,1x,a)", "@       modulo  ",
               float(count_max) / (float(rate) * 60.0f), "mn");
    }

    float tcpu = 0.0f;
    runinfo_platform.cpu_time(tcpu);
    float cpu = tcpu - r.tcpu0;
    if (cpu > 120.0f)
        writef(iocom.isout, "(1x,a,1x,f11.3,1x,a)", "@ CPU TIME     =", cpu / 60.0f, "mn");
    else
        writef(iocom.isout, "(1x,a,1x,f11.3,1x,a)", "@ CPU TIME     =", cpu, "seconds");

    writef(iocom.isout, "(1x,1('@'),49('-'))");
    tailfigure(time(8));
    border();
}

void writeruninfo2(const int& unit) {
    const auto& r = runinfo3com;
    fstr<60> line;
    auto put = [&] { writef(unit, "(10(1x,a))", trimmed(line.sv())); };

    fstr<10> date;
    fstr<8> time;
    date10_time8(date, time);
    line = "Run on " + str(date) + " at " + str(time);
    put();
    if (r.iruninfo == 0 || r.iruninfo == 1) {
        line = "By " + str(trimmed(r.usernm.sv())) + " on " + str(trimmed(r.hostnam.sv()));
        put();
    }
    line = "System : " + str(trimmed(r.osname.sv())) + " " + str(trimmed(r.cpuname.sv()));
    put();

    if (r.levelrt < 1) {
        errorhead(VB_WRITERUNINFO);
        level_line("Current routine level =", r.levelrt);
        level_line("Can store up to level =", MAXLEVEL);
        textline("=> No program information");
        errortail00();
        line = "*** program information ERROR : routine level < 1 ***";
        put();
        return;
    }

    line = "Main program : " + str(r.ROUTNAME(1)) + " v" + str(r.ROUTVERS(1)) + " on " +
           str(r.ROUTDATE(1));
    put();
    const int top = r.levelrt < MAXLEVEL ? r.levelrt : MAXLEVEL;
    for (int i = 2; i <= top; ++i) {
        line = "Subroutine " + std::to_string(i - 1) + " : " + str(r.ROUTNAME(i)) + " v" +
               str(r.ROUTVERS(i)) + " on " + str(r.ROUTDATE(i));
        put();
    }

    if (r.levelrt > MAXLEVEL) {
        warninghead(VB_WRITERUNINFO);
        level_line("Current subroutine level     =", r.levelrt - 1);
        level_line("Information only up to level =", MAXLEVEL - 1);
        warningtail00();
        line = formatf("(a,1x,i4)", "Current subroutine level     =", r.levelrt - 1);
        put();
        line = formatf("(a,1x,i4)", "Information only up to level =", MAXLEVEL - 1);
        put();
    }

    if (r.iruninfo == 0 || r.iruninfo == 2) {
        line = " Command = " + str(trimmed(formatf("(i4)", r.icmdrun)));
        put();
    }
}
