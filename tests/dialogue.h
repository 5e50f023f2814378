// A console dialogue under test: scripted keyboard lines in, screen lines out.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <vector>

#include "shell/console.h"
#include "shell/sio.h"
#include "shell/units.h"

struct Dialogue : ::testing::Test {
    memory_console con;
    console_scope scope{con};

    std::filesystem::path home;

    void SetUp() override {
        // Each test works in a directory of its own: tests run in parallel
        // and the program writes its files in the current directory.
        home = std::filesystem::current_path();
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        std::filesystem::path dir = home / (std::string(info->test_suite_name()) + "." + info->name());
        std::filesystem::remove_all(dir);
        std::filesystem::create_directories(dir);
        std::filesystem::current_path(dir);
        reset_io();
    }
    // The units and the standard input and output as a run starts.
    void reset_io() {
        iocom = iocom_t{5, 6, 5, 6, 0, 0, false, false, true, {{true, true, false}}};
        units_reset();
    }
    void TearDown() override {
        // A failed dialogue test shows the whole screen.
        if (HasFailure()) std::fprintf(stderr, "---- screen ----\n%s----\n", con.text().c_str());
        units_reset();
        std::filesystem::current_path(home);
    }

    void type(std::initializer_list<std::string> lines) {
        for (const auto& l : lines) con.type(l);
    }
    void type(const std::vector<std::string>& lines) {
        for (const auto& l : lines) con.type(l);
    }
    const std::vector<std::string>& screen() const { return con.screen; }
    void clear() { con.screen.clear(); }

    // The index of the first screen line equal to s at or after from, or -1.
    int find(const std::string& s, int from = 0) const {
        for (int k = from; k < int(con.screen.size()); ++k)
            if (con.screen[std::size_t(k)] == s) return k;
        return -1;
    }
    int count(const std::string& s) const {
        int n = 0;
        for (const auto& l : con.screen) n += l == s;
        return n;
    }
    // The screen lines from index from on, n of them, as far as there are.
    std::vector<std::string> lines(int from, int n) const {
        const int size = int(con.screen.size());
        if (from < 0 || from > size) return {};
        return std::vector<std::string>(con.screen.begin() + from, con.screen.begin() + std::min(from + n, size));
    }
    // The index of the first line s at or after from that comes right under
    // the frame head lines head, or -1.
    int under(const std::vector<std::string>& head, const std::string& s, int from = 0) const {
        for (int k = find(s, from); k >= 0; k = find(s, k + 1))
            if (lines(k - int(head.size()), int(head.size())) == head) return k;
        return -1;
    }
};

// Frames as they appear on the screen.
inline std::vector<std::string> error_head_lines(const std::string& name13) {
    const std::string stars = " " + std::string(50, '*');
    const std::string blank = " ***" + std::string(44, ' ') + "***";
    return {stars, stars, blank, " ***          subroutine " + name13 + "          ***", blank,
            " ***" + std::string(19, ' ') + "ERROR " + std::string(19, ' ') + "***", blank,
            stars, stars};
}
inline std::vector<std::string> warning_head_lines(const std::string& name13) {
    const std::string slashes = " " + std::string(50, '/');
    return {slashes, " ///          subroutine " + name13 + "          ///",
            " ///" + std::string(18, ' ') + "WARNING " + std::string(18, ' ') + "///", slashes};
}
