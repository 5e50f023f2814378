// Run information: the start banner, the end report, the run info code and
// the record written into tables, and the system questions with their
// temporary files. The platform (clock, calendar, names, shell) is replaced
// by a scripted one, so every line is known in advance.
#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "dialogue.h"
#include "plot/ghostscript.h"
#include "plot/plot_session.h"
#include "shell/runinfo.h"
#include "fake_platform.h"

namespace {

using lines_t = std::vector<std::string>;

// The names in the current directory.
lines_t directory() {
    lines_t v;
    if (DIR* d = opendir(".")) {
        while (dirent* e = readdir(d)) {
            std::string n = e->d_name;
            if (n != "." && n != "..") v.push_back(n);
        }
        closedir(d);
    }
    return v;
}

const std::string AT50 = " " + std::string(50, '@');
const std::string RULE = " @" + std::string(49, '-');
const std::string SLASH50 = " " + std::string(50, '/');
const std::string SWPINFO_HEAD = " @ subroutine swpinfo" + std::string(15, ' ') + "v1.1 2021-02-27";

// Each test in a directory of its own: the system questions write their
// temporary files in the current directory.
struct RunInfo : Dialogue {
    void SetUp() override {
        Dialogue::SetUp();
        use_fake_platform();
        runinfo3com = runinfo3com_t{};
    }
    void TearDown() override {
        runinfo_platform = runinfo_platform_default();
        Dialogue::TearDown();
    }

    // smaininfo2 as the main program calls it, screen cleared after.
    void start() {
        smaininfo2("tarnolix            ", "12.3", "2024-09-14");
        clear();
    }

    static lines_t read_file(const std::string& name) {
        lines_t v;
        std::ifstream in(name);
        for (std::string l; std::getline(in, l);) v.push_back(l);
        return v;
    }
    // writeruninfo2 into a table file, and its lines.
    lines_t table() {
        EXPECT_TRUE(unit_open(UNIT_TABLES, "table.txt", "replace", "write"));
        writeruninfo2(UNIT_TABLES);
        unit_close(UNIT_TABLES);
        return read_file("table.txt");
    }
};

// ---------------------------------------------------------------------------
// Start-up and the banner.

TEST_F(RunInfo, StartUpFillsTheRecordAndTheBannerWaitsForReturn) {
    fake.count = 5000;
    fake.cpu = 0.25f;
    smaininfo2("tarnolix            ", "12.3", "2024-09-14");
    EXPECT_EQ(screen(), (lines_t{AT50, SWPINFO_HEAD,
                                 " @" + std::string(49, '='), " INITIALISING RUN INFO"}));
    const auto& r = runinfo3com;
    EXPECT_EQ(r.levelrt, 1);
    EXPECT_EQ(r.icmdrun, 0);
    EXPECT_EQ(r.iruninfo, 0);
    EXPECT_EQ(r.iclock0, 5000);
    EXPECT_EQ(r.tcpu0, 0.25f);
    EXPECT_EQ(r.ROUTNAME(1).sv(), "tarnolix   ");
    EXPECT_EQ(r.usernm.sv(), "akordem   ");
    EXPECT_EQ(r.cpuname, "Core i7-8700 CPU @ 3.20GHz");
    EXPECT_EQ(r.date0.sv(), "2024-03-05");
    EXPECT_EQ(r.time0.sv(), "10:20:39");
    EXPECT_EQ(directory(), lines_t{});

    clear();
    type({"", "next"});
    progheadzk2();
    EXPECT_EQ(screen(), (lines_t{
                            AT50,
                            " @",
                            " @          MAIN PROGRAM: tarnolix",
                            " @               Version: 12.3",
                            " @                  Date: 2024-09-14",
                            " @",
                            RULE,
                            " @",
                            " @       Starting on 2024-03-05 at 10:20:39",
                            " @      User: akordem",
                            " @      Host: pad-07.harvenhold.example",
                            " @    System: Debian_12",
                            " @       CPU: Core i7-8700 CPU @ 3.20GHz",
                            " @",
                            RULE,
                            " @",
                            " @                   Written by:",
                            " @                Ansel KORDEMVAIT",
                            " @",
                            " @                   Hosted by:",
                            " @             Harvenhold Earth Centre",
                            " @        Ostrelund Polytechnic Foundation",
                            " @               Ostrelund, Varnesia",
                            " @         https://github.com/tarnolix/tarnolix",
                            " @",
                            " @      Report of any problem is appreciated",
                            " @",
                            RULE,
                            " @             HIT RETURN TO CONTINUE",
                            AT50,
                        }));
    // One line was taken, whatever was typed on it.
    ASSERT_EQ(con.keys.size(), 1u);
    EXPECT_EQ(con.keys.front(), "next");

    // Codes 2 and 3 leave out user and host.
    clear();
    int code = 2;
    swpinfo(code, 1);
    progheadzk2();
    EXPECT_EQ(lines(8, 2), (lines_t{" @       Starting on 2024-03-05 at 10:20:39", " @    System: Debian_12"}));
}

TEST_F(RunInfo, OtherProcessorsAreKeptWholeCutToThirtyAndAFailedHostIsMacintosh) {
    fake.cpu_answer = "  AMD EPYC 7763 64-Core Processor with a long tail";
    fake.host_status = 1;
    fake.login = "a-very-long-login";
    start();
    EXPECT_EQ(runinfo3com.cpuname.sv(), "AMD EPYC 7763 64-Core Processo");
    EXPECT_EQ(runinfo3com.hostnam, "Macintosh");
    EXPECT_EQ(runinfo3com.usernm.sv(), "a-very-lon");
}

// ---------------------------------------------------------------------------
// The system questions and their temporary files.

TEST_F(RunInfo, EveryFailureOfTheSystemQuestionsIsFramedWithoutPauseAndLeavesNoFile) {
    struct failure {
        char os_fault, cpu_fault;
        std::string os, cpu;
        lines_t frame;  // its lines after the message, up to the command
    };
    const std::vector<failure> cases = {
        {'c', 'c', "MacOSX", "Macintosh", {" COULD NOT DETERMINE CPU INFO", " filename = cpu_info_tmp_001.txt     "}},
        {0, 'd', "Debian_12", "Macintosh",
         {" COULD NOT OPEN CPU INFO FILE", " filename = cpu_info_tmp_001.txt     ", " status   = unknown",
          " unit     =     99"}},
        {'r', 0, "Debian_12", "Core i7-8700 CPU @ 3.20GHz",
         {" COULD NOT REMOVE SYSTEM VERSION FILE", " filename = sys_version_tmp_001.txt  "}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.os_fault + std::string("/") + c.cpu_fault);
        fake.os_fault = c.os_fault;
        fake.cpu_fault = c.cpu_fault;
        start();
        EXPECT_EQ(runinfo3com.osname, c.os);
        EXPECT_EQ(runinfo3com.cpuname, c.cpu);
        EXPECT_EQ(directory(), lines_t{});

        clear();
        fake.commands.clear();
        fstr<30> text;
        if (c.cpu_fault) hardinfo(text); else osversion(text);
        const bool removal = c.os_fault == 'r';
        lines_t want = warning_head_lines(c.cpu_fault ? "    hardinfo " : "    osversion");
        want.insert(want.end(), c.frame.begin(), c.frame.end());
        want.push_back(" command  = " + fake.commands.back());
        want.insert(want.end(), {" wait     =      1",
                                 c.cpu_fault == 'c' ? " exitstat =    127" : removal ? " exitstat =      1"
                                                                                     : " exitstat =      0",
                                 " cmdstat  =      0", " cmdmsg   = "});
        if (c.cpu_fault == 'c') want.push_back(" => SETTING SYSTEM VERSION = MacOSX");
        if (c.cpu_fault == 'd') want.push_back(" => SETTING CPU INFO = Macintosh");
        want.push_back(SLASH50);
        EXPECT_EQ(screen(), want);
        EXPECT_TRUE(con.keys.empty());
        EXPECT_EQ(directory(), lines_t{});
    }
    EXPECT_EQ(fake.commands.back(), "rm sys_version_tmp_001.txt  ");
}

TEST_F(RunInfo, TheRealSystemIsAskedAndNothingIsLeftBehind) {
    runinfo_platform = runinfo_platform_default();
    smaininfo2("tarnolix            ", "12.3", "2024-09-14");
    EXPECT_EQ(directory(), lines_t{});
    EXPECT_NE(runinfo3com.osname.trimmed(), "");
    EXPECT_NE(runinfo3com.cpuname.trimmed(), "");
    EXPECT_EQ(runinfo3com.date0(5), '-');
    EXPECT_EQ(runinfo3com.time0(3), ':');
}

// ---------------------------------------------------------------------------
// The end report.

TEST_F(RunInfo, TheEndReportGivesTheTimesAndAFigureByTheSeconds) {
    fake.count = 1000;
    fake.cpu = 1.5f;
    start();
    fake.count = 121000;  // 120 seconds later: still seconds
    fake.cpu = 9.75f;
    fake.date = "20240306";
    fake.time = "013459.998";
    progtail2();
    lines_t want = {
        AT50,
        " @ PROGRAM tarnolix",
        " @ Version: 12.3",
        " @ STARTED    ON: 2024-03-05 AT 10:20:39",
        " @ TERMINATED ON: 2024-03-06 AT 01:34:59",
        " @ ELAPSED TIME =     120.000 seconds",
        " @       modulo     35791.395 mn",
        " @ CPU TIME     =       8.250 seconds",
        RULE,
        "  ",
        "                         O      ",
        "                       O   O    ",
        "                     O   O   O  ",
        "                   O   O   O   O",
        "  ",
        AT50,
    };
    EXPECT_EQ(screen(), want);
}

TEST_F(RunInfo, LongRunsAreInMinutesAndAClockAtTheStartHasWrapped) {
    fake.count = 1000;
    fake.cpu = 0.0f;
    start();
    fake.count = 121001;
    fake.cpu = 150.0f;
    progtail2();
    EXPECT_EQ(screen()[5], " @ ELAPSED TIME =       2.000 mn");
    EXPECT_EQ(screen()[7], " @ CPU TIME     =       2.500 mn");

    clear();
    fake.count = 1000;  // the same reading: a whole turn of the clock
    progtail2();
    EXPECT_EQ(screen()[5], " @ ELAPSED TIME =   35791.395 mn");

    clear();
    fake.count = 400;  // below the start: the clock went round once
    fake.count_max = 2000;
    progtail2();
    EXPECT_EQ(screen()[5], " @ ELAPSED TIME =       1.400 seconds");
    EXPECT_EQ(screen()[6], " @       modulo         0.033 mn");

    clear();
    fake.rate = 0;
    progtail2();
    EXPECT_EQ(screen()[5], " @ Could not compute elapsed system clock time");
    EXPECT_EQ(screen()[6], " @ CPU TIME     =       2.500 mn");
}

// ---------------------------------------------------------------------------
// The run info code.

TEST_F(RunInfo, TheRunInfoMenuOffersTheFourCodesAndChecksTheAnswer) {
    start();
    type({"4", "", "2"});
    int code = 0;
    swpinfo(code, 2);
    EXPECT_EQ(code, 2);
    EXPECT_EQ(runinfo3com.iruninfo, 2);
    int m = find(" -------------------------------------------");
    ASSERT_GE(m, 3);
    EXPECT_EQ(screen()[std::size_t(m - 2)], SWPINFO_HEAD);
    EXPECT_EQ(lines(m, 9), (lines_t{
                               " -------------------------------------------",
                               "    RUN INFORMATION TO WRITE AND PLOT",
                               " -------------------------------------------",
                               " run info code current value =     0",
                               " date+user+host+os+hardw+main+subr+cmnd...0",
                               " date+user+host+os+hardw+main+subr     ...1",
                               " date          +os+hardw+main+subr+cmnd...2",
                               " date          +os+hardw+main+subr     ...3",
                               AT50,
                           }));
    EXPECT_EQ(count(" inside  [0,3]"), 2);
    EXPECT_EQ(count(" outside [0,3]"), 1);
    EXPECT_GT(find(" New value = " + std::string(12, ' ') + "2"), 0);

    clear();
    int stored = -1;
    swpinfo(stored, 3);
    EXPECT_EQ(stored, 2);
    EXPECT_TRUE(screen().empty());
}

TEST_F(RunInfo, ACodeOutOfRangeIsResetAndAnUnknownModeDoesNothing) {
    start();
    type({""});
    int code = 7;
    swpinfo(code, 1);
    EXPECT_EQ(code, 0);
    EXPECT_EQ(runinfo3com.iruninfo, 0);
    lines_t want = warning_head_lines("  swpinfo    ");
    lines_t body = {" RUN INFO CODE OUT OF RANGE:", "  run info code =     7", "  min =     0",
                    "  max =     3", " ==> RESET run info code =     0",
                    " ===> HIT RETURN TO CONTINUE", SLASH50};
    want.insert(want.end(), body.begin(), body.end());
    EXPECT_EQ(screen(), want);

    clear();
    type({""});
    code = 3;
    swpinfo(code, 8);
    EXPECT_EQ(runinfo3com.iruninfo, 0);
    EXPECT_EQ(lines(4, 2), (lines_t{" inter =     8", " ===> NO ACTION"}));
}

// ---------------------------------------------------------------------------
// Routine levels.

TEST_F(RunInfo, AFourthLevelIsCountedButNotNamedAndLevelOneCannotBeLeft) {
    start();
    ssubinfo2("logplot2", " 3.2", "2019-07-29");
    ssubinfo2("hstwrite", " 3.0", "2012-04-27");
    EXPECT_TRUE(screen().empty());
    type({""});
    ssubinfo2("deeper", " 1.0", "2020-01-01");
    EXPECT_EQ(runinfo3com.levelrt, 4);
    EXPECT_EQ(runinfo3com.ROUTNAME(3), "hstwrite");
    lines_t want = warning_head_lines("       deeper");
    want.insert(want.end(), {" Current routine level =    4",
                             " Can store up to level =    3",
                             " => Subroutine information not registered"});
    EXPECT_EQ(lines(0, 7), want);

    for (int k = 0; k < 3; ++k) ssubexitinfo("x", "", "");
    EXPECT_EQ(runinfo3com.levelrt, 1);
    clear();
    type({""});
    ssubexitinfo("tarnolix", "12.3", "2024-09-14");
    EXPECT_EQ(runinfo3com.levelrt, 1);
    want = error_head_lines("     tarnolix");
    want.push_back(" Current routine level =    1");
    want.push_back(" Cannot decrease subroutine level");
    EXPECT_EQ(lines(0, int(want.size())), want);
}

// ---------------------------------------------------------------------------
// The record at the head of a table.

TEST_F(RunInfo, TablesCarryWhatTheCodeAsksFor) {
    start();
    ssubinfo2("logplot2", " 3.2", "2019-07-29");
    scmndinfo(332);
    fake.time = "111213.000";
    const lines_t all = {
        " Run on 2024-03-05 at 11:12:13",
        " By akordem on pad-07.harvenhold.example",
        " System : Debian_12 Core i7-8700 CPU @ 3.20GHz",
        " Main program : tarnolix    v12.3 on 2024-09-14",
        " Subroutine 1 : logplot2    v 3.2 on 2019-07-29",
        " Command = 332",
    };
    for (int code = 0; code <= 3; ++code) {
        SCOPED_TRACE(code);
        int c = code;
        swpinfo(c, 1);
        lines_t want;
        for (std::size_t k = 0; k < all.size(); ++k) {
            const bool who = k == 1, cmd = k == 5;
            if (who && code >= 2) continue;
            if (cmd && code % 2 == 1) continue;
            want.push_back(all[k]);
        }
        EXPECT_EQ(table(), want);
    }
    EXPECT_TRUE(screen().empty());
}

TEST_F(RunInfo, TablesNameTwoRoutineLevelsAndSayWhenThereAreMore) {
    start();
    ssubinfo2("statplot", " 8.1", "2019-07-29");
    ssubinfo2("hstwrite", " 3.0", "2012-04-27");
    type({"", ""});
    ssubinfo2("deeper", " 1.0", "2020-01-01");
    scmndinfo(12345);
    clear();
    auto t = table();
    ASSERT_EQ(t.size(), 9u);
    EXPECT_EQ(lines_t(t.begin() + 3, t.end()),
              (lines_t{" Main program : tarnolix    v12.3 on 2024-09-14",
                       " Subroutine 1 : statplot    v 8.1 on 2019-07-29",
                       " Subroutine 2 : hstwrite    v 3.0 on 2012-04-27",
                       " Current subroutine level     =    3",
                       " Information only up to level =    2", " Command = ****"}));
    lines_t want = warning_head_lines("  writeruninf");
    want.insert(want.end(), {" Current subroutine level     =    3",
                             " Information only up to level =    2"});
    EXPECT_EQ(lines(0, 6), want);
}

TEST_F(RunInfo, ATableWrittenWithoutAMainProgramSaysSo) {
    type({""});
    auto t = table();
    ASSERT_EQ(t.size(), 4u);
    EXPECT_EQ(t[3], " *** program information ERROR : routine level < 1 ***");
    lines_t want = error_head_lines("  writeruninf");
    want.insert(want.end(), {" Current routine level =    0", " Can store up to level =    3",
                             " => No program information"});
    EXPECT_EQ(lines(0, int(want.size())), want);
}

// ---------------------------------------------------------------------------
// The record on a plot.

struct PlotRunInfo : plot_session {
    void SetUp() override {
        plot_session::SetUp();
        fake = fake_state{};
        runinfo_platform = {fake_clock, fake_cpu, fake_date, fake_host, fake_login, fake_shell};
        runinfo3com = runinfo3com_t{};
        smaininfo2("tarnolix            ", "12.3", "2024-09-14");
        con.screen.clear();
    }
    void TearDown() override {
        runinfo_platform = runinfo_platform_default();
        plot_session::TearDown();
    }

    // The strings shown since the last look, and the points they start at.
    struct shown {
        lines_t texts, points;
        std::string size;
    };
    shown texts() {
        shown v;
        std::string point;
        for (const auto& l : new_lines()) {
            if (l.ends_with(" moveto")) point = l.substr(0, l.size() - 7);
            if (l.ends_with(" findfont exch scalefont setfont")) v.size = l.substr(0, l.find(' '));
            if (l.starts_with("(")) {
                v.texts.push_back(l.substr(1, l.rfind(')') - 1));
                v.points.push_back(point);
            }
        }
        return v;
    }
};

TEST_F(PlotRunInfo, TheBlockIsDrawnAtHalfSizeOneAndAHalfHalfSizesApart) {
    open_plot("block.ps");
    ssubinfo2("logplot2", " 3.2", "2019-07-29");
    scmndinfo(332);
    skip_lines();
    con.screen.clear();
    cmplotruninfo2(10.0f, 20.0f);
    auto t = texts();
    EXPECT_EQ(t.texts, (lines_t{"Run on 2024-03-05 at 10:20:39", "by akordem on pad-07.harvenhold.example",
                                "System : Debian_12 Core i7-8700 CPU @ 3.20GHz",
                                "tarnolix   _12.3 -> logplot2   _ 3.2 Command = 332"}));
    EXPECT_EQ(t.points, (lines_t{"283.50 567.00", "283.50 556.37", "283.50 545.74", "283.50 535.11"}));
    // 0.25 cm is 7 points; the size in force before comes back after.
    EXPECT_EQ(t.size, "7");
    EXPECT_EQ(plt2blk.textsizcm, 0.5f);
    EXPECT_TRUE(con.screen.empty());

    cmplotcharinfo2("Ztop = 1200.00", 3, 27.0f, 20.0f);
    t = texts();
    EXPECT_EQ(t.texts, lines_t{"Ztop = 1200.00"});
    EXPECT_EQ(t.points, lines_t{"765.45 545.74"});
    EXPECT_EQ(t.size, "7");

    cmplotdatainfo0("WELL", "CALIPER4  ", "well_a.txt", "Borehole A, run 2", 1234, 3.0f, 20.0f);
    t = texts();
    EXPECT_EQ(t.texts, (lines_t{"WELL data type: CALIPER4", "File name: well_a.txt",
                                "Title: Borehole A, run 2", "Number of data: 1234"}));
    EXPECT_EQ(t.points, (lines_t{"85.05 567.00", "85.05 556.37", "85.05 545.74", "85.05 535.11"}));
    EXPECT_EQ(plt2blk.textsizcm, 0.5f);
    close_plot();
    EXPECT_GS_RENDERS("block.ps");
}

TEST_F(PlotRunInfo, TheCodeChoosesUserHostAndCommandOnThePlot) {
    open_plot("codes.ps");
    ssubinfo2("statplot", " 8.1", "2019-07-29");
    scmndinfo(20);
    const std::string who = "by akordem on pad-07.harvenhold.example";
    const std::string chain = "tarnolix   _12.3 -> statplot   _ 8.1";
    const std::vector<lines_t> want = {
        {who, chain + " Command = 20"}, {who, chain}, {chain + " Command = 20"}, {chain}};
    for (int code = 0; code <= 3; ++code) {
        SCOPED_TRACE(code);
        int c = code;
        swpinfo(c, 1);
        skip_lines();
        cmplotruninfo2(15.0f, 20.0f);
        // Date and system are on the plot whatever the code.
        lines_t t;
        for (const auto& l : texts().texts)
            if (l != "Run on 2024-03-05 at 10:20:39" && l != "System : Debian_12 Core i7-8700 CPU @ 3.20GHz")
                t.push_back(l);
        EXPECT_EQ(t, want[std::size_t(code)]);
    }
    close_plot();
}

TEST_F(PlotRunInfo, BelowTheThirdLevelTheChainEndsWithX) {
    open_plot("deep.ps");
    ssubinfo2("statplot", " 8.1", "2019-07-29");
    ssubinfo2("hstwrite", " 3.0", "2012-04-27");
    ssubinfo2("deeper", " 1.0", "2020-01-01");
    int code = 3;
    swpinfo(code, 1);
    con.screen.clear();
    skip_lines();
    cmplotruninfo2(15.0f, 20.0f);
    // The chain no longer fits in 60 characters and goes on below.
    EXPECT_EQ(texts().texts, (lines_t{"Run on 2024-03-05 at 10:20:39",
                                      "System : Debian_12 Core i7-8700 CPU @ 3.20GHz",
                                      "tarnolix   _12.3 -> statplot   _ 8.1",
                                      "-> hstwrite   _ 3.0 -> x"}));
    lines_t want = warning_head_lines("  cmplotrunin");
    want.insert(want.end(), {" Current subroutine level     =    3",
                             " Information only up to level =    2", SLASH50});
    EXPECT_EQ(con.screen, want);
    close_plot();
    auto r = gs_render("deep.ps", "deep.png", 40);
    if (r.available) {
        EXPECT_TRUE(r.ok) << r.output;
    }
}

}  // namespace
