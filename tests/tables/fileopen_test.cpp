// Opening named files: the dialogue, retry, giving up.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "dialogue.h"
#include "shell/stop.h"
#include "tables/fileopen.h"

namespace {

struct FileOpen : Dialogue {
    void SetUp() override {
        Dialogue::SetUp();
        std::filesystem::create_directory("sub");
        std::ofstream("fileopen_present.txt") << "x\n";
        std::ofstream("sub/fileopen_present.txt") << "x\n";
        std::remove("fileopen_missing.txt");
    }
    void TearDown() override {
        Dialogue::TearDown();
        std::remove("fileopen_present.txt");
    }
};
using Lines = std::vector<std::string>;

TEST_F(FileOpen, OpensTheTypedNameAndKeepsItsBaseName) {
    fstr<40> name = "fileopen_missing.txt";
    type({"sub/fileopen_present.txt"});
    int e = -1;
    opef1(name, "data                ", 12, "old", "read", 0, -1, e);
    EXPECT_EQ(e, 0);
    EXPECT_EQ(name, "fileopen_present.txt");
    EXPECT_EQ(lines(1, 4), (Lines{" @ subroutine opef1" + std::string(17, ' ') + "v1.1 2024-05-29",
                                  " @=================================================",
                                  " OPENING data FILE", " " + std::string(50, '@')}));
    EXPECT_EQ(screen()[6], " Enter data file name");
    std::string rec;
    EXPECT_TRUE(unit_read(12, rec));
    EXPECT_EQ(rec, "x");
}

TEST_F(FileOpen, RetryThenProceedWithout) {
    fstr<40> name = "fileopen_missing.txt";
    // return takes the default name; the pause; 1 retries; then return again,
    // the pause, and 0 gives up.
    type({"", "", "1", "", "", "0"});
    int e = 0;
    opef1(name, "data", 12, "old", "read", 0, -1, e);
    EXPECT_EQ(e, 1);
    EXPECT_EQ(count(" ===> RETRYING TO OPEN THE FILE"), 2);
    EXPECT_EQ(count(" File name = fileopen_missing.txt"), 2);
    EXPECT_EQ(count(" for unit =   12"), 2);
    int c = find(" Could not open data file");
    ASSERT_GT(c, 0);
    EXPECT_EQ(screen()[std::size_t(c - 1)], " " + std::string(43, '-'));
    EXPECT_EQ(screen()[std::size_t(c + 1)], " => Proceeding");
    EXPECT_FALSE(unit_is_open(12));
}

TEST_F(FileOpen, WithoutDialogueAFailureWithSeverityTwoStops) {
    fstr<40> name = "fileopen_missing.txt";
    type({""});
    int e = 0;
    EXPECT_THROW(opef1(name, "data", 12, "old", "read", 1, 2, e), program_stop);
    EXPECT_GT(find(" FAILED TO OPEN data FILE"), 0);
}

TEST_F(FileOpen, SilentOpenWithCodeSeven) {
    fstr<40> name = "fileopen_missing.txt";
    int e = 0;
    opef1(name, "data", 12, "old", "read", 7, -1, e);
    EXPECT_EQ(e, 1);
    EXPECT_TRUE(screen().empty());
}

TEST_F(FileOpen, OpefTwoAsksUntilANameOpens) {
    fstr<40> name = "fileopen_missing.txt";
    type({"", "", "fileopen_present.txt"});
    opef2(name, "data", 12, "old", 0);
    EXPECT_EQ(name, "fileopen_present.txt");
    EXPECT_EQ(count(" ===> RETRYING"), 1);
}

TEST_F(FileOpen, OpefTwoStopsWithoutDialogue) {
    fstr<40> name = "fileopen_missing.txt";
    type({""});
    EXPECT_THROW(opef2(name, "data", 12, "old", 2), program_stop);
    EXPECT_GT(find(" ===> STOPPING EXECUTION"), 0);
    EXPECT_GT(find("                    &&&&&&&&&&&&            "), 0);
}

}  // namespace
