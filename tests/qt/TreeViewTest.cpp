#include <gmock/gmock.h>

#include <QTreeWidget>
#include <vector>

#include "tests/qt/ShownDialog.h"

namespace {

constexpr int kTree = 101;
constexpr unsigned kPixels = 16;

/// Three images side by side in one bitmap, as a resource has them: a red, a green and a blue
/// field on white.
std::vector<DWORD> Squares() {
    constexpr DWORD kColors[] = {0xFF0000, 0x00FF00, 0x0000FF};
    std::vector<DWORD> bitmap{40, 3 * kPixels, kPixels, 1U | 32U << 16U};
    bitmap.resize(40 / sizeof(DWORD));
    for (unsigned i = 0; i < 3 * kPixels * kPixels; ++i) {
        const bool inside = i % kPixels > 2 && i % kPixels < 13;
        bitmap.push_back(inside ? kColors[i / kPixels % 3] : 0xFFFFFF);
    }
    return bitmap;
}

class TreeViewOnQt : public testing::Test, protected ShownDialog {
  protected:
    TreeViewOnQt() : ShownDialog(Form()) {
        steel_ = Insert(nullptr, "Steel", 0, 1);
        for (const char* name : {"Schedule 40", "Schedule 80 \xD8"}) Insert(steel_, name, 2, 2);
        copper_ = Insert(nullptr, "Copper", 0, 1);
        plastic_ = Insert(nullptr, "Plastic", 0, 0);
        Insert(plastic_, "PVC", 2, 2);
        Settle();
    }

    static win32::DialogBuilder Form() {
        win32::DialogBuilder form("Tree", WS_POPUP | WS_CAPTION, {0, 0, 200, 140});
        form.Tree(kTree, {5, 5, 150, 120});
        return form;
    }
    HTREEITEM Insert(HTREEITEM parent, std::string text, int image, int selectedImage) {
        TVINSERTSTRUCTA insert{};
        insert.hParent = parent;
        insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
        insert.item.pszText = text.data();
        insert.item.iImage = image;
        insert.item.iSelectedImage = selectedImage;
        return reinterpret_cast<HTREEITEM>(
            Send(kTree, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insert)));
    }
    void Delete(HTREEITEM item) { Tell(kTree, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item)); }

    QTreeWidgetItem& Row(const char* text) {
        const auto found =
            tree_.findItems(QString::fromUtf8(text), Qt::MatchExactly | Qt::MatchRecursive);
        if (found.size() != 1) throw std::runtime_error(text);
        return *found.first();
    }
    QPoint PlaceOf(const char* text) { return tree_.visualItemRect(&Row(text)).center(); }
    void ClickItem(const char* text) { Click(*tree_.viewport(), PlaceOf(text)); }
    /// Of an item that is the root of others.
    void ClickButton(const char* text) {
        Click(*tree_.viewport(), {tree_.indentation() / 2, PlaceOf(text).y()});
    }
    QString Selected() {
        return tree_.selectionModel()->selectedIndexes().value(0).data().toString();
    }
    static Notification Told(UINT code) { return {kTree, static_cast<int>(code)}; }

    QTreeWidget& tree_ = Widget<QTreeWidget>(kTree);
    HTREEITEM steel_ = nullptr;
    HTREEITEM copper_ = nullptr;
    HTREEITEM plastic_ = nullptr;
};

TEST_F(TreeViewOnQt, OpensAndPicks) {
    // Rows are picked in their whole width, not only where there is text.
    EXPECT_GE(tree_.visualItemRect(&Row("Steel")).right(), tree_.viewport()->width() - 1);
    ClickButton("Steel");
    EXPECT_TRUE(Row("Steel").isExpanded());
    EXPECT_THAT(TakeLog(), testing::IsSupersetOf({Told(NM_CLICK), Told(TVN_ITEMEXPANDINGA),
                                                  Told(TVN_ITEMEXPANDEDA)}));
    ClickItem("Schedule 80 Ø");
    EXPECT_EQ(Selected(), QString::fromUtf8("Schedule 80 Ø"));
    EXPECT_THAT(TakeLog(), testing::ElementsAre(Told(NM_CLICK), Told(TVN_SELCHANGINGA),
                                                Told(TVN_SELCHANGEDA)));
    ClickButton("Steel");
    EXPECT_FALSE(Row("Steel").isExpanded());
    EXPECT_EQ(Selected(), QStringLiteral("Steel"));
    QTest::mouseDClick(tree_.viewport(), Qt::LeftButton, {}, PlaceOf("Plastic"));
    Settle();
    EXPECT_TRUE(Row("Plastic").isExpanded());
}

TEST_F(TreeViewOnQt, IsOperatedByKeys) {
    ClickItem("Steel");
    Press(Qt::Key_Plus, Qt::KeypadModifier);
    EXPECT_TRUE(Row("Steel").isExpanded());
    Press(Qt::Key_Down);
    EXPECT_EQ(Selected(), QStringLiteral("Schedule 40"));
    Press(Qt::Key_Left);
    EXPECT_EQ(Selected(), QStringLiteral("Steel"));
    Press(Qt::Key_Minus, Qt::KeypadModifier);
    EXPECT_FALSE(Row("Steel").isExpanded());
    Type("c");
    EXPECT_EQ(Selected(), QStringLiteral("Copper"));
}

TEST_F(TreeViewOnQt, FollowsTheProgram) {
    Tell(kTree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(copper_));
    EXPECT_EQ(Selected(), QStringLiteral("Copper"));
    Insert(copper_, "Type K", 2, 2);
    Delete(steel_);
    EXPECT_EQ(tree_.topLevelItemCount(), 2);
    EXPECT_EQ(Row("Copper").childCount(), 1);
    EXPECT_EQ(Selected(), QStringLiteral("Copper"));
    // An item that goes before its click is handled.
    QTest::mouseClick(tree_.viewport(), Qt::LeftButton, {}, PlaceOf("Plastic"));
    Delete(plastic_);
    EXPECT_EQ(Selected(), QStringLiteral("Copper"));
}

TEST_F(TreeViewOnQt, ShowsTheImagesOfItsItems) {
    const std::vector<DWORD> squares = Squares();
    const win32::Resource resource{RT_BITMAP, 7, 0,
                                   reinterpret_cast<const unsigned char*>(squares.data()),
                                   squares.size() * sizeof(DWORD)};
    win32::Module module{"squares", {&resource, 1}};
    auto* bitmap = static_cast<HBITMAP>(LoadImageA(win32::ToHandle(&module), MAKEINTRESOURCEA(7),
                                                   IMAGE_BITMAP, 0, 0, LR_DEFAULTCOLOR));
    HIMAGELIST images = ImageList_Create(kPixels, kPixels, ILC_COLOR32, 3, 1);
    ImageList_Add(images, bitmap, nullptr);
    DeleteObject(bitmap);
    Tell(kTree, TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(images));
    const auto color = [&](const char* text, int at = kPixels / 2) {
        return Row(text).icon(0).pixmap(kPixels).toImage().pixelColor(at, at);
    };
    EXPECT_EQ(color("Copper"), QColor(Qt::red));
    EXPECT_EQ(color("PVC"), QColor(Qt::blue));
    EXPECT_EQ(color("Copper", 0).alpha(), 0);  // the ground lets the colour of the row through
    ClickItem("Copper");
    EXPECT_EQ(color("Copper"), QColor(Qt::green));  // the one of the selected item
    ClickItem("Steel");
    EXPECT_EQ(color("Copper"), QColor(Qt::red));
    EXPECT_EQ(tree_.iconSize(), QSize(kPixels, kPixels));
    ImageList_Destroy(images);
}

}  // namespace
