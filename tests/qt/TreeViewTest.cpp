#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTreeWidget>
#include <array>
#include <cstring>
#include <vector>

#include "tests/qt/ShownDialog.h"

namespace {

using testing::Contains;
using testing::ElementsAre;

constexpr int kTree = 101;
constexpr int kPixels = 16;

/// Three images side by side in one bitmap, on white: a red, a green and a blue square, as a
/// resource has them.
class Squares {
  public:
    HIMAGELIST Load() {
        HIMAGELIST list = ImageList_Create(kPixels, kPixels, ILC_COLOR32, 3, 1);
        auto* bitmap = static_cast<HBITMAP>(LoadImageA(
            win32::ToHandle(&module_), MAKEINTRESOURCEA(kId), IMAGE_BITMAP, 0, 0, LR_DEFAULTCOLOR));
        ImageList_Add(list, bitmap, nullptr);
        DeleteObject(bitmap);
        return list;
    }

  private:
    static constexpr WORD kId = 7;

    static std::vector<unsigned char> Bytes() {
        const std::array<DWORD, 10> head{40, 3 * kPixels, kPixels, 1U | 32U << 16U};
        std::vector<unsigned char> bytes(sizeof head);
        std::memcpy(bytes.data(), head.data(), sizeof head);
        for (int y = 0; y < kPixels; ++y) {
            for (int x = 0; x < 3 * kPixels; ++x) {
                const bool inside = x % kPixels > 2 && x % kPixels < 13 && y > 2 && y < 13;
                const std::array<unsigned char, 4> color{
                    inside && x / kPixels != 2 ? BYTE{0} : BYTE{255},
                    inside && x / kPixels != 1 ? BYTE{0} : BYTE{255},
                    inside && x / kPixels != 0 ? BYTE{0} : BYTE{255}, 0};
                bytes.insert(bytes.end(), color.begin(), color.end());
            }
        }
        return bytes;
    }

    std::vector<unsigned char> bytes_ = Bytes();
    win32::Resource resource_{RT_BITMAP, kId, 0, bytes_.data(), bytes_.size()};
    win32::Module module_{"squares", {&resource_, 1}};
};

class TreeViewOnQt : public testing::Test {
  protected:
    static win32::DialogBuilder Form() {
        win32::DialogBuilder form("Tree", WS_POPUP | WS_CAPTION, {0, 0, 200, 140});
        form.Tree(kTree, {5, 5, 150, 120});
        return form;
    }

    TreeViewOnQt() {
        steel_ = Insert(nullptr, "Steel", 0, 1);
        for (const char* name : {"Schedule 40", "Schedule 80 \xD8"}) Insert(steel_, name, 2, 2);
        copper_ = Insert(nullptr, "Copper", 0, 1);
        plastic_ = Insert(nullptr, "Plastic", 0, 0);
        Insert(plastic_, "PVC", 2, 2);
        dialog_.Settle();
    }
    ~TreeViewOnQt() override { ImageList_Destroy(images_); }
    HTREEITEM Insert(HTREEITEM parent, const char* text, int image, int selectedImage) {
        std::string copy = text;
        TVINSERTSTRUCTA insert{};
        insert.hParent = parent;
        insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN;
        insert.item.pszText = copy.data();
        insert.item.iImage = image;
        insert.item.iSelectedImage = selectedImage;
        insert.item.cChildren = parent == nullptr && std::string_view(text) != "Copper" ? 1 : 0;
        return reinterpret_cast<HTREEITEM>(
            dialog_.Model().Send(kTree, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insert)));
    }

    QTreeWidget& Tree() { return dialog_.Widget<QTreeWidget>(kTree); }
    QTreeWidgetItem& Item(const char* text) {
        const auto found =
            Tree().findItems(QString::fromUtf8(text), Qt::MatchExactly | Qt::MatchRecursive);
        if (found.size() != 1) throw std::runtime_error(text);
        return *found.first();
    }
    HTREEITEM Caret() {
        return reinterpret_cast<HTREEITEM>(
            dialog_.Model().Send(kTree, TVM_GETNEXTITEM, TVGN_CARET));
    }
    void ClickItem(const char* text) {
        dialog_.Click(*Tree().viewport(), Tree().visualItemRect(&Item(text)).center());
    }
    void ClickButton(const char* text) {
        const QRect place = Tree().visualItemRect(&Item(text));
        dialog_.Click(*Tree().viewport(),
                      {place.left() - Tree().indentation() / 2, place.center().y()});
    }
    QString Selected() {
        const auto selected = Tree().selectedItems();
        return selected.isEmpty() ? QString() : selected.first()->text(0);
    }
    static int Code(UINT code) { return static_cast<int>(code); }

    ShownDialog dialog_{Form()};
    Squares squares_;
    HIMAGELIST images_ = nullptr;
    HTREEITEM steel_ = nullptr;
    HTREEITEM copper_ = nullptr;
    HTREEITEM plastic_ = nullptr;
};

TEST_F(TreeViewOnQt, OpensAndPicks) {
    EXPECT_EQ(Tree().topLevelItemCount(), 3);
    EXPECT_FALSE(Item("Steel").isExpanded());
    // Rows are picked in their whole width, not only where there is text.
    EXPECT_GE(Tree().visualItemRect(&Item("Steel")).right(), Tree().viewport()->width() - 1);
    ClickButton("Steel");
    EXPECT_TRUE(Item("Steel").isExpanded());
    EXPECT_THAT(dialog_.Model().TakeLog(),
                testing::IsSupersetOf({Notification{kTree, Code(NM_CLICK)},
                                       Notification{kTree, Code(TVN_ITEMEXPANDINGA)},
                                       Notification{kTree, Code(TVN_ITEMEXPANDEDA)}}));
    ClickItem("Schedule 80 Ø");
    EXPECT_EQ(Selected(), QString::fromUtf8("Schedule 80 Ø"));
    EXPECT_THAT(dialog_.Model().TakeLog(), ElementsAre(Notification{kTree, Code(NM_CLICK)},
                                                       Notification{kTree, Code(TVN_SELCHANGINGA)},
                                                       Notification{kTree, Code(TVN_SELCHANGEDA)}));
    ClickButton("Steel");
    EXPECT_FALSE(Item("Steel").isExpanded());
    EXPECT_EQ(Selected(), QStringLiteral("Steel"));
    QTest::mouseDClick(Tree().viewport(), Qt::LeftButton, {},
                       Tree().visualItemRect(&Item("Plastic")).center());
    dialog_.Settle();
    EXPECT_TRUE(Item("Plastic").isExpanded());
}

TEST_F(TreeViewOnQt, IsOperatedByKeys) {
    ClickItem("Steel");
    dialog_.Press(Qt::Key_Right);
    EXPECT_TRUE(Item("Steel").isExpanded());
    dialog_.Press(Qt::Key_Down);
    EXPECT_EQ(Selected(), QStringLiteral("Schedule 40"));
    dialog_.Press(Qt::Key_Left);
    EXPECT_EQ(Caret(), steel_);
    dialog_.Press(Qt::Key_Minus, Qt::KeypadModifier);
    EXPECT_FALSE(Item("Steel").isExpanded());
    dialog_.Press(Qt::Key_Plus, Qt::KeypadModifier);
    EXPECT_TRUE(Item("Steel").isExpanded());
    dialog_.Type("c");
    EXPECT_EQ(Selected(), QStringLiteral("Copper"));
    EXPECT_EQ(Caret(), copper_);
}

TEST_F(TreeViewOnQt, FollowsTheProgram) {
    dialog_.Model().Send(kTree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(copper_));
    dialog_.Settle();
    EXPECT_EQ(Selected(), QStringLiteral("Copper"));
    Insert(copper_, "Type K", 2, 2);
    dialog_.Model().Send(kTree, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(steel_));
    dialog_.Settle();
    EXPECT_EQ(Tree().topLevelItemCount(), 2);
    EXPECT_EQ(Item("Copper").childCount(), 1);
    EXPECT_EQ(Selected(), QStringLiteral("Copper"));
    // An item that goes before its click is handled.
    QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {},
                      Tree().visualItemRect(&Item("Plastic")).center());
    dialog_.Model().Send(kTree, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(plastic_));
    dialog_.Settle();
    EXPECT_EQ(Selected(), QStringLiteral("Copper"));
    dialog_.Model().Send(kTree, TVM_DELETEITEM, 0, 0);
    dialog_.Settle();
    EXPECT_EQ(Tree().topLevelItemCount(), 0);
}

TEST_F(TreeViewOnQt, ShowsTheImagesOfItsItems) {
    images_ = squares_.Load();
    dialog_.Model().Send(kTree, TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(images_));
    dialog_.Settle();
    const auto color = [&](const char* text) {
        return Item(text).icon(0).pixmap(kPixels).toImage().pixelColor(kPixels / 2, kPixels / 2);
    };
    EXPECT_EQ(color("Copper"), QColor(Qt::red));
    EXPECT_EQ(color("PVC"), QColor(Qt::blue));
    // The ground lets the colour of the row through.
    EXPECT_EQ(Item("Copper").icon(0).pixmap(kPixels).toImage().pixelColor(0, 0).alpha(), 0);
    ClickItem("Copper");
    EXPECT_EQ(color("Copper"), QColor(Qt::green));  // the one of the selected item
    ClickItem("Steel");
    EXPECT_EQ(color("Copper"), QColor(Qt::red));
    EXPECT_EQ(color("Steel"), QColor(Qt::green));
    EXPECT_EQ(Tree().iconSize(), QSize(kPixels, kPixels));
}

}  // namespace
