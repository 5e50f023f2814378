// Fixture for plot library tests: the Dialogue fixture (a scripted console
// in a directory of the test's own) with the plot library alone at its
// start-up values, and readers for the plot file and the screen.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "dialogue.h"
#include "math/angles.h"
#include "plot/attributes.h"
#include "plot/pages.h"
#include "shell/console.h"
#include "shell/sio.h"
#include "shell/units.h"

// The text of a string line of the plot file, "(...)" or "(...) show", as
// the page shows it: "\\(" is "(" and "\\\\" is "\\".
inline std::string shown_text(const std::string& line) {
    std::string t;
    for (std::size_t k = 1, e = line.rfind(')'); k < e; ++k) t += line[k] == '\\' ? line[++k] : line[k];
    return t;
}

class plot_session : public Dialogue {
protected:
    std::size_t mark = 0;  // lines of the plot file already looked at

    void SetUp() override {
        Dialogue::SetUp();
        initsio2(5);
        iocom.lpause = false;
        trigoset();
        plt1blk = plt1blk_t{};
        splotattributes(5);
        clear();
    }
    void TearDown() override {
        iocom.lplotopen = false;
        Dialogue::TearDown();
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

    // The n screen lines from the first one equal to s on, or none.
    std::vector<std::string> block(const std::string& s, int n) const {
        const int k = find(s);
        return k < 0 || k + n > int(con.screen.size()) ? std::vector<std::string>{} : lines(k, n);
    }
    // The strings drawn in a stretch of plot file, in order.
    static std::vector<std::string> strings(const std::vector<std::string>& file) {
        std::vector<std::string> v;
        for (const auto& l : file)
            if (!l.empty() && l.front() == '(') v.push_back(shown_text(l));
        return v;
    }
    bool screen_has(std::string_view line) const { return count(con.screen, line) > 0; }
    using Dialogue::count;
    static int count(const std::vector<std::string>& v, std::string_view line) {
        return int(std::count(v.begin(), v.end(), line));
    }
};
