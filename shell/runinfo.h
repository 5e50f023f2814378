// Run information: how every product of a run was made (date, user, host,
// system, processor, main program and routine versions, command). The facts
// are gathered once at start-up; the routine level is tracked during the
// run; the record is printed as the start banner and end report, written at
// the head of text tables and drawn on plots.
#pragma once

#include <string_view>

#include "shell/fixed.h"

struct runinfo3com_t {
    int levelrt;                 // current routine level; 1 for the main program
    int icmdrun;                 // last command recorded by scmndinfo
    int iruninfo;                // run info code, 0 to 3
    int iclock0;                 // system clock count at start
    float tcpu0;                 // process CPU time at start, seconds
    farr<fstr<11>, 3> ROUTNAME;  // routine at levels 1 to 3
    farr<fstr<4>, 3> ROUTVERS;   // its version
    farr<fstr<10>, 3> ROUTDATE;  // its date
    fstr<13> osname;             // system text
    fstr<30> cpuname;            // processor text
    fstr<35> hostnam;            // host name
    fstr<10> usernm;             // user name
    fstr<10> date0;              // start date, yyyy-mm-dd
    fstr<8> time0;               // start time, hh:mm:ss
};
extern runinfo3com_t runinfo3com;

void smaininfo2(std::string_view name, std::string_view version, std::string_view date);
void ssubinfo2(std::string_view name, std::string_view version, std::string_view date);
void ssubexitinfo(std::string_view name, std::string_view version, std::string_view date);
void scmndinfo(const int& command);
// Run info code: 0 all, 1 all but the command, 2 all but user and host,
// 3 neither. intera as every menu routine (4 and 5 reset to 0).
void swpinfo(int& code, const int& intera);

// Start banner; waits for the return key.
void progheadzk2();
// End report: start and end, elapsed and CPU time, and a figure.
void progtail2();
// The run information as text lines on a unit.
void writeruninfo2(const int& unit);

// The run information as plot text from (x, y) downward, at half the
// current text size.
void cmplotruninfo2(const float& x, const float& y);
// One more line under such a block, at the given line number (1 is y).
void cmplotcharinfo2(std::string_view text, const int& line, const float& x, const float& y);
// The data status as plot text from (x, y) downward.
void cmplotdatainfo0(std::string_view label, std::string_view type, std::string_view file,
                     std::string_view title, const int& ndat, const float& x, const float& y);

// What the system says about now, the user, the host, itself and its
// processor.
void date10_time8(fstr_ref date, fstr_ref time);
void hostname(fstr_ref name);
void username(fstr_ref name);
void hardinfo(fstr_ref text);
void osversion(fstr_ref text);

// The platform behind the routines above: clocks, calendar, names and the
// shell. The process runs on the defaults; tests swap single entries to fix
// the clock or to make a system command fail.
struct runinfo_platform_t {
    // Count, counts per second and the count at which the clock wraps to 0.
    void (*system_clock)(int& count, int& rate, int& count_max);
    // CPU time used by the process, seconds.
    void (*cpu_time)(float& seconds);
    // Local date as ccyymmdd and time as hhmmss.sss.
    void (*date_and_time)(fstr_ref date, fstr_ref time);
    // Host name; status 0 on success.
    void (*host_name)(fstr_ref name, int& status);
    // Login name of the user running the process.
    void (*login_name)(fstr_ref name);
    // Runs a shell command. exitstat is the command's status; cmdstat is 0
    // when the command could be run at all, with cmdmsg saying why not.
    void (*execute_command_line)(std::string_view command, bool wait, int& exitstat,
                                 int& cmdstat, fstr_ref cmdmsg);
};
extern runinfo_platform_t runinfo_platform;
// The platform of the running system.
runinfo_platform_t runinfo_platform_default();
