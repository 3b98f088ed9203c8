// The valve dialog: the list of tables, the trees with symbols, the record behind a selection.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "hydrofacts/dialogs/CValveTableDlg.h"
#include "hydrofacts/dialogs/TreeControl.h"
#include "tests/dialogs/TableForms.h"
#include "tests/dialogs/TestDialog.h"
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
            if (code == static_cast<int>(TVN_SELCHANGED) || code == BN_CLICKED) picked = answer;
        });
    }

    int Load(const char* table = "Standard") const {
        return valves->LoadValveTable(folder.Path().c_str(), table, HF_US, kWanted);
    }
    // Each item with its symbol, and a mark if it has another one while it is selected.
    Texts Devices() const {
        Texts items;
        for (HTREEITEM handle = tree.Next(TVGN_ROOT, nullptr); handle != nullptr;
             handle = tree.Next(TVGN_NEXT, handle)) {
            TVITEM item{};
            item.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
            item.hItem = handle;
            EXPECT_TRUE(tree.Read(item));
            const hydrofacts::ItemText<64> name(tree, handle, TVIF_TEXT);
            items.push_back(std::string(name.c_str()) + " " + std::to_string(item.iImage) +
                            (item.iImage == item.iSelectedImage ? "" : "!"));
        }
        return items;
    }
    void Click(int type) const { EXPECT_TRUE(win32::user::Click(dialog.Item(type))); }

    TempFolder folder;
    TestDialog dialog{ValveForm()};
    const hydrofacts::TreeControl tree{dialog.Item(ID_DEVICES)};
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
        return dialog.Rows(ID_VALVE_TABLES, CB_GETCOUNT, CB_GETLBTEXT);
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
    const HTREEITEM last = tree.Next(TVGN_NEXT, tree.Next(TVGN_ROOT, nullptr));
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
    const hydrofacts::TreeControl chosen(dialog.Item(ID_CHOSEN));
    chosen.Select(chosen.Insert(TVI_ROOT, TVI_LAST, {TVIF_PARAM, "", false, 0, 4711}));
    EXPECT_EQ(picked, 4711);
    EXPECT_EQ(valves->DlgCommand(ID_VALVE_TABLES, CBN_SELCHANGE, 0), 0);
}

TEST_F(ValveDlg, GivesTheSymbolsToBothTreesAsLongAsAnyoneHasThem) {
    const auto imagesOf = [this](int id) {
        return reinterpret_cast<HIMAGELIST>(dialog.Send(id, TVM_GETIMAGELIST, TVSIL_NORMAL));
    };
    const HIMAGELIST shared = imagesOf(ID_DEVICES);
    EXPECT_EQ(imagesOf(ID_CHOSEN), shared);
    EXPECT_EQ(ImageList_GetImageCount(shared), 15);
    ASSERT_EQ(Load(), 1);
    auto copy = std::make_unique<CValveTableDlg>(*valves);
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
