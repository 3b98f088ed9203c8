#include "win32/Bitmap.h"

#include <cstdlib>
#include <cstring>

namespace {

using Bytes = std::span<const unsigned char>;

struct Header {
    DWORD size;
    LONG width;
    LONG height;
    WORD planes;
    WORD bits;
    DWORD compression;
    DWORD imageSize;
    LONG xResolution;
    LONG yResolution;
    DWORD colorsUsed;
    DWORD colorsImportant;
};

constexpr DWORD kColor = 0x00FFFFFF;
constexpr LONG kLargestSide = 16384;

DWORD LittleEndian(const unsigned char* bytes, std::size_t count) {
    DWORD value = 0;
    for (std::size_t i = 0; i < count; ++i) value |= DWORD{bytes[i]} << (8 * i);
    return value;
}

bool IsSound(const Header& header) {
    const bool bits = header.bits == 1 || header.bits == 4 || header.bits == 8 ||
                      header.bits == 24 || header.bits == 32;
    return header.size >= sizeof header && bits && header.compression == 0 && header.width > 0 &&
           header.width <= kLargestSide && header.height != 0 && header.height <= kLargestSide &&
           header.height >= -kLargestSide;
}

/// Where the parts of a sound bitmap lie.
struct Layout {
    Bytes palette;
    Bytes rows;
    std::size_t rowSize = 0;
};

std::optional<Layout> LayOut(const Header& header, Bytes data) {
    const std::size_t most = header.bits <= 8 ? std::size_t{1} << header.bits : 0;
    const std::size_t colors = header.colorsUsed == 0 ? most : header.colorsUsed;
    if (header.bits <= 8 && colors > most) return std::nullopt;
    const std::size_t paletteSize = colors * 4;
    const std::size_t rowSize =
        (static_cast<std::size_t>(header.width) * header.bits + 31) / 32 * 4;
    const auto height = static_cast<std::size_t>(std::abs(header.height));
    if (data.size() < header.size || data.size() - header.size < paletteSize ||
        data.size() - header.size - paletteSize < rowSize * height) {
        return std::nullopt;
    }
    return Layout{data.subspan(header.size, paletteSize),
                  data.subspan(header.size + paletteSize, rowSize * height), rowSize};
}

unsigned Index(Bytes row, std::size_t x, unsigned bits) {
    const std::size_t bit = x * bits;
    const auto shift = static_cast<unsigned>(8 - bits - bit % 8);
    return (static_cast<unsigned>(row[bit / 8]) >> shift) & ((1U << bits) - 1);
}

}  // namespace

namespace win32 {

std::optional<Bitmap> ReadBitmap(Bytes data, bool transparent) {
    Header header{};
    if (data.size() < sizeof header) return std::nullopt;
    std::memcpy(&header, data.data(), sizeof header);
    if (!IsSound(header)) return std::nullopt;
    const auto layout = LayOut(header, data);
    if (!layout) return std::nullopt;

    std::vector<DWORD> palette;
    for (std::size_t i = 0; i + 4 <= layout->palette.size() && header.bits <= 8; i += 4) {
        palette.push_back(LittleEndian(&layout->palette[i], 4) & kColor);
    }
    if (header.bits <= 8) {
        // An index without an entry is black.
        palette.resize(std::size_t{1} << header.bits);
        if (transparent) palette[Index(layout->rows, 0, header.bits)] = kColor;
    }

    Bitmap bitmap{header.width, std::abs(header.height), {}};
    const auto height = static_cast<std::size_t>(bitmap.height);
    bitmap.pixels.reserve(height * static_cast<std::size_t>(bitmap.width));
    for (std::size_t y = 0; y < height; ++y) {
        const std::size_t stored = header.height > 0 ? height - 1 - y : y;
        const Bytes row = layout->rows.subspan(stored * layout->rowSize, layout->rowSize);
        for (std::size_t x = 0; x < static_cast<std::size_t>(bitmap.width); ++x) {
            const std::size_t bytes = header.bits / 8;
            bitmap.pixels.push_back(header.bits <= 8
                                        ? palette[Index(row, x, header.bits)]
                                        : LittleEndian(&row[x * bytes], bytes) & kColor);
        }
    }
    return bitmap;
}

}  // namespace win32
