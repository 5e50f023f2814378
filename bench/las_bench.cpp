// Command 100 on a LAS file of 100 000 depth steps, seven times what the
// store holds: the file is checked, the whole interval is counted again, and
// one step in 7 is read, as the user who answers the dialogue gets it.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <string>

#include "shell/console.h"
#include "shell/sio.h"
#include "well/welldat.h"
#include "well/wellpara.h"

namespace {

const char* const FILE_NAME = "bench_100000.las";

void write_las() {
    std::FILE* f = std::fopen(FILE_NAME, "w");
    std::fputs("~VERSION INFORMATION\n VERS. 2.0 :\n WRAP. NO :\n~WELL INFORMATION\n"
               " STRT.M 1000.0 :\n STEP.M 0.1524 :\n NULL. -999.25 :\n WELL. BENCH :\n"
               "~CURVE INFORMATION\n DEPT.M :\n P1AZ.DEG :\n C1.IN :\n C2.IN :\n RB.DEG :\n"
               " DEVI.DEG :\n HAZI.DEG :\n GR.GAPI :\n~A\n",
               f);
    for (int i = 0; i < 100000; ++i) {
        const double t = i;
        std::fprintf(f, "%11.4f %8.2f %8.4f %8.4f %8.2f %7.2f %8.2f %8.3f\n", 1000.0 + 0.1524 * t,
                     std::fmod(7.0 * t, 360.0), 8.5 + std::sin(0.01 * t), 8.5 + std::cos(0.01 * t),
                     std::fmod(11.0 * t, 360.0), 1.0, 135.0, 60.0 + std::fmod(t, 40.0));
    }
    std::fclose(f);
}

void BM_ReadLas100000Decimated(benchmark::State& state) {
    write_las();
    iocom = iocom_t{5, 6, 5, 6, 0, 0, false, false, false, {{true, true, false}}};
    for (auto _ : state) {
        // Read as type 200; interval as offered, one step in 7; no bit size.
        memory_console con({"1000", FILE_NAME, "", "300", "", "", "7", "", "99"});
        console_scope scope(con);
        swellparam(5);
        int id = 0;
        wdtype(id, 5);
        readwell2(5);
        readwell2(2);
        if (welldat.ndatwd != 14286) state.SkipWithError("not 14286 steps read");
        benchmark::DoNotOptimize(welldat.RWD1.a);
    }
    std::remove(FILE_NAME);
}
BENCHMARK(BM_ReadLas100000Decimated)->Unit(benchmark::kMillisecond);

}  // namespace
