// Drawing histograms: the Y tic table, a page with one bar chart and the
// eight rose layouts, and every plot style, each page rendered by
// Ghostscript.
#include <string>
#include <vector>

#include "histogram/blkhst8.h"
#include "plot/ghostscript.h"
#include "plot/plot_session.h"

namespace {

class hstdraw : public plot_session {
protected:
    void SetUp() override {
        plot_session::SetUp();
        int isw = 3, n = 2;
        shstall(isw, 5);
        shstnb(n, 1);
        // Histogram 1 over a full turn, histogram 2 over a half turn.
        axis(1, 360.0f, 72);
        axis(2, 180.0f, 36);
        // A tall spike at 30 degrees, a low one at 100: enough to read
        // where the angle starts and which way it turns.
        std::vector<float> v;
        for (int k = 0; k < 9; ++k) v.push_back(31.0f);
        for (int k = 0; k < 4; ++k) v.push_back(101.0f);
        for (int h = 1; h <= 2; ++h) {
            hstclear(h);
            hstadd(v.data(), int(v.size()), h);
            hstcompend(h);
            fstr<25> t = "E";
            int on = 1, k = 1;
            shstlabel(t, on, k, h, 1);
            t = "N";
            k = 2;
            shstlabel(t, on, k, h, 1);
        }
        con.screen.clear();
    }
    static void axis(int h, float hi, int nb) {
        float lo = 0.0f;
        int nxtic = 6, nxlab = 3;
        fstr<25> lab = "Angle";
        shstxbin2(lo, hi, nb, nxtic, nxlab, lab, h, 1);
    }
    // Subplot n as a 6 cm box at (x, y); a rose gets a square user box.
    static void box(int n, float x, float y, int h, bool rose) {
        int sub = n;
        ssubplot(sub, 1);
        float x0, x1, y0, y1;
        ghstsize(x0, x1, y0, y1, h);
        if (rose) x0 = -y1, x1 = y1, y0 = -y1;
        float w = 4.5f, ht = 4.5f;
        int ixy = 0;
        sus2cm3(x, y, w, ht, x0, x1, y0, y1, ixy, 1);
    }
    static void draw(int h, int type, int style) {
        int t = type, s = style;
        shstplotype(t, h, 1);
        shstplotstyle(s, h, 1);
        hstfrmplt(h);
        hstvalplt(h);
    }
    static int occurrences(const std::vector<std::string>& v, const std::string& what) {
        int n = 0;
        for (const auto& l : v) n += l.find(what) != std::string::npos;
        return n;
    }
};

TEST_F(hstdraw, YTicsFollowTheRangeOfCounts) {
    struct row { float ymax; int tic, lab; };
    const row rows[] = {{3, 1, 1}, {7, 1, 2}, {30, 5, 2}, {100, 10, 2}, {2600, 500, 2}, {600000, 100000, 2}};
    open_plot("tics.ps");
    int h = 1;
    for (const row& r : rows) {
        float y0 = 0, y1 = r.ymax;
        shstyext(y0, y1, h, 1);
        hstfrmplt(h);
        EXPECT_EQ((std::vector<int>{blkhst8.NYTICHST0(h), blkhst8.NYLABHST0(h)}),
                  (std::vector<int>{r.tic, r.lab}))
            << r.ymax;
    }
    close_plot();
}

// Page 1: the bar chart top left, then types 2 to 9. Each rose has "E" on
// its right and "N" on top (labels stand on the page axes whatever the
// layout), so the spike at 30 degrees shows where 0 lies and which way the
// angle turns: type 5 is the compass, 30 degrees east of north.
// Page 2: the styles 0, 1, 10 and 12 as bar charts and as half-disc roses
// of type 5.
TEST_F(hstdraw, ABarChartTheEightRoseLayoutsAndEveryStyleRender) {
    open_plot("roses.ps");
    // A 3 by 3 grid: place 0 the bar chart, places 1 to 8 types 2 to 9.
    auto place = [](int sub, int p, bool rose) {
        box(sub, 1.5f + 6.5f * float(p % 3), 21.0f - 7.5f * float(p / 3), 1, rose);
    };
    place(1, 0, false);
    draw(1, 1, 11);
    for (int type = 2; type <= 9; ++type) {
        place(type, type - 1, true);
        draw(1, type, 11);
    }
    // One polygon per bin for each of the nine figures.
    EXPECT_EQ(occurrences(new_lines(), "fill grestore"), 9 * 72);
    con.type("");
    newpage();
    const int styles[] = {0, 1, 10, 12};
    for (int i = 0; i < 4; ++i) {
        box(1 + i, 1.5f + 6.5f * float(i % 3), 21.0f - 7.5f * float(i / 3), 2, false);
        draw(2, 1, styles[i]);
        box(5 + i, 1.5f + 6.5f * float((i + 4) % 3), 21.0f - 7.5f * float((i + 4) / 3), 2, true);
        draw(2, 5, styles[i]);
    }
    // Style 10 is one polygon; style 12 one per value (13), in each chart.
    EXPECT_EQ(occurrences(new_lines(), "fill grestore"), 2 * (1 + 13));
    close_plot();
    EXPECT_GS_RENDERS("roses.ps");
}

}  // namespace
