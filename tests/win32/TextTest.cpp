#include <gtest/gtest.h>

#include <string>

#include "win32/Win32.h"

namespace {

TEST(Text, CapitalsAreThoseOfWindows1252) {
    // Small letters and their capitals, after the code page's table; the rest has no other case.
    std::string small = "az\x9A\x9C\x9E\xE0\xF6\xF8\xFE\xFF";
    const std::string capitals = "AZ\x8A\x8C\x8E\xC0\xD6\xD8\xDE\x9F";
    const std::string caseless = "@[`{\x83\xAA\xB5\xBA\xDF\xF7 AZ\xC0\xDE";
    for (std::size_t i = 0; i < small.size(); ++i) {
        const auto code = static_cast<unsigned char>(small[i]);
        // A character in place of a pointer is Win32's own.
        // NOLINTNEXTLINE(performance-no-int-to-ptr)
        const LPSTR capital = CharUpperA(reinterpret_cast<LPSTR>(UINT_PTR{code}));
        EXPECT_EQ(reinterpret_cast<UINT_PTR>(capital), static_cast<unsigned char>(capitals[i]));
    }
    EXPECT_EQ(CharUpperA(small.data()), capitals);
    std::string same = caseless;
    EXPECT_EQ(CharUpperA(same.data()), caseless);
}

}  // namespace
