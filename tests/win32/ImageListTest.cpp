#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "win32/Bitmap.h"
#include "win32/Win32.h"

namespace {

using Bytes = std::vector<unsigned char>;

/// A bitmap as a resource holds it. Rows are given as they are stored, without padding.
Bytes Dib(LONG width, LONG height, WORD bits, const std::vector<DWORD>& palette,
          const std::vector<Bytes>& rows) {
    const DWORD planesAndBits = 1U | DWORD{bits} << 16U;
    const auto colors = static_cast<DWORD>(palette.size());
    std::vector<DWORD> head = {40,
                               static_cast<DWORD>(width),
                               static_cast<DWORD>(height),
                               planesAndBits,
                               0,
                               0,
                               0,
                               0,
                               colors,
                               0};
    head.insert(head.end(), palette.begin(), palette.end());
    Bytes dib(head.size() * sizeof head[0]);
    std::memcpy(dib.data(), head.data(), dib.size());
    for (const Bytes& row : rows) {
        dib.insert(dib.end(), row.begin(), row.end());
        dib.resize((dib.size() + 3) / 4 * 4);
    }
    return dib;
}

const std::vector<DWORD> kPalette = {0x00FF00, 0x112233, 0x445566};

TEST(Bitmap, IsReadInEveryDepth) {
    // Two pixels wide, two high: 1 0 below, 2 1 above.
    const std::pair<const char*, Bytes> kCases[] = {
        {"4 bits from below", Dib(2, 2, 4, kPalette, {{0x10}, {0x21}})},
        {"4 bits from above", Dib(2, -2, 4, kPalette, {{0x21}, {0x10}})},
        {"24 bits",
         Dib(2, 2, 24, {}, {{0x33, 0x22, 0x11, 0, 0xFF, 0}, {0x66, 0x55, 0x44, 0x33, 0x22, 0x11}})},
        {"32 bits",
         Dib(2, 2, 32, {},
             {{0x33, 0x22, 0x11, 9, 0, 0xFF, 0, 9}, {0x66, 0x55, 0x44, 9, 0x33, 0x22, 0x11, 9}})},
    };
    const std::vector<DWORD> kPixels = {0x445566, 0x112233, 0x112233, 0x00FF00};
    for (const auto& [name, dib] : kCases) {
        const auto bitmap = win32::ReadBitmap(dib, false);
        ASSERT_TRUE(bitmap) << name;
        EXPECT_EQ(bitmap->pixels, kPixels) << name;
    }
    const auto clear = win32::ReadBitmap(Dib(2, 1, 4, kPalette, {{0x12}}), true);
    ASSERT_TRUE(clear);
    EXPECT_EQ(clear->pixels, (std::vector<DWORD>{0xFFFFFF, 0x445566}));
}

TEST(Bitmap, IsRefusedWhenItIsDamaged) {
    const Bytes sound = Dib(2, 2, 4, kPalette, {{0x10}, {0x21}});
    for (std::size_t size = 0; size < sound.size(); ++size) {
        EXPECT_FALSE(win32::ReadBitmap(Bytes(sound.data(), sound.data() + size), false)) << size;
    }
    // Header size, width, height, bits, compression, number of colours.
    const std::pair<std::size_t, unsigned char> kDamages[] = {
        {0, 12}, {7, 0x7F}, {4, 0}, {8, 0}, {11, 0x80}, {14, 3}, {16, 1}, {35, 0xFF}};
    for (const auto& [at, value] : kDamages) {
        Bytes damaged = sound;
        damaged[at] = value;
        EXPECT_FALSE(win32::ReadBitmap(damaged, false)) << at;
    }
}

TEST(ImageList, HoldsTheWholeImagesOfABitmap) {
    Bytes row(16);
    row[0] = 0x01;
    const Bytes dib = Dib(31, 2, 4, {0, 0x808080}, {row, row});
    const win32::Resource resources[] = {{RT_BITMAP, 5, 1033, dib.data(), dib.size()}};
    win32::Module module{"", resources};
    const auto bitmap = static_cast<HBITMAP>(LoadImageA(
        win32::ToHandle(&module), MAKEINTRESOURCEA(5), IMAGE_BITMAP, 0, 0, LR_DEFAULTCOLOR));
    ASSERT_NE(bitmap, nullptr);
    HIMAGELIST list = ImageList_Create(10, 2, ILC_COLOR16, 0, 0);
    EXPECT_EQ(ImageList_Add(list, bitmap, nullptr), 0);
    EXPECT_EQ(ImageList_Add(list, bitmap, nullptr), 3);
    EXPECT_EQ(ImageList_GetImageCount(list), 6);
    EXPECT_EQ(win32::ImagePixels(list, 3)[1], 0x808080U);
    EXPECT_TRUE(win32::ImagePixels(list, 6).empty());
    EXPECT_TRUE(DeleteObject(bitmap));
    EXPECT_FALSE(DeleteObject(bitmap));
    EXPECT_EQ(ImageList_Add(list, bitmap, nullptr), -1);
    EXPECT_TRUE(ImageList_Destroy(list));
    EXPECT_FALSE(ImageList_Destroy(list));
    EXPECT_EQ(ImageList_GetImageCount(list), 0);
}

}  // namespace
