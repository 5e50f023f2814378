// No file lost: a plot never opens over a file the run has loaded or is
// reading, and what is written reaches the disk while the run waits.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "main_run.h"

namespace {

struct FilesSafety : MainMenu {};

TEST_F(FilesSafety, APlotNeverOpensOverTheWellLoadedOrTheCommandFileRead) {
    struct Case {
        std::string guarded;
        std::string commands;  // the command file, if any
        std::vector<std::string> keys;
    };
    // The plot named like the guarded file is refused; the pause, 0 gives up
    // retrying, 0 answers No to STOP, and the run goes on without a file.
    const std::vector<Case> cases = {
        {"well210.txt", "",
         {"100", "1000", "well210.txt", "99", "99", "1000", "99", "10", "", "well210.txt", "", "0",
          "0", "", "20", "", "9999"}},
        {"cmd.keys", "10\n\ncmd.keys\n20\n\n9999\n", {"5000", "5001", "cmd.keys", "", "0", "0", ""}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.guarded);
        clear();
        std::filesystem::copy_file(std::string(TARNOLIX_SOURCE_DIR) + "/data/well210.txt",
                                   "well210.txt",
                                   std::filesystem::copy_options::overwrite_existing);
        if (!c.commands.empty()) std::ofstream("cmd.keys") << c.commands;
        const std::string before = file_text(c.guarded);
        for (const auto& k : c.keys) con.type(k);
        EXPECT_EQ(run(), 0);
        EXPECT_EQ(file_text(c.guarded), before);
        EXPECT_EQ(count(" COULD NOT OPEN PostScript plot FILE"), 1);
        EXPECT_EQ(count(" ENTERING THE TWILIGHT ZONE OF COMPUTING !"), 1);
        // Nothing meant for the missing file comes out in the dialogue.
        for (const auto& l : screen()) EXPECT_NE(l.rfind('%', 0), 0u) << l;
        EXPECT_EQ(count(" The PostScript plot file is closed"), 1);
    }
}

// A keyboard that notes, at each read, how much of the plot file is on disk.
struct watching_console : memory_console {
    std::vector<std::uintmax_t> seen;
    std::string get_line() override {
        std::error_code e;
        auto n = std::filesystem::file_size("well.ps", e);
        seen.push_back(e ? 0 : n);
        return memory_console::get_line();
    }
};

TEST_F(FilesSafety, ThePlotFileIsOnDiskAtEveryPrompt) {
    watching_console w;
    console_scope s(w);
    w.keys = {"", "10", "", "", "1", "20", "", "9999"};
    EXPECT_EQ(run_engine(), 0);
    // At the prompt after the open (command 1), the head is there.
    ASSERT_GE(w.seen.size(), 5u);
    EXPECT_GT(w.seen[4], 0u);
    EXPECT_NE(file_text("well.ps").find("%%Page:    1    1"), std::string::npos);
}

}  // namespace
