#include <gtest/gtest.h>

#include <string>

#include "win32/Win32.h"

namespace {

TEST(Module, FileNameIsTheProgramsAndIsCutToTheBuffer) {
    char whole[4096];
    const DWORD length = GetModuleFileNameA(nullptr, whole, sizeof whole);
    EXPECT_EQ(length, std::string(whole).size());
    EXPECT_TRUE(std::string(whole).ends_with("/win32_test"));
    char cut[6] = "#####";
    EXPECT_EQ(GetModuleFileNameA(nullptr, cut, 5), 5U);
    EXPECT_EQ(std::string(cut), std::string(whole).substr(0, 4));
    EXPECT_EQ(GetModuleFileNameA(nullptr, cut, 0), 0U);
}

TEST(Module, ResourcesAreFoundByTypeAndNumber) {
    static constexpr unsigned char kData[] = {1, 2, 3};
    static constexpr win32::Resource kResources[] = {{"DATA", 10, 1033, kData, sizeof kData}};
    win32::Module module{"", kResources};
    const HINSTANCE handle = win32::ToHandle(&module);
    const HRSRC found = FindResourceA(handle, MAKEINTRESOURCEA(10), "DATA");
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(SizeofResource(handle, found), 3U);
    EXPECT_EQ(LockResource(LoadResource(handle, found)), kData);
    EXPECT_EQ(FindResourceA(handle, MAKEINTRESOURCEA(11), "DATA"), nullptr);
    EXPECT_EQ(FindResourceA(handle, MAKEINTRESOURCEA(10), "DIALOG"), nullptr);
    EXPECT_EQ(FindResourceA(nullptr, MAKEINTRESOURCEA(10), "DATA"), nullptr);
}

}  // namespace
