// The derived quantities of a full well: stage 1 (Cmax, RBCmax) and stage 2
// (wrapping, depth selection, size, DC and RB codes) on 15000 samples.
#include <benchmark/benchmark.h>

#include <cmath>
#include <string>

#include "borehole/derived.h"
#include "shell/console.h"
#include "shell/sio.h"
#include "well/welldat.h"
#include "well/wellpara.h"

namespace {

// The stages print a few lines per call; they go nowhere here.
struct null_console : console {
    void put_line(std::string_view) override {}
    std::string get_line() override { return std::string(); }
};

void load_well() {
    iocom = iocom_t{5, 6, 5, 6, 0, 0, false, false, false, {{true, true, false}}};
    swellparam(5);
    int id = 0;
    wdtype(id, 5);
    id = 210;
    wdtype(id, 1);
    welldat_t& w = welldat;
    w.ndatwd = MAXDATWD;
    for (int i = 1; i <= MAXDATWD; ++i) {
        const float t = float(i);
        w.RWD1(i, 1) = 2000.f + 0.1524f * t;
        w.RWD1(i, 2) = std::fmod(7.f * t, 360.f);
        w.RWD1(i, 3) = 25.f + 6.f * std::sin(0.01f * t);
        w.RWD1(i, 4) = 25.f + 6.f * std::cos(0.013f * t);
        w.RWD1(i, 5) = std::fmod(11.f * t, 360.f);
        w.RWD1(i, 6) = 1.f;
        w.RWD1(i, 7) = 135.f;
        w.RWD1(i, 8) = std::fmod(3.f * t, 400.f) - 20.f;
    }
    wellpara.ztop = 2000.f;
    wellpara.zbot = 2000.f + 0.1524f * float(MAXDATWD);
}

void BM_DerivedStages(benchmark::State& state) {
    null_console nul;
    console_scope scope(nul);
    load_well();
    farr<int, 2> jcc{{0, 0}};
    bool ldata = false, lcal = false, lazc = false, lrb = false;
    int ierr = 0, itop = 0, ibot = 0, nsel = 0;
    for (auto _ : state) {
        logdatacheck(jcc, ldata, lcal, lazc, lrb);
        logstage1(lazc, jcc, IWD_MAX, lcal, lrb);
        bool lupdate = true;
        logstage2(ierr, itop, ibot, nsel, lupdate, jcc, IWD_SIZE, IWD_DC, IWD_MAX, IWD_RB, ldata,
                  lcal, lrb);
        benchmark::DoNotOptimize(welldat.IWD1.a);
        benchmark::DoNotOptimize(welldat.RWD1.a);
    }
    if (ierr != 0 || nsel != MAXDATWD) state.SkipWithError("the selection failed");
    state.SetItemsProcessed(state.iterations() * MAXDATWD);
}
BENCHMARK(BM_DerivedStages)->Unit(benchmark::kMillisecond);

}  // namespace
