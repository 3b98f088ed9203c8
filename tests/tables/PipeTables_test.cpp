// The installed pipe tables, as a host sees them.

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "hydrofacts/pipe/CPipeTableList.h"

namespace {

/// Bore and outside diameter by nominal size.
using Sizes = std::map<double, std::pair<double, double>>;

class OpenPipeTable : public CPipeTable {
  public:
    using CPipeTable::CPipeTable;

    Sizes Load(const std::string& table, const std::string& name) {
        Sizes sizes;
        EXPECT_TRUE(LoadMaterial(nullptr, table.c_str())) << table;
        EXPECT_TRUE(LoadPipeList(name.c_str(), nullptr)) << table << ' ' << name;
        for (const t_pipe_size* row = pipe_list; row != nullptr; row = row->next) {
            sizes[row->nominal] = {row->inside_dia, row->second_dim};
        }
        return sizes;
    }
};

TEST(PipeTables, AreListedForEveryHostWithSchedulesInTheirUsualOrder) {
    char text[2000] = "";
    for (const HF_UNITS units : {HF_US, HF_METRIC}) {
        const CPipeTableList list(units);
        EXPECT_EQ(23, list.ListPipeTables(text, sizeof text, 7.0, 1.0));
        list.ListPipeSchedules(text, sizeof text, "Steel B36.10M");
        EXPECT_STREQ("5\t10\t20\t30\t40\t60\t80\t100\t120\t140\t160\tSTD\tXS\tXXS", text);
    }
}

// Outside diameter and wall of each from the standard in the table's name: the bore is what they
// leave.
TEST(PipeTables, BoresAreThoseOfTheStandards) {
    struct Case {
        const char* table;
        const char* schedule;
        HF_UNITS units;
        double nominal;
        double outside;
        double wall;
    };
    // clang-format off
    const Case cases[] = {
        {"Steel B36.10M",           "40",                  HF_US,       4,    4.5,   0.237},
        {"Steel B36.10M",           "40",                  HF_METRIC, 100,  114.3,   6.02},
        {"Steel B36.10M",           "80",                  HF_US,     0.5,   0.84,   0.147},
        {"Steel B36.10M",           "160",                 HF_US,       2,  2.375,   0.344},
        {"Steel B36.10M",           "STD",                 HF_US,      12,  12.75,   0.375},
        {"Steel B36.10M",           "STD",                 HF_METRIC, 450,    457,   9.53},
        {"Steel B36.10M",           "XS",                  HF_US,      24,     24,   0.5},
        {"Steel B36.10M",           "XXS",                 HF_US,       6,  6.625,   0.864},
        {"Stainless Steel B36.19M", "10S",                 HF_US,       6,  6.625,   0.134},
        {"Stainless Steel B36.19M", "5S",                  HF_METRIC,  50,   60.3,   1.65},
        {"Steel EN 10220",          "DIN 2448 normal wall", HF_METRIC, 50,   60.3,   2.9},
        {"Copper Tube B88",         "Type K",              HF_US,       2,  2.125,   0.083},
        {"Copper Tube B88",         "Type L",              HF_US,       1,  1.125,   0.05},
        {"Copper Tube B88",         "Type M",              HF_US,    0.75,  0.875,   0.032},
        {"Ductile Iron AWWA C151",  "Pressure Class 350",  HF_US,      12,   13.2,   0.28},
        {"Ductile Iron EN 545",     "K9",                  HF_METRIC, 200,    222,   6.3},
        {"PVC D1785",               "80",                  HF_US,       6,  6.625,   0.432},
        {"PVC AWWA C900",           "DR 18",               HF_US,       8,   9.05,   0.503},
        {"PE100 ISO 4427",          "SDR 11",              HF_METRIC, 110,    110,  10.0},
        {"PE100 ISO 4427",          "SDR 17",              HF_METRIC, 250,    250,  14.8},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.table) + ' ' + c.schedule + ' ' + std::to_string(c.nominal));
        const Sizes sizes = OpenPipeTable(c.units).Load(c.table, c.schedule);
        ASSERT_TRUE(sizes.contains(c.nominal));
        const auto [bore, outside] = sizes.at(c.nominal);
        EXPECT_NEAR(c.outside - 2.0 * c.wall, bore, 1e-9);
        EXPECT_EQ(c.outside, outside);
    }
}

TEST(PipeTables, RoughnessAndCAreThoseOfNewPipe) {
    // Commercial steel 0.00015 ft, drawn tubing 0.000005 ft (Moody 1944).
    CPipeTable us(HF_US);
    ASSERT_TRUE(us.LoadMaterial(nullptr, "Steel B36.10M"));
    EXPECT_DOUBLE_EQ(0.00015 * 12.0, us.GetAbsRoughness());
    EXPECT_EQ(140.0, us.GetHWC());
    CPipeTable metric(HF_METRIC);
    ASSERT_TRUE(metric.LoadMaterial(nullptr, "Copper Tube B88"));
    EXPECT_DOUBLE_EQ(0.000005 * 304.8, metric.GetAbsRoughness());
    EXPECT_EQ(130.0, metric.GetHWC());
}

// Whatever the standard, a heavier schedule leaves a narrower bore of the same size.
TEST(PipeTables, HeavierSchedulesAreNarrower) {
    const std::vector<std::vector<std::string>> lightToHeavy = {
        {"Steel B36.10M", "5", "10", "20", "30", "40", "60", "80", "100", "120", "140", "160"},
        {"Stainless Steel B36.19M", "5S", "10S", "40S", "80S"},
        {"Copper Tube B88", "Type M", "Type L", "Type K"},
        {"Ductile Iron EN 545", "Class 30", "Class 40", "Class 50", "Class 64", "Class 100"},
        {"PVC D2241 IPS", "SDR 64", "SDR 41", "SDR 32.5", "SDR 26", "SDR 21", "SDR 17", "SDR 13.5"},
        {"PE100 ISO 4427", "SDR 17", "SDR 13.6", "SDR 11", "SDR 9", "SDR 7.4"},
    };
    for (const std::vector<std::string>& names : lightToHeavy) {
        Sizes lighter;
        for (std::size_t i = 1; i < names.size(); ++i) {
            for (const auto& [nominal, size] : OpenPipeTable(HF_METRIC).Load(names[0], names[i])) {
                if (lighter.contains(nominal)) {
                    EXPECT_LE(size.first, lighter.at(nominal).first)
                        << names[0] << ' ' << names[i] << ' ' << nominal;
                }
                lighter[nominal] = size;
            }
        }
    }
}

}  // namespace
