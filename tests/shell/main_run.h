// The whole program run through the in-memory console, with a scripted
// platform under the run information.
#pragma once

#include "dialogue.h"
#include "fake_platform.h"
#include "shell/main_program.h"

inline const std::string AT50 = " " + std::string(50, '@');
inline const std::string HEAD = " @ main program tarnolix           v12.3 2024-09-14";
inline const std::string HEAD_RULE = " @" + std::string(49, '=');

struct MainMenu : Dialogue {
    void SetUp() override {
        Dialogue::SetUp();
        use_fake_platform();
    }
    void TearDown() override {
        runinfo_platform = runinfo_platform_default();
        Dialogue::TearDown();
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
