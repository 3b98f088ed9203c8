// What stands on the controls, in every language.

#include <cctype>
#include <map>
#include <string>
#include <vector>

#include "tests/demo/DemoTest.h"

#ifndef _WIN32
#include <QApplication>
#include <QFontMetrics>

#include "win32/qt/QtView.h"
#endif

namespace demo {
namespace {

#ifdef _WIN32
struct Screen {
    static LONG WidthOf(HWND control, const std::string& text) {
        const HDC dc = GetDC(control);
        const auto font = reinterpret_cast<HGDIOBJ>(SendMessageA(control, WM_GETFONT, 0, 0));
        const HGDIOBJ former = SelectObject(dc, font);
        SIZE size{};
        GetTextExtentPoint32A(dc, text.data(), static_cast<int>(text.size()), &size);
        SelectObject(dc, former);
        ReleaseDC(control, dc);
        return size.cx;
    }
};
#else
struct Screen {
    static LONG WidthOf(HWND, const std::string& text) {
        return QFontMetrics(QApplication::font()).horizontalAdvance(QString::fromLatin1(text));
    }

    int argc = 1;
    char name[5] = "demo";
    char* argv[2] = {name, nullptr};
    bool offscreen = qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application{argc, argv};
    win32::qt::QtView view;
};
#endif

DWORD StyleOf(HWND window) { return static_cast<DWORD>(GetWindowLongPtrA(window, GWL_STYLE)); }

bool IsButton(HWND control) {
    char name[32] = "";
    GetClassNameA(control, name, sizeof name);
    return std::string(name) == "Button";
}

// Of the controls that say what a label says, not what was chosen.
void AddLabels(HWND dialog, std::vector<HWND>& labels) {
    for (HWND control = GetWindow(dialog, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT)) {
        const DWORD style = StyleOf(control);
        const bool text = (SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) != 0 &&
                          (style & SS_NOPREFIX) == 0 && (style & SS_TYPEMASK) != SS_OWNERDRAW;
        if ((style & WS_VISIBLE) != 0 && (text || IsButton(control))) labels.push_back(control);
    }
}

// What a button needs around its text.
LONG RoomAround(HWND control) {
    RECT letter{0, 0, 4, 8};
    MapDialogRect(GetParent(control), &letter);
    if (!IsButton(control)) return 0;
    return letter.right * ((StyleOf(control) & BS_TYPEMASK) == BS_AUTORADIOBUTTON ? 3 : 2);
}

class LabelsTest : protected Screen, public DemoTest {};

TEST_F(LabelsTest, AreNotCutOffAndHaveMnemonicsOfTheirOwn) {
    constexpr int kPageCount = 5;
    for (int i = 0; i < kLanguages * kPageCount; ++i) {
        win32::user::PickRow(Main(kLanguage), i / kPageCount);
        std::vector<HWND> labels;
        AddLabels(dialog_.Handle(), labels);
        AddLabels(dialog_.At(i % kPageCount).Handle(), labels);
        std::map<int, std::string> taken;
        for (const HWND label : labels) {
            std::string text = TextOf(label);
            if (const std::size_t at = text.find('&') + 1; at > 0 && at < text.size()) {
                const int key = std::tolower(static_cast<unsigned char>(text[at]));
                const auto [other, fresh] = taken.try_emplace(key, text);
                EXPECT_TRUE(fresh) << text << " and " << other->second;
            }
            std::erase(text, '&');
            EXPECT_LE(WidthOf(label, text), SizeOf(label).cx - RoomAround(label)) << text;
        }
    }
}

}  // namespace
}  // namespace demo
