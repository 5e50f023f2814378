// One full log page on 15000 samples, as the user gets it: entering the log
// menu, the computations, a new page with its head, all tracks, and
// leaving. Command 320 draws the calipers, |DC|, C1 - C2, Cmin - BS, AzCmax
// and RBCmax symbols; 303 the rotation page, with a least-squares fit over
// 67 rows at every sample. The plot goes to /dev/null, so the time is the
// program's own.
#include <benchmark/benchmark.h>

#include <cmath>
#include <string>
#include <string_view>

#include "bench_session.h"
#include "borehole/logplot2.h"
#include "borehole/wellplot.h"
#include "math/angles.h"
#include "plot/attributes.h"
#include "plot/pages.h"
#include "shell/console.h"
#include "shell/main_program.h"
#include "shell/runinfo.h"
#include "shell/sio.h"
#include "shell/units.h"
#include "well/welldat.h"
#include "well/wellpara.h"

namespace {

// A rotating tool in a hole with a breakout every 2000 samples.
void load_well() {
    int id = 200;
    wdtype(id, 1);
    welldat_t& w = welldat;
    w.ndatwd = MAXDATWD;
    for (int i = 1; i <= MAXDATWD; ++i) {
        const float t = float(i);
        const bool breakout = (i / 1000) % 2 == 1;
        w.RWD1(i, 1) = 2000.f + 0.1524f * t;
        w.RWD1(i, 2) = breakout ? 65.f : std::fmod(0.9f * t, 360.f);
        w.RWD1(i, 3) = 25.3f + (breakout ? 5.f + std::sin(0.05f * t) : 0.1f * std::sin(t));
        w.RWD1(i, 4) = 25.3f + 0.1f * std::cos(t);
        w.RWD1(i, 5) = std::fmod(0.9f * t + 200.f, 360.f);
        w.RWD1(i, 6) = 1.f;
        w.RWD1(i, 7) = 135.f;
    }
    wellpara.ztop = 2000.f;
    wellpara.zbot = 2000.f + 0.1524f * float(MAXDATWD);
}

void logpage(benchmark::State& state, const char* icmd) {
    scripted_console con;
    console_scope scope(con);
    start_log_session(con);
    load_well();
    for (auto _ : state) {
        con.keys = {icmd, "", "99"};  // the page, a new page on the open file, leave
        logplot2(0);
        benchmark::DoNotOptimize(welldat.RWD1.a);
    }
    if (!iocom.lplotopen || welldat.IDTYPWD(welldat.itypwd) != 210)
        state.SkipWithError("the page was not drawn");
    // The tool turns 0.9 degrees a sample, clockwise down the hole.
    if (std::string_view(icmd) == "303" && std::fabs(welldat.RWD1(500, 10) + 0.9f / 0.1524f) > 0.1f)
        state.SkipWithError("no rotation rate");
    iocom.lplotopen = false;
    units_reset();
    state.SetItemsProcessed(state.iterations() * MAXDATWD);
}
void BM_LogPage320(benchmark::State& state) { logpage(state, "320"); }
void BM_LogPage303(benchmark::State& state) { logpage(state, "303"); }
BENCHMARK(BM_LogPage320)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LogPage303)->Unit(benchmark::kMillisecond);

}  // namespace
