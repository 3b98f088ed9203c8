#include <gtest/gtest.h>

#include <string>

#include "win32/Win32.h"

namespace {

TEST(Text, CapitalsAreThoseOfWindows1252) {
    // Small letters and their capitals, after the code page's table; the rest has no other case.
    std::string small = "az\x9A\x9C\x9E\xE0\xF6\xF8\xFE\xFF";
    EXPECT_EQ(CharUpperA(small.data()), std::string("AZ\x8A\x8C\x8E\xC0\xD6\xD8\xDE\x9F"));
    const std::string caseless = "@[`{\x83\xAA\xB5\xBA\xDF\xF7 AZ\xC0\xDE";
    std::string same = caseless;
    EXPECT_EQ(CharUpperA(same.data()), caseless);
}

}  // namespace
