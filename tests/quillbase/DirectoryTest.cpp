#include <gtest/gtest.h>

#include <string>

#include "quillbase/Directory.h"

namespace {

std::string Tables() {
    char path[260];
    GetDirectory(DIR_TABLES, path, 0);
    return path;
}

TEST(Directory, HostSetsItUpTo259CharactersAndTakesItBack) {
    const std::string found = Tables();
    const std::string longest = "/" + std::string(258, 'd');
    const std::string cases[][2] = {
        {"/a/b///", "/a/b"}, {"/", "/"}, {longest, longest}, {longest + "d", longest}};
    for (const auto& [given, expected] : cases) {
        SetDirectory(DIR_TABLES, given.c_str());
        EXPECT_EQ(Tables(), expected);
    }
    for (const char* none : {"", static_cast<const char*>(nullptr)}) {
        SetDirectory(DIR_TABLES, "relative/");
        EXPECT_EQ(Tables(), "relative");
        SetDirectory(DIR_TABLES, none);
        EXPECT_EQ(Tables(), found);
    }
}

}  // namespace
