// A folder of tables that is not as it should be: each load, list and scan has an answer all the
// same.

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>

#include "hydrofacts/pipe/CPipeTableList.h"
#include "quillbase/Directory.h"
#include "tests/faults/FaultTables.h"

namespace {

namespace fs = std::filesystem;

constexpr int kMany = 50000;

// The names that lists and the scan find in a folder.
std::string Names(const std::string& folder) {
    SetDirectory(DIR_TABLES, folder.c_str());
    char pipes[100] = "";
    CPipeTableList(HF_US).ListPipeTables(pipes, sizeof pipes, 0.0, 0.0);
    SetDirectory(DIR_TABLES, nullptr);
    ScanAnew(folder);
    return pipes + hydrofacts::FluidNamesFound();
}

bool HoldsNothing(const Tables& tables) {
    return Read(tables) == kNone && Names(tables.path).empty();
}

bool HoldsAll(const Tables& tables) {
    return Read(tables) == kAll && Names(tables.path) == "SteelPlain\t";
}

TEST(FolderFaults, FolderThatIsGoneOrNoneHasNothingAndAReturnedOneAll) {
    Tables tables;
    tables.WriteAll();
    const std::string elsewhere = tables.path + "-elsewhere";
    fs::rename(tables.path, elsewhere);
    EXPECT_TRUE(HoldsNothing(tables));
    fs::copy_file(elsewhere + "/Plain.FTBL", tables.path);
    EXPECT_TRUE(HoldsNothing(tables)) << "a file in the folder's place";
    fs::remove(tables.path);
    fs::create_symlink(tables.path, tables.path);
    EXPECT_TRUE(HoldsNothing(tables)) << "a link in a circle";
    fs::remove(tables.path);
    fs::rename(elsewhere, tables.path);
    EXPECT_TRUE(HoldsAll(tables));

    // What can be found through a link is found; one that leads nowhere ends every search.
    for (const char* kind : {".FTBL", ".PTBL", ".VTBL"}) {
        fs::create_symlink(std::string("Ring") + kind, tables.Path(std::string("Ring") + kind));
        fs::create_symlink("..", tables.Path(std::string("Up") + kind));
    }
    fs::create_symlink(".", tables.Path("again"));
    tables.path += "/again/again";
    EXPECT_TRUE(HoldsAll(tables));
}

// Root may read everything, so a child without its rights looks.
[[noreturn]] void LookAsNobody(const Tables& tables) {
    constexpr uid_t kNobody = 65534;
    if (::geteuid() == 0 && ::setresuid(kNobody, kNobody, kNobody) != 0) ::_exit(2);
    ::_exit(HoldsNothing(tables) ? 0 : 1);
}

TEST(FolderFaults, WhatMayNotBeReadIsNotThere) {
    const Tables tables;
    tables.WriteAll();
    fs::permissions(tables.path, fs::perms::none);
    EXPECT_EXIT(LookAsNobody(tables), ::testing::ExitedWithCode(0), "");
    fs::permissions(tables.path, fs::perms(0755));
    for (const auto& entry : fs::directory_iterator(tables.path)) {
        fs::permissions(entry, fs::perms::none);
    }
    EXPECT_EXIT(LookAsNobody(tables), ::testing::ExitedWithCode(0), "");
}

TEST(FolderFaults, FiftyThousandTablesAreAllFound) {
    const Tables tables;
    const std::string table = tables.Write("0.FTBL", kFluidTable);
    for (int i = 1; i < kMany; ++i) {
        fs::create_hard_link(table, tables.Path(std::to_string(i) + ".FTBL"));
    }
    const std::string names = Names(tables.path);
    EXPECT_EQ(std::ranges::count(names, '\t'), kMany);
    EXPECT_NE(names.find("\t49999\t"), std::string::npos);
}

// A table that can't be opened is searched for under other cases of its extension: that must not
// mean reading the whole folder for each of them.
TEST(FolderFaults, FiftyThousandLinksToNowhereTakeNoTime) {
    const Tables tables;
    tables.WriteAll();
    for (int i = 0; i < kMany; ++i) {
        fs::create_symlink("nowhere", tables.Path(std::to_string(i) + ".FTBL"));
    }
    const auto start = std::chrono::steady_clock::now();
    ScanAnew(tables.path);
    EXPECT_EQ(hydrofacts::FluidNamesFound(), "Plain\t");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30));
}

}  // namespace
