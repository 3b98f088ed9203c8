#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "hydrofacts/frame/Language.h"
#include "quillbase/Directory.h"
#include "tests/support/TempFolder.h"
#ifdef _WIN32
#include "win32/Win32.h"
#else
#include <dlfcn.h>
#endif

#ifdef __SANITIZE_ADDRESS__
// Two copies of the library in one process have two copies of its data, which is what these tests
// are about.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer's own name
extern "C" __attribute__((visibility("default"))) const char* __asan_default_options() {
    return "detect_odr_violation=0";
}
#endif

namespace {

namespace fs = std::filesystem;

// LibraryFile is the file that a function of the library lies in.
#ifdef _WIN32
using Handle = HMODULE;

fs::path LibraryFile() {
    char path[MAX_PATH];
    GetModuleFileNameA(GetModuleHandleA("hydrofacts.dll"), path, sizeof path);
    return path;
}

Handle Open(const fs::path& file) { return LoadLibraryA(file.string().c_str()); }
void Close(Handle handle) { FreeLibrary(handle); }
void* Symbol(Handle handle, const char* name) {
    return reinterpret_cast<void*>(GetProcAddress(handle, name));
}
#else
using Handle = void*;

fs::path LibraryFile() {
    Dl_info info{};
    EXPECT_NE(::dladdr(reinterpret_cast<void*>(&Hydrofacts_GetMessage), &info), 0);
    return fs::canonical(info.dli_fname);
}

Handle Open(const fs::path& file) { return ::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL); }
void Close(Handle handle) { ::dlclose(handle); }
void* Symbol(Handle handle, const char* name) { return ::dlsym(handle, name); }
#endif

// A copy of the library, loaded from a folder of its own, besides the one that the tests use.
class LibraryPlace : public ::testing::Test {
  protected:
    LibraryPlace() {
        fs::create_directory(folder_.Path("lib"));
        file_ = fs::path(folder_.Path("lib")) / ("copy" + LibraryFile().extension().string());
        fs::copy_file(LibraryFile(), file_);
    }

    // What a function of the freshly loaded copy writes into a text.
    template <typename Call>
    std::string Told(const char* function, Call call) const {
        char text[260] = "";
        const Handle library = Open(file_);
        void* found = library != nullptr ? Symbol(library, function) : nullptr;
        EXPECT_NE(found, nullptr) << function;
        if (found != nullptr) call(found, text);
        if (library != nullptr) Close(library);
        return text;
    }
    std::string Message() const {
        return Told("_Z21Hydrofacts_GetMessagejPci", [](void* get, char* text) {
            reinterpret_cast<int (*)(unsigned, char*, int)>(get)(2, text, 160);
        });
    }
    fs::path Tables() const {
        return Told("_Z12GetDirectory8DirTypesPci", [](void* get, char* text) {
            reinterpret_cast<void (*)(DirTypes, char*, int)>(get)(DIR_TABLES, text, 0);
        });
    }

    TempFolder folder_;
    fs::path file_;
};

TEST_F(LibraryPlace, LanguageFileBesideTheLibraryIsUsedUnlessItIsDamaged) {
    const std::string builtIn = "Liquid properties are not available at the specified temperature.";
    EXPECT_EQ(Message(), builtIn);
    const std::string line = "2\t\"\"\"From the file\"\"\"\r\n";
    folder_.Write("lib/HYDROFACTS_LANGUAGE_c.DAT", line);
    EXPECT_EQ(Message(), builtIn);
    folder_.Write("lib/HYDROFACTS_LANGUAGE_c.DAT", "IDS\t09-01\r\n" + line);
    EXPECT_EQ(Message(), "From the file");
}

TEST_F(LibraryPlace, TablesAreFoundFromTheLibrarysOwnFolder) {
    EXPECT_EQ(Tables(), "");
    fs::create_directory(folder_.Path("lib/tables"));
    EXPECT_TRUE(fs::equivalent(Tables(), folder_.Path("lib/tables")));
    fs::create_directory(folder_.Path("tables"));
    EXPECT_TRUE(fs::equivalent(Tables(), folder_.Path("tables")));
}

}  // namespace
