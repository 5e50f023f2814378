// Fixtures of the borehole analysis: the program freshly started with the
// scripted platform, the sample wells read through the menus, plot files of
// the test's own, and hand-made rows with every size code and test result.
#pragma once

#include <filesystem>
#include <fstream>
#include <limits>
#include <string>
#include <vector>

#include "borehole/derived.h"
#include "borehole/logplot2.h"
#include "borehole/wellplot.h"
#include "plot/ghostscript.h"
#include "plot/pages.h"
#include "shell/fake_platform.h"
#include "shell/units.h"
#include "well/well_fixture.h"

using lines_t = std::vector<std::string>;
inline const std::string DASH = " -------------------------------------------";

struct Borehole : WellDialogue {
    welldat_t& w = welldat;

    void SetUp() override {
        WellDialogue::SetUp();
        use_fake_platform();
        smaininfo2("tarnolix            ", "12.3", "2024-09-14");
        iocom.lpause = false;
        clear();
    }
    void TearDown() override {
        iocom.lplotopen = false;
        runinfo_platform = runinfo_platform_default();
        WellDialogue::TearDown();
    }
    // A file read as type id, ztop to zbot selected: one the test wrote,
    // else the one of data/.
    void read(const std::string& id, float ztop, float zbot,
              const std::string& file = "well210.txt") {
        const std::string name = std::filesystem::exists(file) ? file : sample(file);
        type({"100", id, "99", "1000", name, "99", "99", "1000", "99"});
        run([] { readwell2(2); });
        wellpara.ztop = ztop;
        wellpara.zbot = zbot;
        clear();
    }
    // Opens a plot file from the defaults; opening clears the log layouts.
    void open_plot(const std::string& file) {
        type({""});
        fstr<40> name = file;
        plinit(name, 5);
        swellplot(5);
        clear();
    }
    // A file's text as it stands, the plot file flushed.
    static std::string text(const std::string& name) {
        unit_flush(UNIT_PLOT);
        std::ifstream in(name);
        return std::string(std::istreambuf_iterator<char>(in), {});
    }
    static int occurrences(const std::string& text, const std::string& what) {
        int n = 0;
        for (auto k = text.find(what); k != std::string::npos; k = text.find(what, k + 1)) ++n;
        return n;
    }
    // The last screen line equal to s, or -1.
    int last(const std::string& s) const {
        int k = -1;
        for (int j = find(s); j >= 0; j = find(s, j + 1)) k = j;
        return k;
    }
};

// 44 rows, depths 101 to 144 all selected, AzCmax 65: rows 4k+1 to 4k+4
// hold size code 10(k+1) with DC and RB results 00, 10, 01, 11. A plot
// file "rows.ps" is open.
struct ShapeRows : Borehole {
    farr<int, 2> jcc;
    int n = 44;

    void SetUp() override {
        Borehole::SetUp();
        open_plot("rows.ps");
        int id = 210;
        wdtype(id, 1);
        w.ndatwd = n;
        jcc(1) = w.JCOL(w.jc1), jcc(2) = w.JCOL(w.jc2);
        const float NaN = std::numeric_limits<float>::quiet_NaN();
        for (int i = 1; i <= n; ++i) {
            const int code = 10 * (1 + (i - 1) / 4), d = (i - 1) % 2, r = ((i - 1) / 2) % 2;
            w.IWD1(i, IWD_SIZE) = code, w.IWD1(i, IWD_DC) = d, w.IWD1(i, IWD_RB) = r;
            w.RWD1(i, w.JCOL(w.jdepth)) = 100.f + float(i);
            w.RWD1(i, w.JCOL(w.jazcmax)) = 65.f;
            // C1 saturated from row 17 on but for the NaN of the last row;
            // C2 where DC passes, NaN where neither passes.
            w.RWD1(i, jcc(1)) = i == n ? NaN : 20.f + float(i);
            w.RWD1(i, jcc(2)) = d == 1 ? 37.f : (r == 0 ? NaN : 30.f);
        }
        wellpara.ztop = 101.f;
        wellpara.zbot = 100.f + float(n);
        clear();
    }
};
