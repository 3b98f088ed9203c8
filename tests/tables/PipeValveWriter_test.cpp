// The programs that write the pipe and valve tables: what they refuse, and where they say the fault
// is.

#include "tables/TableLines.h"
#include "tables/pipes/PipeData.h"
#include "tables/pipes/PipeTableFile.h"
#include "tables/valves/ValveData.h"
#include "tables/valves/ValveTableFile.h"
#include "tests/tables/SpoiledData.h"

namespace {

using namespace hydrofacts::tables;

TEST(PipeData, SpoiledRowIsRefusedWithItsPlace) {
    const char* const kFirst = "5,0.5,15,0.84,21.3,0.065,1.65,0.71,18\n";
    // clang-format off
    const Spoiling cases[] = {
        {"sizes.csv", kFirst, "5,0.5,15,0.84,21.3,0.065,1.65,0.72,18\n",     "sizes.csv:2: field inside_diameter_in: is not the outside"},
        {"sizes.csv", kFirst, "5,0.5,15,0.84,21.3,0.065,1.65,0.71,18.01\n",  "sizes.csv:2: field inside_diameter_mm: is not the outside"},
        {"sizes.csv", kFirst, "5,0.5,15,0.84,21.5,0.065,1.65,0.71,18.2\n",   "sizes.csv:2: field outside_diameter_mm: is 0.164 mm off"},
        {"sizes.csv", kFirst, "5,0.5,15,0.84,21.3,0.065,1.6,0.71,18.1\n",    "sizes.csv:2: field wall_mm: is 0.051 mm off"},
        {"sizes.csv", kFirst, "5,0.5,15,0.84,21.3,0,1.65,0.84,18\n",         "sizes.csv:2: field wall_in: must be above zero"},
        {"sizes.csv", kFirst, "5,.5,15,0.84,21.3,0.065,1.65,0.71,18\n",      "sizes.csv:2: field nominal_in: '.5' is not the text"},
        {"sizes.csv", kFirst, "5,0.5,16,0.84,21.3,0.065,1.65,0.71,18\n",     "sizes.csv:2: field nominal_mm: is not the DN"},
        {"sizes.csv", kFirst, "5,1,25,1.315,33.4,0.065,1.65,1.185,30.1\n",   "sizes.csv:3: field nominal_in: is not above"},
        {"sizes.csv", kFirst, "Schedule with a very long name 5,0.5,15,0.84,21.3,0.065,1.65,0.71,18\n", "sizes.csv:2: field schedule: is not fit"},
        {"sizes.csv", "B36.10M,5,0.75", "B36.10M,40,0.75",                   "sizes.csv:4: field schedule: its rows do not stand together"},
        {"sizes.csv", "Steel B36.10M,5,0.75", "Stele,5,0.75",                "sizes.csv:3: field material: 'Stele' is not in"},
        // 6.625 / 26 is 0.255, and outside less two walls of 0.26 is kept right.
        {"sizes.csv", "PVC D2241 IPS,SDR 26,6,150,6.625,168.275,0.255,6.477,6.115,155.321",
                      "PVC D2241 IPS,SDR 26,6,150,6.625,168.275,0.25,6.35,6.125,155.575", "field wall_mm: is too thin"},
        // The size is 0.84 in. wide in the schedules ahead of it.
        {"sizes.csv", "Steel B36.10M,XXS,0.5,15,0.84,21.3,0.294,7.47,0.252,6.36",
                      "Steel B36.10M,XXS,0.5,15,0.842,21.36,0.294,7.47,0.254,6.42", "field outside_diameter_in: of schedule XXS differs"},
        {"materials.csv", "0.0018,0.04572,140", "0.0018,0.0457,140",         "materials.csv:2: field roughness_mm: is not"},
        {"materials.csv", "0.0018,0.04572,140", "0.0018,0.04572,0",          "materials.csv:2: field hazen_williams_c: is no"},
        {"materials.csv", "Steel B36.10M", "Steel: B36.10M",                 "materials.csv:2: field material: is not fit"},
        {"materials.csv", "\nSteel BS 1387,", "\nPEX F876,",                 "materials.csv:24: field material: stands twice"},
        {"materials.csv", ",both,", ",all,",                                 "materials.csv:2: field published: is neither"},
    };
    // clang-format on
    ExpectRefusals(HYDROFACTS_PIPE_DATA, cases, ReadPipes);
}

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
    ExpectRefusals(HYDROFACTS_VALVE_DATA, cases, ReadValves);
}

TEST(PipeAndValveFiles, ThatDifferFromTheDataAreNoticed) {
    const TempFolder folder;
    const PipeMaterial steel = ReadPipes(HYDROFACTS_PIPE_DATA).front();
    const ValveTableData standard = ReadValves(HYDROFACTS_VALVE_DATA).front();
    const std::string gate = "Z\tValve\t\"Gate Valve\"\t9\t0.136\t4\t100\t8\r\n";
    const Spoiling cases[] = {
        {"Steel B36.10M.PTBL", "Z\t40\t4\t100\t4.026", "Z\t40\t4\t100\t4.025", "another bore"},
        {"Standard.VTBL", gate, "", "a row less"},
        {"Standard.VTBL", gate, "Z\tValve\t\"Gate Valve\"\t9\t0.137\t4\t100\t8\r\n", "another K"},
        {"Standard.VTBL", gate, "Z\tValve\t\"Gate Valve\"\t9\t0.136\t4\t90\t8\r\n", "another size"},
    };
    const auto check = [&] {
        CheckPipeTable(folder.Path(), steel);
        CheckValveTable(folder.Path(), standard);
    };
    for (const Spoiling& spoiling : cases) {
        folder.Write("Steel B36.10M.PTBL", PipeTableText(steel));
        folder.Write("Standard.VTBL", ValveTableText(standard));
        EXPECT_NO_THROW(check());
        folder.Write(spoiling.file,
                     Replaced(folder.Read(spoiling.file), spoiling.from, spoiling.to));
        EXPECT_THROW(check(), InputError) << spoiling.message;
    }
}

TEST(TableLines, RemarkIsCutAtBlanks) {
    TableLines lines("Test", 12);
    lines.Remark("one two three four");
    EXPECT_EQ("* one two\r\n* three four\r\n", lines.Text());
    EXPECT_THROW(lines.Head(std::string(100, 'x')), InputError);
    EXPECT_THROW(lines.Remark("unreasonably long"), InputError);
    EXPECT_THROW(lines.Record({"Z", "", "1"}), InputError);
    EXPECT_THROW(lines.Record({"Z", "1234567890", "1"}), InputError);
    EXPECT_THROW(lines.Record({"Z", "\xc3\xa9"}), InputError);
}

}  // namespace
