// Replaying answers from a command file.
#include <gtest/gtest.h>

#include <fstream>

#include "dialogue.h"
#include "main_run.h"

namespace {

struct CommandFile : MainMenu {
    void write(const std::string& text) { std::ofstream("cmdfile_test.txt") << text; }
};

TEST_F(CommandFile, AnswersComeFromTheFileUntilItHandsBack) {
    write("1\n5000\n5002\n");
    type({"5000", "5001", "cmdfile_test.txt", "9999"});
    EXPECT_EQ(run(), 0);
    EXPECT_GT(find(" Standard input redirected from"), 0);
    EXPECT_GT(find(" Level 2 standard output disabled"), 0);
    // Status while the file is open shows its unit and index.
    EXPECT_GT(find(" command file open status    :  T"), 0);
    EXPECT_GT(find(" command file input unit     = 15"), 0);
    EXPECT_GT(find(" command file input index    =  0"), 0);
    EXPECT_GT(find(" Command file cmdfile_test.txt closed"), 0);
    EXPECT_FALSE(iocom.lcmdopen);
    EXPECT_TRUE(iocom.LWITO(2));
    // While the file was open no menu was shown: menus appear for the first
    // pass, for the pass after the file closed, and none between.
    EXPECT_EQ(count(" FAST QUIT............................9999"), 2);
    // The command file menu shows whatever the output level.
    EXPECT_EQ(count(" ALTERNATE STANDARD INPUT"), 2);
}

TEST_F(CommandFile, QuitFromTheFileEndsTheRunWithoutConfirmation) {
    write("5000\n5003\n");
    type({"5000", "5001", "cmdfile_test.txt"});
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(find(" Enter 999 to confirm quit"), -1);
}

TEST_F(CommandFile, ClosingWhenNoneIsOpenWarnsAndAFileThatDoesNotOpenChangesNothing) {
    type({"5000", "5002", "", "5000", "5001", "cmdfile_test.txt", "", "0", "", "9999"});
    EXPECT_EQ(run(), 0);
    const int w = find(" NO OPEN COMMAND FILE");
    ASSERT_GT(w, 0);
    EXPECT_EQ(lines(w - 4, 4), warning_head_lines("    endaltsi2"));
    EXPECT_EQ(count(" ALTERNATE STANDARD INPUT"), 2);
    EXPECT_GT(find(" COULD NOT OPEN COMMAND FILE cmdfile_test.txt", w), w);
    EXPECT_FALSE(iocom.lcmdopen);
    EXPECT_EQ(iocom.isin, 5);
    EXPECT_TRUE(con.keys.empty());
}

TEST_F(CommandFile, StartingASecondFileFromInsideAFileWarns) {
    write("5000\n5001\n5000\n5002\n");
    type({"5000", "5001", "cmdfile_test.txt", "", "9999"});
    EXPECT_EQ(run(), 0);
    EXPECT_GT(find(" COMMAND FILE ALREADY OPEN"), 0);
    EXPECT_GT(find(" ===> HIT RETURN TO RESUME COMMANDS"), 0);
    EXPECT_EQ(count(" Enter alternate standard input file name"), 1);
}

TEST_F(CommandFile, AFileThatRunsOutKeepsAskingUntilTheKeyboardEnds) {
    write("1\n");
    type({"5000", "5001", "cmdfile_test.txt", "", ""});
    EXPECT_EQ(run(), 2);
    EXPECT_EQ(count(" could not read your choice"), 3);
}

}  // namespace
