// List boxes.

#include <QListView>
#include <QMouseEvent>
#include <QScrollBar>

#include "win32/qt/Control.h"
#include "win32/qt/ListRows.h"
#include "win32/qt/Reading.h"
#include "win32/qt/Screen.h"

namespace win32::qt {

namespace {

class List : public Control {
  public:
    List(Screen& screen, HWND window, QWidget* parent)
        : Control(screen, window),
          widget_(std::make_unique<QListView>(parent)),
          rows_(window, *widget_) {
        widget_->setFocusPolicy(Qt::TabFocus);
        widget_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        Watch(*widget_);
        Watch(*widget_->viewport());
    }
    ~List() override { widget_->setModel(nullptr); }
    List(const List&) = delete;
    List& operator=(const List&) = delete;

    QWidget& Widget() const override { return *widget_; }

  protected:
    void Show() override { rows_.Show(); }

    bool Mouse(QObject& watched, const QMouseEvent& event) override {
        const UINT message = MouseMessage(event);
        if (message == 0 || &watched != widget_->viewport()) return true;
        screen_.Add(
            [this, window = Window(), message, row = rows_.RowAt(event.position().toPoint())] {
                if (CanBeUsed(window)) rows_.Click(message, row);
            });
        return true;
    }

  private:
    std::unique_ptr<QListView> widget_;
    ListRows rows_;
};

}  // namespace

std::unique_ptr<Control> NewList(Screen& screen, HWND window, QWidget* parent) {
    return std::make_unique<List>(screen, window, parent);
}

}  // namespace win32::qt
