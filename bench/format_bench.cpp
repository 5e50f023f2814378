// Writing and reading a full table of 15000 samples through the formatter
// and the list reader.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "shell/format.h"

namespace {

void BM_FormatTableRows(benchmark::State& state) {
    std::vector<std::string> out;
    for (auto _ : state) {
        for (int i = 1; i <= 15000; ++i) {
            float d = 1000.f + 0.1524f * float(i);
            out.clear();
            fitem row[] = {d, "\t", 21.59f, "\t", 23.1f, "\t", 123.4f, "\t", 12.f, "\t", 4.5f};
            format_records(out, "(1x,20(f15.4,a1))", row);
            benchmark::DoNotOptimize(out.data());
        }
    }
    state.SetItemsProcessed(state.iterations() * 15000);
}
BENCHMARK(BM_FormatTableRows)->Unit(benchmark::kMillisecond);

void BM_ListReadRows(benchmark::State& state) {
    std::string rec = "  1234.5678  123.4  21.59 23.10 12.0 4.5 0.25";
    for (auto _ : state) {
        float a, b, c, d, e, f, g;
        for (int i = 0; i < 15000; ++i) {
            bool ok = readlist_str(rec, a, b, c, d, e, f, g);
            benchmark::DoNotOptimize(ok);
            benchmark::DoNotOptimize(g);
        }
    }
    state.SetItemsProcessed(state.iterations() * 15000);
}
BENCHMARK(BM_ListReadRows)->Unit(benchmark::kMillisecond);

}  // namespace
