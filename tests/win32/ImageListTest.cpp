#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "win32/Bitmap.h"
#include "win32/Win32.h"

namespace {

using Bytes = std::vector<unsigned char>;

void Put(Bytes& to, DWORD value, int bytes) {
    for (int i = 0; i < bytes; ++i) to.push_back(static_cast<unsigned char>(value >> (8 * i)));
}

/// A bitmap as a resource holds it. Rows are given as they are stored, without padding.
Bytes Dib(LONG width, LONG height, WORD bits, const std::vector<DWORD>& palette,
          const std::vector<Bytes>& rows) {
    Bytes dib;
    Put(dib, 40, 4);
    Put(dib, static_cast<DWORD>(width), 4);
    Put(dib, static_cast<DWORD>(height), 4);
    Put(dib, 1, 2);
    Put(dib, bits, 2);
    dib.resize(40);
    dib[32] = static_cast<unsigned char>(palette.size());
    for (const DWORD color : palette) Put(dib, color, 4);
    for (const Bytes& row : rows) {
        dib.insert(dib.end(), row.begin(), row.end());
        while ((dib.size() - 40 - palette.size() * 4) % 4 != 0) dib.push_back(0);
    }
    return dib;
}

const std::vector<DWORD> kPalette = {0x00FF00, 0x112233, 0x445566};

TEST(Bitmap, IsReadInEveryDepth) {
    struct Case {
        const char* name;
        Bytes dib;
    };
    // Two pixels wide, two high: 1 0 below, 2 1 above.
    const Case cases[] = {
        {"4 bits from below", Dib(2, 2, 4, kPalette, {{0x10}, {0x21}})},
        {"4 bits from above", Dib(2, -2, 4, kPalette, {{0x21}, {0x10}})},
        {"8 bits", Dib(2, 2, 8, kPalette, {{1, 0}, {2, 1}})},
        {"24 bits",
         Dib(2, 2, 24, {}, {{0x33, 0x22, 0x11, 0, 0xFF, 0}, {0x66, 0x55, 0x44, 0x33, 0x22, 0x11}})},
        {"32 bits",
         Dib(2, 2, 32, {},
             {{0x33, 0x22, 0x11, 9, 0, 0xFF, 0, 9}, {0x66, 0x55, 0x44, 9, 0x33, 0x22, 0x11, 9}})},
    };
    for (const Case& c : cases) {
        const auto bitmap = win32::ReadBitmap(c.dib, false);
        ASSERT_TRUE(bitmap) << c.name;
        EXPECT_EQ(bitmap->pixels, (std::vector<DWORD>{0x445566, 0x112233, 0x112233, 0x00FF00}))
            << c.name;
    }
    const auto clear = win32::ReadBitmap(Dib(2, 1, 4, kPalette, {{0x12}}), true);
    ASSERT_TRUE(clear);
    EXPECT_EQ(clear->pixels, (std::vector<DWORD>{0xFFFFFF, 0x445566}));
}

TEST(Bitmap, IsRefusedWhenItIsDamaged) {
    const Bytes sound = Dib(2, 2, 4, kPalette, {{0x10}, {0x21}});
    for (std::size_t size = 0; size < sound.size(); ++size) {
        EXPECT_FALSE(
            win32::ReadBitmap(Bytes(sound.begin(), sound.begin() + static_cast<long>(size)), false))
            << size;
    }
    struct Damage {
        std::size_t at;
        unsigned char value;
    };
    // Header size, width, height, bits, compression, number of colours.
    for (const Damage& d : {Damage{0, 12}, Damage{7, 0x7F}, Damage{4, 0}, Damage{8, 0},
                            Damage{11, 0x80}, Damage{14, 3}, Damage{16, 1}, Damage{35, 0xFF}}) {
        Bytes damaged = sound;
        damaged[d.at] = d.value;
        EXPECT_FALSE(win32::ReadBitmap(damaged, false)) << d.at;
    }
}

TEST(ImageList, HoldsTheWholeImagesOfABitmap) {
    const std::vector<DWORD> gray = {0, 0x808080};
    Bytes row(16);
    row[0] = 0x01;
    const Bytes dib = Dib(31, 2, 4, gray, {row, row});
    const win32::Resource resources[] = {{RT_BITMAP, 5, 1033, dib.data(), dib.size()},
                                         {RT_BITMAP, 6, 1033, dib.data(), 50}};
    win32::Module module{"", resources};
    HINSTANCE handle = win32::ToHandle(&module);
    const auto load = [&](WORD id) {
        return static_cast<HBITMAP>(
            LoadImageA(handle, MAKEINTRESOURCEA(id), IMAGE_BITMAP, 0, 0, LR_DEFAULTCOLOR));
    };
    HBITMAP bitmap = load(5);
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
    EXPECT_FALSE(ImageList_Destroy(nullptr));

    EXPECT_EQ(load(6), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_RESOURCE_DATA_NOT_FOUND);
    EXPECT_EQ(load(7), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_RESOURCE_NAME_NOT_FOUND);
    EXPECT_EQ(FindResourceA(handle, MAKEINTRESOURCEA(5), RT_DIALOG), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_RESOURCE_TYPE_NOT_FOUND);
}

}  // namespace
