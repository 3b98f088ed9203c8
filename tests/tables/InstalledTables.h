#ifndef HYDROFACTS_TESTS_TABLES_INSTALLEDTABLES_H
#define HYDROFACTS_TESTS_TABLES_INSTALLEDTABLES_H

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "quillbase/Directory.h"

/// Where the library looks for tables of its own accord.
inline std::string TableFolder() {
    char buffer[260] = "";
    GetDirectory(DIR_TABLES, buffer, 0);
    return buffer;
}

/// The names of all fluid tables there, sorted.
inline std::vector<std::string> InstalledFluids() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(TableFolder())) {
        if (entry.path().extension() == ".FTBL") {
            names.push_back(entry.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

#endif
