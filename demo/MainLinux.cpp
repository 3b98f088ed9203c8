// The program on systems without windows of their own: Qt shows them.
//
//   hydrofacts-demo [--story FOLDER]    plays a user's story and keeps a picture of each act

#include <QApplication>
#include <QIcon>
#include <QString>
#include <QWidget>
#include <string>

#include "demo/MainDialog.h"
#include "demo/PlotQt.h"
#include "demo/Story.h"
#include "win32/qt/QtView.h"

namespace {

// The window that the user sees on top, which may be a dialog of the main one.
void Keep(const QString& folder, const std::string& act) {
    QWidget* const window = QApplication::activeWindow();
    if (window == nullptr) return;
    window->grab().save(folder + QLatin1Char('/') + QString::fromStdString(act) +
                        QStringLiteral(".png"));
}

}  // namespace

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
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() == 3 && arguments[1] == QStringLiteral("--story")) {
        demo::Play(dialog, [folder = arguments[2]](const std::string& act) { Keep(folder, act); });
    }

    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (IsDialogMessageA(dialog.Handle(), &message) != FALSE) continue;
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return static_cast<int>(message.wParam);
}
