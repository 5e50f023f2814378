// The whole demo job: the program run from its keyboard script on the
// sample well of 8000 samples (read, interval, three log pages into
// log.ps), in a scratch directory. The run information's system questions
// are answered without starting a shell, so the time is the program's own.
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <deque>
#include <filesystem>
#include <fstream>
#include <string>

#include "shell/console.h"
#include "shell/main_program.h"
#include "shell/runinfo.h"

namespace {

struct script_console : console {
    std::deque<std::string> keys;
    void put_line(std::string_view) override {}
    std::string get_line() override {
        if (keys.empty()) throw console_closed{"script ended"};
        std::string k = std::move(keys.front());
        keys.pop_front();
        return k;
    }
};

void quiet_shell(std::string_view command, bool, int& exitstat, int& cmdstat, fstr_ref) {
    cmdstat = 0;
    exitstat = 0;
    const bool os = command.find("sys_version_tmp_001.txt") != std::string_view::npos;
    const char* file = os ? "sys_version_tmp_001.txt" : "cpu_info_tmp_001.txt";
    if (command.starts_with("rm "))
        std::filesystem::remove(file);
    else
        std::ofstream(file) << (os ? "Linux" : "x86-64") << "\n";
}

void BM_DemoJob(benchmark::State& state) {
    namespace fs = std::filesystem;
    const fs::path src = TARNOLIX_SOURCE_DIR;
    const fs::path dir = fs::temp_directory_path() / ("tarnolix_demo_bench_" + std::to_string(getpid()));
    fs::create_directories(dir);
    fs::copy_file(src / "data/well210.txt", dir / "well210.txt", fs::copy_options::overwrite_existing);
    std::deque<std::string> script;
    {
        std::ifstream in(src / "data/log_job.keys");
        for (std::string line; std::getline(in, line);) script.push_back(line);
    }
    const fs::path was = fs::current_path();
    fs::current_path(dir);
    runinfo_platform.execute_command_line = quiet_shell;
    script_console con;
    console_scope scope(con);
    int status = 0;
    for (auto _ : state) {
        con.keys = script;
        status = run_engine();
    }
    const auto size = fs::file_size(dir / "log.ps");
    runinfo_platform = runinfo_platform_default();
    fs::current_path(was);
    fs::remove_all(dir);
    if (status != 0 || size < 1000000) state.SkipWithError("the demo job did not run through");
    state.counters["log.ps bytes"] = double(size);
}
BENCHMARK(BM_DemoJob)->Unit(benchmark::kMillisecond);

}  // namespace
