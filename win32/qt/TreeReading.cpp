#include "win32/qt/TreeReading.h"

#include <array>
#include <cstring>

#include "win32/qt/Reading.h"

namespace win32::qt {

namespace {

HTREEITEM Next(HWND tree, WPARAM relation, HTREEITEM item) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the message gives a handle as a number
    return reinterpret_cast<HTREEITEM>(
        SendMessageA(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

TreeRow RowOf(HWND tree, HTREEITEM item, int level) {
    constexpr std::size_t kLongest = 1024;
    std::array<char, kLongest> text{};
    TVITEMA asked{};
    asked.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN | TVIF_STATE;
    asked.hItem = item;
    asked.stateMask = TVIS_EXPANDED;
    asked.pszText = text.data();
    asked.cchTextMax = static_cast<int>(text.size());
    SendMessageA(tree, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&asked));
    return {item,
            level,
            ToUnicode(text.data()),
            asked.iImage,
            asked.iSelectedImage,
            asked.cChildren != 0,
            (asked.state & TVIS_EXPANDED) != 0};
}

void Gather(HWND tree, HTREEITEM first, int level, std::vector<TreeRow>& rows) {
    for (HTREEITEM item = first; item != nullptr; item = Next(tree, TVGN_NEXT, item)) {
        rows.push_back(RowOf(tree, item, level));
        Gather(tree, Next(tree, TVGN_CHILD, item), level + 1, rows);
    }
}

// The rectangle of an item's text; false if it isn't on any row.
bool TextPlace(HWND tree, HTREEITEM item, RECT& place) {
    // The message takes the item's handle from where it puts the rectangle.
    std::memcpy(&place, &item, sizeof(UINT_PTR));
    return SendMessageA(tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&place)) != FALSE;
}

// Where the button is, left of the text; the text itself if there is none.
LONG ButtonLeft(HWND tree, const RECT& text) {
    for (LONG x = text.left - 1; x >= 0; --x) {
        TVHITTESTINFO hit{};
        hit.pt = {x, text.top + 2};
        SendMessageA(tree, TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
        if ((hit.flags & TVHT_ONITEMBUTTON) != 0) return x;
    }
    return text.left + 2;
}

}  // namespace

bool TreeRow::LooksLike(const TreeRow& other) const {
    return item == other.item && level == other.level && text == other.text &&
           image == other.image && selectedImage == other.selectedImage &&
           hasButton == other.hasButton;
}

std::vector<TreeRow> RowsOfTree(HWND tree) {
    std::vector<TreeRow> rows;
    Gather(tree, Next(tree, TVGN_ROOT, nullptr), 0, rows);
    return rows;
}

QImage ImageOf(HIMAGELIST list, int index) {
    int width = 0;
    int height = 0;
    const auto pixels = ImagePixels(list, index);
    if (ImageList_GetIconSize(list, &width, &height) == FALSE || pixels.empty()) return {};
    constexpr QRgb kGround = 0x00FFFFFF;
    constexpr QRgb kOpaque = 0xFF000000;
    QImage image(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const QRgb pixel =
                pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                       static_cast<std::size_t>(x)];
            image.setPixel(x, y, pixel == kGround ? pixel : pixel | kOpaque);
        }
    }
    return image;
}

void ClickItem(HWND tree, UINT message, HTREEITEM item, bool onButton) {
    SendMessageA(tree, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
    RECT text{};
    if (!TextPlace(tree, item, text)) return;
    const LONG x = onButton ? ButtonLeft(tree, text) : text.left + 2;
    PostMessageA(tree, message, MK_LBUTTON, MAKELPARAM(x, text.top + 2));
    PostMessageA(tree, WM_LBUTTONUP, 0, MAKELPARAM(x, text.top + 2));
}

}  // namespace win32::qt
