// What the system says about the run: the date and time, the user and the
// host, the system release and the processor. The last two come through a
// shell command writing a temporary file in the current directory, read on
// the temporary unit and then removed; any failure prints a frame and leaves
// a default text, and the run goes on.
#include <pwd.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>

#include "shell/format.h"
#include "shell/runinfo.h"
#include "shell/sio.h"
#include "shell/textlen.h"
#include "shell/units.h"

namespace {

// ---------------------------------------------------------------------------
// The platform of the running system.

void real_system_clock(int& count, int& rate, int& count_max) {
    // Milliseconds of the monotonic clock, wrapping at the largest 4-byte
    // integer as a 4-byte count must.
    timespec ts{};
    clock_gettime(CLOCK_MONOTONIC, &ts);
    const long long ms = (long long)ts.tv_sec * 1000 + ts.tv_nsec / 1000000;
    count_max = 2147483647;
    rate = 1000;
    count = int(ms % ((long long)count_max + 1));
}

void real_cpu_time(float& seconds) {
    timespec ts{};
    if (clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &ts) != 0) {
        seconds = float(std::clock()) / float(CLOCKS_PER_SEC);
        return;
    }
    seconds = float(double(ts.tv_sec) + double(ts.tv_nsec) * 1e-9);
}

void real_date_and_time(fstr_ref date, fstr_ref time) {
    timespec ts{};
    clock_gettime(CLOCK_REALTIME, &ts);
    std::time_t t = ts.tv_sec;
    std::tm lt{};
    localtime_r(&t, &lt);
    char d[40], h[48];
    std::snprintf(d, sizeof d, "%04d%02d%02d", lt.tm_year + 1900, lt.tm_mon + 1, lt.tm_mday);
    std::snprintf(h, sizeof h, "%02d%02d%02d.%03d", lt.tm_hour, lt.tm_min, lt.tm_sec,
                  int(ts.tv_nsec / 1000000));
    date.assign(d);
    time.assign(h);
}

void real_host_name(fstr_ref name, int& status) {
    char buf[256] = {};
    status = gethostname(buf, sizeof buf - 1) == 0 ? 0 : errno;
    name.assign(status == 0 ? buf : "");
}

void real_login_name(fstr_ref name) {
    // The account of the process; a session without a terminal has no
    // login record, so the password entry is asked first.
    if (const passwd* pw = getpwuid(geteuid()); pw && pw->pw_name) {
        name.assign(pw->pw_name);
        return;
    }
    const char* env = std::getenv("LOGNAME");
    if (!env) env = std::getenv("USER");
    name.assign(env ? env : "");
}

void real_execute_command_line(std::string_view command, bool, int& exitstat, int& cmdstat,
                               fstr_ref cmdmsg) {
    std::fflush(nullptr);
    const int st = std::system(std::string(command).c_str());
    if (st == -1) {
        cmdstat = 1;
        cmdmsg.assign(std::strerror(errno));
        return;
    }
    cmdstat = 0;
    if (WIFEXITED(st)) {
        exitstat = WEXITSTATUS(st);
        if (exitstat == 127) {
            cmdstat = 3;
            cmdmsg.assign("Invalid command line");
        }
    } else {
        exitstat = st;
    }
}

// ---------------------------------------------------------------------------
// The temporary file of a system question.

// Linux stands in for the Macintosh commands: the distribution's name and
// release, and the processor model. Both keep the trailing blanks of the
// character variables they are held in.
constexpr std::string_view OS_FILE = "sys_version_tmp_001.txt  ";
constexpr std::string_view OS_COMMAND =
    ". /etc/os-release && echo \"${NAME%% *}_${VERSION_ID}\" > sys_version_tmp_001.txt  ";
constexpr std::string_view OS_REMOVE = "rm sys_version_tmp_001.txt  ";

constexpr std::string_view CPU_FILE = "cpu_info_tmp_001.txt     ";
constexpr std::string_view CPU_COMMAND =
    "LC_ALL=C lscpu | awk -F': *' '/^Model name/ {print $2; found = 1; exit} "
    "END {exit !found}' > cpu_info_tmp_001.txt     ";
constexpr std::string_view CPU_REMOVE = "rm cpu_info_tmp_001.txt     ";

struct command_status {
    int exitstat = 0;
    int cmdstat = 0;
    fstr<100> cmdmsg;
};

bool run(std::string_view command, command_status& s) {
    s.exitstat = 0;
    s.cmdstat = 0;
    s.cmdmsg = "";
    runinfo_platform.execute_command_line(command, true, s.exitstat, s.cmdstat, s.cmdmsg);
    return s.cmdstat == 0 && s.exitstat == 0;
}

// The frame of a failed system question, written by hand: it must not
// pause, since nothing of the dialogue has started yet.
void sysframe(std::string_view routine, std::string_view message, std::string_view file,
              bool openfailed, std::string_view command, const command_status& s,
              std::string_view setting) {
    const int u = iocom.ieout;
    writef(u, "(1x,50('/'))");
    writef(u, "(1x,'///',10x,'subroutine ',a13,10x,'///')", routine);
    writef(u, "(1x,'///',18x,a8,18x,'///')", "WARNING ");
    writef(u, "(1x,50('/'))");
    writef(u, "(5(1x,a))", message);
    writef(u, "(5(1x,a))", "filename =", file);
    if (openfailed) {
        writef(u, "(5(1x,a))", "status   =", "unknown");
        writef(u, "(1x,a,1x,i6)", "unit     =", UNIT_TEMP);
    }
    writef(u, "(5(1x,a))", "command  =", command);
    writef(u, "(1x,a,1x,i6)", "wait     =", 1);
    writef(u, "(1x,a,1x,i6)", "exitstat =", s.exitstat);
    writef(u, "(1x,a,1x,i6)", "cmdstat  =", s.cmdstat);
    writef(u, "(5(1x,a))", "cmdmsg   =", s.cmdmsg.trimmed());
    if (!setting.empty()) writef(u, "(5(1x,a))", setting);
    writef(u, "(1x,50('/'))");
}

// The shell opens the temporary file before the command runs, so a failed
// command can leave it behind; nothing of it may outlive start-up.
void discard(std::string_view file) { std::remove(std::string(trimmed(file)).c_str()); }

struct sysquery {
    std::string_view routine, file, command, remove;
    std::string_view msg_command, msg_open, msg_remove;
    std::string_view set_command, set_open;  // setting lines, if any
};

// Runs the query; true with the first line of its answer in line, false
// (frame printed, nothing left behind) if there is none.
bool ask_system(const sysquery& q, std::string& line) {
    command_status s;
    if (!run(q.command, s)) {
        sysframe(q.routine, q.msg_command, q.file, false, q.command, s, q.set_command);
        discard(q.file);
        return false;
    }
    if (!unit_open(UNIT_TEMP, q.file, "unknown", "")) {
        sysframe(q.routine, q.msg_open, q.file, true, q.command, s, q.set_open);
        discard(q.file);
        return false;
    }
    if (!unit_read(UNIT_TEMP, line)) line.clear();
    unit_close(UNIT_TEMP);
    if (!run(q.remove, s)) {
        sysframe(q.routine, q.msg_remove, q.file, false, q.remove, s, "");
        discard(q.file);
    }
    return true;
}

}  // namespace

runinfo_platform_t runinfo_platform_default() {
    return runinfo_platform_t{real_system_clock, real_cpu_time,   real_date_and_time,
                              real_host_name,    real_login_name, real_execute_command_line};
}

runinfo_platform_t runinfo_platform = runinfo_platform_default();

void date10_time8(fstr_ref date, fstr_ref time) {
    fstr<8> d;
    fstr<10> t;
    runinfo_platform.date_and_time(d, t);
    date.assign(formatf("(a4,2('-',a2))", d.sub(1, 4), d.sub(5, 6), d.sub(7, 8)));
    time.assign(formatf("(2(a2,':'),a2)", t.sub(1, 2), t.sub(3, 4), t.sub(5, 6)));
}

void hostname(fstr_ref name) {
    fstr<256> buf;
    int status = 0;
    runinfo_platform.host_name(buf, status);
    if (status != 0) buf = "Macintosh";
    name.assign(buf.sv());
}

void username(fstr_ref name) {
    fstr<256> buf;
    runinfo_platform.login_name(buf);
    name.assign(buf.sv());
}

void osversion(fstr_ref text) {
    static const sysquery q{"osversion", OS_FILE, OS_COMMAND, OS_REMOVE,
                            "COULD NOT DETERMINE SYSTEM VERSION",
                            "COULD NOT OPEN SYSTEM VERSION FILE",
                            "COULD NOT REMOVE SYSTEM VERSION FILE", "", ""};
    std::string line;
    if (!ask_system(q, line)) {
        text.assign("MacOSX");
        return;
    }
    // The command gives the system's name and release together, so the
    // line stands for the whole text.
    fstr<13> got = line;
    text.assign(trimmed(got.sv()));
}

void hardinfo(fstr_ref text) {
    static const sysquery q{"hardinfo ",
                            CPU_FILE,
                            CPU_COMMAND,
                            CPU_REMOVE,
                            "COULD NOT DETERMINE CPU INFO",
                            "COULD NOT OPEN CPU INFO FILE",
                            "COULD NOT REMOVE CPU INFO FILE",
                            "=> SETTING SYSTEM VERSION = MacOSX",
                            "=> SETTING CPU INFO = Macintosh"};
    std::string rec;
    if (!ask_system(q, rec)) {
        text.assign("Macintosh");
        return;
    }
    fstr<50> line = rec;
    std::string_view t = trimmed(line.sv());
    constexpr std::string_view INTEL = "Intel(R) Core(TM) ";
    fstr<30> got;
    if (t.starts_with(INTEL))
        got = "Core " + std::string(t.substr(INTEL.size()));
    else
        got = t;
    text.assign(got.sv());
}
