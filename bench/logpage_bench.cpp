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

void logpage(benchmark::State& state, const char* icmd) {
    scripted_console con;
    console_scope scope(con);
    start_log_session(con);
    load_breakout_well(200, [](float) { return 1.f; });
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
