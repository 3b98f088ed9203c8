#include <gtest/gtest.h>

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
    const std::pair<const char*, Names> kCases[] = {
        {"*.FTBL", {"Water.FTBL", "R-134a.v2.ftbl", "water.Ftbl", ".FTBL"}},
        {"W*.FTBL", {"Water.FTBL"}},
        {"?a*r.ftbl", {"Water.FTBL", "water.Ftbl"}},
        {"*.F?BL*", {"Water.FTBL", "R-134a.v2.ftbl", "water.Ftbl", "Air.FTBLX", ".FTBL"}},
        {"R-134a.*.FTBL", {"R-134a.v2.ftbl"}},
        {"Air", {"Air"}},
        {"", {}},
    };
    for (const auto& [pattern, names] : kCases) {
        EXPECT_EQ(Find(folder.Path(pattern)), names) << pattern;
    }
    for (const char* all : {"*", "*.*"})
        EXPECT_EQ(Find(folder.Path(all)).size(), 9U) << all;  // with . and ..
    EXPECT_EQ(Find(folder.Path("none") + "/*.FTBL"), Names{});
}

}  // namespace
