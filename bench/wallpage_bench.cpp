// One perspective wall page (command 100 of the wall plot menu) on 15000
// samples with the default settings: inner and outer curves, a spike and a
// bit size circle for every sample, and the frame, by the default
// isometric projection. The plot goes to /dev/null, so the time is the
// program's own.
#include <benchmark/benchmark.h>

#include <cmath>

#include "bench_session.h"
#include "borehole/wallplot2.h"
#include "shell/units.h"
#include "well/welldat.h"
#include "well/wellpara.h"

namespace {

// A tool rotating through many half turns, stopped in a breakout every
// 2000 samples.
void load_well() {
    int id = 100;
    wdtype(id, 1);
    welldat_t& w = welldat;
    w.ndatwd = MAXDATWD;
    for (int i = 1; i <= MAXDATWD; ++i) {
        const float t = float(i);
        const bool breakout = (i / 1000) % 2 == 1;
        w.RWD1(i, w.JCOL(w.jdepth)) = 2000.f + 0.1524f * t;
        w.RWD1(i, w.JCOL(w.jp1az)) = breakout ? 65.f : std::fmod(0.9f * t, 360.f);
        w.RWD1(i, w.JCOL(w.jc1)) = 25.3f + (breakout ? 5.f + std::sin(0.05f * t) : 0.1f * std::sin(t));
        w.RWD1(i, w.JCOL(w.jc2)) = 25.3f + 0.1f * std::cos(t);
    }
    wellpara.ztop = 2000.f;
    wellpara.zbot = 2000.f + 0.1524f * float(MAXDATWD);
}

void BM_WallPage(benchmark::State& state) {
    scripted_console con;
    console_scope scope(con);
    start_log_session(con);
    load_well();
    for (auto _ : state) {
        con.keys = {"100", "", "99"};  // the page, a new page on the open file, leave
        wallplot2(0);
        benchmark::DoNotOptimize(welldat.RWD1.a);
    }
    if (!iocom.lplotopen || welldat.RWD1(MAXDATWD, 11) == 0.f)
        state.SkipWithError("the page was not drawn");
    iocom.lplotopen = false;
    units_reset();
    state.SetItemsProcessed(state.iterations() * MAXDATWD);
}
BENCHMARK(BM_WallPage)->Unit(benchmark::kMillisecond);

}  // namespace
