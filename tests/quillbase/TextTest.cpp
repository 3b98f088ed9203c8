#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "quillbase/Text.h"

namespace {

TEST(Text, CopyIsBoundedAndTerminated) {
    char buffer[] = "########";
    const char unterminated[] = {'a', 'b', 'c'};
    EXPECT_EQ(rstrncpy(buffer, unterminated, 4), buffer);  // reads no further than it copies
    EXPECT_EQ(std::memcmp(buffer, "abc\0####", 8), 0);
    rstrncpy(buffer, "z", 0);
    EXPECT_STREQ(buffer, "abc");
    rstrncpy(buffer, "z", 1);
    EXPECT_STREQ(buffer, "");
}

TEST(Text, QuotesGoOnlyWhereTheyEncloseTheText) {
    const char* const kCases[][2] = {{"\"Water\"", "Water"}, {"\"\"", ""},   {"", ""},
                                     {"\"", "\""},           {"2\"", "2\""}, {"\"a", "\"a"}};
    for (const auto& c : kCases) {
        std::string text = c[0];
        EXPECT_STREQ(UnquoteString(text.data()), c[1]);
    }
}

TEST(Text, CaseIsIgnoredOfAsciiLettersOnly) {
    EXPECT_TRUE(quillbase::EqualIgnoringCase("kPa AZ", "KPA az"));
    EXPECT_FALSE(quillbase::EqualIgnoringCase("\xC4", "\xE4"));
    EXPECT_FALSE(quillbase::EqualIgnoringCase("@[", "`{"));
    EXPECT_FALSE(quillbase::EqualIgnoringCase("psi", "psia"));
}

}  // namespace
