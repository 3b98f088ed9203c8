// The bitmaps of symbols, as the module holds them.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <set>
#include <vector>

#include "hydrofacts/dialogs/TreeControl.h"
#include "hydrofacts/frame/Module.h"
#include "win32/Win32.h"

namespace {

constexpr std::size_t kHead = 40;
constexpr std::size_t kPalette = 64;
constexpr int kCell = 16;

/// A bitmap resource with 16 colours, read byte by byte.
class Picture {
  public:
    explicit Picture(WORD id) {
        const HINSTANCE module = hydrofacts::ModuleHandle();
        const HRSRC found = FindResourceA(module, MAKEINTRESOURCEA(id), RT_BITMAP);
        if (found == nullptr) return;
        const auto* data =
            static_cast<const unsigned char*>(LockResource(LoadResource(module, found)));
        bytes_.assign(data, data + SizeofResource(module, found));
    }

    std::size_t Size() const { return bytes_.size(); }
    std::uint32_t Number(std::size_t at, std::size_t size) const {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < size; ++i) value |= std::uint32_t{bytes_.at(at + i)} << (8 * i);
        return value;
    }
    std::size_t RowSize() const { return (std::size_t{Number(4, 4)} + 7) / 8 * 4; }

    /// The colour as 0xRRGGBB of a pixel, counted from the top left.
    std::uint32_t At(int cell, int x, int y) const {
        const auto column = static_cast<std::size_t>(cell) * kCell + static_cast<std::size_t>(x);
        const std::size_t row = (kCell - 1 - static_cast<std::size_t>(y)) * RowSize();
        const unsigned pair = bytes_.at(kHead + kPalette + row + column / 2);
        const std::size_t index = column % 2 == 0 ? pair >> 4U : pair & 0xFU;
        return Number(kHead + 4 * index, 4);
    }
    std::vector<std::uint32_t> Cell(int cell) const {
        std::vector<std::uint32_t> pixels;
        pixels.reserve(std::size_t{kCell} * kCell);
        for (int i = 0; i < kCell * kCell; ++i) pixels.push_back(At(cell, i % kCell, i / kCell));
        return pixels;
    }

  private:
    std::vector<unsigned char> bytes_;
};

constexpr std::uint32_t kWhite = 0xFFFFFF;
constexpr std::uint32_t kBlack = 0;
constexpr std::uint32_t kGrey = 0xC0C0C0;

TEST(Symbols, EachBitmapHasItsFormAndEachCellIsAnother) {
    const struct {
        WORD id;
        std::uint32_t width;
        int cells;
    } kBitmaps[] = {{123, 247, 15}, {127, 128, 8}};
    for (const auto& expected : kBitmaps) {
        const Picture picture(expected.id);
        ASSERT_GT(picture.Size(), kHead) << expected.id;
        EXPECT_EQ(picture.Number(0, 4), kHead);
        EXPECT_EQ(picture.Number(4, 4), expected.width);
        EXPECT_EQ(picture.Number(8, 4), 16U);
        EXPECT_EQ(picture.Number(12, 2), 1U) << "planes";
        EXPECT_EQ(picture.Number(14, 2), 4U) << "bits a pixel";
        EXPECT_EQ(picture.Size(), kHead + kPalette + kCell * picture.RowSize());
        std::set<std::vector<std::uint32_t>> different;
        for (int cell = 0; cell < expected.cells; ++cell) different.insert(picture.Cell(cell));
        EXPECT_EQ(different.size(), static_cast<std::size_t>(expected.cells));

        HIMAGELIST list = hydrofacts::LoadSymbols(expected.id, ILC_COLOR16, 1);
        EXPECT_EQ(ImageList_GetImageCount(list), expected.cells);
        ImageList_Destroy(list);
    }
}

// Spots that tell left from right and top from bottom.
TEST(Symbols, StandWhereTheyBelong) {
    const struct {
        WORD id;
        int cell, x, y;
        std::uint32_t color;
    } kSpots[] = {
        {123, 0, 0, 15, kWhite},   {123, 0, 2, 1, 0xA6CAF0},   // the tank of the entrance
        {123, 0, 13, 1, kWhite},   {123, 1, 13, 1, 0xA6CAF0},  // and of the exit
        {123, 7, 5, 1, kBlack},    {123, 7, 5, 15, kWhite},    // the wheel of the gate valve
        {123, 9, 14, 1, kBlack},   {123, 9, 1, 1, kWhite},     // the lever of the ball valve
        {123, 12, 2, 2, 0x0000C0}, {123, 14, 15, 0, kWhite},   // K, and the end of Kv
        {123, 15, 6, 8, kWhite},                               // what the cells leave over
        {127, 0, 2, 7, 0x0000FF},  {127, 1, 2, 7, 0x00FFFF},   // the ends of pipes
        {127, 2, 10, 8, 0x0000FF}, {127, 3, 10, 8, 0x00FFFF},  // their sides
        {127, 3, 0, 0, kWhite},    {127, 4, 0, 0, kGrey},      // the grounds
        {127, 7, 10, 8, 0x00FFFF}, {127, 7, 15, 15, kGrey},
    };
    for (const auto& spot : kSpots) {
        EXPECT_EQ(Picture(spot.id).At(spot.cell, spot.x, spot.y), spot.color)
            << spot.id << " cell " << spot.cell << ": " << spot.x << ", " << spot.y;
    }
}

}  // namespace
