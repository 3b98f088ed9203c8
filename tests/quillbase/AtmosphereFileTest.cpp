#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "quillbase/CAtmPressure.h"
#include "tests/support/TempFolder.h"
#ifndef _WIN32
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#endif

namespace {

namespace fs = std::filesystem;

bool Save(double value, HF_PUNITS unit, std::string path) {
    return CAtmPressure().SetToINI(value, unit, path.data());
}

TEST(AtmosphereFile, ValueAndUnitComeBackToTheLastBit) {
    const TempFolder folder;
    std::string path = folder.Path() + "/\xFC host.ini";  // Windows-1252, no valid UTF-8
    for (int unit = HF_PSI; unit <= HF_PA; ++unit) {
        const double value = (0.1 + 0.2) * (unit + 1);
        ASSERT_TRUE(Save(value, static_cast<HF_PUNITS>(unit), path));
        CAtmPressure read;
        ASSERT_TRUE(read.GetFromINI(path.data()));
        EXPECT_EQ(read.Value(static_cast<HF_PUNITS>(unit)), value);
    }
}

TEST(AtmosphereFile, AllElseStaysByteForByte) {
    const struct {
        std::string_view before;
        std::string_view after;
    } kCases[] = {
        {"", "[Atmosphere]\r\nPressure=14.5\r\nUnit=psi\r\n"},
        {"; Pressure=3\r\n[Window]\r\nPressure=9\r\n\r\n[ATMOSPHERE]\r\n unit =\t bar  \r\n# x\r\n"
         "pressure=\r\nNext\r\n\r\n[Z]\r\nUnit=1",
         "; Pressure=3\r\n[Window]\r\nPressure=9\r\n\r\n[ATMOSPHERE]\r\n unit =\t psi  \r\n# x\r\n"
         "pressure=14.5\r\nNext\r\n\r\n[Z]\r\nUnit=1"},
        {"[Atmosphere]\n;c\n\n\n[B]\nx=\xFC\xFF\n",
         "[Atmosphere]\n;c\nPressure=14.5\nUnit=psi\n\n\n[B]\nx=\xFC\xFF\n"},
        {"[B]\nx=1", "[B]\nx=1\n[Atmosphere]\nPressure=14.5\nUnit=psi\n"},
    };
    const TempFolder folder;
    for (const auto& c : kCases) {
        const std::string path = folder.Write("host.ini", c.before);
        EXPECT_TRUE(Save(14.5, HF_HEAD_FT, path)) << "a head counts as psi";
        EXPECT_EQ(folder.Read("host.ini"), c.after);
    }
}

TEST(AtmosphereFile, WhatIsNoPressureLeavesTheObjectAsItWas) {
    const TempFolder folder;
    for (const std::string_view content :
         {"", "Pressure=1\nUnit=bar\n", "[Atmosphere]\nPressure=1\n[B]\nUnit=bar\n",
          "[Atmosphere]\nPressure=-1\nUnit=bar\n", "[Atmosphere]\nPressure=nan\nUnit=bar\n",
          "[Atmosphere]\nPressure=x\nUnit=bar\n", "[Atmosphere]\nPressure=1\nUnit=ft\n"}) {
        std::string path = folder.Write("host.ini", content);
        CAtmPressure read;
        EXPECT_FALSE(read.GetFromINI(path.data())) << content;
        EXPECT_EQ(read.Value(HF_KPA), 101.325);
    }
}

TEST(AtmosphereFile, FailureLeavesTheOldFileAndNothingBesideIt) {
    const TempFolder folder;
    EXPECT_FALSE(Save(1.0, HF_BAR, folder.Path()));
    EXPECT_FALSE(Save(1.0, HF_BAR, folder.Path("none/host.ini")));
    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

#ifndef _WIN32
[[noreturn]] void SaveWhereNoFileGrowsBeyond16Bytes(const std::string& path) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{16, 16};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    ::_exit(Save(1.0, HF_BAR, path) ? 1 : 0);
}

TEST(AtmosphereFile, FullDiskLeavesTheOldFileWhole) {
    const TempFolder folder;
    const std::string path = folder.Write("host.ini", "[B]\nx=1\n");
    EXPECT_EXIT(SaveWhereNoFileGrowsBeyond16Bytes(path), ::testing::ExitedWithCode(0), "");
    EXPECT_EQ(folder.Read("host.ini"), "[B]\nx=1\n");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 1);
}

TEST(AtmosphereFile, LinkStaysALinkAndPermissionsStay) {
    const TempFolder folder;
    folder.Write("real.ini", "");
    fs::permissions(folder.Path("real.ini"), fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("real.ini", folder.Path("link.ini"));
    EXPECT_TRUE(Save(1.0, HF_BAR, folder.Path("link.ini")));
    EXPECT_TRUE(fs::is_symlink(folder.Path("link.ini")));
    EXPECT_EQ(folder.Read("real.ini"), "[Atmosphere]\r\nPressure=1\r\nUnit=bar\r\n");
    EXPECT_EQ(fs::status(folder.Path("real.ini")).permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}
#endif

}  // namespace
