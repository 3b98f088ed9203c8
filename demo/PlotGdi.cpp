#include "demo/PlotGdi.h"

#include <memory>
#include <type_traits>

namespace demo {
namespace {

constexpr COLORREF kCurveColor = RGB(0x19, 0x76, 0xd2);
constexpr COLORREF kMarkColor = RGB(0xd3, 0x2f, 0x2f);
constexpr COLORREF kGridColor = RGB(0xdd, 0xdd, 0xdd);
constexpr int kCurveWidth = 2;
constexpr int kMarkRadius = 4;

struct DeleteObjectOf {
    void operator()(HGDIOBJ object) const { DeleteObject(object); }
};
using Object = std::unique_ptr<std::remove_pointer_t<HGDIOBJ>, DeleteObjectOf>;

/// An object in a device context, until the end of the scope.
class Selected {
  public:
    Selected(HDC dc, HGDIOBJ object) : dc_(dc), former_(SelectObject(dc, object)) {}
    ~Selected() { SelectObject(dc_, former_); }
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;

  private:
    HDC dc_;
    HGDIOBJ former_;
};

void DrawLines(HDC dc, const std::vector<PlotLine>& lines, COLORREF color, int width) {
    const Object pen(CreatePen(PS_SOLID, width, color));
    const Selected selected(dc, pen.get());
    for (const PlotLine& line : lines) {
        Polyline(dc, line.points.data(), static_cast<int>(line.points.size()));
    }
}

void DrawMarks(HDC dc, const std::vector<POINT>& marks) {
    const Object brush(CreateSolidBrush(kMarkColor));
    const Selected selectedBrush(dc, brush.get());
    const Selected selectedPen(dc, GetStockObject(NULL_PEN));
    for (const POINT& mark : marks) {
        Ellipse(dc, mark.x - kMarkRadius, mark.y - kMarkRadius, mark.x + kMarkRadius + 2,
                mark.y + kMarkRadius + 2);
    }
}

void DrawTexts(HDC dc, const std::vector<PlotText>& texts) {
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    for (const PlotText& text : texts) {
        SetTextAlign(dc, TA_TOP | (text.align < 0   ? TA_LEFT
                                   : text.align > 0 ? TA_RIGHT
                                                    : TA_CENTER));
        TextOutA(dc, text.x, text.y, text.text.data(), static_cast<int>(text.text.size()));
    }
}

void DrawPicture(HDC dc, const PropertyCurve& curve, SIZE size) {
    TEXTMETRICA metrics{};
    GetTextMetricsA(dc, &metrics);
    SIZE digits{};
    GetTextExtentPoint32A(dc, "0123456789", 10, &digits);
    const PlotPicture picture =
        curve.Draw(size, static_cast<int>(metrics.tmHeight), static_cast<int>(digits.cx) / 10 + 1);

    const RECT all{0, 0, size.cx, size.cy};
    FillRect(dc, &all, GetSysColorBrush(COLOR_BTNFACE));
    if (!picture.frame.points.empty()) {
        const POINT& from = picture.frame.points[0];
        const POINT& to = picture.frame.points[2];
        const RECT area{from.x, from.y, to.x, to.y};
        FillRect(dc, &area, GetSysColorBrush(COLOR_WINDOW));
    }
    DrawLines(dc, picture.grid, kGridColor, 1);
    DrawLines(dc, {picture.frame}, GetSysColor(COLOR_BTNSHADOW), 1);
    DrawLines(dc, picture.curves, kCurveColor, kCurveWidth);
    DrawMarks(dc, picture.marks);
    DrawTexts(dc, picture.texts);
}

}  // namespace

// In a bitmap first: drawn on the screen it would flicker while the window is resized.
void DrawPlot(const DRAWITEMSTRUCT& item, const PropertyCurve& curve) {
    const SIZE size{item.rcItem.right - item.rcItem.left, item.rcItem.bottom - item.rcItem.top};
    if (size.cx <= 0 || size.cy <= 0) return;
    const std::unique_ptr<std::remove_pointer_t<HDC>, decltype(&DeleteDC)> memory(
        CreateCompatibleDC(item.hDC), &DeleteDC);
    const Object bitmap(CreateCompatibleBitmap(item.hDC, size.cx, size.cy));
    if (memory == nullptr || bitmap == nullptr) return;
    HDC dc = memory.get();
    const Selected selected(dc, bitmap.get());
    HGDIOBJ font = reinterpret_cast<HGDIOBJ>(SendMessageA(item.hwndItem, WM_GETFONT, 0, 0));
    const Selected selectedFont(dc, font != nullptr ? font : GetStockObject(DEFAULT_GUI_FONT));
    DrawPicture(dc, curve, size);
    BitBlt(item.hDC, item.rcItem.left, item.rcItem.top, size.cx, size.cy, dc, 0, 0, SRCCOPY);
}

}  // namespace demo
