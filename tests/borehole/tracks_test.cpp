// The data and azimuth tracks on hand-made rows: which tracks each command
// draws and in what order, the piece listings of the azimuth loops, and the
// reference lines with their colours as they stand in the plot file.
#include <gtest/gtest.h>

#include <map>

#include "borehole/tracks.h"
#include "borehole_fixtures.h"
#include "plot/attributes.h"
#include "plot/axes/axes.h"
#include "plot/device/psdevice.h"
#include "shell/format.h"

namespace {

struct Tracks : Borehole {
    int n = 0;
    std::size_t mark = 0;  // plot file lines before the last load

    void SetUp() override {
        Borehole::SetUp();
        open_plot("tracks.ps");
    }
    static lines_t plot_lines() {
        unit_flush(UNIT_PLOT);
        std::ifstream in("tracks.ps");
        lines_t v;
        for (std::string l; std::getline(in, l);) v.push_back(l);
        return v;
    }
    // Rows at depths 100, 101, ... of type 210, 110 or 300, with what the
    // type has of: P1Az as given, C1 25, C2 24, AzCmax 65, RB 30, DEVI 2,
    // HAZI 400, RBCmax 120.
    void load(int id, const std::vector<float>& p1az) {
        int i = id;
        wdtype(i, 1);
        n = w.ndatwd = int(p1az.size());
        auto& r = w.RWD1;
        for (int k = 1; k <= n; ++k) {
            r(k, w.JCOL(w.jdepth)) = 99.f + float(k);
            r(k, w.JCOL(w.jc1)) = 25.f;
            r(k, 13) = 120.f;
            if (id == 300) continue;
            r(k, w.JCOL(w.jp1az)) = p1az[std::size_t(k - 1)];
            r(k, w.JCOL(w.jc2)) = 24.f;
            r(k, w.JCOL(w.jazcmax)) = 65.f;
            if (id != 210) continue;
            r(k, w.JCOL(w.jrb)) = 30.f, r(k, w.JCOL(w.jdevi)) = 2.f, r(k, w.JCOL(w.jhazi)) = 400.f;
        }
        wellpara.ztop = 100.f;
        wellpara.zbot = 99.f + float(n);
        trackaxisrange(1, wellpara.ztop, wellpara.zbot);
        mark = plot_lines().size();
        clear();
    }
    // One pass of logplot2's calls for the command.
    void draw(int icmd) {
        const int id = current_id();
        log_dat_plot3(1, n, true, id != 300, id != 300, id == 210, icmd);
        if (id != 300) log_p1az_plot(1, n, icmd);
    }
    // The messages of the tracks drawn, in order: each stands between a
    // rule and its count.
    lines_t messages() const {
        lines_t m;
        for (std::size_t k = 1; k + 1 < screen().size(); ++k)
            if (screen()[k - 1] == DASH && screen()[k + 1].find("umber of data =") != std::string::npos)
                m.push_back(screen()[k].substr(1));
        return m;
    }
    static std::string colour(int i) {
        return formatf("(3(f6.3,1x),a)", plt2blk.RED(i) / 100.f, plt2blk.GREEN(i) / 100.f,
                       plt2blk.BLUE(i) / 100.f, "setrgbcolor");
    }
    // The colour in which a vertical line at user x of the subplot, over
    // the whole depth scale, was stroked since the last load, or "none".
    std::string line_colour(int subplot, float x) {
        ssubplot(subplot, 1);
        float xd = 0, y[2] = {}, z[2] = {wellpara.ztop, wellpara.zbot};
        us2de(&xd, &y[0], &x, &z[0], 1);
        us2de(&xd, &y[1], &x, &z[1], 1);
        auto text = [](float v) {
            char t[16] = {};
            return std::string(t, std::size_t(psnumtext(t, v)));
        };
        const std::string from = text(xd) + " " + text(y[0]) + " moveto";
        const std::string to = text(xd) + " " + text(y[1]) + " lineto";
        const lines_t all = plot_lines();
        std::string now = "none";
        bool found = false;
        for (std::size_t k = 1; k < all.size(); ++k) {
            if (all[k].ends_with("setrgbcolor")) now = all[k];
            found = found || (k > mark && all[k] == to && all[k - 1] == from);
            if (found && all[k] == "stroke") return now;
        }
        return "none";
    }
};

TEST_F(Tracks, EachCommandDrawsItsTracksInTheFixedOrder) {
    load(210, std::vector<float>(20, 30.f));
    const std::map<int, lines_t> pages = {
        {101, {"AzCmax - DC plot"}},
        {301, {"C12 plot", "X-Section plot", "DEVI plot", "HAZI plot", "RB plot",
               "P1Azimuth [0, 360] plot"}},
        {302, {"AzCmax plot", "Cmin, Cmax plot", "P1Azimuth [0, 90] offset loop plot",
               "P1Azimuth [0, 360] plot"}},
        {320, {"AzCmax plot", "C12 plot", "C1-C2 plot", "Cmin-BS plot", "DC plot", "RBCmax plot"}},
        {354, {"RB plot", "RBCmax plot"}},
        {362, {"C12 plot", "DC plot", "RBCmax plot",
               "P1Azimuth [azcmx0, azcmx0+180 [ offset loop plot"}},
        {200, {}}, {500, {}},
    };
    for (const auto& [icmd, expect] : pages) {
        clear();
        draw(icmd);
        EXPECT_EQ(messages(), expect) << icmd;
    }
    EXPECT_EQ(axisblk7b.WALAB(14).trimmed(), "Azimuth [180]");  // 362 took it last

    // Without RB, or with a single caliper, those tracks stay out.
    load(110, std::vector<float>(5, 30.f));
    draw(301);
    EXPECT_EQ(messages(), (lines_t{"C12 plot", "X-Section plot", "P1Azimuth [0, 360] plot"}));
    load(300, std::vector<float>(5, 0.f));
    // The cross section of 301 left the C2 colour in force; the gauge band
    // takes whatever colour it finds, here the first again.
    int first = 1;
    slinecolor(first, 1);
    draw(320);
    EXPECT_EQ(lines(1, 2), (lines_t{" C12 plot", " Number of data =       5"}));
    EXPECT_EQ(messages().size(), 1u);
    EXPECT_EQ(axisblk7b.WALAB(4).trimmed(), "CAL");
    // One curve in colour 1, the gauge band but no saturation lines.
    EXPECT_EQ(line_colour(3, wellpara.bitsize), colour(1));
    EXPECT_EQ(line_colour(3, wellpara.c1sat), "none");
}

TEST_F(Tracks, CaliperReferenceLinesAndTheirColours) {
    load(210, std::vector<float>(10, 30.f));
    wellpara.c2sat = 36.f;
    draw(320);
    EXPECT_EQ(line_colour(3, 37.f), colour(wellplot.jclrc1));
    EXPECT_EQ(line_colour(3, 36.f), colour(wellplot.jclrc2));
    for (float x : {wellpara.bitsize - 1.f, wellpara.bitsize, wellpara.bitsize + 1.f})
        EXPECT_EQ(line_colour(3, x), colour(1)) << x;
    EXPECT_NE(line_colour(4, wellpara.cdiff), "none");
    for (float x : {0.f, 10.f, 170.f}) EXPECT_NE(line_colour(8, x), "none") << x;
    EXPECT_EQ(plt2blk.ilinecol, 1);

    // The saturation page has the limits only, the first page neither.
    load(210, std::vector<float>(10, 30.f));
    draw(351);
    EXPECT_NE(line_colour(9, 37.f), "none");
    EXPECT_EQ(line_colour(9, wellpara.bitsize), "none");
    log_dat_plot3(1, n, true, true, true, true, 301);
    EXPECT_EQ(line_colour(4, 37.f), "none");
    EXPECT_EQ(line_colour(3, 0.5f * wellpara.bitsize), colour(1));
    // The cross section, unlike the calipers, leaves the C2 colour behind.
    EXPECT_EQ(plt2blk.ilinecol, wellplot.jclrc2);
    // HAZI (400) was drawn as read, the column holds C1 / 2 still; from
    // another origin it is wrapped.
    EXPECT_EQ(w.RWD1(1, JWORK9), 12.5f);
    wellpara.haziorig = -180.f;
    log_dat_plot3(1, n, true, true, true, true, 301);
    EXPECT_EQ(w.RWD1(1, JWORK9), 40.f);
}

TEST_F(Tracks, AzimuthLoopsAreCutAtEachWrapAndListed) {
    load(210, {10.f, 80.f, 95.f, -1.f, -90.f, 90.f, 100.f, 179.f});
    log_p1az_plot(1, n, 302);
    EXPECT_EQ(screen(), (lines_t{
                            DASH, " P1Azimuth [0, 90] offset loop plot", " Total number of data =       8",
                            DASH, " |index|index|   depth|   depth| nb of|",
                            " |initl|final|   initl|   final|points|", DASH,
                            " |    1|    2|   100.0|   101.0|     2|",
                            " |    3|    3|   102.0|   102.0|     1|",
                            " |    4|    4|   103.0|   103.0|     1|",
                            " |    5|    5|   104.0|   104.0|     1|",
                            " |    6|    8|   105.0|   107.0|     3|", DASH,
                            DASH, " P1Azimuth [0, 360] plot", " Number of data =       8", DASH}));
    EXPECT_EQ(std::vector<int>(w.IWD1.col(1), w.IWD1.col(1) + n),
              (std::vector<int>{0, 0, 1, -1, -2, 1, 1, 1}));
    // The whole turn is drawn from the wrapped values.
    EXPECT_EQ(std::vector<float>(w.RWD1.col(JWORK9), w.RWD1.col(JWORK9) + n),
              (std::vector<float>{10.f, 80.f, 95.f, 359.f, 270.f, 90.f, 100.f, 179.f}));

    // On the half turn only a jump of more than 90 cuts.
    load(210, {0.f, 90.f, 179.f, 190.f, 280.f});
    log_p1az_plot(1, n, 361);
    EXPECT_EQ(lines(7, 3), (lines_t{" |    1|    3|   100.0|   102.0|     3|",
                                    " |    4|    5|   103.0|   104.0|     2|", DASH}));
    EXPECT_EQ(std::vector<float>(w.RWD1.col(JWORK9), w.RWD1.col(JWORK9) + n),
              (std::vector<float>{0.f, 90.f, 179.f, 10.f, 100.f}));
    clear();
    log_p1az_plot(2, 2, 361);
    EXPECT_EQ(lines(7, 2), (lines_t{" |    2|    2|   101.0|   101.0|     1|", DASH}));
}

}  // namespace
