// The whole program run through the in-memory console, with a scripted
// platform under the run information.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "dialogue.h"
#include "fake_platform.h"
#include "shell/main_program.h"

inline const std::string AT50 = " " + std::string(50, '@');
inline const std::string HEAD = " @ main program tarnolix           v12.3 2024-09-14";
inline const std::string HEAD_RULE = " @" + std::string(49, '=');

// A file's bytes, none if it is missing.
inline std::string file_text(const std::filesystem::path& p) {
    std::ifstream in(p, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

struct MainMenu : on_fake_platform<Dialogue> {
    // Another run in the same test starts afresh, with these keys.
    void restart(const std::vector<std::string>& keys) {
        clear();
        con.keys.clear();
        reset_io();
        use_fake_platform();
        type(keys);
    }
    // The start banner waits for the return key first.
    int run() {
        con.keys.push_front("");
        return run_engine();
    }
    int passes() const { return count(HEAD); }
    // Where the end report begins, or -1.
    int end_report() const { return find(" @ PROGRAM tarnolix"); }
};
