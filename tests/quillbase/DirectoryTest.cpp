#include <gtest/gtest.h>

#include <string>

#include "quillbase/Directory.h"

namespace {

class Directory : public ::testing::Test {
  protected:
    void TearDown() override { SetDirectory(DIR_TABLES, nullptr); }

    static std::string Tables() {
        char path[260];
        GetDirectory(DIR_TABLES, path, 0);
        return path;
    }
};

TEST_F(Directory, HostSetsItWithoutTheTrailingSeparator) {
    const char* const kCases[][2] = {
        {"/a/b", "/a/b"},
        {"/a/b///", "/a/b"},
        {"/", "/"},
        {"relative/", "relative"},
    };
    for (const auto& c : kCases) {
        SetDirectory(DIR_TABLES, c[0]);
        EXPECT_EQ(Tables(), c[1]);
    }
}

TEST_F(Directory, EmptyOrNullTakesTheSettingBack) {
    const std::string found = Tables();
    for (const char* none : {"", static_cast<const char*>(nullptr)}) {
        SetDirectory(DIR_TABLES, "/elsewhere");
        SetDirectory(DIR_TABLES, none);
        EXPECT_EQ(Tables(), found);
    }
}

TEST_F(Directory, LongestPathHas259Characters) {
    const std::string longest = "/" + std::string(258, 'd');
    SetDirectory(DIR_TABLES, longest.c_str());
    EXPECT_EQ(Tables(), longest);
    SetDirectory(DIR_TABLES, (longest + "d").c_str());
    EXPECT_EQ(Tables(), longest);
}

TEST_F(Directory, UnknownTypesHaveNone) {
    constexpr auto kUnknown = static_cast<DirTypes>(3);
    char path[260] = "#";
    SetDirectory(kUnknown, "/a");
    GetDirectory(kUnknown, path, 0);
    EXPECT_STREQ(path, "");
}

}  // namespace
