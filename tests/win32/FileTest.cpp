#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "tests/support/TempFolder.h"
#include "win32/Win32.h"

namespace {

HANDLE Open(const std::string& path, DWORD access, DWORD disposition) {
    return CreateFileA(path.c_str(), access, 0, nullptr, disposition, FILE_ATTRIBUTE_NORMAL,
                       nullptr);
}

TEST(File, WritesNewFilesOnlyAndReadsExistingOnes) {
    const TempFolder folder;
    const std::string path = folder.Path("file");
    EXPECT_EQ(Open(path, GENERIC_READ, OPEN_EXISTING), INVALID_HANDLE_VALUE);

    const HANDLE written = Open(path, GENERIC_WRITE, CREATE_NEW);
    ASSERT_NE(written, INVALID_HANDLE_VALUE);
    DWORD done = 0;
    EXPECT_NE(WriteFile(written, "abc", 3, &done, nullptr), FALSE);
    EXPECT_EQ(done, 3U);
    EXPECT_NE(CloseHandle(written), FALSE);
    EXPECT_EQ(Open(path, GENERIC_WRITE, CREATE_NEW), INVALID_HANDLE_VALUE);

    const HANDLE read = Open(path, GENERIC_READ, OPEN_EXISTING);
    char buffer[8];
    for (const DWORD expected : {3U, 0U}) {
        EXPECT_NE(ReadFile(read, buffer, sizeof buffer, &done, nullptr), FALSE);
        EXPECT_EQ(done, expected);
    }
    EXPECT_NE(CloseHandle(read), FALSE);
}

TEST(File, OnlyPlainFilesHaveASizeAndAPipeDoesNotBlock) {
    const TempFolder folder;
    ASSERT_EQ(::mkfifo(folder.Path("pipe").c_str(), 0600), 0);
    for (const std::string& path : {folder.Path(), folder.Path("pipe"), std::string("/dev/zero")}) {
        const HANDLE file = Open(path, GENERIC_READ, OPEN_EXISTING);
        LARGE_INTEGER size{};
        EXPECT_EQ(GetFileSizeEx(file, &size), FALSE) << path;
        CloseHandle(file);
    }
}

TEST(File, MoveReplacesOnlyWhereAsked) {
    const TempFolder folder;
    const std::string from = folder.Write("from", "new");
    const std::string to = folder.Write("to", "old");
    EXPECT_EQ(MoveFileExA(from.c_str(), to.c_str(), 0), FALSE);
    EXPECT_EQ(folder.Read("to"), "old");
    EXPECT_NE(MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING), FALSE);
    EXPECT_EQ(folder.Read("to"), "new");
    EXPECT_EQ(GetFileAttributesA(from.c_str()), INVALID_FILE_ATTRIBUTES);
}

}  // namespace
