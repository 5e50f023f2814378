// Replaying answers from a command file.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "main_run.h"

namespace {

// Each session by its command file (none if empty), its exit status and how
// often lines show; where given, a line that comes right under a frame head.
TEST_F(MainMenu, CommandFileSessions) {
    const std::string FILE = "cmdfile_test.txt", ALT = " ALTERNATE STANDARD INPUT";
    const struct {
        std::string name, file;
        std::vector<std::string> keys;
        int status;
        std::vector<std::pair<std::string, int>> counts;
        std::vector<std::string> head;
        std::string framed;
    } cases[] = {
        // While the file was open no menu was shown: menus appear for the first
        // pass and for the pass after the file closed. The command file menu
        // shows whatever the output level.
        {"answers come from the file until it hands back", "1\n5000\n5002\n", {"5000", "5001", FILE, "9999"}, 0,
         {{" Standard input redirected from", 1},
          {" Level 2 standard output disabled", 1},
          {" command file open status    :  T", 1},
          {" command file input unit     = 15", 1},
          {" command file input index    =  0", 1},
          {" Command file cmdfile_test.txt closed", 1},
          {" FAST QUIT............................9999", 2},
          {ALT, 2}}, {}, ""},
        {"quit from the file needs no confirmation", "5000\n5003\n", {"5000", "5001", FILE}, 0,
         {{" Enter 999 to confirm quit", 0}}, {}, ""},
        {"closing none warns; a file that does not open changes nothing", "",
         {"5000", "5002", "", "5000", "5001", FILE, "", "0", "", "9999"}, 0,
         {{ALT, 2}, {" COULD NOT OPEN COMMAND FILE cmdfile_test.txt", 1}}, warning_head_lines("    endaltsi2"),
         " NO OPEN COMMAND FILE"},
        {"a second file from inside a file", "5000\n5001\n5000\n5002\n", {"5000", "5001", FILE, "", "9999"}, 0,
         {{" COMMAND FILE ALREADY OPEN", 1},
          {" ===> HIT RETURN TO RESUME COMMANDS", 1},
          {" Enter alternate standard input file name", 1}}, {}, ""},
        {"a file that runs out asks until the keyboard ends", "1\n", {"5000", "5001", FILE, "", ""}, 2,
         {{" could not read your choice", 3}}, {}, ""},
    };
    for (const auto& c : cases) {
        restart(c.keys);
        std::filesystem::remove(FILE);
        if (!c.file.empty()) std::ofstream(FILE) << c.file;
        EXPECT_EQ(run(), c.status) << c.name;
        for (const auto& [line, n] : c.counts) EXPECT_EQ(count(line), n) << c.name << ": " << line;
        if (!c.framed.empty()) {
            EXPECT_GT(under(c.head, c.framed), 0) << c.name;
        }
        EXPECT_TRUE(con.keys.empty()) << c.name;
        // A run that ended has given the keyboard back.
        if (c.status == 0) {
            EXPECT_EQ(iocom.isin, 5) << c.name;
            EXPECT_FALSE(iocom.lcmdopen) << c.name;
            EXPECT_TRUE(iocom.LWITO(2)) << c.name;
        }
    }
}

}  // namespace
