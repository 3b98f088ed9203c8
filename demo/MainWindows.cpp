// The program on Windows.
//
//   hydrofacts-demo [--story FOLDER]    plays a user's story and keeps a picture of each act

#include <cstdlib>
#include <string>
#include <string_view>

#include "demo/MainDialog.h"
#include "demo/PlotGdi.h"
#include "demo/ScreenGdi.h"
#include "demo/Story.h"

namespace {

constexpr WORD kIcon = 1;  // of desktop/hydrofacts-demo.rc

void SetIcon(HWND window, WPARAM which, int width, int height) {
    const HANDLE icon = LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(kIcon), IMAGE_ICON,
                                   GetSystemMetrics(width), GetSystemMetrics(height), LR_SHARED);
    SendMessageA(window, WM_SETICON, which, reinterpret_cast<LPARAM>(icon));
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    InitCommonControls();
    demo::Site site;
    char tables[MAX_PATH] = "";
    GetDirectory(DIR_TABLES, tables, sizeof tables);
    site.tables = tables;
    site.drawPlot = [](UINT message, WPARAM, LPARAM lParam, const demo::PropertyCurve& curve) {
        if (message != WM_DRAWITEM) return false;
        demo::DrawPlot(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam), curve);
        return true;
    };
    demo::MainDialog dialog(site);
    if (!dialog.Create()) return 1;
    SetIcon(dialog.Handle(), ICON_BIG, SM_CXICON, SM_CYICON);
    SetIcon(dialog.Handle(), ICON_SMALL, SM_CXSMICON, SM_CYSMICON);
    ShowWindow(dialog.Handle(), SW_SHOW);
    SetForegroundWindow(dialog.Handle());
    if (__argc == 3 && std::string_view(__argv[1]) == "--story") {
        demo::Play(dialog, [folder = std::string(__argv[2])](const std::string& act) {
            demo::KeepPicture(GetActiveWindow(), folder + '\\' + act + ".bmp");
        });
    }

    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (IsDialogMessageA(dialog.Handle(), &message) != FALSE) continue;
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return static_cast<int>(message.wParam);
}
