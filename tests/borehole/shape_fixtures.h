// Fixtures of the shape test and shape class pages: hand-made rows with
// every size code and test result, and the sample well in the log menu.
#pragma once

#include <limits>
#include <string>

#include "borehole/derived.h"
#include "borehole/logplot2.h"
#include "borehole/wellplot.h"
#include "math/angles.h"
#include "plot/attributes.h"
#include "plot/pages.h"
#include "shell/runinfo.h"
#include "well/well_fixture.h"

// 44 rows, depths 101 to 144 all selected, AzCmax 65: rows 4k+1 to 4k+4
// hold size code 10(k+1) with DC and RB results 00, 10, 01, 11. A plot
// file "rows.ps" is open.
struct ShapeRows : WellDialogue {
    welldat_t& w = welldat;
    farr<int, 2> jcc;
    int n = 44;

    void SetUp() override {
        WellDialogue::SetUp();
        iocom.lpause = false;
        trigoset();
        plt1blk = plt1blk_t{};
        splotattributes(5);
        type({""});
        fstr<40> name = "rows.ps";
        plinit(name, 5);
        swellplot(5);
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
    void TearDown() override {
        iocom.lplotopen = false;
        WellDialogue::TearDown();
    }
};

// The log menu ready for a well read by read.
struct ShapeWell : WellDialogue {
    void SetUp() override {
        WellDialogue::SetUp();
        iocom.lpause = false;
        smaininfo2("tarnolix            ", "12.3", "2024-09-14");
        trigoset();
        plt1blk = plt1blk_t{};
        splotattributes(5);
        swellplot(5);
        logplot2(5);
    }
    void TearDown() override {
        iocom.lplotopen = false;
        WellDialogue::TearDown();
    }
    // Reads a file of data/ as type id and selects 0 to zbot.
    void read(const std::string& file, const std::string& id, float zbot) {
        type({"100", id, "99", "1000", sample(file), "99", "99", "1000", "99"});
        run([] { readwell2(2); });
        wellpara.ztop = 0.f;
        wellpara.zbot = zbot;
        clear();
    }
};
