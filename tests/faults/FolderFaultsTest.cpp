// A folder of tables that is not as it should be: each lookup and each scan has an answer all the
// same.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>

#include "hydrofacts/dialogs/CFluidScan.h"
#include "hydrofacts/fluid/CFluid.h"
#include "hydrofacts/pipe/CPipeTableList.h"
#include "hydrofacts/valve/CValveTable.h"
#include "quillbase/Directory.h"
#include "tests/faults/FaultTables.h"
#include "tests/support/TempFolder.h"

namespace {

namespace fs = std::filesystem;

std::string Scan(const std::string& folder) {
    ForgetFluidTables();
    CFluidScan().LoadFluidNames(folder.c_str(), FLUID_NONE, 0.0, 0.0);
    return hydrofacts::FluidNamesFound();
}

/// What a host gets from a folder: the state of a fluid, the number of listed pipe tables, sizes
/// and devices.
struct Answers {
    int fluidRefused;
    int pipeTables;
    int schedules;
    bool material;
    int valves;
    std::string scanned;
};

Answers Ask(std::string folder) {
    SetDirectory(DIR_TABLES, folder.c_str());
    CFluid fluid(HF_KELVIN, HF_KPA, 1, 0.0);
    const CPipeTableList list(HF_US);
    char names[1000] = "";
    Answers answers{
        fluid.SetFluid(folder.data(), "Plain", 300.0, 900.0),
        list.ListPipeTables(names, sizeof names, 0.0, 0.0),
        list.ListPipeSchedules(names, sizeof names, "Steel"),
        CPipeTable(HF_US).LoadMaterial(folder.c_str(), "Steel"),
        CValveTable().LoadValveTable(folder.c_str(), "Standard", HF_US, kFormulas),
        Scan(folder),
    };
    SetDirectory(DIR_TABLES, nullptr);
    return answers;
}

void ExpectNothing(const std::string& folder) {
    const Answers answers = Ask(folder);
    EXPECT_EQ(answers.fluidRefused, 1);
    EXPECT_EQ(answers.pipeTables, 0);
    EXPECT_EQ(answers.schedules, -2);
    EXPECT_FALSE(answers.material);
    EXPECT_EQ(answers.valves, 0);
    EXPECT_EQ(answers.scanned, "");
}

void ExpectAll(const std::string& folder) {
    const Answers answers = Ask(folder);
    EXPECT_EQ(answers.fluidRefused, 0);
    EXPECT_EQ(answers.pipeTables, 1);
    EXPECT_EQ(answers.schedules, 1);
    EXPECT_TRUE(answers.material);
    EXPECT_EQ(answers.valves, 1);
    EXPECT_EQ(answers.scanned, "Plain\t");
}

void WriteTables(const TempFolder& folder, const std::string& place) {
    folder.Write(place + "Plain.FTBL", kFluidTable);
    folder.Write(place + "Steel.PTBL", kPipeTable);
    folder.Write(place + "Standard.VTBL", kValveTable);
}

TEST(FolderFaults, VanishedFolderHasNothingAndAReturnedOneAll) {
    const TempFolder folder;
    fs::create_directory(folder.Path("tables"));
    WriteTables(folder, "tables/");
    ExpectAll(folder.Path("tables"));
    fs::rename(folder.Path("tables"), folder.Path("elsewhere"));
    ExpectNothing(folder.Path("tables"));
    fs::rename(folder.Path("elsewhere"), folder.Path("tables"));
    ExpectAll(folder.Path("tables"));
}

TEST(FolderFaults, FileInTheFoldersPlaceHasNothing) {
    const TempFolder folder;
    ExpectNothing(folder.Write("tables", kFluidTable));
}

// What can be found through a link is found; one that leads nowhere ends every search.
TEST(FolderFaults, LinksThatGoInACircleEnd) {
    const TempFolder folder;
    fs::create_symlink("b", folder.Path("a"));
    fs::create_symlink("a", folder.Path("b"));
    ExpectNothing(folder.Path("a"));

    WriteTables(folder, "");
    fs::create_symlink(".", folder.Path("again"));
    for (const char* kind : {".FTBL", ".PTBL", ".VTBL"}) {
        fs::create_symlink(std::string("Ring") + kind, folder.Path(std::string("Ring") + kind));
        fs::create_symlink("nowhere", folder.Path(std::string("Gone") + kind));
        fs::create_symlink("..", folder.Path(std::string("Up") + kind));
    }
    ExpectAll(folder.Path("again") + "/again/again");
    std::string path = folder.Path();
    EXPECT_EQ(CFluid().SetFluid(path.data(), "Ring", 20.0), 1);
    EXPECT_EQ(CFluid().SetFluid(path.data(), "Up", 20.0), 1);
}

// Root may read everything, so a child without its rights asks.
[[noreturn]] void AskAsNobody(const std::string& folder) {
    constexpr uid_t kNobody = 65534;
    if (::geteuid() == 0 && ::setresuid(kNobody, kNobody, kNobody) != 0) ::_exit(2);
    const Answers answers = Ask(folder);
    const bool nothing = answers.fluidRefused == 1 && answers.pipeTables == 0 &&
                         answers.schedules == -2 && !answers.material && answers.valves == 0 &&
                         answers.scanned.empty();
    ::_exit(nothing ? 0 : 1);
}

TEST(FolderFaults, WhatMayNotBeReadIsNotThere) {
    const TempFolder folder;
    fs::create_directory(folder.Path("closed"));
    WriteTables(folder, "closed/");
    fs::create_directory(folder.Path("open"));
    WriteTables(folder, "open/");
    for (const auto& entry : fs::directory_iterator(folder.Path("open"))) {
        fs::permissions(entry, fs::perms::none);
    }
    fs::permissions(folder.Path("closed"), fs::perms::none);
    EXPECT_EXIT(AskAsNobody(folder.Path("closed")), ::testing::ExitedWithCode(0), "");
    EXPECT_EXIT(AskAsNobody(folder.Path("open")), ::testing::ExitedWithCode(0), "");
    fs::permissions(folder.Path("closed"), fs::perms::owner_all);
}

constexpr int kMany = 50000;

TEST(FolderFaults, FiftyThousandTablesAreAllFound) {
    const TempFolder folder;
    const std::string table = folder.Write("0.FTBL", kFluidTable);
    for (int i = 1; i < kMany; ++i) {
        fs::create_hard_link(table, folder.Path(std::to_string(i) + ".FTBL"));
    }
    const std::string names = Scan(folder.Path());
    EXPECT_EQ(std::ranges::count(names, '\t'), kMany);
    EXPECT_THAT(names, ::testing::HasSubstr("\t49999\t"));
}

// A table that can't be opened is searched for under other cases of its extension: that must not
// mean reading the whole folder for each of them.
TEST(FolderFaults, FiftyThousandLinksToNowhereTakeNoTime) {
    const TempFolder folder;
    for (int i = 0; i < kMany; ++i) {
        ASSERT_EQ(::symlink("nowhere", folder.Path(std::to_string(i) + ".FTBL").c_str()), 0);
    }
    folder.Write("Plain.FTBL", kFluidTable);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(Scan(folder.Path()), "Plain\t");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30));
}

}  // namespace
