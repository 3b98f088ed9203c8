#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "tests/support/TempFolder.h"
#include "win32/Win32.h"

namespace {

using Names = std::set<std::string>;

Names Find(const std::string& pattern) {
    Names names;
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(pattern.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        EXPECT_TRUE(names.insert(found.cFileName).second);
    } while (FindNextFileA(search, &found) != FALSE);
    EXPECT_NE(FindClose(search), FALSE);
    return names;
}

TEST(FileSearch, MatchesNamesWithCaseAndExtensionsWithout) {
    const TempFolder folder;
    for (const char* name :
         {"Water.FTBL", "R-134a.v2.ftbl", "water.Ftbl", "Air.FTBLX", "Air", "notes.txt", ".FTBL"}) {
        folder.Write(name, "");
    }
    const struct {
        const char* pattern;
        Names names;
    } kCases[] = {
        {"*.FTBL", {"Water.FTBL", "R-134a.v2.ftbl", "water.Ftbl", ".FTBL"}},
        {"W*.FTBL", {"Water.FTBL"}},
        {"?ater.ftbl", {"Water.FTBL", "water.Ftbl"}},
        {"*a*r.ftbl", {"Water.FTBL", "water.Ftbl"}},
        {"*.F?BL*", {"Water.FTBL", "R-134a.v2.ftbl", "water.Ftbl", "Air.FTBLX", ".FTBL"}},
        {"R-134a.*.FTBL", {"R-134a.v2.ftbl"}},
        {"Air", {"Air"}},
        {"*.PTBL", {}},
        {"", {}},
    };
    for (const auto& c : kCases) EXPECT_EQ(Find(folder.Path(c.pattern)), c.names) << c.pattern;
    for (const char* all : {"*", "*.*"})
        EXPECT_EQ(Find(folder.Path(all)).size(), 9U) << all;  // with . and ..
}

TEST(FileSearch, FolderThatIsNotThereHasNoFiles) {
    EXPECT_EQ(Find("/none/such/folder/*.FTBL"), Names{});
}

TEST(FileSearch, AttributesTellFolders) {
    const TempFolder folder;
    std::filesystem::create_directory(folder.Path("sub"));
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(folder.Path("sub").c_str(), &found);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    EXPECT_EQ(found.dwFileAttributes, FILE_ATTRIBUTE_DIRECTORY);
    FindClose(search);
}

}  // namespace
