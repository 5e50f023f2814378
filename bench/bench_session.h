// What the page benchmarks share: a console that answers from a script
// and drops the screen, and the start of a log session as a user gets it.
#pragma once

#include <deque>
#include <string>

#include "borehole/wellplot.h"
#include "plot/pages.h"
#include "shell/console.h"
#include "shell/main_program.h"
#include "shell/runinfo.h"
#include "shell/sio.h"

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
