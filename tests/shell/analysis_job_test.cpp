// The demo's whole analysis of the sample well: its command file replayed
// through command 5000 leaves the same tables and plot files as the same
// answers typed at the console.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "main_run.h"

namespace {

namespace fs = std::filesystem;

// The files a run leaves in dir, by name, less those it was given.
std::vector<std::string> made(const fs::path& dir, const std::vector<std::string>& given) {
    std::vector<std::string> names;
    for (const auto& e : fs::directory_iterator(dir)) {
        const std::string n = e.path().filename().string();
        if (std::find(given.begin(), given.end(), n) == given.end()) names.push_back(n);
    }
    std::sort(names.begin(), names.end());
    return names;
}

TEST_F(MainMenu, TheAnalysisJobFromItsFileLeavesTheFilesOfTheSameAnswersTyped) {
    const fs::path data = fs::path(TARNOLIX_SOURCE_DIR) / "data";
    const std::vector<std::string> given = {"well210.txt", "well210_BO.txt", "well210_POW.txt",
                                            "analysis_job.cmd"};
    std::vector<std::string> job;
    {
        std::ifstream in(data / "analysis_job.cmd");
        for (std::string l; std::getline(in, l);) job.push_back(l);
    }
    const fs::path top = fs::current_path();
    auto run_in = [&](const std::string& name, const std::vector<std::string>& keys) {
        fs::create_directory(top / name);
        for (const auto& g : given)
            if (fs::exists(data / g)) fs::copy_file(data / g, top / name / g);
        fs::current_path(top / name);
        use_fake_platform();
        for (const auto& k : keys) con.type(k);
        const int status = run();
        fs::current_path(top);
        return status;
    };
    EXPECT_EQ(run_in("replayed", {"5000", "5001", "analysis_job.cmd"}), 0);
    EXPECT_EQ(run_in("typed", job), 0);

    const auto files = made(top / "replayed", given);
    EXPECT_EQ(files, made(top / "typed", given));
    for (const char* f : {"log.ps", "statplot.1.ps", "wellpers.ps", "well210.txt_extr_ase.txt",
                          "well210.txt_extr_ade.txt", "well210.txt.all.out.txt"})
        EXPECT_NE(std::find(files.begin(), files.end(), f), files.end()) << f;
    for (const auto& f : files)
        EXPECT_TRUE(file_text(top / "replayed" / f) == file_text(top / "typed" / f)) << f;
}

}  // namespace
