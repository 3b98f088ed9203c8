#include "win32/Bitmap.h"

#include <vector>

#include "fuzz/Targets.h"

namespace hydrofacts::fuzz {

void bitmap(Bytes bytes) {
    const std::vector<unsigned char> exact(bytes.begin(), bytes.end());
    const auto plain = win32::ReadBitmap(exact, false);
    const auto transparent = win32::ReadBitmap(exact, true);
    Require(plain.has_value() == transparent.has_value(), "transparency plays no part in the test");
    if (!plain) return;
    Require(plain->width > 0 && plain->height > 0, "a bitmap has pixels");
    Require(plain->pixels.size() ==
                static_cast<std::size_t>(plain->width) * static_cast<std::size_t>(plain->height),
            "a bitmap has width times height pixels");
    Require(transparent->pixels.size() == plain->pixels.size(), "both have as many");
    for (const DWORD pixel : plain->pixels) Require(pixel <= 0xFFFFFF, "a pixel is a colour");
}

}  // namespace hydrofacts::fuzz
