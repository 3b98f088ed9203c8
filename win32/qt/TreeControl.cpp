// Tree controls.

#include <QHeaderView>
#include <QIcon>
#include <QMouseEvent>
#include <QResizeEvent>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <unordered_map>
#include <vector>

#include "win32/qt/Control.h"
#include "win32/qt/Reading.h"
#include "win32/qt/Screen.h"
#include "win32/qt/TreeReading.h"

namespace win32::qt {

namespace {

class Tree : public Control {
  public:
    Tree(Screen& screen, HWND window, QWidget* parent);

    QWidget& Widget() const override { return *widget_; }
    bool TakeKey(const Key& key) override;

  protected:
    void Show() override;
    bool Mouse(QObject& watched, const QMouseEvent& event) override;
    bool Other(QObject& watched, QEvent& event) override;

  private:
    void ShowRows();
    void ShowImages();
    void ShowSelection();
    QIcon IconOf(int image) const;
    HTREEITEM ItemOf(const QTreeWidgetItem* shown) const;

    std::unique_ptr<QTreeWidget> widget_;
    std::vector<TreeRow> rows_;
    std::unordered_map<HTREEITEM, QTreeWidgetItem*> shown_;
    std::vector<QIcon> icons_;
    HIMAGELIST images_ = nullptr;
    HTREEITEM selected_ = nullptr;
};

Tree::Tree(Screen& screen, HWND window, QWidget* parent)
    : Control(screen, window), widget_(std::make_unique<QTreeWidget>(parent)) {
    widget_->setFocusPolicy(Qt::TabFocus);
    widget_->setHeaderHidden(true);
    widget_->setColumnCount(1);
    widget_->setUniformRowHeights(true);
    widget_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    widget_->setSelectionMode(QAbstractItemView::SingleSelection);
    widget_->setExpandsOnDoubleClick(false);
    widget_->setRootIsDecorated(Has(window, TVS_HASBUTTONS | TVS_LINESATROOT));
    // A long text can be read by scrolling, not by guessing.
    widget_->header()->setStretchLastSection(false);
    widget_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    Watch(*widget_);
    Watch(*widget_->viewport());
}

void Tree::Show() {
    const QSignalBlocker quiet(*widget_);
    ShowImages();
    ShowRows();
    ShowSelection();
}

void Tree::ShowImages() {
    const LRESULT list = SendMessageA(Window(), TVM_GETIMAGELIST, TVSIL_NORMAL, 0);
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the message gives a handle as a number
    auto* images = reinterpret_cast<HIMAGELIST>(list);
    const auto count =
        static_cast<std::size_t>(images == nullptr ? 0 : ImageList_GetImageCount(images));
    if (images == images_ && count == icons_.size()) return;
    images_ = images;
    icons_.clear();
    rows_.clear();
    QSize size(0, 0);
    for (std::size_t i = 0; i < count; ++i) {
        const QImage image = ImageOf(images, static_cast<int>(i));
        icons_.emplace_back(QPixmap::fromImage(image));
        size = size.expandedTo(image.size());
    }
    if (!size.isEmpty()) widget_->setIconSize(size);
}

QIcon Tree::IconOf(int image) const {
    const auto index = static_cast<std::size_t>(image);
    return image >= 0 && index < icons_.size() ? icons_[index] : QIcon();
}

void Tree::ShowRows() {
    std::vector<TreeRow> rows = RowsOfTree(Window());
    const bool same = std::equal(rows.begin(), rows.end(), rows_.begin(), rows_.end(),
                                 [](const TreeRow& a, const TreeRow& b) { return a.LooksLike(b); });
    if (!same) {
        shown_.clear();
        widget_->clear();
        std::vector<QTreeWidgetItem*> path;
        for (const TreeRow& row : rows) {
            path.resize(static_cast<std::size_t>(row.level));
            auto item = std::make_unique<QTreeWidgetItem>(QStringList(row.text));
            item->setIcon(0, IconOf(row.image));
            item->setChildIndicatorPolicy(row.hasButton ? QTreeWidgetItem::ShowIndicator
                                                        : QTreeWidgetItem::DontShowIndicator);
            shown_[row.item] = item.get();
            path.push_back(item.get());
            QTreeWidgetItem* above =
                row.level == 0 ? widget_->invisibleRootItem() : path[path.size() - 2];
            above->addChild(item.release());
        }
        selected_ = nullptr;
    }
    for (const TreeRow& row : rows) {
        QTreeWidgetItem* item = shown_[row.item];
        if (item->isExpanded() != row.expanded) item->setExpanded(row.expanded);
    }
    rows_ = std::move(rows);
}

// The selected item may have an image of its own.
void Tree::ShowSelection() {
    const LRESULT selected = SendMessageA(Window(), TVM_GETNEXTITEM, TVGN_CARET, 0);
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the message gives a handle as a number
    auto* caret = reinterpret_cast<HTREEITEM>(selected);
    for (const TreeRow& row : rows_) {
        if (row.image == row.selectedImage || (row.item != caret && row.item != selected_))
            continue;
        shown_[row.item]->setIcon(0, IconOf(row.item == caret ? row.selectedImage : row.image));
    }
    const auto found = shown_.find(caret);
    QTreeWidgetItem* item = found == shown_.end() ? nullptr : found->second;
    if (widget_->currentItem() != item) widget_->setCurrentItem(item);
    if (item == nullptr) {
        widget_->clearSelection();
    } else if (caret != selected_) {
        widget_->scrollToItem(item);
    }
    selected_ = caret;
}

HTREEITEM Tree::ItemOf(const QTreeWidgetItem* shown) const {
    for (const auto& [handle, item] : shown_) {
        if (item == shown) return handle;
    }
    return nullptr;
}

bool Tree::TakeKey(const Key& key) {
    const bool plus = key.code == Qt::Key_Plus;
    if (!key.Keypad() || !(plus || key.code == Qt::Key_Minus)) return false;
    PutKeyDown(Window(), plus ? VK_ADD : VK_SUBTRACT);
    return true;
}

// The rows are as wide as the tree, and wider where a text is.
bool Tree::Other(QObject& watched, QEvent& event) {
    if (&watched == widget_->viewport() && event.type() == QEvent::Resize) {
        widget_->header()->setMinimumSectionSize(static_cast<QResizeEvent&>(event).size().width());
        widget_->header()->resizeSections(QHeaderView::ResizeToContents);
    }
    return false;
}

bool Tree::Mouse(QObject& watched, const QMouseEvent& event) {
    const UINT message = MouseMessage(event);
    if (message == 0 || message == WM_LBUTTONUP || &watched != widget_->viewport()) return true;
    const QPoint at = event.position().toPoint();
    const QTreeWidgetItem* shown = widget_->itemAt(at);
    if (shown == nullptr) {
        // The ground below the last row.
        AddMouse(message, {0, SHRT_MAX});
        return true;
    }
    // The button stands in the indentation right before the item.
    const int left = widget_->visualItemRect(shown).left();
    const bool onButton = at.x() < left && at.x() >= left - widget_->indentation() &&
                          shown->childIndicatorPolicy() == QTreeWidgetItem::ShowIndicator;
    if (at.x() < left && !onButton) return true;
    screen_.Add([window = Window(), message, onButton, item = ItemOf(shown)] {
        if (CanBeUsed(window)) ClickItem(window, message, item, onButton);
    });
    return true;
}

}  // namespace

std::unique_ptr<Control> NewTree(Screen& screen, HWND window, QWidget* parent) {
    return std::make_unique<Tree>(screen, window, parent);
}

}  // namespace win32::qt
