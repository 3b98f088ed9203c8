// The program on systems without windows of their own: Qt shows them.

#include <QApplication>
#include <QIcon>

#include "demo/MainDialog.h"
#include "demo/PlotQt.h"
#include "win32/qt/QtView.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationDisplayName("Hydrofacts");
    QApplication::setWindowIcon(QIcon::fromTheme("hydrofacts-demo"));
    QApplication::setStyle("Fusion");
    win32::qt::QtView view;

    demo::Site site;
    char tables[260] = "";
    GetDirectory(DIR_TABLES, tables, sizeof tables);
    site.tables = tables;
    site.showPlot = [&view](HWND control, const demo::PropertyCurve& curve) {
        view.SetPainter(control, demo::PlotPainter(&curve));
    };
    demo::MainDialog dialog(site);
    if (!dialog.Create()) return 1;
    ShowWindow(dialog.Handle(), SW_SHOW);

    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (IsDialogMessageA(dialog.Handle(), &message) != FALSE) continue;
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return static_cast<int>(message.wParam);
}
