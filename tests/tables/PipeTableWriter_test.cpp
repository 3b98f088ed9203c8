// The program that writes the pipe tables: what it refuses, and where it says the fault is.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tables/TableLines.h"
#include "tables/pipes/PipeData.h"
#include "tables/pipes/PipeTableFile.h"
#include "tests/tables/PipeValveSpoiledData.h"

namespace {

using namespace hydrofacts::tables;
using ::testing::StartsWith;

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
    for (const Spoiling& spoiling : cases) {
        const std::string message = MessageAfter(HYDROFACTS_PIPE_DATA, spoiling, ReadPipes);
        EXPECT_THAT(message, ::testing::HasSubstr(spoiling.message)) << spoiling.to;
        EXPECT_THAT(message, StartsWith(spoiling.file)) << spoiling.to;
    }
}

TEST(PipeTableFile, FileThatDiffersFromTheDataIsNoticed) {
    const TempFolder folder;
    const std::vector<PipeMaterial> pipes = ReadPipes(HYDROFACTS_PIPE_DATA);
    const PipeMaterial& steel = pipes.front();
    std::string text = PipeTableText(steel);
    const std::string row = "Z\t40\t4\t100\t4.026";
    const std::size_t place = text.find(row);
    ASSERT_NE(std::string::npos, place);
    WriteWholeFile(folder.Path(steel.name + ".PTBL"), text);
    EXPECT_NO_THROW(CheckPipeTable(folder.Path(), steel));
    text.replace(place, row.size(), "Z\t40\t4\t100\t4.025");
    WriteWholeFile(folder.Path(steel.name + ".PTBL"), text);
    EXPECT_THROW(CheckPipeTable(folder.Path(), steel), InputError);
}

TEST(TableLines, RemarkIsCutAtBlanks) {
    TableLines lines("Test", 12);
    lines.Remark("one two three four");
    EXPECT_EQ("* one two\r\n* three four\r\n", lines.Text());
    EXPECT_THROW(lines.Remark("unreasonably long"), InputError);
    EXPECT_THROW(lines.Record({"Z", "", "1"}), InputError);
    EXPECT_THROW(lines.Record({"Z", "1234567890", "1"}), InputError);
    EXPECT_THROW(lines.Record({"Z", "\xc3\xa9"}), InputError);
}

}  // namespace
