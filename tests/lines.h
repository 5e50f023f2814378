// Screen and file lines for tests: a stretch of a dialogue's screen, lines
// one after the other, small files written and read back, a dialogue run to
// its end.
#pragma once

#include <fstream>
#include <string>
#include <vector>

#include "dialogue.h"

// The n screen lines from the first one equal to s at or after from on, or
// none when there is no such line, fewer lines follow it or from is -1 (a
// line not found).
inline std::vector<std::string> screen_block(const Dialogue& d, const std::string& s, int n, int from = 0) {
    const int k = from < 0 ? -1 : d.find(s, from);
    return k < 0 || k + n > int(d.screen().size()) ? std::vector<std::string>{} : d.lines(k, n);
}

// Screen or file lines one after the other.
inline std::vector<std::string> operator+(std::vector<std::string> a, const std::vector<std::string>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

inline void write_file(const std::string& name, const std::string& text) {
    std::ofstream(name, std::ios::binary) << text;
}
inline std::vector<std::string> file_lines(const std::string& name) {
    std::vector<std::string> v;
    std::ifstream in(name);
    for (std::string l; std::getline(in, l);) v.push_back(l);
    return v;
}

// Runs a dialogue that must end by itself; a script that runs out fails.
template <class F>
void run_to_end(const Dialogue& d, F f) {
    try {
        f();
    } catch (const console_closed&) {
        FAIL() << "the dialogue asked for more answers than scripted";
    }
    EXPECT_TRUE(d.con.keys.empty()) << d.con.keys.size() << " answers left over";
}
