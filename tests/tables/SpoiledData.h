#ifndef HYDROFACTS_TESTS_TABLES_SPOILEDDATA_H
#define HYDROFACTS_TESTS_TABLES_SPOILEDDATA_H

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <span>
#include <string>

#include "tables/Csv.h"
#include "tests/support/TempFolder.h"

/// What a text in the data is replaced with, and what is said about it.
struct Spoiling {
    const char* file;
    std::string from;
    const char* to;
    const char* message;
};

inline std::string Replaced(std::string text, const std::string& from, const char* to) {
    const std::size_t place = text.find(from);
    EXPECT_NE(std::string::npos, place) << from;
    return place == std::string::npos ? "" : text.replace(place, from.size(), to);
}

/// Reads a copy of a data folder with one text replaced and gives the message of the refusal
/// without the folder in front; empty if there was none.
template <typename Read>
std::string MessageAfter(const char* data, const Spoiling& spoiling, Read read) {
    const TempFolder folder;
    std::filesystem::copy(data, folder.Path(), std::filesystem::copy_options::recursive);
    folder.Write(spoiling.file, Replaced(folder.Read(spoiling.file), spoiling.from, spoiling.to));
    try {
        read(folder.Path());
    } catch (const hydrofacts::tables::InputError& error) {
        const std::string message = error.what();
        const std::size_t name = message.find(spoiling.file);
        return name == std::string::npos ? message : message.substr(name);
    }
    return "";
}

template <typename Read>
void ExpectRefusals(const char* data, std::span<const Spoiling> spoilings, Read read) {
    for (const Spoiling& spoiling : spoilings) {
        const std::string message = MessageAfter(data, spoiling, read);
        EXPECT_THAT(message, ::testing::HasSubstr(spoiling.message)) << spoiling.to;
        EXPECT_THAT(message, ::testing::StartsWith(spoiling.file)) << spoiling.to;
    }
}

#endif
