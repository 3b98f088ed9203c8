// A host that lets the library go, or ends, while tables are being scanned: the library is loaded
// as a plug-in would be, so that it can go before the program does.

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <string>
#include <thread>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

#include "quillbase/Directory.h"
#include "tests/fluid/TestFluid.h"

namespace {

#ifdef _WIN32

void* Load() { return LoadLibraryA(HYDROFACTS_LIBRARY); }
template <class Function>
Function* Find(void* library, const char* name) {
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name)));
}
void LetGo(void* library) { FreeLibrary(static_cast<HMODULE>(library)); }
bool IsLoaded() { return GetModuleHandleA(HYDROFACTS_LIBRARY) != nullptr; }

#else

void* Load() { return ::dlopen(HYDROFACTS_LIBRARY, RTLD_NOW | RTLD_LOCAL); }
template <class Function>
Function* Find(void* library, const char* name) {
    return reinterpret_cast<Function*>(::dlsym(library, name));
}
void LetGo(void* library) { ::dlclose(library); }
bool IsLoaded() {
    void* library = ::dlopen(HYDROFACTS_LIBRARY, RTLD_NOW | RTLD_NOLOAD);
    if (library != nullptr) ::dlclose(library);
    return library != nullptr;
}

#endif

using std::chrono::milliseconds;

class Unload : public ::testing::Test {
  protected:
    Unload() {
        for (int i = 0; i < 2000; ++i) folder_.Add("Fluid " + std::to_string(i), {});
    }

    // Loads the library and goes on after a part of the scan.
    void* Scan(int time) {
        void* library = Load();
        auto* setDirectory =
            Find<void(DirTypes, const char*)>(library, "_Z12SetDirectory8DirTypesPKc");
        auto* scan = Find<void(int)>(library, "_Z19InitFluidTableCachei");
        setDirectory(DIR_TABLES, folder_.path.c_str());
        scan(FLUID_NONE);
        scan(FLUID_NONE);
        std::this_thread::sleep_for(milliseconds(time));
        return library;
    }

    TableFolder folder_;
};

TEST_F(Unload, LibraryGoesWhileItsThreadScans) {
    for (const int time : {0, 0, 1, 3, 10}) {
        LetGo(Scan(time));
        // On Windows the thread holds the library until the scan's end.
        for (int i = 0; i < 1000 && IsLoaded(); ++i) std::this_thread::sleep_for(milliseconds(10));
        EXPECT_FALSE(IsLoaded()) << time;
    }
}

TEST_F(Unload, ProgramEndsWhileAThreadOfTheLibraryScans) {
    for (const int time : {0, 1, 10}) {
        EXPECT_EXIT((Scan(time), std::exit(0)), ::testing::ExitedWithCode(0), "") << time;
    }
}

}  // namespace
