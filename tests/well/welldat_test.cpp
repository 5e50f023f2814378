// Data types of the well store: setting, extending, choosing and showing
// them, and the data status list.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "well_fixture.h"

namespace {

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
};

TEST_F(DataType, ResetFillsTheTypeTableWithNoneCurrent) {
    EXPECT_EQ(welldat.imaxtypwd, 5);
    EXPECT_EQ(current_id(), 0);
    std::vector<int> ids;
    std::vector<std::string> names;
    for (int k = 0; k <= 5; ++k) {
        ids.push_back(welldat.IDTYPWD(k));
        names.emplace_back(welldat.TYPWDNAM(k).trimmed());
    }
    EXPECT_EQ(ids, (std::vector<int>{0, 100, 110, 200, 210, 300}));
    EXPECT_EQ(names, (std::vector<std::string>{"NONE", "Depth,P1Az,C1,C2",
                                               "Depth,P1Az,C1,C2,AzCmax",
                                               "Depth,P1Az,C1,C2,RB,DEVI,HAZI",
                                               "Depth,P1Az,C1,C2,RB,DEVI,HAZI,AzCmax",
                                               "Depth,CAL"}));
    // The reset ends on the empty type, which names nothing.
    EXPECT_EQ(welldat.finwd.trimmed(), "none");
    EXPECT_EQ(welldat.nvarwd, 0);
    EXPECT_EQ(welldat.ndatwd, 0);
}

TEST_F(DataType, EachTypeSetsItsVariablesInTheFirstColumns) {
    int id = 210;
    wdtype(id, 1);
    EXPECT_EQ(id, 210);
    EXPECT_EQ(welldat.nvarwd, 8);
    std::vector<int> j = {welldat.jdepth, welldat.jp1az, welldat.jc1,   welldat.jc2,
                          welldat.jrb,    welldat.jdevi, welldat.jhazi, welldat.jazcmax};
    EXPECT_EQ(j, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8}));
    std::vector<std::string> names;
    for (int k = 1; k <= 8; ++k) {
        names.emplace_back(welldat.NAMVAR(k).trimmed());
        EXPECT_EQ(welldat.JCOL(k), k);
    }
    EXPECT_EQ(names, (std::vector<std::string>{"Depth", "P1Az", "C1", "C2", "RB", "DEVI",
                                               "HAZI", "AzCmax"}));
    id = 300;
    wdtype(id, 1);
    EXPECT_EQ(welldat.nvarwd, 2);
    EXPECT_EQ(welldat.jc1, 2);
    EXPECT_EQ(welldat.NAMVAR(2).trimmed(), "CAL");
    EXPECT_EQ(welldat.jp1az, 2);  // unchanged by the CAL type
    EXPECT_EQ(welldat.jazcmax, 8);
}

TEST_F(DataType, TheSameTypeKeepsTheDataAnotherForgetsThem) {
    load(200);
    int id = 200;
    wdtype(id, 1);
    EXPECT_EQ(welldat.ndatwd, 42);
    EXPECT_EQ(welldat.finwd.trimmed(), "loaded.txt");
    id = 100;
    wdtype(id, 1);
    EXPECT_EQ(id, 100);
    EXPECT_EQ(welldat.ndatwd, 0);
    EXPECT_EQ(welldat.titlewd.trimmed(), "none");
    EXPECT_EQ(welldat.finwd.trimmed(), "none");
    EXPECT_TRUE(screen().empty());
}

TEST_F(DataType, NoneAgainNamesNothing) {
    welldat.finwd = "left.txt";
    int id = 0;
    wdtype(id, 1);
    EXPECT_EQ(welldat.finwd.trimmed(), "none");
    EXPECT_EQ(welldat.titlewd.trimmed(), "none");
}

TEST_F(DataType, AnUnknownIdResetsToNoneWithAnErrorFrame) {
    load(200);
    type({""});
    int id = 150;
    run([&] { wdtype(id, 1); });
    std::vector<std::string> frame = error_head_lines("  wdtype     ");
    std::vector<std::string> body = {
        " WELL data id =  150",  " NO SUCH DATA TYPE AVALAIBLE", " ==> RESETTING TO:",
        "     index =    0",     "     id    =    0",            "     name  = NONE",
        " ===> HIT RETURN TO CONTINUE", " " + std::string(50, '*')};
    frame.insert(frame.end(), body.begin(), body.end());
    EXPECT_EQ(screen(), frame);
    EXPECT_EQ(id, 0);
    EXPECT_EQ(welldat.ndatwd, 0);
}

TEST_F(DataType, AzCmaxExtendsTypes100And200InPlace) {
    load(100);
    int id = 110;
    wdtype(id, 11);
    EXPECT_EQ(id, 110);
    EXPECT_EQ(welldat.nvarwd, 5);
    EXPECT_EQ(welldat.jazcmax, 5);
    EXPECT_EQ(welldat.JCOL(5), 5);
    EXPECT_EQ(welldat.NAMVAR(5).trimmed(), "AzCmax");
    EXPECT_EQ(welldat.ndatwd, 42);
    EXPECT_EQ(welldat.RWD1(42, 1), 1234.5f);
    EXPECT_TRUE(screen().empty());

    load(200);
    id = 210;
    wdtype(id, 11);
    EXPECT_EQ(id, 210);
    EXPECT_EQ(welldat.nvarwd, 8);
    EXPECT_EQ(welldat.ndatwd, 42);
}

TEST_F(DataType, AnExtensionFromTheWrongTypeIsRefused) {
    load(200);
    type({""});
    int id = 110;
    run([&] { wdtype(id, 11); });
    int f = find(" DATA EXTENSION FAILURE:");
    ASSERT_GT(f, 0);
    EXPECT_EQ(lines(f - 9, 9), error_head_lines("  wdtype     "));
    EXPECT_EQ(lines(f, 4),
              (std::vector<std::string>{" DATA EXTENSION FAILURE:",
                                        " INITIAL DATA TYPE = Depth,P1Az,C1,C2,RB,DEVI,HAZI",
                                        " FINAL   DATA TYPE = Depth,P1Az,C1,C2,AzCmax",
                                        " ===> NO ACTION"}));
    EXPECT_EQ(id, 200);
    EXPECT_EQ(welldat.nvarwd, 7);
    EXPECT_EQ(welldat.ndatwd, 42);
}

TEST_F(DataType, ASecondExtensionIsRefused) {
    load(200);
    int id = 210;
    wdtype(id, 11);
    type({""});
    run([&] { wdtype(id, 11); });
    EXPECT_EQ(count(" DATA EXTENSION FAILURE:"), 1);
    EXPECT_EQ(id, 210);
    EXPECT_EQ(welldat.nvarwd, 8);
}

TEST_F(DataType, AnUnexpectedModeIsRefused) {
    load(100);
    type({""});
    int id = 100;
    run([&] { wdtype(id, 13); });
    int u = find(" UNEXPECTED ARGUMENT:");
    ASSERT_GT(u, 0);
    EXPECT_EQ(screen()[std::size_t(u + 1)], " intera =   13");
    EXPECT_EQ(id, 100);
}

TEST_F(DataType, TheMenuListsTheTypesAndTakesNoneThoughNotListed) {
    type({"0", "150", "99"});
    int id = 200;
    wdtype(id, 1);
    clear();
    run([&] { wdtype(id, 0); });
    std::vector<std::string> menu = {
        " SELECT DATA TYPE:",
        " Name                         ID = Command",
        " Depth,P1Az,C1,C2 .....................100",
        " Depth,P1Az,C1,C2,AzCmax ..............110",
        " Depth,P1Az,C1,C2,RB,DEVI,HAZI ........200",
        " Depth,P1Az,C1,C2,RB,DEVI,HAZI,AzCmax .210",
        " Depth,CAL ............................300",
        DASH,
        " EXIT ..................................99",
    };
    int m = find(menu[0]);
    ASSERT_GT(m, 0);
    EXPECT_EQ(lines(m, int(menu.size())), menu);
    // The current type above the menu, then the one selected.
    std::vector<std::string> current = {DASH, " CURRENT WELL DATA TYPE", DASH,
                                        " Type name    : Depth,P1Az,C1,C2,RB,DEVI,HAZI",
                                        " Type ID      : 200", " Type index   :   3",
                                        " Maximum index:   5"};
    EXPECT_EQ(lines(3, int(current.size())), current);
    EXPECT_GT(find(" SELECTED WELL DATA TYPE"), m - 10);
    int u = find(" UNKNOWN TYPE ID =    150");
    ASSERT_GT(u, 0);
    EXPECT_EQ(screen()[std::size_t(u + 1)], " ==> BACK TO MENU WITHOUT ACTION");
    EXPECT_EQ(id, 0);
    EXPECT_EQ(current_id(), 0);
}

TEST_F(DataType, TheMenuIsLeftOutWhenLevel2OutputIsOff) {
    iocom.LWITO(2) = false;
    type({"300", "99"});
    int index = 0, id = 0;
    run([&] {
        typeselect1(index, id, "WELL", welldat.TYPWDNAM.data(), welldat.IDTYPWD.data(), 5, 36,
                    1, 0);
    });
    EXPECT_EQ(count(" SELECT DATA TYPE:"), 0);
    EXPECT_EQ(index, 5);
    EXPECT_EQ(id, 300);
}

TEST_F(DataType, AnUnknownIdInTheSelectionFallsToIndexOne) {
    type({""});
    int index = 0, id = 999;
    run([&] {
        typeselect1(index, id, "WELL", welldat.TYPWDNAM.data(), welldat.IDTYPWD.data(), 5, 36,
                    1, 1);
    });
    EXPECT_GT(find(" WELL data id =  999"), 0);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(id, 100);
    EXPECT_GT(find("  name  = Depth,P1Az,C1,C2"), 0);
}

TEST_F(DataType, TypeStatusDetailCodes) {
    typestatus1("SELECTED", "WELL", "Depth,CAL", 300, 5, 5, 6, 2);
    EXPECT_EQ(screen(),
              (std::vector<std::string>{DASH, " SELECTED WELL DATA TYPE", DASH,
                                        " Type name    : Depth,CAL", " Type ID      : 300",
                                        " Type index   :   5", " Maximum index:   5", DASH}));
    clear();
    typestatus1("READY TO READ", "WELL", "Depth,CAL", 300, 5, 5, 6, 6);
    EXPECT_EQ(screen(), (std::vector<std::string>{" Type name    : Depth,CAL",
                                                  " Type ID      : 300",
                                                  " Type index   :   5"}));
    clear();
    typestatus1("X", "WELL", "Depth,CAL", 300, 5, 5, 6, 7);
    EXPECT_EQ(screen(), (std::vector<std::string>{" Type name    : Depth,CAL"}));
}

// ---------------------------------------------------------------------------

TEST_F(DataType, TheStatusListsVariablesAndArrayColumns) {
    type({"100", "110", "99", "1000", sample("well110.txt"), "99", "99", "1000", "99"});
    run([] { readwell2(2); });
    ASSERT_EQ(welldat.ndatwd, 1000);
    clear();
    int ilist = 3;
    status(ilist, 1);
    std::vector<std::string> tables = {
        " title          : Synthetic well D, 8.5 in bit, type 110",
        " |-----------------------------------------|",
        " |              DATA <-> ARRAY LINE        |",
        " |-----------------------------------------|",
        " |Number of data = nb of lines =      1000 |",
        " |-----------------------------------------|",
        " |          VARIABLE <-> ARRAY NB + COLUMN |",
        " |--------------------|--------------------|",
        " |nb|      name       |n|co|    name       |",
        " |--|-----------------|-|--|---------------|",
        " | 1| Depth           |1| 1|Depth          |",
        " | 2| P1Az            |1| 2|P1Az           |",
        " | 3| C1              |1| 3|C1             |",
        " | 4| C2              |1| 4|C2             |",
        " | 5| AzCmax          |1| 5|AzCmax         |",
        " |-----------------------------------------|",
        " |              ARRAY 1 COLUMNS            |",
        " |-----------------------------------------|",
        " |co|      name       |co|      name       |",
        " |--|-----------------|--|-----------------|",
        " | 1| Depth           | 2| P1Az            |",
        " | 3| C1              | 4| C2              |",
        " | 5| AzCmax          | 6| Nodata.6        |",
        " | 7| Nodata.7        | 8| Nodata.8        |",
        " | 9| Nodata.9        |10| Nodata.10       |",
        " |11| Nodata.11       |12| Nodata.12       |",
        " |13| Nodata.13       |14| Nodata.14       |",
        " |15| Nodata.15       |",
    };
    EXPECT_EQ(lines(9, int(tables.size())), tables);
    EXPECT_EQ(int(screen().size()), 9 + int(tables.size()));
}

TEST_F(DataType, AWrongListLevelFallsBackToTheLastOne) {
    int ilist = 2;
    status(ilist, 1);
    clear();
    ilist = 7;
    type({""});
    run([&] { status(ilist, 1); });
    std::vector<std::string> warn = warning_head_lines("  dat1astatus");
    warn.push_back(" Wrong values of ilist      7");
    warn.push_back(" ===> RESET to last value: ilist =      2");
    EXPECT_EQ(lines(0, 6), warn);
    EXPECT_EQ(ilist, 2);
    EXPECT_GT(find(" |              ARRAY 1 COLUMNS            |"), 0);
}

TEST_F(DataType, TheStatusDialogueChangesTheListLevel) {
    int ilist = 0;
    type({"100", "1", "99"});
    run([&] { status(ilist, 2); });
    EXPECT_EQ(ilist, 1);
    EXPECT_EQ(count(" WELL DATA STATUS"), 2);
    EXPECT_EQ(count(" |          VARIABLE <-> ARRAY NB + COLUMN |"), 1);
    std::vector<std::string> setup = {DASH,
                                      "            DISPLAY SET UP",
                                      " current =      0",
                                      DASH,
                                      " Format......................Command",
                                      " Basic.............................0",
                                      " Basic + Variables list ...........1",
                                      " Basic + Array list ...............2",
                                      " Basic + Variables + Array list ...3",
                                      DASH};
    int s = find(setup[1]);
    ASSERT_GT(s, 0);
    EXPECT_EQ(lines(s - 1, int(setup.size())), setup);
    // Remembered for mode 3.
    int other = 0;
    clear();
    status(other, 3);
    EXPECT_EQ(other, 1);
}

TEST_F(DataType, DataInfoForTableHeaders) {
    writedatainfo0("WELL", "Depth,CAL", 300, "in.txt", "out.txt", "A title", 800, 2, 6);
    EXPECT_EQ(screen(), (std::vector<std::string>{
                            " WELL DATA",
                            " type name       : Depth,CAL",
                            " type id         :    300",
                            " input file name : in.txt",
                            " output file name: out.txt",
                            " title           : A title",
                            " nb of variables :      2",
                            " nb of data      :    800",
                        }));
}

}  // namespace
