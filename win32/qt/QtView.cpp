#include "win32/qt/QtView.h"

#include <QApplication>
#include <QFontMetrics>
#include <QString>
#include <QWidget>
#include <utility>

#include "win32/qt/Screen.h"

namespace win32::qt {

QtView::QtView() : screen_(std::make_unique<Screen>()), former_(SetView(this)) {
    screen_->ShowFamilyOf(GetActiveWindow());
}

QtView::~QtView() { SetView(former_); }

QWidget* QtView::WidgetOf(HWND window) const { return screen_->WidgetOf(window); }

void QtView::SetPainter(HWND control, Painter painter) {
    screen_->SetPainter(control, std::move(painter));
}

void QtView::HandleMessagesInQtLoop(bool on) { screen_->HandleMessagesInQtLoop(on); }

void QtView::Created(HWND window) { screen_->Created(window); }

void QtView::Changed(HWND window) { screen_->Changed(window); }

void QtView::Destroyed(HWND window) { screen_->Destroyed(window); }

bool QtView::Wait(DWORD milliseconds) { return screen_->Wait(milliseconds); }

SIZE QtView::BaseUnits() const {
    // Windows takes the mean width of the 52 letters, rounded.
    const QString letters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    const QFontMetrics metrics(QApplication::font());
    return {(metrics.horizontalAdvance(letters) / 26 + 1) / 2, metrics.height()};
}

}  // namespace win32::qt
