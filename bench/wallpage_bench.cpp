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

void BM_WallPage(benchmark::State& state) {
    scripted_console con;
    console_scope scope(con);
    start_log_session(con);
    load_breakout_well(100, nullptr);
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
