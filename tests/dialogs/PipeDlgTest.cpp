// The pipe dialog: the tree of materials and schedules, what a selection shows, a picked size.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "hydrofacts/dialogs/CPipeTableDlg.h"
#include "hydrofacts/dialogs/TreeControl.h"
#include "hydrofacts/frame/Language.h"
#include "tests/dialogs/TableForms.h"
#include "tests/dialogs/TestDialog.h"
#include "tests/support/TableText.h"
#include "tests/support/TempFolder.h"

namespace {

using hydrofacts::TreeControl;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Texts = std::vector<std::string>;

constexpr const char* kSteel =
    "S|\"Steel\"\nV|\"2.1\"|x|1|9\nR|0.0018|0.046|140\n"
    "Z|40|0.5|15|0.622|0.84|15.8|21.3\nZ|40|2|50|2.067|2.375|52.5|60.3\n"
    "Z|80|2|50|1.939|2.375|49.3|60.3\nZ|80|2.5|65|2.323|2.875|59|73\n"
    "Z|40|3|80|3.068|3.5|77.9|88.9\n";

class PipeDlg : public ::testing::Test {
  protected:
    PipeDlg() { Write("Steel", kSteel); }
    ~PipeDlg() override { Hydrofacts_SetLanguage(1033); }

    void Write(const std::string& name, std::string_view lines) const {
        folder.Write(name + ".PTBL", TableText(lines));
    }
    void Init(HF_UNITS units = HF_US, bool withSizes = true, double high = 9, double low = 1) {
        dialog.reset();
        pipe = CPipeTableDlg(units);
        dialog = std::make_unique<TestDialog>(
            PipeForm(withSizes), [this](int id, int code) { pipe.DlgCommand(id, code); });
        EXPECT_EQ(pipe.InitPipeMaterials(dialog->Handle(), folder.Path().c_str(), high, low), 1);
    }

    std::string Text(int id) const { return dialog->Text(id); }
    Texts Sizes() const { return dialog->Rows(ID_SIZES, CB_GETCOUNT, CB_GETLBTEXT); }
    TreeControl Tree() const { return TreeControl(dialog->Item(ID_PIPES)); }
    HTREEITEM Root() const { return Tree().Next(TVGN_ROOT, nullptr); }

    // Every item behind `first` in its family, each followed by what is below it in parentheses; a
    // + is the button that shows children.
    Texts Items(HTREEITEM first) const {
        Texts items;
        for (HTREEITEM item = first; item != nullptr; item = Tree().Next(TVGN_NEXT, item)) {
            const hydrofacts::ItemText<64> text(Tree(), item, TVIF_TEXT | TVIF_CHILDREN);
            items.push_back(std::string(text.c_str()) + (text.HasChildren() ? "+" : ""));
            for (const std::string& below : Items(Tree().Next(TVGN_CHILD, item))) {
                items.push_back("(" + below + ")");
            }
        }
        return items;
    }
    // Material, schedule, roughness, C, diameter, note.
    Texts Shown() const {
        return {Text(ID_MATERIAL),       Text(ID_SCHEDULE), Text(ID_ROUGHNESS),
                Text(ID_HAZEN_WILLIAMS), Text(ID_DIAMETER), Text(ID_PIPE_NOTE)};
    }
    void Pick(HTREEITEM item) const {
        EXPECT_TRUE(win32::user::PickItem(dialog->Item(ID_PIPES), item));
        win32::user::HandleMessages(dialog->Handle());
    }

    TempFolder folder;
    CPipeTableDlg pipe{HF_US};
    std::unique_ptr<TestDialog> dialog;
};

TEST_F(PipeDlg, ListsWhatIsUsableInTheUnitSystem) {
    Write("Copper", "V|\"1\"|x|1|9\nR|0.00006|0|130\nZ|K|1|25|1|1.1|25|28\n");
    Write(std::string(31, 'x'), kSteel);
    Write("New", "V|\"1\"|x|10|10\nR|1|1|1\n");
    Write("Empty", "V|\"1\"|x|1|9\nR|1|1|1\n");
    Write("Long", "V|\"1\"|x|1|9\nR|1|1|1\nZ|A|1|1|1|1|1|1\nZ|" + std::string(31, 's') +
                      "|1|1|1|1|1|1\nZ|B|1|1|1|1|1|1\n");
    Init(HF_US);
    EXPECT_THAT(Items(Root()), ElementsAre("Copper+", "(K)", "Empty+", "Long+", "(A)", "Steel+",
                                           "(40)", "(80)", "(40)"));
    EXPECT_EQ(Tree().Selected(), nullptr);
    Init(HF_METRIC, true, 0.0, 0.0);  // no limits; copper has no roughness
    EXPECT_THAT(Items(Root()),
                ElementsAre("Empty+", "Long+", "(A)", "New+", "Steel+", "(40)", "(80)", "(40)"));
    EXPECT_EQ(pipe.InitPipeMaterials(dialog->Handle(), folder.Path("nowhere").c_str()), 1);
    EXPECT_EQ(pipe.InitPipeMaterials(dialog->Handle(), std::string(5000, 'd').c_str()), 1);
}

TEST_F(PipeDlg, LeadsFromAClickToADiameter) {
    Init();
    const HTREEITEM steel = Root();
    Pick(steel);
    EXPECT_THAT(Shown(), ElementsAre("Steel", "", "0.0018", "140", "", "Steel - vers 2.1"));
    EXPECT_THAT(Sizes(), IsEmpty());
    EXPECT_FALSE(pipe.IsValid());

    Pick(Tree().Next(TVGN_CHILD, steel));
    EXPECT_THAT(Sizes(), ElementsAre("0.5", "2"));
    EXPECT_EQ(Text(ID_SCHEDULE), "40");
    EXPECT_TRUE(pipe.IsValid());
    EXPECT_TRUE(win32::user::PickRow(dialog->Item(ID_SIZES), 1));
    EXPECT_EQ(Text(ID_DIAMETER), "(2.067)");

    pipe.SetUnit(HF_METRIC);
    EXPECT_THAT(Sizes(), ElementsAre("15", "50"));
    EXPECT_EQ(pipe.GetAbsRoughness(), 0.046);
    pipe.DlgCommand(ID_SIZES, CBN_SELCHANGE);  // nothing is selected any more
    EXPECT_EQ(Text(ID_DIAMETER), "(2.067)");
    Pick(steel);
    EXPECT_EQ(Text(ID_DIAMETER), "");
    EXPECT_THAT(Sizes(), IsEmpty());
}

TEST_F(PipeDlg, IsDrivenToASizeOnFormsWithAndWithoutSizes) {
    for (const bool withSizes : {false, true}) {
        Init(HF_US, withSizes);
        pipe.SetPipeMaterialSize("sTEEL", "80", 2.5);
        EXPECT_THAT(Shown(), ElementsAre("Steel", "80", "0.0018", "140", withSizes ? "(2.323)" : "",
                                         "Steel - vers 2.1"));
        EXPECT_EQ(Text(ID_SIZES), withSizes ? "2.5" : "");
        EXPECT_EQ(pipe.PipeDia(2.0), 1.939);
    }
    for (const double size : {0.0, 7.0}) {  // none, and one that the schedule lacks
        pipe.SetPipeMaterialSize("Steel", "80", 2.5);
        pipe.SetPipeMaterialSize("Steel", "40", size);
        EXPECT_EQ(dialog->Send(ID_SIZES, CB_GETCURSEL), -1);
        EXPECT_EQ(Text(ID_DIAMETER), "");
        EXPECT_EQ(pipe.PipeDia(0.5), 0.622);
    }
    const HTREEITEM before = Tree().Selected();
    for (const auto& [material, schedule] :
         {std::pair{"Glass", "40"}, std::pair{"Steel", "10"}, std::pair{"Steel", "40 "}}) {
        pipe.SetPipeMaterialSize(material, schedule, 2);
        EXPECT_EQ(Text(ID_PIPE_NOTE), "Pipe Table for " + std::string(material) + " is Invalid.");
        EXPECT_EQ(Tree().Selected(), before);
    }
    pipe.SetPipeMaterialSize("", "40", 2);
    EXPECT_EQ(Tree().Selected(), nullptr);
    EXPECT_EQ(pipe.PipeDia(0.5), 0.622) << "the pipe stays";
}

TEST_F(PipeDlg, SaysWhatIsWrongWithATable) {
    Write("Bad", "V|\"1\"|x|1|9\nR|1|1|1\nZ|A|1|1|1|1|1|1\nZ|A|2|2|0|1|1|1\nZ|A|3|3|1|1|1|1\n");
    Init();
    pipe.SetPipeMaterialSize("Bad", "A", 0.0);
    EXPECT_EQ(Text(ID_PIPE_NOTE), "Unable to Load Pipe Sizes for Schedule A Pipe.");
    EXPECT_EQ(Text(ID_SCHEDULE), "");
    EXPECT_THAT(Sizes(), ElementsAre("1")) << "those ahead of the fault";

    std::filesystem::remove(folder.Path("Steel.PTBL"));
    pipe.SetPipeMaterialSize("Steel", "40", 0.0);
    EXPECT_EQ(Text(ID_PIPE_NOTE), "Pipe Table for Steel is Invalid.");
    EXPECT_FALSE(pipe.IsValid());
}

TEST_F(PipeDlg, SpeaksTheChosenLanguage) {
    Init();
    Hydrofacts_SetLanguage(1031);
    pipe.SetPipeMaterialSize("Steel", "80", 0.0);
    EXPECT_THAT(Sizes(), ElementsAre("2", "2,5"));
    EXPECT_TRUE(win32::user::PickRow(dialog->Item(ID_SIZES), 1));
    EXPECT_EQ(Text(ID_DIAMETER), "(2,323)");
    EXPECT_EQ(Text(ID_ROUGHNESS), "0,0018");
}

TEST_F(PipeDlg, IsCopiedWithItsDialogAndDirectory) {
    Init();
    pipe.SetPipeMaterialSize("Steel", "40", 2.0);
    CPipeTableDlg copy(HF_METRIC);
    copy = CPipeTableDlg(pipe);
    pipe.ClearPipeList();
    EXPECT_EQ(copy.PipeDia(2.0), 2.067);
    dialog->Send(ID_SIZES, CB_RESETCONTENT);
    copy.DlgCommand(ID_PIPES, static_cast<int>(TVN_SELCHANGED));
    EXPECT_THAT(Sizes(), ElementsAre("0.5", "2"));
}

}  // namespace
