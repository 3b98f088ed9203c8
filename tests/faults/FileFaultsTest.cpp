// A table file or folder that is not as it should be: large, of other bytes than text has, changed
// or taken away while it is read.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <string>
#include <thread>
#include <tuple>

#include "hydrofacts/pipe/CPipeTableList.h"
#include "hydrofacts/valve/CValveTable.h"
#include "quillbase/CAtmPressure.h"
#include "quillbase/CTableReader.h"
#include "quillbase/Directory.h"
#include "quillbase/FileText.h"
#include "tests/faults/FaultTables.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* kNames[] = {"Plain.FTBL", "Steel.PTBL", "Standard.VTBL"};

/// What is read of the three tables, each -1 if it is refused: kg/m³ at 300 K and 900 kPa, the
/// inside diameter of schedule 40, size 3, and how many of the two devices there are.
using Found = std::tuple<double, double, int>;
const Found kAll{900.0, 3.068, 2};
const Found kNone{-1.0, -1.0, -1};

Found Read(Tables& tables) {
    Found found = kNone;
    auto& [density, diameter, devices] = found;
    CFluid fluid(HF_KELVIN, HF_KPA, 1, 0.0);
    if (fluid.SetFluid(tables.path.data(), "Plain", 300.0, 900.0) == 0) {
        density = fluid.GetDensity();
    }
    CPipeTable pipe(HF_US);
    if (pipe.LoadMaterial(tables.path.c_str(), "Steel") && pipe.LoadPipeList("40", nullptr)) {
        diameter = pipe.PipeDia(3.0);
    }
    CValveTable valves;
    if (valves.LoadValveTable(tables.path.c_str(), "Standard", HF_US, kFormulas) != 0) {
        devices =
            (valves.Find("Gate") != nullptr ? 1 : 0) + (valves.Find("Elbow") != nullptr ? 1 : 0);
    }
    return found;
}

// Puts lines ahead of the records of each table.
void WriteBehind(const Tables& tables, const std::string& lines) {
    tables.WriteAll(lines + kFluidTable, lines + kPipeTable, lines + kValveTable);
}

TEST(FileFaults, LineOfTenMegabytesIsCut) {
    const std::string filling(10U << 20U, 'x');
    Tables tables;
    WriteBehind(tables, "* " + filling + "\r\n");
    EXPECT_EQ(Read(tables), kAll);
    // What stands behind the part of a record that is read is not there.
    const auto lengthened = [&filling](std::string table, const char* record) {
        const std::size_t end = table.find("\r\n", table.find(record));
        return table.insert(end, "\t" + filling);
    };
    tables.WriteAll(lengthened(kFluidTable, "P3"), lengthened(kPipeTable, "Z\t40\t3"),
                    lengthened(kValveTable, "Z\tValve"));
    EXPECT_EQ(Read(tables), kAll);
}

std::string Utf16(const std::string& text) {
    std::string wide = "\xFF\xFE";
    for (const char c : text) wide += {c, '\0'};
    return wide;
}

// A line ends, for its reader, at a NUL byte.
TEST(FileFaults, BytesThatAreNoTextAreRefusedOrDoNoHarm) {
    const std::string nul(1, '\0');
    Tables tables;
    WriteBehind(tables, "* " + nul + "\r\n" + nul + "\r\n" + nul + "Z\r\n");
    EXPECT_EQ(Read(tables), kAll);
    tables.WriteAll(kFluidTable + nul, kPipeTable + nul, kValveTable + nul);
    EXPECT_EQ(Read(tables), kAll);
    std::string cut = kFluidTable;
    cut.insert(cut.find("1200"), nul);
    tables.WriteAll(cut, std::string(5000, '\0'), std::string(5000, '\0'));
    EXPECT_EQ(Read(tables), kNone);
    tables.WriteAll(Utf16(kFluidTable), Utf16(kPipeTable), Utf16(kValveTable));
    EXPECT_EQ(Read(tables), kNone);
    const std::string language = tables.Write("language.dat", Utf16("IDS\t09-01\r\n1\tOne\r\n"));
    EXPECT_FALSE(CTableReader(language.c_str(), '\t', nullptr, nullptr).Valid());
    // The mark of UTF-8 is part of the title line, which no loader needs.
    WriteBehind(tables, "\xEF\xBB\xBF");
    EXPECT_EQ(Read(tables), kAll);
}

TEST(FileFaults, WhatIsNoTextIsNotWaitedForAndNotReplaced) {
    Tables tables;
    std::string ini = tables.Path("host.ini");
    for (const char* name : {kNames[0], kNames[1], kNames[2], "host.ini"}) {
        // A terabyte that takes no room.
        fs::resize_file(tables.Write(name, ""), std::uintmax_t{1} << 40);
        EXPECT_FALSE(quillbase::FileText(tables.Path(name).c_str()).Valid());
    }
    EXPECT_EQ(Read(tables), kNone);
    EXPECT_FALSE(CAtmPressure().GetFromINI(ini.data()));
    EXPECT_FALSE(CAtmPressure().SetToINI(1.0, HF_BAR, ini.data()));
    EXPECT_EQ(fs::file_size(ini), std::uintmax_t{1} << 40);

    for (const auto& file : fs::directory_iterator(tables.path)) fs::remove(file);
    ASSERT_EQ(::mkfifo(tables.Path(kNames[0]).c_str(), 0666), 0);
    fs::create_symlink("/dev/zero", tables.Path(kNames[1]));
    fs::create_symlink("/dev/full", tables.Path(kNames[2]));
    fs::create_symlink("/dev/full", ini);
    EXPECT_EQ(Read(tables), kNone);
    EXPECT_FALSE(CAtmPressure().SetToINI(1.0, HF_BAR, ini.data()));
    EXPECT_TRUE(fs::is_symlink(ini));
}

// Writes tables until it is told to stop, each time in another way.
void Disturb(const Tables& tables, const std::atomic<bool>& stop) {
    while (!stop) {
        tables.WriteAll();
        for (const char* name : kNames) fs::resize_file(tables.Path(name), 150);
        WriteBehind(tables, kValveTable);
        for (const char* name : kNames) fs::remove(tables.Path(name));
    }
}

TEST(FileFaults, TableThatChangesWhileItIsReadIsWholeOrRefused) {
    constexpr int kReads = 2000;
    Tables tables;
    tables.WriteAll();
    std::atomic<bool> stop = false;
    std::thread writer([&] { Disturb(tables, stop); });
    int read = 0;
    for (int i = 0; i < kReads; ++i) {
        const auto [density, diameter, devices] = Read(tables);
        EXPECT_TRUE(density == -1.0 || density == 900.0) << density;
        EXPECT_TRUE(diameter == -1.0 || diameter == 3.068 || diameter == 0.0) << diameter;
        EXPECT_LE(devices, 2);
        if (density == 900.0) ++read;
    }
    stop = true;
    writer.join();
    EXPECT_GT(read, 0);
    tables.WriteAll();
    EXPECT_EQ(Read(tables), kAll);
}

TEST(FileFaults, VanishedFolderHasNothingAndAReturnedOneAll) {
    Tables tables;
    tables.WriteAll();
    SetDirectory(DIR_TABLES, tables.path.c_str());
    const auto names = [&tables] {
        char pipes[100] = "";
        CPipeTableList(HF_US).ListPipeTables(pipes, sizeof pipes, 0.0, 0.0);
        ScanAnew(tables.path);
        return pipes + hydrofacts::FluidNamesFound();
    };
    const std::string elsewhere = tables.path + "-elsewhere";
    fs::rename(tables.path, elsewhere);
    EXPECT_EQ(Read(tables), kNone);
    EXPECT_EQ(names(), "");
    fs::copy_file(elsewhere + "/Plain.FTBL", tables.path);
    EXPECT_EQ(Read(tables), kNone) << "a file in the folder's place";
    EXPECT_EQ(names(), "");
    fs::remove(tables.path);
    fs::rename(elsewhere, tables.path);
    EXPECT_EQ(Read(tables), kAll);
    EXPECT_EQ(names(), "SteelPlain\t");
    SetDirectory(DIR_TABLES, nullptr);
}

// A table that can't be opened is searched for under other cases of its extension: that must not
// mean reading the whole folder for each of them.
TEST(FileFaults, FiftyThousandLinksToNowhereTakeNoTime) {
    const Tables tables;
    tables.WriteAll();
    for (int i = 0; i < 50000; ++i) {
        fs::create_symlink("nowhere", tables.Path(std::to_string(i) + ".FTBL"));
    }
    const auto start = std::chrono::steady_clock::now();
    ScanAnew(tables.path);
    EXPECT_EQ(hydrofacts::FluidNamesFound(), "Plain\t");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(30));
}

}  // namespace
