// Fixture for plot library tests: a scripted console, a directory of the
// test's own (plot files and the page format file of tests running side by
// side don't meet), records at their start-up values, and readers for the
// plot file and the screen.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "math/angles.h"
#include "plot/attributes.h"
#include "plot/pages.h"
#include "shell/console.h"
#include "shell/sio.h"
#include "shell/units.h"

class plot_session : public ::testing::Test {
protected:
    memory_console con;
    std::unique_ptr<console_scope> scope;
    std::filesystem::path home;
    std::size_t mark = 0;  // lines of the plot file already looked at

    void SetUp() override {
        const auto* t = ::testing::UnitTest::GetInstance()->current_test_info();
        std::filesystem::path dir = std::string("plot_") + t->test_suite_name() + "_" + t->name();
        home = std::filesystem::current_path();
        std::filesystem::remove_all(dir);
        std::filesystem::create_directory(dir);
        std::filesystem::current_path(dir);
        scope = std::make_unique<console_scope>(con);
        units_reset();
        initsio2(5);
        iocom.lpause = false;
        trigoset();
        plt1blk = plt1blk_t{};
        splotattributes(5);
        con.screen.clear();
    }
    void TearDown() override {
        units_reset();
        iocom.lplotopen = false;
        scope.reset();
        std::filesystem::current_path(home);
    }

    // Opens a plot from the defaults; the page format question takes its
    // default. Closing answers the return key question.
    void open_plot(std::string_view name) {
        con.type("");
        fstr<40> f = name;
        plinit(f, 5);
        ASSERT_TRUE(iocom.lplotopen);
        mark = 0;
    }
    void close_plot() {
        con.type("");
        plend();
        ASSERT_FALSE(iocom.lplotopen);
    }

    static std::vector<std::string> read_lines(const std::string& name) {
        std::vector<std::string> v;
        std::ifstream in(name);
        for (std::string l; std::getline(in, l);) v.push_back(l);
        return v;
    }
    // The lines written to the open plot file since the last call.
    std::vector<std::string> new_lines() {
        unit_flush(UNIT_PLOT);
        auto all = read_lines(unit_name(UNIT_PLOT));
        std::vector<std::string> v(all.begin() + std::ptrdiff_t(std::min(mark, all.size())), all.end());
        mark = all.size();
        return v;
    }
    void skip_lines() { new_lines(); }

    bool screen_has(std::string_view line) const { return count(con.screen, line) > 0; }
    static int count(const std::vector<std::string>& v, std::string_view line) {
        return int(std::count(v.begin(), v.end(), line));
    }
};
