// The main menu dialogue, end to end through the in-memory console.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <sys/wait.h>

#include "dialogue.h"
#include "plot/ghostscript.h"
#include "shell/main_program.h"
#include "main_run.h"

namespace {



TEST_F(MainMenu, ShowsTheMenuAndFastQuitEndsWithoutAQuestion) {
    type({"9999"});
    EXPECT_EQ(run(), 0);
    int h = find(HEAD);
    ASSERT_GE(h, 1);
    EXPECT_EQ(screen()[std::size_t(h - 1)], AT50);
    EXPECT_EQ(screen()[std::size_t(h + 1)], HEAD_RULE);
    std::vector<std::string> menu = {
        " -------------------------------------------",
        " GENERAL PARAMETERS",
        " -------------------------------------------",
        " input/output status ................... 1",
        " Run info set up ........................2",
        " -------------------------------------------",
        " PLOT PARAMETERS",
        " -------------------------------------------",
        " open plot file ........................10",
        " set plot L/P,scaling,attributes,axes ..13",
        " set projection ........................14",
        " close plot file .......................20",
    };
    EXPECT_EQ(lines(h + 2, int(menu.size())), menu);
    int w = find(" WELL DATA COMMANDS");
    ASSERT_GT(w, 0);
    std::vector<std::string> rest = {
        " WELL DATA COMMANDS",
        " -------------------------------------------",
        " Read data from file ..................100",
        " Set Borehole Parameters ..............110",
        " Analysis & depth plots ...............120",
        " Statistics plots .....................130",
        " Perspective plots ....................140",
        " -------------------------------------------",
        " GENERAL COMMANDS",
        " -------------------------------------------",
        " Use command file.....................5000",
        " Output level control ................5100",
        " QUIT..................................999",
        " FAST QUIT............................9999",
        AT50,
        " ..........................................",
        " Enter your choice",
        " New value =          9999",
        " ..........................................",
    };
    EXPECT_EQ(lines(w, int(rest.size())), rest);
    // Then straight to the end report.
    EXPECT_EQ(end_report(), w + int(rest.size()) + 1);
    EXPECT_EQ(find(" 999 to confirm quit"), -1);
}

TEST_F(MainMenu, QuitAsksForConfirmationAndReturnConfirms) {
    type({"999", ""});
    EXPECT_EQ(run(), 0);
    int e = find(" Enter 999 to confirm quit");
    ASSERT_GT(e, 0);
    std::vector<std::string> confirm = {
        " Enter 999 to confirm quit",
        " or return for default value",
        " Default =          999",
        " New value =           999",
        " ..........................................",
    };
    EXPECT_EQ(lines(e, 5), confirm);
    EXPECT_EQ(passes(), 1);
    EXPECT_EQ(end_report(), e + 6);
}

TEST_F(MainMenu, DeclinedQuitGoesOnAndIsNotDispatched) {
    // 0 declines; 9999 at the confirm prompt declines too and does not end the run.
    type({"999", "0", "999", "9999", "999", "999"});
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(passes(), 3);
    EXPECT_EQ(count(" Enter 999 to confirm quit"), 3);
}

TEST_F(MainMenu, UnknownNumbersRedisplayTheMenuSilently) {
    type({"4711", "-3", "9999"});
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(passes(), 3);
    EXPECT_EQ(count(" FAST QUIT............................9999"), 3);
    EXPECT_EQ(find(" ===> HIT RETURN TO CONTINUE"), -1);
}

TEST_F(MainMenu, ANonNumericAnswerIsAnErrorFrameThenTheQuestionAgain) {
    type({"abc", "", "9999"});
    EXPECT_EQ(run(), 0);
    int c = find(" could not read your choice");
    ASSERT_GT(c, 9);
    EXPECT_EQ(lines(c - 9, 9), error_head_lines("  ininteg1   "));
    std::vector<std::string> tail = {
        " could not read your choice",
        " ==> RETRYING",
        " ===> HIT RETURN TO CONTINUE",
        " " + std::string(50, '*'),
        " ..........................................",
        " Enter your choice",
        " New value =          9999",
    };
    EXPECT_EQ(lines(c, int(tail.size())), tail);
    // The error does not redisplay the menu: one pass only.
    EXPECT_EQ(passes(), 1);
}

TEST_F(MainMenu, BlankLinesDoNotAnswerTheMainMenu) {
    type({"", "  ", "9999"});
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(count(" Enter your choice"), 1);
}

TEST_F(MainMenu, StatusCommandListsTheChannels) {
    type({"1", "9999"});
    EXPECT_EQ(run(), 0);
    int s = find(" INPUT/OUTPUT SET UP:");
    ASSERT_GT(s, 0);
    std::vector<std::string> status = {
        " INPUT/OUTPUT SET UP:",
        " standard  input unit        =  5",
        " standard output unit        =  6",
        " error     input unit        =  5",
        " error    output unit        =  6",
        " minimum output enabled      :  T",
        " more    output enabled      :  T",
        " maximum output enabled      :  F",
        " command file open status    :  F",
        " plot    file open status    :  F",
        " pause after warning or error:  T",
        AT50,
    };
    EXPECT_EQ(lines(s, int(status.size())), status);
}

TEST_F(MainMenu, OutputLevelTwoOffHidesMenusAndDottedLines) {
    type({"5100", "2", "10", "0", "99", "99", "9999"});
    EXPECT_EQ(run(), 0);
    EXPECT_FALSE(iocom.LWITO(2));
    int t = find(" STANDARD OUTPUT CONTROLS");
    ASSERT_GT(t, 0);
    std::vector<std::string> table = {
        " STANDARD OUTPUT CONTROLS",
        " -------------------------------------------",
        " |level|enabled|...........command",
        " |  1  |   T   |................ 1",
        " |  2  |   T   |................ 2",
        " |  3  |   F   |................ 3",
        " -------------------------------------------",
        " EXIT THIS SUBROUTINE ..................99",
    };
    EXPECT_EQ(lines(t, int(table.size())), table);
    int q = find(" enable level 2 output ?");
    ASSERT_GT(q, 0);
    EXPECT_EQ(lines(q, 5), (std::vector<std::string>{
                               " enable level 2 output ?",
                               " Enter (0/1)(n/y)(N/Y) to answer",
                               " or return for default value or h for help",
                               " Default = Yes",
                               " New value =  No",
                           }));
    EXPECT_GT(find(" |  2  |   F   |................ 2"), q);
    // The last pass: head, then straight to the prompt without dots or menu.
    int last = end_report() - 6;
    EXPECT_EQ(lines(last, 5), (std::vector<std::string>{AT50, HEAD, HEAD_RULE,
                                                       " Enter your choice",
                                                       " New value =          9999"}));
}

TEST_F(MainMenu, OutputLevelsComeBackOn) {
    type({"5100", "2", "10", "0", "99", "99", "5100", "2", "10", "1", "99", "99", "9999"});
    EXPECT_EQ(run(), 0);
    EXPECT_TRUE(iocom.LWITO(2));
    EXPECT_EQ(count(" FAST QUIT............................9999"), 2);
}

TEST_F(MainMenu, KeyboardThatEndsEndsTheRunWithoutEndReport) {
    type({"999"});
    EXPECT_EQ(run(), 2);
    EXPECT_EQ(end_report(), -1);
}

TEST_F(MainMenu, StartsWithTheBannerAndLeavesNoTemporaryFile) {
    type({"9999"});
    EXPECT_EQ(run(), 0);
    // The banner comes before the first menu and waited for one return.
    EXPECT_LT(find(" @" + std::string(9, ' ') + "https://github.com/tarnolix/tarnolix"), find(HEAD));
    EXPECT_FALSE(std::filesystem::exists("sys_version_tmp_001.txt"));
    EXPECT_FALSE(std::filesystem::exists("cpu_info_tmp_001.txt"));
    EXPECT_EQ(fake.commands.size(), 4u);
}

TEST_F(MainMenu, PlotLayoutCommandShowsItsMenu) {
    type({"13", "99", "9999"});
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(count(" MULTIPLE PLOTS LAYOUT"), 1);
    EXPECT_EQ(passes(), 2);
}

TEST_F(MainMenu, RunInfoCommandShowsItsMenu) {
    type({"2", "0", "9999"});
    EXPECT_EQ(run(), 0);
    EXPECT_GT(find(" date+user+host+os+hardw+main+subr+cmnd...0"), 0);
}

// The plot file commands: 10 opens, 20 closes, QUIT closes before it asks.
struct PlotCommands : MainMenu {
    void SetUp() override {
        MainMenu::SetUp();
        std::remove("well.ps");
        std::remove("other.ps");
    }
};

TEST_F(PlotCommands, OpenAndCloseWellPs) {
    // 10; return for default settings; return for the name "well.ps"; 20; return to close.
    type({"10", "", "", "20", "", "9999"});
    EXPECT_EQ(run(), 0);
    EXPECT_GT(find(" Default = well.ps"), 0);
    EXPECT_GT(find(" The PostScript plot file is closed"), 0);
    EXPECT_FALSE(iocom.lplotopen);
    EXPECT_GS_RENDERS("well.ps");
}

TEST_F(PlotCommands, CloseWithoutAnOpenFileWarns) {
    type({"20", "", "9999"});
    EXPECT_EQ(run(), 0);
    int w = find(" The plot window or file is already closed");
    ASSERT_GT(w, 4);
    EXPECT_EQ(lines(w - 4, 4), warning_head_lines("  plend      "));
}

TEST_F(PlotCommands, QuitClosesTheFileBeforeItAsksAndDecliningLeavesItClosed) {
    type({"10", "", "", "999", "", "0", "9999"});
    EXPECT_EQ(run(), 0);
    int closed = find(" The PostScript plot file is closed");
    int confirm = find(" Enter 999 to confirm quit");
    ASSERT_GT(closed, 0);
    EXPECT_GT(confirm, closed);
    // 9999 after declining finds no open file: nothing more is closed.
    EXPECT_EQ(count(" The PostScript plot file is closed"), 1);
    EXPECT_GS_RENDERS("well.ps");
}

TEST_F(PlotCommands, FastQuitClosesAnOpenFile) {
    type({"10", "", "", "9999", ""});
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(count(" The PostScript plot file is closed"), 1);
    EXPECT_GS_RENDERS("well.ps");
}

TEST_F(PlotCommands, TheLastNameBecomesTheNextDefault) {
    type({"10", "", "other.ps", "20", "", "10", "", "", "20", "", "9999"});
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(count(" Default = well.ps"), 1);
    EXPECT_EQ(count(" Default = other.ps"), 1);
    EXPECT_GS_RENDERS("other.ps");
}

// The real program on the terminal: standard input that ends is the end.
int run_binary(const std::string& input) {
    std::string cmd = "printf '" + input + "' | " + TARNOLIX_BINARY + " > /dev/null 2>&1";
    int st = std::system(cmd.c_str());
    return WIFEXITED(st) ? WEXITSTATUS(st) : -1;
}

TEST(TerminalProgram, FastQuitExitsZero) { EXPECT_EQ(run_binary("\\n9999\\n"), 0); }

TEST(TerminalProgram, InputEndingAtThePromptExitsNonZero) {
    EXPECT_NE(run_binary("\\n"), 0);
    EXPECT_NE(run_binary(""), 0);
    EXPECT_NE(run_binary("abc\\n"), 0);
}

}  // namespace
