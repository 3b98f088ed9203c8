// The valve dialog: the list of tables, the trees with symbols, the record behind a selection.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "hydrofacts/dialogs/CValveTableDlg.h"
#include "tests/dialogs/TestDialog.h"
#include "tests/dialogs/ValveFormTemplate.h"
#include "tests/support/TableText.h"
#include "tests/support/TempFolder.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Texts = std::vector<std::string>;

constexpr const char* kTable =
    "S|\"Standard\"\nV|\"1.0\"|x|3|3\n"
    "Z|Fitting|\"Entrance\"|1|0.5|0|0|1\nZ|Fitting|\"Exit\"|1|1|0|0|2\n"
    "Z|Valve|\"Gate\"|2|8|0|0|6\n";
constexpr int kWanted[] = {1, 2, 20, 21, 22, 0};

class ValveDlg : public ::testing::Test {
  protected:
    ValveDlg() {
        folder.Write("Standard.VTBL", TableText(kTable));
        valves = std::make_unique<CValveTableDlg>(dialog.Handle());
        dialog.Forward([this](int id, int code) {
            if (!valves) return;
            const LONG_PTR answer = valves->DlgCommand(id, code, 12345);
            const bool clicked = code == static_cast<int>(NM_CLICK);
            const bool focus = code == static_cast<int>(NM_SETFOCUS);
            EXPECT_TRUE(answer == 0 || !(clicked || focus));
            if (!clicked && !focus) picked = answer;
        });
    }

    int Load(const char* table = "Standard") const {
        return valves->LoadValveTable(folder.Path().c_str(), table, HF_US, kWanted);
    }
    HTREEITEM Next(WPARAM relation, HTREEITEM item = nullptr) const {
        return reinterpret_cast<HTREEITEM>(
            dialog.Send(ID_DEVICES, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
    }
    // Each item with its symbol, and the one that it has while it is selected.
    Texts Devices() const {
        Texts items;
        for (HTREEITEM handle = Next(TVGN_ROOT); handle != nullptr;
             handle = Next(TVGN_NEXT, handle)) {
            char text[64] = "";
            TVITEM item{};
            item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
            item.hItem = handle;
            item.pszText = text;
            item.cchTextMax = sizeof text;
            dialog.Send(ID_DEVICES, TVM_GETITEM, 0, reinterpret_cast<LPARAM>(&item));
            items.push_back(std::string(text) + " " + std::to_string(item.iImage) +
                            (item.iImage == item.iSelectedImage ? "" : "!"));
        }
        return items;
    }
    void Click(int type) const { EXPECT_TRUE(win32::user::Click(dialog.Item(type))); }
    HIMAGELIST ImagesOf(int tree) const {
        return reinterpret_cast<HIMAGELIST>(dialog.Send(tree, TVM_GETIMAGELIST, TVSIL_NORMAL));
    }

    TempFolder folder;
    TestDialog dialog{ValveForm()};
    std::unique_ptr<CValveTableDlg> valves;
    LONG_PTR picked = -1;
};

TEST_F(ValveDlg, ListsTheTablesWithinTheLimits) {
    folder.Write(std::string(30, 'a') + ".VTBL", TableText("V|\"1\"|x|1|9\n"));
    folder.Write(std::string(31, 'b') + ".VTBL", TableText("V|\"1\"|x|1|9\n"));
    folder.Write("New.VTBL", TableText("V|\"1\"|x|5|5\n"));
    const auto list = [&](double high, double low) {
        dialog.Send(ID_VALVE_TABLES, CB_RESETCONTENT);
        EXPECT_EQ(valves->InitValveTables(dialog.Handle(), folder.Path().c_str(), high, low), 1);
        Texts rows;
        for (LRESULT i = 0; i < dialog.Send(ID_VALVE_TABLES, CB_GETCOUNT); ++i) {
            char text[64] = "";
            dialog.Send(ID_VALVE_TABLES, CB_GETLBTEXT, static_cast<WPARAM>(i),
                        reinterpret_cast<LPARAM>(text));
            rows.emplace_back(text);
        }
        return rows;
    };
    EXPECT_THAT(list(4, 1), ElementsAre(std::string(30, 'a'), "Standard"));
    EXPECT_THAT(list(0, 0), ElementsAre(std::string(30, 'a'), "New", "Standard"));
    EXPECT_EQ(valves->InitValveTables(dialog.Handle(), "nowhere", 0, 0), 1);
}

TEST_F(ValveDlg, LeadsFromATypeToARecord) {
    ASSERT_EQ(Load(), 1);
    Click(ID_FITTINGS);
    EXPECT_EQ(picked, 0);
    EXPECT_THAT(Devices(), ElementsAre("Entrance 0", "Exit 1"));
    const HTREEITEM last = Next(TVGN_NEXT, Next(TVGN_ROOT));
    EXPECT_TRUE(win32::user::PickItem(dialog.Item(ID_DEVICES), last));
    ASSERT_NE(picked, 0);
    EXPECT_STREQ(reinterpret_cast<const CValveType*>(picked)->name, "Exit");
    EXPECT_EQ(valves->DlgCommand(ID_DEVICES, static_cast<int>(TVN_SELCHANGING), 0), 0);
    EXPECT_EQ(valves->DlgCommand(ID_DEVICES, static_cast<int>(TVN_SELCHANGED), 0), picked);

    Click(ID_FITTINGS + 1);  // no bends
    EXPECT_THAT(Devices(), IsEmpty());
    EXPECT_EQ(valves->DlgCommand(ID_DEVICES, static_cast<int>(TVN_SELCHANGED), 0), 0);
    Click(ID_FITTINGS + 2);
    EXPECT_THAT(Devices(), ElementsAre("Gate 5"));
    Click(ID_OTHERS);
    EXPECT_THAT(Devices(), ElementsAre("Fixed K 12", "Fixed Cv 13", "Fixed Kv 14"));

    // Each load releases what the items lead to: the host shows a list afresh.
    EXPECT_EQ(Load("Missing"), 0);
    Click(ID_OTHERS);
    EXPECT_THAT(Devices(), IsEmpty());
}

TEST_F(ValveDlg, GivesWhatTheHostPutIntoTheSecondTree) {
    TVINSERTSTRUCT insert{};
    insert.hParent = TVI_ROOT;
    insert.item.mask = TVIF_TEXT | TVIF_PARAM;
    char text[] = "chosen";
    insert.item.pszText = text;
    insert.item.lParam = 4711;
    const LRESULT item =
        dialog.Send(ID_CHOSEN, TVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&insert));
    dialog.Send(ID_CHOSEN, TVM_SELECTITEM, TVGN_CARET, item);
    EXPECT_EQ(picked, 4711);
    EXPECT_EQ(valves->DlgCommand(ID_VALVE_TABLES, CBN_SELCHANGE, 0), 0);
}

TEST_F(ValveDlg, GivesTheSymbolsToBothTreesAsLongAsAnyoneHasThem) {
    HIMAGELIST own = nullptr;
    GetValveImageList(own);
    EXPECT_EQ(ImageList_GetImageCount(own), 15);
    EXPECT_TRUE(ImageList_Destroy(own));

    const HIMAGELIST shared = ImagesOf(ID_DEVICES);
    EXPECT_EQ(ImagesOf(ID_CHOSEN), shared);
    EXPECT_EQ(ImageList_GetImageCount(shared), 15);
    ASSERT_EQ(Load(), 1);
    auto copy = std::make_unique<CValveTableDlg>(*valves);
    *copy = *valves;
    *copy = *copy.get();
    valves.reset();
    EXPECT_EQ(ImageList_GetImageCount(shared), 15);
    EXPECT_NE(copy->Find("Gate"), nullptr);
    copy->DlgCommand(ID_FITTINGS, 0, 0);
    EXPECT_THAT(Devices(), ElementsAre("Entrance 0", "Exit 1"));
    copy.reset();
#ifndef _WIN32  // the system follows the handle of a list that is gone
    EXPECT_EQ(ImageList_GetImageCount(shared), 0);
#endif
}

}  // namespace
