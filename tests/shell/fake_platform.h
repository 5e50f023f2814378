// A scripted platform for run information: clock, calendar, names and a
// shell that answers the two system questions, so every line is known.
#pragma once

#include <sys/stat.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "shell/runinfo.h"

struct fake_state {
    int count = 0, rate = 1000, count_max = 2147483647;
    float cpu = 0.0f;
    std::string date = "20240305", time = "102039.123";
    int host_status = 0;
    std::string host = "pad-07.harvenhold.example", login = "akordem";
    std::string os_answer = "Debian_12";
    std::string cpu_answer = "Intel(R) Core(TM) i7-8700 CPU @ 3.20GHz";
    // What goes wrong: 'c' the command fails (after the shell made the
    // file), 'd' a directory stands where the file should be, 'r' the
    // removal fails.
    char os_fault = 0, cpu_fault = 0;
    std::vector<std::string> commands;
};
inline fake_state fake;

inline void fake_clock(int& count, int& rate, int& count_max) {
    count = fake.count, rate = fake.rate, count_max = fake.count_max;
}
inline void fake_cpu(float& t) { t = fake.cpu; }
inline void fake_date(fstr_ref d, fstr_ref t) { d.assign(fake.date), t.assign(fake.time); }
inline void fake_host(fstr_ref n, int& status) { status = fake.host_status, n.assign(fake.host); }
inline void fake_login(fstr_ref n) { n.assign(fake.login); }

// A shell that answers the two questions, and creates the file before the
// command runs, as a real one does.
inline void fake_shell(std::string_view command, bool, int& exitstat, int& cmdstat, fstr_ref) {
    fake.commands.emplace_back(command);
    const bool os = command.find("sys_version_tmp_001.txt") != std::string_view::npos;
    const std::string file = os ? "sys_version_tmp_001.txt" : "cpu_info_tmp_001.txt";
    const char fault = os ? fake.os_fault : fake.cpu_fault;
    cmdstat = 0;
    exitstat = 0;
    if (command.starts_with("rm "))
        exitstat = fault == 'r' || std::remove(file.c_str()) != 0;
    else if (fault == 'd')
        mkdir(file.c_str(), 0755);
    else if (fault == 'c')
        exitstat = (std::ofstream(file), 127);
    else
        std::ofstream(file) << (os ? fake.os_answer : fake.cpu_answer) << "\n";
}

inline void use_fake_platform() {
    fake = fake_state{};
    runinfo_platform = {fake_clock, fake_cpu, fake_date, fake_host, fake_login, fake_shell};
}

// A fixture on the scripted platform with no run information yet; the real
// platform comes back after.
template <class Base>
struct on_fake_platform : Base {
    void SetUp() override {
        Base::SetUp();
        use_fake_platform();
        runinfo3com = runinfo3com_t{};
    }
    void TearDown() override {
        runinfo_platform = runinfo_platform_default();
        Base::TearDown();
    }
};
