// The installed valve tables, as a host sees them, and the document that explains them.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <vector>

#include "hydrofacts/valve/CValveTable.h"
#include "tests/tables/InstalledTables.h"

namespace {

constexpr int kAll[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 13, 20, 21, 22, 0};
constexpr const char* kTables[] = {"Standard", "Crane TP-410", "Screwed and Flanged",
                                   "Two-K",    "Three-K",      "Fixed K Lists"};

class LoadedValves : public CValveTable {
  public:
    LoadedValves(const char* table, HF_UNITS units, const int* wanted = kAll) {
        EXPECT_EQ(1, LoadValveTable(TableFolder().c_str(), table, units, wanted)) << table;
    }

    /// K of a device by size, as docs/valve-methods.md tells.
    double BySize(const char* name, double nominal) const {
        const CValveType* device = Find(name);
        if (device == nullptr || device->formula != 9) return -1.0;
        int pair = 0;
        while (device->data[pair] < nominal) pair += 2;
        return device->data[pair + 1];
    }

    template <typename Use>
    void ForEach(Use use) const {
        for (const CValveType* head : lists) {
            for (const CValveType* device = head; device != nullptr; device = device->next) {
                use(*device);
            }
        }
    }
};

// The published table of K by size for clean commercial steel pipe (Crane TP-410), two digits.
TEST(ValveTables, StandardAgreesWithThePublishedTableOfK) {
    struct Case {
        const char* name;
        double inches;
        double millimetres;
        double k;
    };
    // clang-format off
    const Case cases[] = {
        {"Elbow 90 Standard",      0.5,   15,  0.81},
        {"Elbow 90 Standard",      4,    100,  0.51},
        {"Elbow 90 Standard",      5,    125,  0.48},
        {"Elbow 45 Standard",      1,     25,  0.37},
        {"Elbow 90 Long Radius",   2,     50,  0.30},
        {"Return Bend Close 180",  6,    150,  0.75},
        {"Tee Run Standard",       3,     80,  0.36},
        {"Tee Branch Standard",   12,    300,  0.78},
        {"Gate Valve",             8,    200,  0.11},
        {"Globe Valve",            2,     50,  6.5},
        {"Ball Valve",             1.5,   40,  0.06},
        {"Bend 90 r/d 3",         24,    600,  0.14},
        {"Swing Check Straight",   4,    100,  0.85},
    };
    // clang-format on
    const LoadedValves us("Standard", HF_US);
    const LoadedValves metric("Standard", HF_METRIC);
    for (const Case& c : cases) {
        EXPECT_NEAR(c.k, us.BySize(c.name, c.inches), 0.005 + 0.01 * c.k) << c.name;
        EXPECT_EQ(us.BySize(c.name, c.inches), metric.BySize(c.name, c.millimetres)) << c.name;
    }
}

// Hooper 1981, Darby, and Crane's bend of n = 24.
TEST(ValveTables, NumbersOfTheOtherMethodsStandInTheirOrder) {
    struct Case {
        const char* table;
        const char* name;
        int formula;
        std::vector<double> numbers;
    };
    const Case cases[] = {{"Two-K", "Globe Valve 2K", 4, {1500.0, 4.0}},
                          {"Three-K", "Elbow 90 Std Threaded 3K", 5, {800.0, 0.14, 4.0}},
                          {"Crane TP-410", "Bend 90 r/d 8", 3, {8.0, 24.0, 90.0}}};
    for (const Case& c : cases) {
        const LoadedValves table(c.table, HF_US);
        const CValveType* device = table.Find(c.name);
        ASSERT_NE(nullptr, device) << c.name;
        EXPECT_EQ(c.formula, device->formula) << c.name;
        EXPECT_TRUE(std::equal(c.numbers.begin(), c.numbers.end(), device->data)) << c.name;
    }
}

// The friction factors of a host that asks for no other record.
TEST(ValveTables, FrictionFactorsComeByTheirFormulaNumber) {
    constexpr int kFrictionFactors[] = {13, 0};
    const LoadedValves crane("Crane TP-410", HF_METRIC, kFrictionFactors);
    const CValveType* factors = crane.ValveData("", 13, 4);
    ASSERT_NE(nullptr, factors);
    EXPECT_STREQ("Friction Factor fT", factors->name);
    EXPECT_EQ(15.0, factors->data[0]);
    EXPECT_EQ(0.027, factors->data[1]);
    EXPECT_EQ(nullptr, crane.Find("Gate Valve"));
    EXPECT_NE(nullptr, crane.Find("Fixed Kv"));
}

// A formula number or an image that the document doesn't tell would be of no use to a host.
TEST(ValveTables, EveryFormulaAndImageIsDocumented) {
    std::set<std::string> rows;
    std::ifstream document(HYDROFACTS_VALVE_METHODS);
    for (std::string line; std::getline(document, line);) {
        const std::size_t end = line.find(" |", 1);
        if (line.rfind("| ", 0) == 0 && end != std::string::npos) {
            rows.insert(line.substr(2, end - 2));
        }
    }
    for (const char* const name : kTables) {
        EXPECT_TRUE(rows.count(name)) << name;
        LoadedValves(name, HF_US).ForEach([&rows](const CValveType& device) {
            if (device.formula < 20) {
                EXPECT_TRUE(rows.count(std::to_string(device.formula))) << device.name;
            }
            EXPECT_TRUE(rows.count(std::to_string(device.image))) << device.name;
        });
    }
}

}  // namespace
