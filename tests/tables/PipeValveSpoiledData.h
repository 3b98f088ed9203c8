#ifndef HYDROFACTS_TESTS_TABLES_PIPEVALVESPOILEDDATA_H
#define HYDROFACTS_TESTS_TABLES_PIPEVALVESPOILEDDATA_H

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "tables/Csv.h"
#include "tests/support/TempFolder.h"

/// What a text in the data is replaced with, and what is said about it.
struct Spoiling {
    const char* file;
    const char* from;
    const char* to;
    const char* message;
};

/// Reads a copy of a data folder with one text replaced and gives the message of the refusal
/// without the folder in front; empty if there was none.
template <typename Read>
std::string MessageAfter(const char* data, const Spoiling& spoiling, Read read) {
    const TempFolder folder;
    const std::filesystem::path copy = folder.Path();
    std::filesystem::copy(data, copy, std::filesystem::copy_options::recursive);
    std::ostringstream text;
    text << std::ifstream(copy / spoiling.file, std::ios::binary).rdbuf();
    std::string spoiled = text.str();
    const std::size_t place = spoiled.find(spoiling.from);
    EXPECT_NE(std::string::npos, place) << spoiling.from;
    if (place == std::string::npos) return "";
    spoiled.replace(place, std::string(spoiling.from).size(), spoiling.to);
    std::ofstream(copy / spoiling.file, std::ios::binary) << spoiled;
    try {
        read(copy);
    } catch (const hydrofacts::tables::InputError& error) {
        const std::string message = error.what();
        const std::size_t name = message.find(spoiling.file);
        return name == std::string::npos ? message : message.substr(name);
    }
    return "";
}

#endif
