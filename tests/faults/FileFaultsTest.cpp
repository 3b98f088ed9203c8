// A table file that is not as it should be: large, of other bytes than text has, changed or
// taken away while it is read.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <atomic>
#include <filesystem>
#include <string>
#include <thread>

#include "quillbase/CAtmPressure.h"
#include "quillbase/CTableReader.h"
#include "quillbase/FileText.h"
#include "tests/faults/FaultTables.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* kNames[] = {"Plain.FTBL", "Steel.PTBL", "Standard.VTBL"};

// Puts lines ahead of the records of each table.
void WriteBehind(const Tables& tables, const std::string& lines) {
    tables.WriteAll(lines + kFluidTable, lines + kPipeTable, lines + kValveTable);
}

TEST(FileFaults, LinesOfTenMegabytesAreCutAndAHundredMegabytesRead) {
    const std::string filling(10U << 20U, 'x');
    std::string remarks;
    for (int i = 0; i < 10; ++i) remarks += "* " + filling + "\r\n";
    Tables tables;
    WriteBehind(tables, remarks);
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

}  // namespace
