// The statistics menu on 15000 samples, as the user gets it: entering the
// menu with its computations, then either a page of command 211 (C1, C2,
// DC and AzCmax bar charts, RBCmax and HAZI roses) on a new page, or the
// AzCmax statistics of command 400 (the linear report and the circular
// ones for K = 1 and 2), and leaving. Plots go to /dev/null and the screen
// is dropped, so the time is the program's own.
#include <benchmark/benchmark.h>

#include "bench_session.h"

#include <cmath>
#include <deque>
#include <string>

#include "borehole/statplot.h"
#include "borehole/wellplot.h"
#include "histogram/blkhst8.h"
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

// The breakout well in a deviated hole: every value inside the histograms'
// ranges.
void load_well() {
    swellparam(5);
    int id = 0;
    wdtype(id, 5);
    load_breakout_well(200, [](float t) { return 20.f + 5.f * std::sin(0.001f * t); });
}

struct session {
    scripted_console con;
    console_scope scope{con};
    session() {
        start_log_session(con);
        load_well();
    }
    ~session() {
        iocom.lplotopen = false;
        units_reset();
    }
};

void BM_StatPage211(benchmark::State& state) {
    session s;
    for (auto _ : state) {
        s.con.keys = {"211", "", "99"};  // the page, a new page on the open file, leave
        statplot(0);
        benchmark::DoNotOptimize(blkhst8.NYCTHST0.a);
    }
    if (blkhst8.NTOTHST0(wellhisblk.ih180) != MAXDATWD)
        state.SkipWithError("the page was not drawn");
    state.SetItemsProcessed(state.iterations() * MAXDATWD);
}
BENCHMARK(BM_StatPage211)->Unit(benchmark::kMillisecond);

void BM_AzCmaxStatistics400(benchmark::State& state) {
    session s;
    for (auto _ : state) {
        s.con.keys = {"400", "99"};
        statplot(0);
        benchmark::DoNotOptimize(welldat.IWD1.a);
    }
    state.SetItemsProcessed(state.iterations() * MAXDATWD);
}
BENCHMARK(BM_AzCmaxStatistics400)->Unit(benchmark::kMillisecond);

}  // namespace
