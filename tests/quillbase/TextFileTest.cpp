#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "quillbase/TextFile.h"
#include "tests/support/TempFolder.h"

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
        {"a\n\r\n\nb\r\nc", {"a", "", "", "b"}},
        {"a\rb\r\r\n", {"a\rb\r"}},
        {"1234567\n12345678\n123456789\r\nx\n", {"1234567", "1234567", "1234567", "x"}},
        {"a\0b\nc\n"sv, {"a", "c"}},
    };
    const TempFolder folder;
    for (const auto& c : kCases) {
        EXPECT_EQ(ReadAll(folder.Write("lines.txt", c.content), 8), c.lines) << c.content;
    }
}

TEST(TextFile, PlainFormStores259CharactersAndNothingBehindTheEnd) {
    const TempFolder folder;
    TextFile file(folder.Write("end.txt", "a\n" + std::string(5000, 'y') + "\nlast").c_str());
    char buffer[TextFile::kPlainBuffer + 1] = "#";
    buffer[TextFile::kPlainBuffer] = '#';
    file.ReadLine(buffer, 0);
    EXPECT_EQ(buffer[0], '#');
    file.ReadLine(buffer);
    EXPECT_EQ(buffer, std::string(259, 'y'));
    EXPECT_FALSE(file.eof());
    for (const char* text : {"last", ""}) {
        file.ReadLine(buffer);
        EXPECT_STREQ(buffer, text);
        EXPECT_TRUE(file.eof());
    }
    EXPECT_EQ(buffer[TextFile::kPlainBuffer], '#');
}

TEST(TextFile, OnlyPlainFilesAreValidButTheirExtensionMayDifferByCase) {
    const TempFolder folder;
    folder.Write("Water.fTbl", "a\n");
    EXPECT_EQ(ReadAll(folder.Path("Water.FTBL"), 8), Lines{"a"});
    for (const std::string& path : {folder.Path(), folder.Path("none.txt"), std::string(),
                                    folder.Path("*"), folder.Path("Wat?r.FTBL")}) {
        TextFile file(path.c_str());
        EXPECT_FALSE(file.ValidFile()) << path;
        char buffer[8] = "#";
        file.ReadLine(buffer, sizeof buffer);
        EXPECT_TRUE(file.eof());
        EXPECT_STREQ(buffer, "");
    }
}

}  // namespace
