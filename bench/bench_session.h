// What the page benchmarks share: a console that answers from a script
// and drops the screen, and the start of a log session as a user gets it.
#pragma once

#include <cmath>
#include <deque>
#include <string>

#include "borehole/wellplot.h"
#include "plot/pages.h"
#include "shell/console.h"
#include "shell/main_program.h"
#include "shell/runinfo.h"
#include "shell/sio.h"
#include "well/welldat.h"
#include "well/wellpara.h"

// Answers from a script, and a blank line once it is spent.
struct scripted_console : console {
    std::deque<std::string> keys;
    void put_line(std::string_view) override {}
    std::string get_line() override {
        if (keys.empty()) return std::string();
        std::string k = keys.front();
        keys.pop_front();
        return k;
    }
};

// The program's start-up without its banner, one routine level below the
// main program, and a plot file on /dev/null with the log layouts.
inline void start_log_session(scripted_console& con) {
    tarnolix_startup(false);
    iocom.lpause = false;
    runinfo3com.levelrt = 1;
    runinfo3com.ROUTNAME(1) = "tarnolix";
    con.keys = {""};  // default page format
    fstr<40> name = "/dev/null";
    plinit(name, 5);
    swellplot(5);  // opening from the defaults cleared the log layouts
}

// A rotating tool stopped in a breakout every 2000 samples, as a table of
// the given type: depth, P1AZ, C1, C2 and, where the type has them, RB,
// DEVI (devi(t) of the sample number t) and HAZI 135. The whole well is
// the interval.
inline void load_breakout_well(int type, float (*devi)(float t)) {
    wdtype(type, 1);
    welldat_t& w = welldat;
    w.ndatwd = MAXDATWD;
    for (int i = 1; i <= MAXDATWD; ++i) {
        const float t = float(i);
        const bool breakout = (i / 1000) % 2 == 1;
        w.RWD1(i, w.JCOL(w.jdepth)) = 2000.f + 0.1524f * t;
        w.RWD1(i, w.JCOL(w.jp1az)) = breakout ? 65.f : std::fmod(0.9f * t, 360.f);
        w.RWD1(i, w.JCOL(w.jc1)) = 25.3f + (breakout ? 5.f + std::sin(0.05f * t) : 0.1f * std::sin(t));
        w.RWD1(i, w.JCOL(w.jc2)) = 25.3f + 0.1f * std::cos(t);
        if (w.jrb > 0) w.RWD1(i, w.JCOL(w.jrb)) = std::fmod(0.9f * t + 200.f, 360.f);
        if (w.jdevi > 0) w.RWD1(i, w.JCOL(w.jdevi)) = devi(t);
        if (w.jhazi > 0) w.RWD1(i, w.JCOL(w.jhazi)) = 135.f;
    }
    wellpara.ztop = 2000.f;
    wellpara.zbot = 2000.f + 0.1524f * float(MAXDATWD);
}
