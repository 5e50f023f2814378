// The shape test pages 321 to 335 on 15000 samples, one page per
// iteration as the user gets it: entering the log menu, the computations,
// a new page with its head, every track, and for 333 and 335 the extracted
// table written through the writer's menu. The plot goes to /dev/null, the
// tables to a scratch directory.
#include <benchmark/benchmark.h>

#include <cmath>
#include <filesystem>
#include <string>

#include "bench_session.h"
#include "borehole/logplot2.h"
#include "borehole/wellplot.h"
#include "math/angles.h"
#include "plot/attributes.h"
#include "plot/pages.h"
#include "shell/console.h"
#include "shell/runinfo.h"
#include "shell/sio.h"
#include "shell/units.h"
#include "well/welldat.h"
#include "well/wellpara.h"

namespace {

// A deviated hole of type 210 that cycles through gauge, breakout (ASE),
// washout (ADE) and key seat (ARK) every 4000 samples.
void load_well() {
    int id = 210;
    wdtype(id, 1);
    welldat_t& w = welldat;
    w.ndatwd = MAXDATWD;
    w.finwd = "bench";
    const float bs = wellpara.bitsize;
    for (int i = 1; i <= MAXDATWD; ++i) {
        const float t = float(i);
        const int part = (i / 1000) % 4;
        float p1az = std::fmod(0.9f * t, 360.f), rb = std::fmod(0.9f * t + 200.f, 360.f);
        float c1 = bs + 0.2f + 0.1f * std::sin(t), c2 = bs + 0.2f + 0.1f * std::cos(t);
        if (part == 1) p1az = 65.f, rb = 110.f, c1 = bs + 5.f + std::sin(0.05f * t);
        if (part == 2) c1 = bs + 5.5f + 1.5f * std::sin(t), c2 = bs + 4.5f + 1.5f * std::cos(t);
        if (part == 3) rb = 90.f, c1 = bs - 1.6f, c2 = bs + 4.f;
        w.RWD1(i, w.JCOL(w.jdepth)) = 2000.f + 0.1524f * t;
        w.RWD1(i, w.JCOL(w.jp1az)) = p1az;
        w.RWD1(i, w.JCOL(w.jc1)) = c1;
        w.RWD1(i, w.JCOL(w.jc2)) = c2;
        w.RWD1(i, w.JCOL(w.jrb)) = rb;
        w.RWD1(i, w.JCOL(w.jdevi)) = 30.f;
        w.RWD1(i, w.JCOL(w.jhazi)) = 135.f;
        w.RWD1(i, w.JCOL(w.jazcmax)) = std::fmod(c1 >= c2 ? p1az : p1az + 90.f, 180.f);
    }
    wellpara.ztop = 2000.f;
    wellpara.zbot = 2000.f + 0.1524f * float(MAXDATWD);
}

void BM_ShapePage(benchmark::State& state) {
    const int icmd = int(state.range(0));
    const std::string page = std::to_string(icmd);
    const auto home = std::filesystem::current_path();
    const auto scratch = std::filesystem::temp_directory_path() / "tarnolix_shape_bench";
    std::filesystem::create_directories(scratch);
    std::filesystem::current_path(scratch);
    scripted_console con;
    console_scope scope(con);
    start_log_session(con);
    load_well();
    const bool table = icmd == 333 || icmd == 335;
    for (auto _ : state) {
        // The page, a new page on the open file, and for a table its
        // default name and the writer's "write & exit"; then leave.
        con.keys = {page, ""};
        if (table) con.keys.insert(con.keys.end(), {"", "90"});
        con.keys.push_back("99");
        logplot2(0);
        benchmark::DoNotOptimize(welldat.IWD1.a);
        if (table) {
            // The next table must not find this one: it is never overwritten.
            state.PauseTiming();
            std::filesystem::remove(scratch / (icmd == 333 ? "bench_extr_ase.txt"
                                                          : "bench_extr_ade.txt"));
            state.ResumeTiming();
        }
    }
    if (!iocom.lplotopen || !con.keys.empty()) state.SkipWithError("the page was not drawn");
    iocom.lplotopen = false;
    units_reset();
    std::filesystem::current_path(home);
    state.SetItemsProcessed(state.iterations() * MAXDATWD);
}
BENCHMARK(BM_ShapePage)
    ->DenseRange(321, 326)
    ->DenseRange(332, 335)
    ->Unit(benchmark::kMillisecond);

}  // namespace
