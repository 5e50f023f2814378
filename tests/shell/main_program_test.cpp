// The main menu dialogue, end to end through the in-memory console.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <sys/wait.h>

#include "main_run.h"
#include "plot/ghostscript.h"

namespace {

using lines_t = std::vector<std::string>;
const std::string DASH = " -------------------------------------------";
const std::string DOTS = " ..........................................";
const std::string FAST_QUIT = " FAST QUIT............................9999";
const std::string CLOSED = " The PostScript plot file is closed";

TEST_F(MainMenu, ShowsTheMenuAndFastQuitEndsWithoutAQuestion) {
    type({"9999"});
    EXPECT_EQ(run(), 0);
    const int h = find(HEAD);
    ASSERT_GE(h, 1);
    EXPECT_EQ(lines(h - 1, 12), (lines_t{AT50, HEAD, HEAD_RULE, DASH, " GENERAL PARAMETERS", DASH,
                                         " input/output status ................... 1",
                                         " Run info set up ........................2", DASH,
                                         " PLOT PARAMETERS", DASH,
                                         " open plot file ........................10"}));
    EXPECT_EQ(lines(h + 11, 3), (lines_t{" set plot L/P,scaling,attributes,axes ..13",
                                         " set projection ........................14",
                                         " close plot file .......................20"}));
    const int w = find(" WELL DATA COMMANDS");
    ASSERT_GT(w, h);
    const lines_t rest = {" WELL DATA COMMANDS", DASH,
                          " Read data from file ..................100",
                          " Set Borehole Parameters ..............110",
                          " Analysis & depth plots ...............120",
                          " Statistics plots .....................130",
                          " Perspective plots ....................140", DASH, " GENERAL COMMANDS", DASH,
                          " Use command file.....................5000",
                          " Output level control ................5100",
                          " QUIT..................................999", FAST_QUIT, AT50, DOTS,
                          " Enter your choice", " New value =          9999", DOTS};
    EXPECT_EQ(lines(w, int(rest.size())), rest);
    // Then straight to the end report.
    EXPECT_EQ(end_report(), w + int(rest.size()) + 1);
    EXPECT_EQ(find(" Enter 999 to confirm quit"), -1);
    // The banner came first, and the system questions left no file.
    const int b = find(" @" + std::string(9, ' ') + "https://github.com/tarnolix/tarnolix");
    EXPECT_TRUE(b > 0 && b < h) << b;
    EXPECT_EQ(fake.commands.size(), 4u);
    EXPECT_TRUE(std::filesystem::is_empty("."));
}

// Each session by its exit status, the passes of the menu, how often lines
// show, blocks of lines and the plot files that must render.
TEST_F(MainMenu, SessionsOfTheMenuTheQuitQuestionAndThePlotFile) {
    const std::string CONFIRM = " Enter 999 to confirm quit";
    const struct {
        std::string name;
        lines_t keys;
        int status, passes;
        std::vector<std::pair<std::string, int>> counts;
        std::vector<std::pair<lines_t, lines_t>> blocks;  // a frame head (or none), the lines right under it
        lines_t renders;
    } cases[] = {
        {"return confirms quit", {"999", ""}, 0, 1, {{CONFIRM, 1}},
         {{{}, {" Default =          999", " New value =           999", DOTS, AT50, " @ PROGRAM tarnolix"}}}, {}},
        // 0 declines; 9999 at the confirm prompt declines too and does not end the run.
        {"declined", {"999", "0", "999", "9999", "999", "999"}, 0, 3, {{CONFIRM, 3}}, {}, {}},
        {"unknown numbers and blank lines redisplay silently", {"4711", "", "  ", "-3", "9999"}, 0, 3,
         {{FAST_QUIT, 3}, {" Enter your choice", 3}, {" ===> HIT RETURN TO CONTINUE", 0}}, {}, {}},
        // The error does not redisplay the menu.
        {"not a number", {"abc", "", "9999"}, 0, 1, {},
         {{error_head_lines("  ininteg1   "),
           {" could not read your choice", " ==> RETRYING", " ===> HIT RETURN TO CONTINUE", " " + std::string(50, '*'),
            DOTS, " Enter your choice", " New value =          9999"}}}, {}},
        {"keyboard ends", {"999"}, 2, 1, {{" @ PROGRAM tarnolix", 0}}, {}, {}},
        {"status, layout and run info", {"1", "13", "99", "2", "0", "9999"}, 0, 4,
         {{" MULTIPLE PLOTS LAYOUT", 1}, {" date+user+host+os+hardw+main+subr+cmnd...0", 1}},
         {{{AT50, " @ subroutine writesio              v2.0 2024-02-05", HEAD_RULE},
           {" INPUT/OUTPUT SET UP:", " standard  input unit        =  5", " standard output unit        =  6",
            " error     input unit        =  5", " error    output unit        =  6",
            " minimum output enabled      :  T", " more    output enabled      :  T",
            " maximum output enabled      :  F", " command file open status    :  F",
            " plot    file open status    :  F", " pause after warning or error:  T", AT50}}}, {}},
        // 10 opens (return for default settings, the name), 20 closes (return);
        // the last name becomes the next default.
        {"plot files", {"10", "", "", "20", "", "10", "", "other.ps", "20", "", "10", "", "", "20", "", "9999"}, 0, 7,
         {{" Default = well.ps", 2}, {" Default = other.ps", 1}, {CLOSED, 3}}, {}, {"well.ps", "other.ps"}},
        // QUIT closes before it asks; declined, the file stays closed; opened
        // again, FAST QUIT closes it.
        {"quit closes the plot file", {"10", "", "", "999", "", "0", "10", "", "", "9999", ""}, 0, 4, {{CLOSED, 2}},
         {{{}, {CLOSED, AT50, DOTS, CONFIRM}}}, {"well.ps"}},
        // While level 2 is off a pass shows the head, then straight the prompt.
        {"output level 2 off hides menus and dotted lines until back on",
         {"5100", "2", "10", "0", "99", "99", "5100", "2", "10", "1", "99", "99", "9999"}, 0, 3, {{FAST_QUIT, 2}},
         {{{}, {" STANDARD OUTPUT CONTROLS", DASH, " |level|enabled|...........command",
                " |  1  |   T   |................ 1", " |  2  |   T   |................ 2",
                " |  3  |   F   |................ 3"}},
          {{AT50, HEAD, HEAD_RULE}, {" Enter your choice", " New value =          5100"}}}, {}},
    };
    for (const auto& c : cases) {
        restart(c.keys);
        EXPECT_EQ(run(), c.status) << c.name;
        EXPECT_EQ(passes(), c.passes) << c.name;
        for (const auto& [line, n] : c.counts) EXPECT_EQ(count(line), n) << c.name << ": " << line;
        for (const auto& [head, block] : c.blocks)
            EXPECT_EQ(lines(under(head, block[0]), int(block.size())), block) << c.name;
        EXPECT_FALSE(iocom.lplotopen) << c.name;
        EXPECT_TRUE(iocom.LWITO(2)) << c.name;
        for (const auto& f : c.renders) EXPECT_GS_RENDERS(f);
    }
}

// Projections reset after the angle constants and before the attributes,
// the wall plot after the hole parameters and before the log analysis;
// 14 and 140 reach them.
TEST_F(MainMenu, ProjectionsAndWallPlotStartInTheirPlacesAndAnswer14And140) {
    type({"14", "3", "1", "140", "", "99", "9999"});
    EXPECT_EQ(run(), 0);
    const int order[] = {find("  1 - DEFAULT PROJECTION TO: axonometric"),
                         find(" INITIALIZING PLOT ATTRIBUTESS"),
                         find(" INITIALIZING BOREHOLE PARAMETERS"),
                         find(" INITIALIZING WALL PLOT PARAMETERS"),
                         find(" INITIALIZING LOG PLOT PARAMETERS"), find(HEAD)};
    for (int k = 1; k < 6; ++k) EXPECT_LT(order[k - 1], order[k]) << k;
    EXPECT_GT(order[0], 0);
    EXPECT_EQ(count("  TO: // z"), 1);
    EXPECT_EQ(count("  // x into y,z plane .................1 "), 1);
    EXPECT_EQ(count(" NO DATA !"), 1);
    EXPECT_EQ(count(" PLOT .................................100"), 1);
    EXPECT_EQ(passes(), 3);
}

// The real program on the terminal: standard input that ends is the end.
TEST(TerminalProgram, FastQuitExitsZeroAndInputEndingAtThePromptDoesNot) {
    auto run_binary = [](const std::string& input) {
        const std::string cmd = "printf '" + input + "' | " + TARNOLIX_BINARY + " > /dev/null 2>&1";
        const int st = std::system(cmd.c_str());
        return WIFEXITED(st) ? WEXITSTATUS(st) : -1;
    };
    EXPECT_EQ(run_binary("\\n9999\\n"), 0);
    for (const char* in : {"\\n", "", "abc\\n"}) EXPECT_NE(run_binary(in), 0) << in;
}

}  // namespace
