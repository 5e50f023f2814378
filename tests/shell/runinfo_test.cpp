// Run information: the start banner, the end report, the run info code and
// the record written into tables and drawn on plots, and the system
// questions with their temporary files. The platform (clock, calendar,
// names, shell) is replaced by a scripted one, so every line is known.
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "dialogue.h"
#include "fake_platform.h"
#include "plot/ghostscript.h"
#include "plot/plot_session.h"
#include "shell/runinfo.h"

namespace {

using lines_t = std::vector<std::string>;

// No file left behind in the test's directory.
bool nothing_left() { return std::filesystem::is_empty("."); }

lines_t operator+(lines_t a, const lines_t& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

const std::string AT50 = " " + std::string(50, '@');
const std::string RULE = " @" + std::string(49, '-');
const std::string SLASH50 = " " + std::string(50, '/');
const std::string SWPINFO_HEAD = " @ subroutine swpinfo" + std::string(15, ' ') + "v1.1 2021-02-27";
const lines_t LEVEL3_OF_2 = {" Current subroutine level     =    3", " Information only up to level =    2"};

struct RunInfo : on_fake_platform<Dialogue> {
    // smaininfo2 as the main program calls it, screen cleared after.
    void start() {
        smaininfo2("tarnolix            ", "12.3", "2024-09-14");
        clear();
    }
    // writeruninfo2 into a table file, and its lines.
    lines_t table() {
        EXPECT_TRUE(unit_open(UNIT_TABLES, "table.txt", "replace", "write"));
        writeruninfo2(UNIT_TABLES);
        unit_close(UNIT_TABLES);
        lines_t v;
        std::ifstream in("table.txt");
        for (std::string l; std::getline(in, l);) v.push_back(l);
        return v;
    }
};

// ---------------------------------------------------------------------------
// Start-up, the banner and the system questions.

TEST_F(RunInfo, StartUpShowsTheBannerThatWaitsForReturnWithWhatThePlatformSays) {
    smaininfo2("tarnolix            ", "12.3", "2024-09-14");
    EXPECT_EQ(screen(), (lines_t{AT50, SWPINFO_HEAD, " @" + std::string(49, '='), " INITIALISING RUN INFO"}));
    EXPECT_TRUE(nothing_left());

    clear();
    type({"", "next"});
    progheadzk2();
    EXPECT_EQ(screen(), (lines_t{AT50, " @", " @          MAIN PROGRAM: tarnolix", " @               Version: 12.3",
                                 " @                  Date: 2024-09-14", " @", RULE, " @",
                                 " @       Starting on 2024-03-05 at 10:20:39", " @      User: akordem",
                                 " @      Host: pad-07.harvenhold.example", " @    System: Debian_12",
                                 " @       CPU: Core i7-8700 CPU @ 3.20GHz", " @", RULE, " @",
                                 " @                   Written by:", " @                Ansel KORDEMVAIT", " @",
                                 " @                   Hosted by:", " @             Harvenhold Earth Centre",
                                 " @        Ostrelund Polytechnic Foundation", " @               Ostrelund, Varnesia",
                                 " @         https://github.com/tarnolix/tarnolix", " @",
                                 " @      Report of any problem is appreciated", " @", RULE,
                                 " @             HIT RETURN TO CONTINUE", AT50}));
    // One line was taken, whatever was typed on it.
    EXPECT_EQ(con.keys, std::deque<std::string>{"next"});

    // Codes 2 and 3 leave out user and host.
    clear();
    int code = 2;
    swpinfo(code, 1);
    progheadzk2();
    EXPECT_EQ(lines(8, 2), (lines_t{" @       Starting on 2024-03-05 at 10:20:39", " @    System: Debian_12"}));

    // Other processors are kept whole, cut to thirty; a failed host is Macintosh.
    fake.cpu_answer = "  AMD EPYC 7763 64-Core Processor with a long tail";
    fake.host_status = 1;
    fake.login = "a-very-long-login";
    start();
    type({""});
    progheadzk2();
    EXPECT_EQ(lines(9, 4), (lines_t{" @      User: a-very-lon", " @      Host: Macintosh", " @    System: Debian_12",
                                    " @       CPU: AMD EPYC 7763 64-Core Processo"}));
}

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
        fake.os_fault = c.os_fault, fake.cpu_fault = c.cpu_fault;
        start();
        EXPECT_EQ(runinfo3com.osname, c.os);
        EXPECT_EQ(runinfo3com.cpuname, c.cpu);
        EXPECT_TRUE(nothing_left());

        clear();
        fake.commands.clear();
        fstr<30> text;
        if (c.cpu_fault) hardinfo(text);
        else osversion(text);
        const char* exitstat = c.cpu_fault == 'c' ? " exitstat =    127" : c.os_fault == 'r' ? " exitstat =      1"
                                                                                            : " exitstat =      0";
        lines_t want = warning_head_lines(c.cpu_fault ? "    hardinfo " : "    osversion") + c.frame +
                       lines_t{" command  = " + fake.commands.back(), " wait     =      1", exitstat,
                               " cmdstat  =      0", " cmdmsg   = "};
        if (c.cpu_fault == 'c') want.push_back(" => SETTING SYSTEM VERSION = MacOSX");
        if (c.cpu_fault == 'd') want.push_back(" => SETTING CPU INFO = Macintosh");
        want.push_back(SLASH50);
        EXPECT_EQ(screen(), want);
        EXPECT_TRUE(con.keys.empty());
        EXPECT_TRUE(nothing_left());
    }
    EXPECT_EQ(fake.commands.back(), "rm sys_version_tmp_001.txt  ");
}

TEST_F(RunInfo, TheRealSystemIsAskedAndNothingIsLeftBehind) {
    runinfo_platform = runinfo_platform_default();
    smaininfo2("tarnolix            ", "12.3", "2024-09-14");
    EXPECT_TRUE(nothing_left());
    EXPECT_NE(runinfo3com.osname.trimmed(), "");
    EXPECT_NE(runinfo3com.cpuname.trimmed(), "");
    EXPECT_EQ(runinfo3com.date0(5), '-');
    EXPECT_EQ(runinfo3com.time0(3), ':');
}

// ---------------------------------------------------------------------------
// The end report.

TEST_F(RunInfo, TheEndReportGivesTheTimesInSecondsOrMinutesAndTheClockMayHaveWrapped) {
    fake.count = 1000;
    fake.cpu = 1.5f;
    start();
    fake.count = 121000, fake.cpu = 9.75f;  // 120 seconds later: still seconds
    fake.date = "20240306", fake.time = "013459.998";
    progtail2();
    EXPECT_EQ(screen(), (lines_t{AT50, " @ PROGRAM tarnolix", " @ Version: 12.3",
                                 " @ STARTED    ON: 2024-03-05 AT 10:20:39",
                                 " @ TERMINATED ON: 2024-03-06 AT 01:34:59",
                                 " @ ELAPSED TIME =     120.000 seconds", " @       modulo     35791.395 mn",
                                 " @ CPU TIME     =       8.250 seconds", RULE, "  ",
                                 "                         O      ", "                       O   O    ",
                                 "                     O   O   O  ", "                   O   O   O   O", "  ",
                                 AT50}));
    struct { int count, rate, count_max; lines_t times; /* lines 6 to 8 */ } cases[] = {
        {121001, 1000, 2147483647,
         {" @ ELAPSED TIME =       2.000 mn", " @       modulo     35791.395 mn", " @ CPU TIME     =       2.500 mn"}},
        // The same reading as at the start: a whole turn of the clock.
        {1000, 1000, 2147483647, {" @ ELAPSED TIME =   35791.395 mn"}},
        // Below the start: the clock went round once.
        {400, 1000, 2000, {" @ ELAPSED TIME =       1.400 seconds", " @       modulo         0.033 mn"}},
        {400, 0, 2000, {" @ Could not compute elapsed system clock time", " @ CPU TIME     =       2.500 mn"}},
    };
    fake.cpu = 151.5f;
    for (const auto& c : cases) {
        clear();
        fake.count = c.count, fake.rate = c.rate, fake.count_max = c.count_max;
        progtail2();
        EXPECT_EQ(lines(5, int(c.times.size())), c.times) << c.count;
    }
}

// ---------------------------------------------------------------------------
// The run info code and the routine levels.

TEST_F(RunInfo, TheRunInfoMenuOffersTheFourCodesAndChecksTheAnswer) {
    start();
    type({"4", "", "2"});
    int code = 0;
    swpinfo(code, 2);
    EXPECT_EQ(code, 2);
    int m = find(" run info code current value =     0");
    ASSERT_GE(m, 5);
    EXPECT_EQ(screen()[std::size_t(m - 5)], SWPINFO_HEAD);
    EXPECT_EQ(lines(m + 1, 5), (lines_t{" date+user+host+os+hardw+main+subr+cmnd...0", " date+user+host+os+hardw+main+subr     ...1",
                                        " date          +os+hardw+main+subr+cmnd...2", " date          +os+hardw+main+subr     ...3",
                                        AT50}));
    EXPECT_EQ(count(" inside  [0,3]"), 2);
    EXPECT_EQ(count(" outside [0,3]"), 1);
    EXPECT_GT(find(" New value = " + std::string(12, ' ') + "2"), 0);

    clear();
    code = -1;
    swpinfo(code, 3);  // the stored value, silently
    EXPECT_EQ(code, 2);
    EXPECT_TRUE(screen().empty());
}

TEST_F(RunInfo, AFourthLevelIsCountedButNotNamedAndLevelOneCannotBeLeft) {
    start();
    ssubinfo2("statplot", " 8.1", "2019-07-29");
    ssubinfo2("hstwrite", " 3.0", "2012-04-27");
    EXPECT_TRUE(screen().empty());
    type({"", ""});
    ssubinfo2("deeper", " 1.0", "2020-01-01");
    EXPECT_EQ(lines(0, 7), (warning_head_lines("       deeper") +
                            lines_t{" Current routine level =    4", " Can store up to level =    3",
                                    " => Subroutine information not registered"}));
    // A table names two routine levels and says there are more.
    scmndinfo(12345);
    clear();
    auto t = table();
    ASSERT_EQ(t.size(), 9u);
    EXPECT_EQ(lines_t(t.begin() + 3, t.end()),
              (lines_t{" Main program : tarnolix    v12.3 on 2024-09-14", " Subroutine 1 : statplot    v 8.1 on 2019-07-29",
                       " Subroutine 2 : hstwrite    v 3.0 on 2012-04-27"} +
               LEVEL3_OF_2 + lines_t{" Command = ****"}));
    EXPECT_EQ(lines(0, 6), warning_head_lines("  writeruninf") + LEVEL3_OF_2);

    for (int k = 0; k < 3; ++k) ssubexitinfo("x", "", "");
    clear();
    type({""});
    ssubexitinfo("tarnolix", "12.3", "2024-09-14");
    const lines_t want = error_head_lines("     tarnolix") +
                         lines_t{" Current routine level =    1", " Cannot decrease subroutine level"};
    EXPECT_EQ(lines(0, int(want.size())), want);
}

// ---------------------------------------------------------------------------
// The record at the head of a table.

TEST_F(RunInfo, TablesCarryWhatTheCodeAsksForAndSayWhenThereIsNoMainProgram) {
    type({""});
    const lines_t t = table();
    ASSERT_EQ(t.size(), 4u);
    EXPECT_EQ(t[3], " *** program information ERROR : routine level < 1 ***");
    const lines_t frame = error_head_lines("  writeruninf") + lines_t{" Current routine level =    0",
                                                                      " Can store up to level =    3",
                                                                      " => No program information"};
    EXPECT_EQ(lines(0, int(frame.size())), frame);

    start();
    ssubinfo2("logplot2", " 3.2", "2019-07-29");
    scmndinfo(332);
    fake.time = "111213.000";
    const std::string run = " Run on 2024-03-05 at 11:12:13", who = " By akordem on pad-07.harvenhold.example",
                      sys = " System : Debian_12 Core i7-8700 CPU @ 3.20GHz",
                      chain1 = " Main program : tarnolix    v12.3 on 2024-09-14",
                      chain2 = " Subroutine 1 : logplot2    v 3.2 on 2019-07-29", cmd = " Command = 332";
    const lines_t want[] = {{run, who, sys, chain1, chain2, cmd},
                            {run, who, sys, chain1, chain2},
                            {run, sys, chain1, chain2, cmd},
                            {run, sys, chain1, chain2}};
    for (int code = 0; code <= 3; ++code) {
        int c = code;
        swpinfo(c, 1);
        EXPECT_EQ(table(), want[code]) << code;
    }
    EXPECT_TRUE(screen().empty());
}

// ---------------------------------------------------------------------------
// The record on a plot.

struct PlotRunInfo : on_fake_platform<plot_session> {
    void SetUp() override {
        on_fake_platform::SetUp();
        smaininfo2("tarnolix            ", "12.3", "2024-09-14");
        con.screen.clear();
    }

    // The strings shown since the last look, the points they start at and
    // the last font size.
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
                v.texts.push_back(shown_text(l));
                v.points.push_back(point);
            }
        }
        return v;
    }
};

// The run info block at half size, one and a half half sizes apart, its
// lines chosen by the code; a text and the data block at their places.
TEST_F(PlotRunInfo, TheBlocksAreDrawnAtTheirPlacesAndSizesWithWhatTheCodeAsksFor) {
    open_plot("block.ps");
    ssubinfo2("statplot", " 8.1", "2019-07-29");
    scmndinfo(20);
    const std::string run = "Run on 2024-03-05 at 10:20:39", who = "by akordem on pad-07.harvenhold.example",
                      sys = "System : Debian_12 Core i7-8700 CPU @ 3.20GHz",
                      chain = "tarnolix   _12.3 -> statplot   _ 8.1";
    const lines_t want[] = {{run, who, sys, chain + " Command = 20"},
                            {run, who, sys, chain},
                            {run, sys, chain + " Command = 20"},
                            {run, sys, chain}};
    con.screen.clear();
    shown t;
    for (int code = 3; code >= 0; --code) {
        int c = code;
        swpinfo(c, 1);
        skip_lines();
        cmplotruninfo2(10.0f, 20.0f);
        t = texts();
        EXPECT_EQ(t.texts, want[code]) << code;
    }
    EXPECT_EQ(t.points, (lines_t{"283.50 567.00", "283.50 556.37", "283.50 545.74", "283.50 535.11"}));
    // 0.25 cm is 7 points; the size in force before comes back after.
    EXPECT_EQ(t.size, "7");
    EXPECT_TRUE(con.screen.empty());

    cmplotcharinfo2("Ztop = 1200.00", 3, 27.0f, 20.0f);
    t = texts();
    EXPECT_EQ(t.texts, lines_t{"Ztop = 1200.00"});
    EXPECT_EQ(t.points, lines_t{"765.45 545.74"});
    EXPECT_EQ(t.size, "7");

    cmplotdatainfo0("WELL", "CALIPER4  ", "well_a.txt", "Borehole A, run 2", 1234, 3.0f, 20.0f);
    t = texts();
    EXPECT_EQ(t.texts, (lines_t{"WELL data type: CALIPER4", "File name: well_a.txt", "Title: Borehole A, run 2",
                                "Number of data: 1234"}));
    EXPECT_EQ(t.points, (lines_t{"85.05 567.00", "85.05 556.37", "85.05 545.74", "85.05 535.11"}));
    EXPECT_EQ(plt2blk.textsizcm, 0.5f);

    // The chain of a fourth level no longer fits in 60 characters and goes
    // on below, ending with x.
    int c = 3;
    swpinfo(c, 1);
    ssubinfo2("hstwrite", " 3.0", "2012-04-27");
    ssubinfo2("deeper", " 1.0", "2020-01-01");
    con.screen.clear();
    cmplotruninfo2(15.0f, 20.0f);
    EXPECT_EQ(texts().texts, (lines_t{run, sys, chain, "-> hstwrite   _ 3.0 -> x"}));
    EXPECT_EQ(con.screen, warning_head_lines("  cmplotrunin") + LEVEL3_OF_2 + lines_t{SLASH50});
    close_plot();
    EXPECT_GS_RENDERS("block.ps");
}

}  // namespace
