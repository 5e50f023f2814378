// Data types of the well store: setting, extending, choosing and showing
// them, and the data status list.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "lines.h"
#include "well_fixture.h"

namespace {

using lines_t = std::vector<std::string>;
const std::string DASH = " -------------------------------------------";

struct DataType : WellDialogue {
    // A loaded type with some data, as after a read.
    void load(int id) {
        int i = id;
        wdtype(i, 1);
        welldat.ndatwd = 42;
        welldat.titlewd = "loaded";
        welldat.finwd = "loaded.txt";
        welldat.RWD1(42, 1) = 1234.5f;
        clear();
    }
    lines_t variables() const {
        lines_t v;
        for (int k = 1; k <= welldat.nvarwd; ++k)
            v.push_back(std::string(welldat.NAMVAR(k).trimmed()) + "@" + std::to_string(welldat.JCOL(k)));
        return v;
    }
};

TEST_F(DataType, EachTypeSetsItsVariablesTheSameKeepsTheDataAnotherForgetsThem) {
    int id = 210;
    wdtype(id, 1);
    EXPECT_EQ(variables(), (lines_t{"Depth@1", "P1Az@2", "C1@3", "C2@4", "RB@5", "DEVI@6", "HAZI@7", "AzCmax@8"}));
    id = 300;
    wdtype(id, 1);
    EXPECT_EQ(variables(), (lines_t{"Depth@1", "CAL@2"}));
    EXPECT_EQ(welldat.jc1, 2);

    // The same type keeps the data; another, or none, forgets them.
    for (int other : {100, 0}) {
        load(200);
        id = 200;
        wdtype(id, 1);
        EXPECT_EQ(welldat.ndatwd, 42);
        EXPECT_EQ(welldat.finwd.trimmed(), "loaded.txt");
        id = other;
        wdtype(id, 1);
        EXPECT_EQ(id, other);
        EXPECT_EQ(welldat.ndatwd, 0);
        EXPECT_EQ(welldat.titlewd.trimmed(), "none");
        EXPECT_EQ(welldat.finwd.trimmed(), "none");
    }
    EXPECT_TRUE(screen().empty());
}

TEST_F(DataType, AnUnknownIdResetsToNoneWithAnErrorFrame) {
    load(200);
    type({""});
    int id = 150;
    run([&] { wdtype(id, 1); });
    EXPECT_EQ(screen(), (error_head_lines("  wdtype     ") +
                            lines_t{" WELL data id =  150", " NO SUCH DATA TYPE AVALAIBLE", " ==> RESETTING TO:",
                                    "     index =    0", "     id    =    0", "     name  = NONE",
                                    " ===> HIT RETURN TO CONTINUE", " " + std::string(50, '*')}));
    EXPECT_EQ(id, 0);
    EXPECT_EQ(welldat.ndatwd, 0);
}

// AzCmax extends the types 100 and 200 in place; from another type, or a
// second time, it is refused.
TEST_F(DataType, AzCmaxExtendsTypes100And200InPlaceOnce) {
    load(100);
    int id = 110;
    wdtype(id, 11);
    EXPECT_EQ(id, 110);
    EXPECT_EQ(variables(), (lines_t{"Depth@1", "P1Az@2", "C1@3", "C2@4", "AzCmax@5"}));
    EXPECT_EQ(welldat.ndatwd, 42);
    EXPECT_EQ(welldat.RWD1(42, 1), 1234.5f);
    EXPECT_TRUE(screen().empty());

    load(200);
    type({""});
    run([&] { wdtype(id, 11); });
    const int f = find(" DATA EXTENSION FAILURE:");
    ASSERT_GT(f, 8);
    EXPECT_EQ(lines(f - 9, 13), (error_head_lines("  wdtype     ") +
                                    lines_t{" DATA EXTENSION FAILURE:",
                                            " INITIAL DATA TYPE = Depth,P1Az,C1,C2,RB,DEVI,HAZI",
                                            " FINAL   DATA TYPE = Depth,P1Az,C1,C2,AzCmax", " ===> NO ACTION"}));
    EXPECT_EQ(id, 200);
    EXPECT_EQ(welldat.ndatwd, 42);

    clear();
    id = 210;
    wdtype(id, 11);  // 200 extends to 210
    EXPECT_EQ(welldat.ndatwd, 42);
    type({""});
    run([&] { wdtype(id, 11); });
    EXPECT_EQ(count(" DATA EXTENSION FAILURE:"), 1);
    EXPECT_EQ(id, 210);
    EXPECT_EQ(welldat.nvarwd, 8);
}

TEST_F(DataType, TheMenuListsTheTypesTakesNoneAndTheSelectionRunsWithoutMenu) {
    type({"0", "150", "99"});
    int id = 200;
    wdtype(id, 1);
    clear();
    run([&] { wdtype(id, 0); });
    // The current type above the menu.
    EXPECT_EQ(lines(3, 7), (lines_t{DASH, " CURRENT WELL DATA TYPE", DASH, " Type name    : Depth,P1Az,C1,C2,RB,DEVI,HAZI",
                                    " Type ID      : 200", " Type index   :   3", " Maximum index:   5"}));
    EXPECT_EQ(screen_block(*this, " SELECT DATA TYPE:", 9), (lines_t{" SELECT DATA TYPE:", " Name                         ID = Command",
                                    " Depth,P1Az,C1,C2 .....................100", " Depth,P1Az,C1,C2,AzCmax ..............110",
                                    " Depth,P1Az,C1,C2,RB,DEVI,HAZI ........200", " Depth,P1Az,C1,C2,RB,DEVI,HAZI,AzCmax .210",
                                    " Depth,CAL ............................300", DASH,
                                    " EXIT ..................................99"}));
    EXPECT_EQ(screen_block(*this, " UNKNOWN TYPE ID =    150", 2),
              (lines_t{" UNKNOWN TYPE ID =    150", " ==> BACK TO MENU WITHOUT ACTION"}));
    EXPECT_EQ(id, 0);
    EXPECT_EQ(current_id(), 0);

    iocom.LWITO(2) = false;  // level 2 output off: no menu
    clear();
    type({"300", "99"});
    int index = 0;  // id is 0 already
    run([&] { typeselect1(index, id, "WELL", welldat.TYPWDNAM.data(), welldat.IDTYPWD.data(), 5, 36, 1, 0); });
    EXPECT_EQ(count(" SELECT DATA TYPE:"), 0);
    EXPECT_EQ(index, 5);
    EXPECT_EQ(id, 300);

    // An unknown id falls to index one.
    iocom.LWITO(2) = true;
    type({""});
    id = 999;
    run([&] { typeselect1(index, id, "WELL", welldat.TYPWDNAM.data(), welldat.IDTYPWD.data(), 5, 36, 1, 1); });
    EXPECT_GT(find(" WELL data id =  999"), 0);
    EXPECT_GT(find("  name  = Depth,P1Az,C1,C2"), 0);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(id, 100);
}

// ---------------------------------------------------------------------------

TEST_F(DataType, TheStatusListsVariablesAndArrayColumnsAtTheLevelTheDialogueSets) {
    type({"100", "110", "99", "1000", sample("well110.txt"), "99", "99", "1000", "99"});
    run([] { readwell2(2); });
    ASSERT_EQ(welldat.ndatwd, 1000);
    clear();
    int ilist = 3;
    status(ilist, 1);
    ASSERT_EQ(screen().size(), 37u);
    EXPECT_EQ(lines(13, 2), (lines_t{" |Number of data = nb of lines =      1000 |", " |-----------------------------------------|"}));
    EXPECT_EQ(lines(18, 6), (lines_t{" |--|-----------------|-|--|---------------|", " | 1| Depth           |1| 1|Depth          |",
                                     " | 2| P1Az            |1| 2|P1Az           |", " | 3| C1              |1| 3|C1             |",
                                     " | 4| C2              |1| 4|C2             |", " | 5| AzCmax          |1| 5|AzCmax         |"}));
    EXPECT_EQ(lines(29, 2), (lines_t{" | 1| Depth           | 2| P1Az            |", " | 3| C1              | 4| C2              |"}));
    EXPECT_EQ(lines(31, 6), (lines_t{" | 5| AzCmax          | 6| Nodata.6        |", " | 7| Nodata.7        | 8| Nodata.8        |",
                                     " | 9| Nodata.9        |10| Nodata.10       |", " |11| Nodata.11       |12| Nodata.12       |",
                                     " |13| Nodata.13       |14| Nodata.14       |", " |15| Nodata.15       |"}));

    // The dialogue changes the list level, remembered for mode 3: level 1
    // leaves the array columns out.
    clear();
    type({"100", "1", "99"});
    run([&] { status(ilist, 2); });
    EXPECT_EQ(ilist, 1);
    EXPECT_EQ(count(" WELL DATA STATUS"), 2);
    EXPECT_EQ(count(" |          VARIABLE <-> ARRAY NB + COLUMN |"), 2);
    EXPECT_EQ(count(" | 5| AzCmax          | 6| Nodata.6        |"), 1);
    EXPECT_EQ(screen_block(*this, "            DISPLAY SET UP", 2),
              (lines_t{"            DISPLAY SET UP", " current =      3"}));
    int other = 0;
    status(other, 3);
    EXPECT_EQ(other, 1);
}

TEST_F(DataType, DataInfoForTableHeaders) {
    writedatainfo0("WELL", "Depth,CAL", 300, "in.txt", "out.txt", "A title", 800, 2, 6);
    EXPECT_EQ(screen(), (lines_t{" WELL DATA", " type name       : Depth,CAL", " type id         :    300",
                                 " input file name : in.txt", " output file name: out.txt", " title           : A title",
                                 " nb of variables :      2", " nb of data      :    800"}));
}

}  // namespace
