// The program that writes the valve tables: what it refuses, and where it says the fault is.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tables/TableLines.h"
#include "tables/valves/ValveData.h"
#include "tables/valves/ValveTableFile.h"
#include "tests/tables/PipeValveSpoiledData.h"

namespace {

using namespace hydrofacts::tables;

TEST(ValveData, SpoiledRowIsRefusedWithItsPlace) {
    // clang-format off
    const Spoiling cases[] = {
        {"devices.csv", "Fitting,Entrance Sharp", "fitting,Entrance Sharp",     "devices.csv:2: field device_type: 'fitting' is no"},
        {"devices.csv", "Entrance Sharp Edged", "Entrance With An Edge As Sharp As", "devices.csv:2: field name: is not fit"},
        {"devices.csv", "Edged,constant", "Edged,Constant",                     "devices.csv:2: field method: 'Constant' is no method"},
        {"devices.csv", "constant,0.5,,,1,", "constant,0.5,0,,1,",              "devices.csv:2: field n2: the method does not use it"},
        {"devices.csv", "constant,0.5,,,1,", "constant,0,,,1,",                 "devices.csv:2: field n1: must be above zero"},
        {"devices.csv", "constant,0.5,,,1,", "constant,0.5,,,16,",              "devices.csv:2: field image: is not a whole number"},
        {"devices.csv", "Standard; Crane TP-410; ", "Standard;Crane TP-410; ",  "devices.csv:2: field tables: 'Standard;Crane TP-410' is not"},
        {"devices.csv", "Entrance Inward Project Crane", "Entrance Sharp Edged", "devices.csv:3: field name: stands twice in table Standard"},
        {"devices.csv", "Swing Check Screwed,by size", "Swing Check,by size",   "field name: has no rows in by_size.csv"},
        {"by_size.csv", "Regular,1.7,0.75,20,", "Regular,2.2,0.75,20,",         "by_size.csv:3: field value: rises with size"},
        {"by_size.csv", "Regular,1.7,0.75,20,", "Regular,1.7,0.5,15,",          "by_size.csv:3: field limit_in: is not above"},
        {"by_size.csv", "Regular,1.7,0.75,20,", "Regular,1.7,0.75,25,",         "by_size.csv:3: field limit_mm: is not the DN"},
        {"by_size.csv", "Elbow 90 Screwed Regular,1.7", "Elbow,1.7",            "by_size.csv:4: field name: the rows of this device do not"},
        {"tables.csv",  "\nTwo-K,", "\nTwo/K,",                                 "tables.csv:5: field table: is not fit"},
    };
    // clang-format on
    for (const Spoiling& spoiling : cases) {
        EXPECT_THAT(MessageAfter(HYDROFACTS_VALVE_DATA, spoiling, ReadValves),
                    ::testing::HasSubstr(spoiling.message))
            << spoiling.to;
    }
}

TEST(ValveTableFile, FileThatDiffersFromTheDataIsNoticed) {
    const TempFolder folder;
    const std::vector<ValveTableData> tables = ReadValves(HYDROFACTS_VALVE_DATA);
    const ValveTableData& standard = tables.front();
    const std::string text = ValveTableText(standard);
    const std::string file = folder.Path(standard.name + ".VTBL");
    WriteWholeFile(file, text);
    EXPECT_NO_THROW(CheckValveTable(folder.Path(), standard));
    // A row less, another number, another image.
    const std::string row = "Z\tValve\t\"Gate Valve\"\t9\t0.136\t4\t100\t8\r\n";
    const std::size_t place = text.find(row);
    ASSERT_NE(std::string::npos, place);
    for (const char* const other : {"", "Z\tValve\t\"Gate Valve\"\t9\t0.137\t4\t100\t8\r\n",
                                    "Z\tValve\t\"Gate Valve\"\t9\t0.136\t4\t90\t8\r\n"}) {
        std::string spoiled = text;
        spoiled.replace(place, row.size(), other);
        WriteWholeFile(file, spoiled);
        EXPECT_THROW(CheckValveTable(folder.Path(), standard), InputError) << other;
    }
}

}  // namespace
