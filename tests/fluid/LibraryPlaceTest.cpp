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

#ifdef _WIN32

// The file that a function of the library lies in.
fs::path LibraryFile() {
    char path[MAX_PATH];
    GetModuleFileNameA(GetModuleHandleA("hydrofacts.dll"), path, sizeof path);
    return path;
}

class Library {
  public:
    explicit Library(const fs::path& file) : handle_(LoadLibraryA(file.string().c_str())) {}
    ~Library() { FreeLibrary(handle_); }
    template <typename Function>
    Function Find(const char* name) const {
        return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(handle_, name)));
    }

  private:
    HMODULE handle_;
};

#else

fs::path LibraryFile() {
    Dl_info info{};
    EXPECT_NE(::dladdr(reinterpret_cast<void*>(&Hydrofacts_GetMessage), &info), 0);
    return fs::canonical(info.dli_fname);
}

class Library {
  public:
    explicit Library(const fs::path& file)
        : handle_(::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)) {
        EXPECT_NE(handle_, nullptr);
    }
    ~Library() { ::dlclose(handle_); }
    template <typename Function>
    Function Find(const char* name) const {
        return reinterpret_cast<Function>(::dlsym(handle_, name));
    }

  private:
    void* handle_;
};

#endif

// A copy of the library, loaded from a folder of its own, besides the one that the tests use.
class LibraryPlace : public ::testing::Test {
  protected:
    LibraryPlace() {
        fs::create_directory(folder_.Path("lib"));
        file_ = fs::path(folder_.Path("lib")) / ("copy" + LibraryFile().extension().string());
        fs::copy_file(LibraryFile(), file_);
    }

    static std::string Message(const Library& library) {
        char text[160] = "";
        const auto get =
            library.Find<int (*)(unsigned, char*, int)>("_Z21Hydrofacts_GetMessagejPci");
        EXPECT_NE(get, nullptr);
        if (get != nullptr) get(2, text, sizeof text);
        return text;
    }

    static std::string Tables(const Library& library) {
        char path[260] = "";
        const auto get =
            library.Find<void (*)(DirTypes, char*, int)>("_Z12GetDirectory8DirTypesPci");
        EXPECT_NE(get, nullptr);
        if (get != nullptr) get(DIR_TABLES, path, 0);
        return path;
    }

    TempFolder folder_;
    fs::path file_;
};

TEST_F(LibraryPlace, LanguageFileBesideTheLibraryIsUsed) {
    folder_.Write("lib/HYDROFACTS_LANGUAGE_c.DAT",
                  "IDS\t09-01\r\n2\t\"\"\"From the file\"\"\"\r\n");
    EXPECT_EQ(Message(Library(file_)), "From the file");
}

TEST_F(LibraryPlace, MissingOrDamagedLanguageFileLeavesTheBuiltInTexts) {
    constexpr const char* kBuiltIn =
        "Liquid properties are not available at the specified temperature.";
    EXPECT_EQ(Message(Library(file_)), kBuiltIn);
    folder_.Write("lib/HYDROFACTS_LANGUAGE_c.DAT", "2\t\"\"\"From the file\"\"\"\r\n");
    EXPECT_EQ(Message(Library(file_)), kBuiltIn);
}

TEST_F(LibraryPlace, TablesAreFoundFromTheLibrarysOwnFolder) {
    const auto found = [this] { return fs::path(Tables(Library(file_))); };
    EXPECT_EQ(found(), "");
    fs::create_directory(folder_.Path("lib/tables"));
    EXPECT_TRUE(fs::equivalent(found(), folder_.Path("lib/tables")));
    fs::create_directory(folder_.Path("tables"));
    EXPECT_TRUE(fs::equivalent(found(), folder_.Path("tables")));
}

}  // namespace
