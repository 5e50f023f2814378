// Numbered units on files: what goes out comes back line for line, through
// the program's large buffers, whatever the line lengths and line ends.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "dialogue.h"
#include "shell/linein.h"
#include "shell/units.h"

namespace {

using Lines = std::vector<std::string>;

Lines read_all(int unit, const std::string& name) {
    EXPECT_TRUE(unit_open(unit, name, "old", "read"));
    Lines got;
    for (std::string rec; unit_read(unit, rec);) got.push_back(rec);
    unit_close(unit);
    return got;
}

struct Units : Dialogue {};

TEST_F(Units, LinesComeBackWholeAndOutputWaitsInALargeBuffer) {
    const Lines lines{"", "x", std::string(LINE_LIMIT, 'a'), "  12.5  7", "", std::string(300, 'b')};
    ASSERT_TRUE(unit_open(UNIT_PLOT, "one.txt", "replace", "write"));
    ASSERT_TRUE(unit_open(UNIT_TABLES, "two.txt", "replace", "write"));
    for (int k = 0; k < 800; ++k) unit_write(UNIT_TABLES, std::string(70, 'c'));
    // 56 KB written and still nothing on disk.
    EXPECT_EQ(std::filesystem::file_size("two.txt"), 0u);
    for (const auto& l : lines) {
        unit_write(UNIT_PLOT, l);
        unit_write(UNIT_TABLES, l);
    }
    unit_close(UNIT_PLOT);
    // The unit number taken again for another file while the other is open.
    ASSERT_TRUE(unit_open(UNIT_PLOT, "three.txt", "replace", "write"));
    unit_write(UNIT_PLOT, "third");
    unit_write(UNIT_TABLES, "last");
    units_reset();
    EXPECT_EQ(read_all(UNIT_DATA, "one.txt"), lines);
    const Lines two = read_all(UNIT_DATA, "two.txt");
    ASSERT_EQ(two.size(), 800u + lines.size() + 1);
    EXPECT_EQ(Lines(two.begin() + 800, two.end() - 1), lines);
    EXPECT_EQ(two.back(), "last");
    EXPECT_EQ(read_all(UNIT_DATA, "three.txt"), Lines{"third"});
}

TEST_F(Units, CarriageReturnsAndAMissingLastLineEnd) {
    std::ofstream("crlf.txt", std::ios::binary) << "a b\r\n\r\nc\rd\r\nlast";
    EXPECT_EQ(read_all(UNIT_DATA, "crlf.txt"), (Lines{"a b", "", "c\rd", "last"}));
    std::ofstream("empty.txt");
    EXPECT_TRUE(read_all(UNIT_DATA, "empty.txt").empty());
}

// A binary file or device given as data: a long line is cut, its rest
// skipped; a stream with no line end in reach ends there. Said once each.
TEST_F(Units, OverlongLinesAreCutAndAnEndlessOneEndsTheFile) {
    std::ofstream("long.txt", std::ios::binary)
        << std::string(LINE_LIMIT + 5, 'x') << "\nnext\n" << std::string(LINE_LIMIT + 1, 'z')
        << "\n" << std::string(LINE_LIMIT + LINE_SKIP_LIMIT, 'y') << "\nnever\n";
    EXPECT_EQ(read_all(UNIT_DATA, "long.txt"),
              (Lines{std::string(LINE_LIMIT, 'x'), "next", std::string(LINE_LIMIT, 'z'),
                     std::string(LINE_LIMIT, 'y')}));
    EXPECT_EQ(screen(), (Lines{" Line longer than 16384 characters cut there, in long.txt",
                               " No line end within 1048576 characters: the rest is not read"}));
}

}  // namespace
