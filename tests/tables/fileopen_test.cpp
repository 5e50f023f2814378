// Opening named files: the dialogue, retry, giving up.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "dialogue.h"
#include "shell/stop.h"
#include "tables/fileopen.h"

namespace {

struct FileOpen : Dialogue {
    fstr<40> name = "fileopen_missing.txt";
    void SetUp() override {
        Dialogue::SetUp();
        std::filesystem::create_directory("sub");
        std::ofstream("fileopen_present.txt") << "x\n";
        std::ofstream("sub/fileopen_present.txt") << "x\n";
    }
};
using Lines = std::vector<std::string>;

TEST_F(FileOpen, OpefOneOpensTheTypedNameRetriesOrProceedsWithout) {
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

    // return takes the default name; the pause; 1 retries; then return again,
    // the pause, and 0 gives up.
    unit_close(12);
    name = "fileopen_missing.txt";
    type({"", "", "1", "", "", "0"});
    opef1(name, "data", 12, "old", "read", 0, -1, e);
    EXPECT_EQ(e, 1);
    EXPECT_EQ(count(" ===> RETRYING TO OPEN THE FILE"), 2);
    EXPECT_EQ(count(" File name = fileopen_missing.txt"), 2);
    EXPECT_EQ(count(" for unit =   12"), 2);
    const int c = find(" Could not open data file");
    ASSERT_GT(c, 0);
    EXPECT_EQ(lines(c - 1, 3), (Lines{" " + std::string(43, '-'), " Could not open data file", " => Proceeding"}));
    EXPECT_FALSE(unit_is_open(12));
}

TEST_F(FileOpen, CodeSevenFailsSilentlyAndWithoutDialogueSeverityTwoStops) {
    int e = 0;
    opef1(name, "data", 12, "old", "read", 7, -1, e);
    EXPECT_EQ(e, 1);
    EXPECT_TRUE(screen().empty());
    type({""});
    EXPECT_THROW(opef1(name, "data", 12, "old", "read", 1, 2, e), program_stop);
    EXPECT_GT(find(" FAILED TO OPEN data FILE"), 0);
}

TEST_F(FileOpen, OpefTwoAsksUntilANameOpensAndStopsWithoutDialogue) {
    type({"", "", "fileopen_present.txt"});
    opef2(name, "data", 12, "old", 0);
    EXPECT_EQ(name, "fileopen_present.txt");
    EXPECT_EQ(count(" ===> RETRYING"), 1);
    unit_close(12);
    name = "fileopen_missing.txt";
    clear();
    type({""});
    EXPECT_THROW(opef2(name, "data", 12, "old", 2), program_stop);
    EXPECT_GT(find(" ===> STOPPING EXECUTION"), 0);
    EXPECT_GT(find("                    &&&&&&&&&&&&            "), 0);
}


// A file the user may read but not write: chmod for a user, the immutable
// flag for root, whom modes don't stop.
bool make_unwritable(const char* name) {
    ::chmod(name, 0444);
    int fd = ::open(name, O_RDWR);
    if (fd < 0) return true;
    int flags = 0;
    if (::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0) {
        flags |= FS_IMMUTABLE_FL;
        ::ioctl(fd, FS_IOC_SETFLAGS, &flags);
    }
    ::close(fd);
    fd = ::open(name, O_RDWR);
    if (fd < 0) return true;
    ::close(fd);
    return false;
}
void make_writable(const char* name) {
    int fd = ::open(name, O_RDONLY);
    int flags = 0;
    if (fd >= 0 && ::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0) {
        flags &= ~FS_IMMUTABLE_FL;
        ::ioctl(fd, FS_IOC_SETFLAGS, &flags);
    }
    if (fd >= 0) ::close(fd);
    ::chmod(name, 0644);
}

TEST_F(FileOpen, AnOldFileThatCannotBeWrittenOpensAndReads) {
    const bool locked = make_unwritable("fileopen_present.txt");
    if (!locked) GTEST_SKIP() << "no way to make a file unwritable here";
    type({"fileopen_present.txt"});
    opef2(name, "data", 12, "old", 0);
    std::string rec;
    const bool read = unit_read(12, rec);
    unit_close(12);
    make_writable("fileopen_present.txt");
    EXPECT_EQ(count(" ===> RETRYING"), 0);
    EXPECT_TRUE(read);
    EXPECT_EQ(rec, "x");
}

}  // namespace
