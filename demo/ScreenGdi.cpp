#include "demo/ScreenGdi.h"

#include <cstddef>
#include <fstream>
#include <vector>

namespace demo {
namespace {

template <typename T>
void Write(std::ofstream& file, const T& value) {
    file.write(reinterpret_cast<const char*>(&value), sizeof value);
}

/// The pixels of a place on the screen, three bytes each, rows from below.
std::vector<char> Pixels(const RECT& place, BITMAPINFOHEADER& head) {
    const LONG width = place.right - place.left;
    const LONG height = place.bottom - place.top;
    head = {};
    head.biSize = sizeof head;
    head.biWidth = width;
    head.biHeight = height;
    head.biPlanes = 1;
    head.biBitCount = 24;
    const auto row = static_cast<std::size_t>((width * 3 + 3) / 4 * 4);
    std::vector<char> pixels(row * static_cast<std::size_t>(height));

    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    const HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, screen, place.left, place.top, SRCCOPY);
    SelectObject(memory, before);
    GetDIBits(memory, bitmap, 0, static_cast<UINT>(height), pixels.data(),
              reinterpret_cast<BITMAPINFO*>(&head), DIB_RGB_COLORS);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return pixels;
}

}  // namespace

bool KeepPicture(HWND window, const std::string& path) {
    RECT place{};
    if (GetWindowRect(window, &place) == FALSE) return false;
    BITMAPINFOHEADER head{};
    const std::vector<char> pixels = Pixels(place, head);
    BITMAPFILEHEADER file{};
    file.bfType = 0x4D42;  // "BM"
    file.bfOffBits = sizeof file + sizeof head;
    file.bfSize = static_cast<DWORD>(file.bfOffBits + pixels.size());
    std::ofstream out(path, std::ios::binary);
    Write(out, file);
    Write(out, head);
    out.write(pixels.data(), static_cast<std::streamsize>(pixels.size()));
    return out.good();
}

}  // namespace demo
