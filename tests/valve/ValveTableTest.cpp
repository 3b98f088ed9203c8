// Loading a valve table, its multiple records, its copies.

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "hydrofacts/valve/CValveTable.h"
#include "tests/support/TableText.h"
#include "tests/support/TempFolder.h"

namespace {

// A host's own class sees the lists.
class OpenTable : public CValveTable {
  public:
    CValveType* List(int type) const { return lists[type]; }

    // Type, name, formula, image, numbers; the fixed ones that every load adds are mostly left out.
    std::string Records(bool withFixed = false) const {
        std::ostringstream out;
        for (const CValveType* list : lists) {
            for (const CValveType* r = list; r != nullptr; r = r->next) {
                if (!withFixed && std::string(r->name).starts_with("Fixed ")) continue;
                out << r->device_type << ' ' << r->name << ' ' << r->formula << " #" << r->image
                    << ':';
                for (int i = 0; i < r->data_count; ++i) out << ' ' << r->data[i];
                out << '\n';
            }
        }
        return out.str();
    }
};

constexpr int kAll[] = {1, 2, 3, 8, 9, 13, 20, 21, 22, 0};

class ValveTable : public ::testing::Test {
  protected:
    OpenTable Load(std::string_view lines, HF_UNITS units = HF_US) const {
        folder.Write("T.VTBL", TableText(lines));
        OpenTable table;
        EXPECT_EQ(table.LoadValveTable(folder.Path().c_str(), "T", units, kAll), 1);
        return table;
    }
    TempFolder folder;
};

TEST_F(ValveTable, RecordsAreRead) {
    struct Case {
        const char *what, *lines, *records;
    };
    const Case cases[] = {
        {"five types in any order",
         "S|\"Title\"\nV|\"1\"\nZ|Valve|\"Gate\"|1|8|0|0|6\nZ|Valve|\"Globe\"|1|340|1.5|2|7\n"
         "remark\nZ|Other|\"Filter\"|2|1|0|0|12\nZ|Check Valve|\"Swing\"|1|100|0|0|9\n"
         "Z|Bend|\"Mitre\"|3|30|0|0|3\nz|Fitting|\"Tee\"|1|60|0|0|1\n",
         "0 Tee 1 #1: 60 0 0\n1 Mitre 3 #3: 30 0 0\n2 Gate 1 #6: 8 0 0\n2 Globe 1 #7: 340 1.5 2\n"
         "3 Swing 1 #9: 100 0 0\n4 Filter 2 #12: 1 0 0\n"},
        {"missing or unreadable numbers are 0, but no record is without name and formula number",
         "Z|Bend|\"a\"|1|x|2|y|4\nZ|Bend|\"b\"|1|5\nZ|Bend|\"c\"|1| |2|3|z\n"
         "Z|Bend\nZ|Bend|\"d\"\nZ|Bend|\"e\"|x|1\nZ|Bend|\"f\"|1|1|2|3|4\n",
         "1 a 1 #4: 0 2 0\n1 b 1 #0: 5 0 0\n1 c 1 #0: 0 2 3\n1 f 1 #4: 1 2 3\n"},
        {"whole numbers in octal and hexadecimal; 0 is always wanted, 7 is not",
         "Z|Bend|\"a\"|010|1|1|1|0x9\nZ|Bend|\"b\"|0|1|2|3|4\nZ|Bend|\"c\"|7|1|2|3|4\n",
         "1 a 8 #9: 1 1 1\n1 b 0 #4: 1 2 3\n"},
        {"unknown type, also by case, ends the reading",
         "Z|Bend|\"a\"|1|1|2|3|4\nZ|bend|\"b\"|1|1|2|3|4\nZ|Bend|\"c\"|1|1|2|3|4\n",
         "1 a 1 #4: 1 2 3\n"},
        {"a line without a type ends the reading",
         "Z|Bend|\"a\"|1|1|2|3|4\nZ\nZ|Bend|\"c\"|1|1|2|3|4\n", "1 a 1 #4: 1 2 3\n"},
        {"five of six groups",
         "Z|Bend|\"a\"|1|1\nZ|Valve|\"b\"|1|2\nZ|Bend|\"c\"|1|3\nZ|Valve|\"d\"|1|4\n"
         "Z|Bend|\"e\"|1|5\nZ|Valve|\"f\"|1|6\nZ|Fitting|\"g\"|1|7\n",
         "1 a 1 #0: 1 0 0\n1 c 1 #0: 3 0 0\n1 e 1 #0: 5 0 0\n2 b 1 #0: 2 0 0\n2 d 1 #0: 4 0 0\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(Load(c.lines).Records(), c.records);
    }
}

TEST_F(ValveTable, MultipleRecordsAreStepTables) {
    struct Case {
        const char *what, *rows, *us, *metric;
    };
    const Case cases[] = {
        {"sorted up to the end of the file, the largest limit replaced, the last row's image",
         "Z|Bend|\"a\"|13|0.1|4|25|3\nZ|Bend|\"a\"|13|0.2|1|100|4\nremark\n"
         "Z|Bend|\"a\"|1|0.3|2|50|5\nZ|Bend|\"a\"|13|0.3|3|75|6",
         "1 a 13 #5: 1 0.2 2 0.3 9999 0.1\n", "1 a 13 #5: 25 0.1 50 0.3 9999 0.2\n"},
        {"a limit of 0 ends a pass",
         "Z|Bend|\"a\"|9|0.1|5|3|3\nZ|Bend|\"a\"|9|0.2|3|2|3\nZ|Bend|\"a\"|9|0.3|0|x|3\n"
         "Z|Bend|\"a\"|9|0.4|1|1|3\n",
         "1 a 9 #3: 3 0.2 5 0.1 0 0.3 9999 0.4\n", "1 a 9 #3: 2 0.2 3 0.1 0 0.3 9999 0.4\n"},
        {"missing fields: a US limit serves for metric, the image stays",
         "Z|Bend|\"a\"|9|0.1|5|125|3\nZ|Bend|\"a\"|9|0.2|3\nZ|Bend|\"a\"\n",
         "1 a 9 #3: 3 0.2 5 0.1 9999 0\n", "1 a 9 #3: 3 0.2 125 0.1 9999 0\n"},
        {"followed by another, and by a line without a name",
         "Z|Bend|\"a\"|9|1|2|3|3\nZ|Bend|\"b\"|9|2|2|3|4\nZ|Bend\nZ|Bend|\"b\"|9|3|2|3|5\n",
         "1 a 9 #3: 9999 1\n1 b 9 #4: 9999 2\n1 b 9 #5: 9999 3\n",
         "1 a 9 #3: 9999 1\n1 b 9 #4: 9999 2\n1 b 9 #5: 9999 3\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(Load(c.rows, HF_US).Records(), c.us);
        EXPECT_EQ(Load(c.rows, HF_METRIC).Records(), c.metric);
    }
}

TEST_F(ValveTable, RowsBeyondAHundredMakeAFurtherRecord) {
    const std::string longName(45, 'n');
    std::string lines;
    for (int i = 1; i <= 102; ++i) {
        lines += "Z|Fitting|\"" + longName + "\"|9|0.5|" + std::to_string(i) + "|1|2\n";
    }
    const OpenTable table = Load(lines);
    const CValveType* first = table.List(0);
    ASSERT_TRUE(first != nullptr && first->next != nullptr);
    EXPECT_EQ(first->data_count, 200);
    EXPECT_EQ(first->data[196], 99.0);
    EXPECT_EQ(first->data[198], 9999.0);
    EXPECT_EQ(first->next->data_count, 4);
    EXPECT_EQ(first->next->data[0], 101.0);
    EXPECT_EQ(first->name, longName.substr(0, 31));
}

TEST_F(ValveTable, FixedResistancesAreAddedWhereTheTableHasNone) {
    EXPECT_EQ(Load("Z|Other|\"Own\"|21|1|2|3|4\n").Records(true),
              "4 Own 21 #4: 1 2 3\n4 Fixed K 20 #13: 0 0 0\n4 Fixed Kv 22 #15: 0 0 0\n");
    EXPECT_EQ(Load("Z|Valve|\"Own\"|21\n").Records(true),
              "2 Own 21 #0: 0 0 0\n4 Fixed K 20 #13: 0 0 0\n4 Fixed Cv 21 #14: 0 0 0\n"
              "4 Fixed Kv 22 #15: 0 0 0\n");
}

TEST_F(ValveTable, FailedLoadLeavesAnEmptyTable) {
    OpenTable table = Load("Z|Bend|\"a\"|1\n");
    folder.Write("Empty.VTBL", TableText("S|\"t\"\nV|\"1\"\nZ|Bend|\"a\"|1"));
    const std::string longName(300, 'n');
    for (const char* name : {"Absent", "Empty", longName.c_str()}) {
        EXPECT_EQ(table.LoadValveTable(folder.Path().c_str(), name, HF_US, kAll), 0);
        for (int type = 0; type < 5; ++type) EXPECT_EQ(table.List(type), nullptr);
    }
}

TEST_F(ValveTable, CopiesOwnTheirRecords) {
    OpenTable target = Load("Z|Valve|\"other\"|1|1|2|3|4\n");
    {
        OpenTable source = Load("Z|Bend|\"a\"|1|1|2|3|4\nZ|Bend|\"b\"|9|5|6|7|8\n");
        const std::vector<OpenTable> copies{source};
        target = source;
        source.List(1)->data[0] = 7.0;
        EXPECT_EQ(copies[0].Records(), target.Records());
    }
    OpenTable& same = target;
    target = same;
    EXPECT_EQ(target.Records(), "1 a 1 #4: 1 2 3\n1 b 9 #8: 9999 5\n");

    CValveType device = *target.List(1);
    EXPECT_EQ(device.next, nullptr);
    CValveType& sameDevice = device;
    device = sameDevice;
    *target.List(1) = *target.List(1)->next;  // a device keeps its place
    EXPECT_EQ(device.data[2], 3.0);
    EXPECT_EQ(target.Records(), "1 b 9 #8: 9999 5\n1 b 9 #8: 9999 5\n");
}

}  // namespace
