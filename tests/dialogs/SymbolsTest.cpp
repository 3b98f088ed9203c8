// The bitmaps of symbols, as the module holds them.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "hydrofacts/dialogs/TreeControl.h"
#include "hydrofacts/frame/Module.h"
#include "win32/Win32.h"

namespace {

constexpr std::size_t kCell = 16;

/// The colour as 0xRRGGBB of a pixel in a cell of a bitmap resource with 16 colours, counted from
/// the top left.
std::uint32_t ColorAt(WORD bitmap, std::size_t cell, std::size_t x, std::size_t y) {
    const HINSTANCE module = hydrofacts::ModuleHandle();
    const HRSRC found = FindResourceA(module, MAKEINTRESOURCEA(bitmap), RT_BITMAP);
    const auto* data = static_cast<const unsigned char*>(LockResource(LoadResource(module, found)));
    const std::vector<unsigned char> bytes(data, data + SizeofResource(module, found));
    const auto number = [&](std::size_t at) {
        std::uint32_t value = 0;
        for (std::size_t i = 4; i > 0; --i) value = value << 8U | bytes.at(at + i - 1);
        return value;
    };
    constexpr std::size_t kHead = 40;
    constexpr std::size_t kPixels = kHead + 64;
    const std::size_t rowSize = (std::size_t{number(4)} + 7) / 8 * 4;
    EXPECT_EQ(bytes.size(), kPixels + kCell * rowSize);
    const std::size_t column = cell * kCell + x;
    const std::size_t row = kCell - 1 - y;  // the lowest one is the first
    const unsigned pair = bytes.at(kPixels + row * rowSize + column / 2);
    return number(kHead + 4 * (column % 2 == 0 ? pair >> 4U : pair & 0xFU));
}

// Spots that tell left from right and top from bottom.
TEST(Symbols, AreAllThereAndUpright) {
    for (const auto& [id, cells] : {std::pair<WORD, int>{123, 15}, {127, 8}}) {
        HIMAGELIST list = hydrofacts::LoadSymbols(id, ILC_COLOR16, 1);
        EXPECT_EQ(ImageList_GetImageCount(list), cells);
        ImageList_Destroy(list);
    }
    constexpr std::uint32_t kWhite = 0xFFFFFF;
    const struct {
        WORD id;
        std::size_t cell, x, y;
        std::uint32_t color;
    } kSpots[] = {
        {123, 0, 2, 1, 0xA6CAF0},  {123, 0, 13, 1, kWhite},     // the tank of the entrance
        {123, 1, 13, 1, 0xA6CAF0}, {123, 1, 2, 1, kWhite},      // and of the exit
        {123, 7, 5, 1, 0},         {123, 7, 5, 15, kWhite},     // the wheel of the gate valve
        {123, 9, 14, 1, 0},        {123, 12, 2, 2, 0x0000C0},   // the ball valve's lever, K
        {127, 0, 2, 7, 0x0000FF},  {127, 1, 2, 7, 0x00FFFF},    // the ends of pipes
        {127, 3, 0, 0, kWhite},    {127, 7, 15, 15, 0xC0C0C0},  // the grounds
    };
    for (const auto& spot : kSpots) {
        EXPECT_EQ(ColorAt(spot.id, spot.cell, spot.x, spot.y), spot.color)
            << spot.id << " cell " << spot.cell << ": " << spot.x << ", " << spot.y;
    }
}

}  // namespace
