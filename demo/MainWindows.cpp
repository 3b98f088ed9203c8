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
    ShowWindow(dialog.Handle(), SW_SHOW);
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
