// Random sessions, seeded and bounded: menus, well files good and broken,
// depth intervals, log and statistics pages, with answers a clumsy or a
// hostile user might give. A run must end only as documented (0, 1, 2)
// and no output file may grow past a bound. The
// sanitizer build runs this too, where any memory or undefined-behaviour
// report ends the test.
#include <gtest/gtest.h>

#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>

#include "main_run.h"

namespace {

namespace fs = std::filesystem;

constexpr int SESSIONS = 300;
constexpr std::uintmax_t MAX_OUTPUT = 16u << 20;  // bytes, per file

const std::string DATA = std::string(TARNOLIX_SOURCE_DIR) + "/data/";
const std::string HEAD =
    " 'fuzz'\n 'Depth' 'P1Az' 'C1' 'C2' 'RB' 'DEVI' 'HAZI' 'AzCmax'\n";

// Tables a user could hand the program by mistake or from a bad export.
void write_inputs() {
    std::ofstream("fz_values.txt") << HEAD << "2000 10 25 25.5 229 1.5 140 100\n"
                                   << "2000.2 nan 25 inf 229 1.5 140 100\n"
                                   << "2000.4 1e38 -1e38 3e38 1e39 -inf 140 100\n"
                                   << "2000.6 -999.25 0 0 0 0 0 0\n";
    std::ofstream("fz_flat.txt") << HEAD << "2000 10 25 25.5 229 1.5 140 100\n"
                                 << "2000 10 25 25.5 229 1.5 140 100\n";
    std::ofstream("fz_down.txt") << HEAD << "2100 10 25 25.5 229 1.5 140 100\n"
                                 << "2000 12 26 21.5 229 1.5 140 100\n"
                                 << "1900 14 22 25.5 229 1.5 140 100\n";
    std::ofstream("fz_ragged.txt") << HEAD << "2000 10 25\n2000.2\n\n,,,\n2000.4 1 2 3 4 5 6 7 8 9 10\n";
    std::ofstream("fz_crlf.txt") << " 'fuzz'\r\n 'Depth' 'P1Az' 'C1' 'C2'\r\n1000 1 21 22\r\n1000.5 2 21 23\r\n";
    std::ofstream("fz_las.las") << "~V\n VERS. 2.0 :\n~W\n NULL. -999.25 :\n~C\n DEPT.F :\n C1 .IN :\n~A\n"
                                << "1 2\n3\n-999.25 nan\n";
    {
        std::ofstream f("fz_binary.txt", std::ios::binary);
        std::mt19937 r(7);
        for (int i = 0; i < 20000; ++i) f.put(char(r() % 256));
    }
    {
        std::ofstream f("fz_long.txt");
        f << HEAD;
        for (int i = 0; i < 16000; ++i) f << 1000 + 0.1 * i << " 1 20 21 3 4 5 6\n";
    }
    // Short wells: a page of a whole sample well takes too long for many sessions.
    for (const char* s : {"210", "100"}) {
        std::ifstream in(DATA + "well" + s + ".txt");
        std::ofstream out(std::string("fz_") + s + ".txt");
        std::string line;
        for (int i = 0; i < 302 && std::getline(in, line); ++i) out << line << '\n';
    }
    std::ofstream("fz_cmds.txt") << "1\n\n120\n301\n\n99\nabc\n5000\n5002\n";
    for (const char* s : {"well210.txt", "well100.txt", "well200.las", "well300.txt",
                          "broken_letter.txt", "broken_empty.txt"})
        fs::copy_file(DATA + s, s, fs::copy_options::overwrite_existing);
}

// Each file by its size and time of last change.
using stamps = std::map<std::string, std::pair<std::uintmax_t, fs::file_time_type>>;
stamps stamp_files() {
    stamps m;
    for (const auto& e : fs::directory_iterator("."))
        if (e.is_regular_file())
            m[e.path().filename().string()] = {e.file_size(), e.last_write_time()};
    return m;
}

struct vocabulary {
    std::mt19937 rnd;
    explicit vocabulary(unsigned seed) : rnd(seed) {}

    template <class T>
    const T& pick(const std::vector<T>& v) { return v[rnd() % v.size()]; }
    bool chance(int percent) { return int(rnd() % 100) < percent; }

    const std::vector<std::string> files = {
        "fz_210.txt", "fz_210.txt", "fz_100.txt", "fz_100.txt", "well300.txt", "well200.las",
        "well210.txt", "broken_letter.txt", "broken_empty.txt", "fz_values.txt", "fz_flat.txt", "fz_down.txt", "fz_ragged.txt",
        "fz_crlf.txt", "fz_las.las", "fz_binary.txt", "fz_long.txt", "missing.txt", ".", ""};
    // With them, magnitudes that would make a depth axis draw absurd numbers
    // of tics: the axes bound themselves.
    const std::vector<std::string> answers = {
        "", " ", "0", "1", "2", "3", "-1", "99", "99", "99", "1000", "abc", "y", "n", "h",
        "NaN", "inf", "-inf", "2040", "2100", "1900", "0.0", "15", "25.4", "'x'", "\r", "1,2,3",
        std::string(300, '9'), "plot.ps", "1e38", "2e9", "20400000"};
    const std::vector<std::string> depths = {"2000", "2010", "2045", "1000", "1020", "0", "-5",
                                             "2040", "NaN", "abc"};
    const std::vector<std::string> params = {"101", "101", "102", "102", "103", "104", "105",
                                             "106", "107", "108", "109", "201", "202", "203",
                                             "204", "205"};
    const std::vector<std::string> log_pages = {
        "101", "301", "304", "305", "320", "321", "322", "323", "324", "325", "326", "332",
        "333", "334", "335", "350", "351", "353", "354", "355", "356", "357", "358", "359"};
    const std::vector<std::string> log_settings = {"10", "11", "13", "15", "16", "17", "20",
                                                   "50", "855", "856", "857", "500"};
    const std::vector<std::string> stat_pages = {"100", "110", "200", "210", "211", "400"};
    const std::vector<std::string> stat_settings = {"10", "11", "13", "20", "32", "33", "50", "51"};

    bool plot_open = false;  // as far as the script can tell
    std::string top = "0", bot = "1000";  // the depths of the last file named

    void load(std::vector<std::string>& keys) {
        const std::string& f = pick(files);
        keys.insert(keys.end(), {"100", chance(90) ? "1000" : pick(answers), f, "99", "99",
                                 "1000", "99"});
        auto has = [&](const char* p) { return f.find(p) != std::string::npos; };
        top = has("100") ? "1000" : has("300") ? "500" : has("las") ? "1800" : "2000";
        bot = std::to_string(std::stoi(top) + 45);
    }

    // One step of a session: a meaningful fragment, with noise.
    void step(std::vector<std::string>& keys) {
        auto add = [&](std::initializer_list<std::string> l) { keys.insert(keys.end(), l); };
        switch (rnd() % 10) {
        case 0:
        case 1: load(keys); break;
        case 2:
        case 3:
            keys.push_back("110");
            if (chance(60)) add({"101", top, "102", bot});
            for (int n = int(rnd() % 3); n > 0; --n)
                add({pick(params), chance(70) ? pick(depths) : pick(answers)});
            keys.push_back("99");
            break;
        case 4:
        case 5:
        case 6: {
            const bool log = chance(70);
            keys.push_back(log ? "120" : "130");
            for (int n = 1 + int(rnd() % 3); n > 0; --n) {
                if (chance(85)) {
                    // The first page opens the plot file: its settings and name.
                    add({pick(log ? log_pages : stat_pages), ""});
                    if (!plot_open) keys.push_back("");
                    plot_open = true;
                } else {
                    add({pick(log ? log_settings : stat_settings), pick(answers), pick(answers)});
                }
            }
            keys.push_back("99");
            break;
        }
        case 7:
            if (chance(60)) {
                add({"10", "", chance(50) ? "" : pick(answers)});
                plot_open = true;
            } else {
                add({"20", ""});
                plot_open = false;
            }
            break;
        case 8:
            if (chance(50)) add({"5000", "5001", "fz_cmds.txt"});
            else add({"13", pick(answers), pick(answers), "99"});
            break;
        default:
            for (int n = int(rnd() % 6); n >= 0; --n) keys.push_back(pick(answers));
        }
    }
};

struct Fuzz : MainMenu {};

TEST_F(Fuzz, RandomSessionsEndAsDocumentedAndKeepEveryFileBounded) {
    // A flood of output meets the file size limit as a write error instead
    // of filling the disk.
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    rlimit lim = old;
    lim.rlim_cur = MAX_OUTPUT;
    setrlimit(RLIMIT_FSIZE, &lim);
    auto old_handler = std::signal(SIGXFSZ, SIG_IGN);

    write_inputs();
    stamps inputs = stamp_files();
    vocabulary v(20241123);
    for (int s = 0; s < SESSIONS && !HasFailure(); ++s) {
        std::vector<std::string> keys = {""};
        v.plot_open = false;
        // Most sessions begin with a well and its depth interval.
        if (v.chance(80)) {
            v.load(keys);
            if (v.chance(80)) keys.insert(keys.end(), {"110", "101", v.top, "102", v.bot, "99"});
        }
        for (int n = 2 + int(v.rnd() % 8); n > 0; --n) v.step(keys);
        // The end: the return closes an open plot file.
        if (v.chance(60)) keys.insert(keys.end(), {"9999", ""});
        else if (v.chance(50)) keys.insert(keys.end(), {"999", "", ""});

        con.screen.clear();
        con.keys.assign(keys.begin(), keys.end());
        int status = -1;
        try {
            status = run_engine();
        } catch (const std::exception& e) {
            ADD_FAILURE() << "escaped: " << e.what();
        }
        std::string script;
        for (const auto& k : keys) script += "[" + k.substr(0, 20) + "] ";
        EXPECT_TRUE(status == 0 || status == 1 || status == 2)
            << "session " << s << " ended with " << status << ": " << script;
        for (const auto& e : fs::directory_iterator(".")) {
            const std::string name = e.path().filename().string();
            if (!e.is_regular_file()) continue;
            EXPECT_LT(e.file_size(), MAX_OUTPUT) << name << " in session " << s << ": " << script;
            if (!inputs.count(name)) fs::remove(e.path());
        }
        // An answer may name a plot like an input that isn't loaded: the
        // next session starts from the inputs as they were.
        if (stamp_files() != inputs) {
            write_inputs();
            inputs = stamp_files();
        }
    }

    std::signal(SIGXFSZ, old_handler);
    setrlimit(RLIMIT_FSIZE, &old);
}

}  // namespace
