// Reading a well table of 15000 rows and eight columns from disk through
// readreal6, without dialogue: opening, title, column names and data lines.
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <cstdio>
#include <string>

#include "bench_session.h"
#include "shell/sio.h"
#include "tables/readreal.h"
#include "well/welldat.h"

namespace {

// A table laid out as the sample wells are: quoted title and names, tab
// separated fixed-point columns.
std::string write_table() {
    std::string name = "/tmp/tarnolix_read_bench_" + std::to_string(getpid()) + ".txt";
    std::FILE* f = std::fopen(name.c_str(), "w");
    std::fprintf(f, " 'Benchmark well, 15000 samples'\n");
    for (const char* n : {"Depth", "P1Az", "C1", "C2", "RB", "DEVI", "HAZI", "AzCmax"})
        std::fprintf(f, " '%-16s'\t", n);
    std::fprintf(f, "\n");
    for (int i = 0; i < MAXDATWD; ++i) {
        std::fprintf(f, "%16.4f\t%15.4f\t%15.4f\t%15.4f\t%15.4f\t%15.4f\t%15.4f\t%15.4f\t\n",
                     2000.0 + 0.1524 * i, (i * 37) % 36000 / 100.0, 21.0 + (i % 700) / 100.0,
                     22.0 + (i % 900) / 100.0, (i * 53) % 36000 / 100.0, (i % 300) / 100.0,
                     (i * 11) % 36000 / 100.0, (i * 29) % 36000 / 100.0);
    }
    std::fclose(f);
    return name;
}

void BM_ReadTable15000(benchmark::State& state) {
    scripted_console con;
    console_scope scope(con);
    initsio2(5);
    iocom.lpause = false;
    const std::string file = write_table();
    welldat_t& w = welldat;
    int nlinedisp = 3, iskip = 2, ititle = 1, iheader = 2, nvar = 8;
    for (int k = 1; k <= MAXVARWD; ++k) w.JCOL(k) = w.JFCOL(k) = k;
    int ierr = 0, nlines = 0, ncol = 0;
    for (auto _ : state) {
        fstr<80> name = file;
        readreal6(ierr, w.titlewd, name, "well data input", 12, nlinedisp, iskip, ititle,
                  iheader, w.JCOL.data(), w.JFCOL.data(), w.NAMVAR, nvar, MAXVARWD, w.RWD1.a,
                  w.NAMCOL, nlines, ncol, MAXDATWD, MAXCOLWD, 1, 1);
        benchmark::DoNotOptimize(w.RWD1.a);
    }
    std::remove(file.c_str());
    if (ierr != 0 || nlines != MAXDATWD || w.RWD1(MAXDATWD, 3) <= 0.f)
        state.SkipWithError("the table was not read");
    state.SetItemsProcessed(state.iterations() * MAXDATWD);
}
BENCHMARK(BM_ReadTable15000)->Unit(benchmark::kMillisecond);

}  // namespace
