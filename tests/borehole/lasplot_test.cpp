// The sample well read from its LAS file, in feet and inches, holds the
// values of its table and draws the same pages.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <sstream>
#include <utility>

#include "borehole_fixtures.h"

namespace {

struct LasPages : Borehole {
    std::vector<std::vector<float>> values;  // RWD1 columns 1 to 7 of each read

    // Pages 301 and 320 of the well read with read_keys, from a fresh start,
    // as the lines of each page.
    std::vector<lines_t> pages(std::initializer_list<std::string> read_keys,
                                                bool las) {
        plt1blk = plt1blk_t{};
        tarnolix_startup(false);
        iocom.lpause = false;
        type(read_keys);
        run([] { readwell2(2); });
        EXPECT_EQ(welldat.ndatwd, 1200);
        values.emplace_back(welldat.RWD1.a, welldat.RWD1.a + MAXDATWD * 7);
        // The well's 8.5 in bit, which the LAS file's BS has set already.
        EXPECT_EQ(std::exchange(wellpara.bitsize, 21.59f), las ? 21.59f : 25.0825f);
        wellpara.ztop = 1800.f;
        wellpara.zbot = 1983.f;
        type({"301", "", "", "320", "", "99", ""});
        run([] {
            logplot2(0);
            plend();
        });
        std::ifstream in("log.ps");
        std::vector<lines_t> pages;
        for (std::string l; std::getline(in, l);) {
            if (l.rfind("%%Page:", 0) == 0) pages.emplace_back();
            if (!pages.empty()) pages.back().push_back(l);
        }
        return pages;
    }
};

// Numbers equal to the drawing's resolution, other words exactly.
bool same_line(const std::string& a, const std::string& b) {
    std::istringstream sa(a), sb(b);
    std::string x, y;
    while (sa >> x) {
        if (!(sb >> y)) return false;
        if (x == y) continue;
        char *ex = nullptr, *ey = nullptr;
        const double u = std::strtod(x.c_str(), &ex), v = std::strtod(y.c_str(), &ey);
        if (*ex != 0 || *ey != 0 || std::fabs(u - v) > 0.02) return false;
    }
    return !(sb >> y);
}

TEST_F(LasPages, TheLasFileDrawsThePagesOfItsTable) {
    const auto table = pages({"1000", sample("well200.txt"), "99", "99", "1000", "99"}, false);
    const auto las = pages({"1000", sample("well200.las"), "", "", "", "99"}, true);
    EXPECT_GS_RENDERS("log.ps");
    EXPECT_EQ(current_id(), 210);  // 200 as offered, extended by the log menu
    EXPECT_EQ(welldat.titlewd.trimmed(), "SYNTHETIC WELL B");
    // Depths were written in feet, calipers in inches, with 4 decimals.
    const float tol[] = {2e-4f, 0.f, 2.5e-4f, 2.5e-4f, 0.f, 0.f, 0.f};
    for (std::size_t k = 0; k < values[0].size(); ++k)
        ASSERT_NEAR(values[1][k], values[0][k], tol[k / MAXDATWD]) << "row " << k % MAXDATWD + 1;
    ASSERT_EQ(table.size(), 2u);
    ASSERT_EQ(las.size(), 2u);
    for (int p = 0; p < 2; ++p) {
        const auto &t = table[std::size_t(p)], &l = las[std::size_t(p)];
        ASSERT_EQ(t.size(), l.size()) << "page " << p + 1;
        int other = 0;
        for (std::size_t i = 1; i < t.size(); ++i) {
            if (same_line(t[i], l[i])) continue;
            // Only the lines that name the file or the well may differ.
            const bool names = t[i].find("well200.txt") != std::string::npos ||
                               t[i].find("Synthetic well B") != std::string::npos;
            EXPECT_TRUE(names) << t[i] << "\n" << l[i];
            ++other;
        }
        EXPECT_LE(other, 2) << "page " << p + 1;
    }
}

}  // namespace
