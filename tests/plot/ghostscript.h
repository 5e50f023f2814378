// Renders a PostScript file with Ghostscript, for tests that want to know
// that a plot file opens in a real reader. Ghostscript prints its errors on
// standard output and exits non-zero; both are caught here.
//
//   auto r = gs_render("page.ps");
//   if (!r.available) GTEST_SKIP() << r.output;
//   EXPECT_TRUE(r.ok) << r.output;
//
// or simply EXPECT_GS_RENDERS("page.ps"); which skips when gs is missing.
#pragma once

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/wait.h>

struct gs_result {
    bool available = false;  // gs could be run at all
    bool ok = false;         // exit status 0 and no "Error" in the output
    int status = -1;         // exit status of gs
    std::string output;      // what gs printed (stdout and stderr)
};

inline bool gs_installed() {
    static const int found = std::system("command -v gs >/dev/null 2>&1") == 0 ? 1 : 0;
    return found == 1;
}

// Renders ps_path to PNG. png_pattern may hold "%d" for the page number; by
// default the pages go to "<ps_path>-<page>.png" next to the file, at dpi
// dots per inch.
inline gs_result gs_render(const std::string& ps_path, std::string png_pattern = "", int dpi = 50) {
    gs_result r;
    if (!gs_installed()) {
        r.output = "ghostscript (gs) is not installed";
        return r;
    }
    r.available = true;
    if (png_pattern.empty()) png_pattern = ps_path + "-%d.png";
    std::string cmd = "gs -q -dSAFER -dBATCH -dNOPAUSE -sDEVICE=png16m -r" + std::to_string(dpi) + " '-sOutputFile=" +
                      png_pattern + "' '" + ps_path + "' 2>&1 </dev/null";
    std::FILE* p = popen(cmd.c_str(), "r");
    if (!p) {
        r.available = false;
        r.output = "could not start gs";
        return r;
    }
    std::array<char, 4096> buf{};
    std::size_t got;
    while ((got = std::fread(buf.data(), 1, buf.size(), p)) > 0) r.output.append(buf.data(), got);
    int st = pclose(p);
    r.status = (st != -1 && WIFEXITED(st)) ? WEXITSTATUS(st) : -1;
    r.ok = r.status == 0 && r.output.find("Error") == std::string::npos;
    return r;
}

// Fails the test on any Ghostscript complaint; skips it when gs is absent.
#define EXPECT_GS_RENDERS(path)                                                 \
    do {                                                                        \
        gs_result gs_r_ = gs_render(path);                                      \
        if (!gs_r_.available) GTEST_SKIP() << gs_r_.output;                     \
        EXPECT_TRUE(gs_r_.ok) << "gs on " << (path) << " (status " << gs_r_.status \
                              << "):\n" << gs_r_.output;                        \
    } while (0)
