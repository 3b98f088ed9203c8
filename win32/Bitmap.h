#ifndef WIN32_BITMAP_H
#define WIN32_BITMAP_H

// The inside of a bitmap, and how one is read from a resource.

#include <optional>
#include <span>
#include <vector>

#include "win32/Types.h"

namespace win32 {

struct Bitmap {
    int width = 0;
    int height = 0;
    std::vector<DWORD> pixels;  ///< row by row from the top, each 0x00RRGGBB
};

/// Reads a device-independent bitmap as resources hold it: header, palette, rows from the bottom
/// (or from the top if the height is negative). With `transparent` the palette entry of the first
/// pixel becomes white. Nothing if it is compressed, damaged or absurdly large.
std::optional<Bitmap> ReadBitmap(std::span<const unsigned char> data, bool transparent);

}  // namespace win32

#endif
