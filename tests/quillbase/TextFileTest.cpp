#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "quillbase/TextFile.h"
#include "tests/support/TempFolder.h"
#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace {

using namespace std::string_view_literals;
using Lines = std::vector<std::string>;

// The lines that count: those after whose reading eof() is false.
Lines ReadAll(const std::string& path, unsigned size) {
    TextFile file(path.c_str());
    EXPECT_TRUE(file.ValidFile());
    Lines lines;
    std::vector<char> buffer(size + 1, '#');
    for (file.ReadLine(buffer.data(), size); !file.eof(); file.ReadLine(buffer.data(), size)) {
        lines.emplace_back(buffer.data());
        EXPECT_EQ(buffer.back(), '#');  // behind the room that was given
    }
    return lines;
}

TEST(TextFile, HandsOutTheLinesThatEnd) {
    const struct {
        std::string_view content;
        Lines lines;
    } kCases[] = {
        {"", {}},
        {"no line end", {}},
        {"\n", {""}},
        {"a\r\nb\nc", {"a", "b"}},
        {"a\n\r\n\nb\r\n", {"a", "", "", "b"}},
        {"a\rb\r\r\n", {"a\rb\r"}},
        {"1234567\n12345678\n123456789\r\nx\n", {"1234567", "1234567", "1234567", "x"}},
        {"a\0b\nc\n"sv, {"a", "c"}},
        {"\0\0\0"sv, {}},
        {"\xFF\xFE\xB3\n", {"\xFF\xFE\xB3"}},
    };
    const TempFolder folder;
    for (const auto& c : kCases) {
        EXPECT_EQ(ReadAll(folder.Write("lines.txt", c.content), 8), c.lines) << c.content;
    }
}

TEST(TextFile, PlainFormStoresLinesOf259Characters) {
    const TempFolder folder;
    const std::string path =
        folder.Write("long.txt", std::string(259, 'x') + "\r\n" + std::string(5000, 'y') + "\nz\n");
    TextFile file(path.c_str());
    char buffer[TextFile::kPlainBuffer + 1];
    buffer[TextFile::kPlainBuffer] = '#';
    for (const char c : {'x', 'y'}) {
        file.ReadLine(buffer);
        EXPECT_EQ(std::string(buffer), std::string(259, c));
    }
    file.ReadLine(buffer);
    EXPECT_STREQ(buffer, "z");
    EXPECT_EQ(buffer[TextFile::kPlainBuffer], '#');
}

TEST(TextFile, EndOfFileStaysAndTextBehindItIsEmpty) {
    const TempFolder folder;
    TextFile file(folder.Write("end.txt", "a\nlast").c_str());
    char buffer[8] = "#";
    file.ReadLine(buffer, 0);
    EXPECT_EQ(buffer[0], '#');
    EXPECT_FALSE(file.eof());
    file.ReadLine(buffer, sizeof buffer);
    EXPECT_STREQ(buffer, "last");
    EXPECT_TRUE(file.eof());
    file.ReadLine(buffer, sizeof buffer);
    EXPECT_STREQ(buffer, "");
    EXPECT_TRUE(file.eof());
}

TEST(TextFile, OnlyPlainFilesAreValid) {
    const TempFolder folder;
#ifndef _WIN32
    ASSERT_EQ(::mkfifo(folder.Path("none.txt").c_str(), 0600), 0);  // must not be waited for
#endif
    for (const std::string& path :
         {folder.Path(), folder.Path("none.txt"), std::string(), folder.Path("*")}) {
        TextFile file(path.c_str());
        EXPECT_FALSE(file.ValidFile()) << path;
        char buffer[8] = "#";
        file.ReadLine(buffer, sizeof buffer);
        EXPECT_TRUE(file.eof());
        EXPECT_STREQ(buffer, "");
    }
}

TEST(TextFile, ExtensionMayDifferByCase) {
    const TempFolder folder;
    folder.Write("Water.fTbl", "a\n");
    EXPECT_EQ(ReadAll(folder.Path("Water.FTBL"), 8), Lines{"a"});
    EXPECT_FALSE(TextFile(folder.Path("Wat?r.FTBL").c_str()).ValidFile());
}

}  // namespace
