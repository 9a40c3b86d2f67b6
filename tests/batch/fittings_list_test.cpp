// Lists of fittings as spreadsheets write them, sound and unsound.
#include "batch/fittings_list.h"

#include <gtest/gtest.h>

namespace korvet::batch {
namespace {

using Sets = std::vector<std::pair<std::string, std::string>>;

/// The faults of the rows with what messages call them.
std::vector<std::string> FaultsOf(std::string_view text) {
    std::vector<std::string> faults;
    for (const BatchInput& row : ReadFittingsList(text, "l.csv")) {
        faults.push_back(row.label + ": " + row.fault);
    }
    return faults;
}

void ExpectCone(const BatchInput& row) {
    EXPECT_EQ(row.name, "hood");
    EXPECT_EQ(row.category, "Right Cone");
    EXPECT_EQ(row.type, 1);
    EXPECT_EQ(row.sets, (Sets{{"box0", "300"}, {"box1", "120"}}));
    EXPECT_EQ(row.fault, "");
    EXPECT_TRUE(row.isRow);
}

TEST(FittingsList, TakesCommasSemicolonsMarksAndLineEnds) {
    for (const char* text : {"hood,Right Cone,1,box0=300,box1=120", "hood;Right Cone;1;box0=300;box1=120\r\n",
                             "\xEF\xBB\xBFhood,Right Cone,1,box0=300,box1=120\n",
                             "name,fitting,type,a,b\nhood,Right Cone,1,box0=300,box1=120,,,\n\n",
                             "Name;Fitting;Type\r\n\r\nhood ; Right Cone; 1; box0 = 300;box1=120\r\n",
                             "\"hood\",\"Right Cone\",\"1\",\"box0=300\",\"box1=120\"\n"}) {
        const auto rows = ReadFittingsList(text, "l.csv");
        ASSERT_EQ(rows.size(), 1U) << text;
        ExpectCone(rows[0]);
    }
}

TEST(FittingsList, QuotedCellsHoldMarksQuotesAndLineEnds) {
    const auto rows =
        ReadFittingsList("a,Elbow,,\"comment1=4\"\" pipe, left\nof two\"\nb,Elbow,2,select=2", "l.csv");
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].sets, (Sets{{"comment1", "4\" pipe, left\nof two"}}));
    EXPECT_EQ(rows[0].type, 0);
    EXPECT_EQ(rows[1].label, "l.csv: line 3");
    EXPECT_EQ(rows[1].select, 2);
}

TEST(FittingsList, ADecimalCommaDoesNotMakeItCommaSeparated) {
    const auto rows = ReadFittingsList("a;Elbow;1;box0=30,5;box1=2,5;box2=1,5;box3=7,5;box4=0,5", "l.csv");
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].sets.size(), 5U);
    EXPECT_EQ(rows[0].sets[0].second, "30,5");
}

TEST(FittingsList, ABadRowHasItsLineAndLeavesTheOthers) {
    EXPECT_EQ(
        FaultsOf("name,fitting,type\n"
                 "a,Elbow,1\n"
                 "b,Elbo,1\n"
                 "c,Elbow,9\n"
                 "d,Elbow,x\n"
                 "a,Elbow,1\n"
                 "../e,Elbow,1\n"
                 ",Elbow,1\n"
                 "f,Elbow,1,box0\n"
                 "g,Elbow,1,size=3\n"
                 "h,Elbow,1,select=0\n"
                 "i\n"
                 "\"j\"k,Elbow,1\n"
                 "l,Elbow,1\n"
                 "m,Elbow,1,\"box0=3\n"),
        (std::vector<std::string>{
            "l.csv: line 2: ", "l.csv: line 3: there is no fitting \"Elbo\"",
            "l.csv: line 4: the type is to be 1 to 3, not \"9\"",
            "l.csv: line 5: the type is to be 1 to 3, not \"x\"",
            "l.csv: line 6: the name \"a\" stands on line 2 too",
            "l.csv: line 7: \"../e\" is no name for a file", "l.csv: line 8: \"\" is no name for a file",
            "l.csv: line 9: \"box0\" is not NAME=VALUE", "l.csv: line 10: there is no value size",
            "l.csv: line 11: \"0\" is no pattern option", "l.csv: line 12: there is no fitting \"\"",
            "l.csv: line 13: a quoted cell is not closed, or text follows it",
            "l.csv: line 14: ", "l.csv: line 15: a quoted cell is not closed, or text follows it"}));
}

TEST(FittingsList, AMessageShowsLittleOfTheList) {
    const std::string text(5000, 'x');
    for (const std::string& row : {"a," + text + ",1\n", "a,Elbow," + text + "\n", "a,Elbow,1," + text + "\n",
                                   "a,Elbow,1,select=" + text + "\n", "a,Elbow,1," + text + "=1\n",
                                   "/" + text + ",Elbow,1\n", text + ",Elbow,1\n" + text + ",Elbow,1\n"}) {
        for (const std::string& fault : FaultsOf(row)) {
            EXPECT_LT(fault.size(), 300U) << row.substr(0, 20);
        }
    }
}

TEST(FittingsList, TheNameOfABadRowIsFree) {
    EXPECT_EQ(
        FaultsOf("a,Elbow,9\n"
                 "a,Elbow,1\n"
                 "a,Elbow,2\n"),
        (std::vector<std::string>{"l.csv: line 1: the type is to be 1 to 3, not \"9\"",
                                  "l.csv: line 2: ", "l.csv: line 3: the name \"a\" stands on line 2 too"}));
}

TEST(FittingsList, AnEmptyListHasNoRows) {
    for (const char* text : {"", "\n\n", "name,fitting,type\n", ";;;\n"}) {
        EXPECT_TRUE(ReadFittingsList(text, "l.csv").empty()) << text;
    }
}

}  // namespace
}  // namespace korvet::batch
