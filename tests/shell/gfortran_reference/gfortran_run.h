// Builds and runs a small Fortran program with gfortran, so that tests can
// hold our formatted output and list reading against the compiler's own
// library, which the program's files and screens were made with.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <unistd.h>

namespace gfortran_ref {

inline bool available() { return std::system("gfortran --version > /dev/null 2>&1") == 0; }

inline std::string slurp(const std::filesystem::path& p) {
    std::ifstream in(p, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

// A scratch directory removed again at the end of the test.
struct scratch_dir {
    std::filesystem::path path;
    scratch_dir() {
        std::string t = (std::filesystem::temp_directory_path() / "tarnolix-gfortran-XXXXXX").string();
        if (mkdtemp(t.data())) path = t;
    }
    ~scratch_dir() {
        std::error_code ec;
        if (!path.empty()) std::filesystem::remove_all(path, ec);
    }
    scratch_dir(const scratch_dir&) = delete;
    scratch_dir& operator=(const scratch_dir&) = delete;
};

// Compiles source in dir with the given extra options and runs it there.
// Returns the standard output and sets ok; on failure what went wrong is
// returned instead.
inline std::string run(const scratch_dir& dir, const std::string& source, const std::string& options, bool& ok) {
    ok = false;
    if (dir.path.empty()) return "no scratch directory";
    {
        std::ofstream(dir.path / "ref.f90") << source;
    }
    std::string d = dir.path.string();
    std::string build = "cd '" + d +
                        "' && gfortran " + options + " -ffree-line-length-none -fno-range-check -o ref ref.f90 "
                        "> build.log 2>&1";
    if (std::system(build.c_str()) != 0) return "gfortran failed:\n" + slurp(dir.path / "build.log");
    std::string exec = "cd '" + d + "' && ./ref > out.txt 2> err.txt";
    if (std::system(exec.c_str()) != 0) return "reference program failed:\n" + slurp(dir.path / "err.txt");
    ok = true;
    return slurp(dir.path / "out.txt");
}

// Output split into lines, and into the blocks that follow each line equal
// to marker.
inline std::vector<std::vector<std::string>> blocks(const std::string& out, const std::string& marker) {
    std::vector<std::vector<std::string>> b;
    std::istringstream in(out);
    std::string line;
    while (std::getline(in, line)) {
        if (line == marker) b.emplace_back();
        else if (!b.empty()) b.back().push_back(line);
    }
    return b;
}

// A Fortran character constant for s.
inline std::string quote(std::string_view s) {
    std::string q = "'";
    for (char c : s) {
        if (c == '\'') q += '\'';
        q += c;
    }
    return q + "'";
}

}  // namespace gfortran_ref
