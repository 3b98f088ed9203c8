// The pipe dialog: the tree of materials and schedules, what a selection shows, a picked size.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <string>

#include "hydrofacts/dialogs/CPipeTableDlg.h"
#include "hydrofacts/frame/Language.h"
#include "tests/dialogs/PipeFormTemplate.h"
#include "tests/dialogs/TestDialog.h"
#include "tests/support/TableText.h"
#include "tests/support/TempFolder.h"

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Texts = std::vector<std::string>;

constexpr const char* kSteel =
    "S|\"Steel\"\nV|\"2.1\"|x|1|9\nR|0.0018|0.046|140\n"
    "Z|40|0.5|15|0.622|0.84|15.8|21.3\nZ|40|2|50|2.067|2.375|52.5|60.3\n"
    "Z|80|2|50|1.939|2.375|49.3|60.3\nZ|80|2.5|65|2.323|2.875|59|73\n"
    "Z|40|3|80|3.068|3.5|77.9|88.9\n";
constexpr const char* kCopper =
    "S|\"Copper\"\nV|\"1.0\"|x|1|9\nR|0.00006|0|130\nZ|K|1|25|1|1.1|25|28\n";

class PipeDlg : public ::testing::Test {
  protected:
    ~PipeDlg() override { Hydrofacts_SetLanguage(1033); }

    struct Host {
        explicit Host(HF_UNITS units, bool withSizes = true)
            : pipe(units), dialog(PipeForm(withSizes)) {
            dialog.Forward([this](int id, int code) { pipe.DlgCommand(id, code); });
        }
        CPipeTableDlg pipe;
        TestDialog dialog;
    };

    void Write(const std::string& name, std::string_view lines) const {
        folder.Write(name + ".PTBL", TableText(lines));
    }

    void Init(HF_UNITS units = HF_US, bool withSizes = true, double high = 9, double low = 1) {
        host = std::make_unique<Host>(units, withSizes);
        EXPECT_EQ(host->pipe.InitPipeMaterials(Dialog(), folder.Path().c_str(), high, low), 1);
    }

    HWND Dialog() const { return host->dialog.Handle(); }
    std::string Text(int id) const { return host->dialog.Text(id); }
    HTREEITEM Next(WPARAM relation, HTREEITEM item = nullptr) const {
        return reinterpret_cast<HTREEITEM>(
            host->dialog.Send(ID_PIPES, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
    }

    // Every item, schedules in parentheses behind their material; the text is followed by the
    // number of the button that shows children.
    Texts Tree() const {
        Texts items;
        for (HTREEITEM top = Next(TVGN_ROOT); top != nullptr; top = Next(TVGN_NEXT, top)) {
            items.push_back(Describe(top));
            for (HTREEITEM child = Next(TVGN_CHILD, top); child != nullptr;
                 child = Next(TVGN_NEXT, child)) {
                items.push_back("(" + Describe(child) + ")");
            }
        }
        return items;
    }
    std::string Describe(HTREEITEM handle) const {
        char text[64] = "";
        TVITEM item{};
        item.mask = TVIF_TEXT | TVIF_CHILDREN;
        item.hItem = handle;
        item.pszText = text;
        item.cchTextMax = sizeof text;
        host->dialog.Send(ID_PIPES, TVM_GETITEM, 0, reinterpret_cast<LPARAM>(&item));
        return std::string(text) + (item.cChildren != 0 ? "+" : "");
    }
    Texts Sizes() const {
        Texts rows;
        for (LRESULT i = 0; i < host->dialog.Send(ID_SIZES, CB_GETCOUNT); ++i) {
            char text[64] = "";
            host->dialog.Send(ID_SIZES, CB_GETLBTEXT, static_cast<WPARAM>(i),
                              reinterpret_cast<LPARAM>(text));
            rows.emplace_back(text);
        }
        return rows;
    }
    // Material, schedule, roughness, C, diameter, note.
    Texts Shown() const {
        Texts texts;
        for (const int id : {ID_MATERIAL, ID_SCHEDULE, ID_ROUGHNESS, ID_HAZEN_WILLIAMS, ID_DIAMETER,
                             ID_PIPE_NOTE}) {
            texts.push_back(Text(id));
        }
        return texts;
    }
    void Pick(HTREEITEM item) const {
        EXPECT_TRUE(win32::user::PickItem(host->dialog.Item(ID_PIPES), item));
        win32::user::HandleMessages(Dialog());
    }

    TempFolder folder;
    std::unique_ptr<Host> host;
};

TEST_F(PipeDlg, ListsWhatIsUsableInTheUnitSystem) {
    Write("Steel", kSteel);
    Write("Copper", kCopper);
    Write(std::string(31, 'x'), kSteel);
    Write("New", "V|\"1\"|x|10|10\nR|1|1|1\n");
    Write("Empty", "V|\"1\"|x|1|9\nR|1|1|1\n");
    Write("Long", "V|\"1\"|x|1|9\nR|1|1|1\nZ|A|1|1|1|1|1|1\nZ|" + std::string(31, 's') +
                      "|1|1|1|1|1|1\nZ|B|1|1|1|1|1|1\n");
    Init(HF_US);
    EXPECT_THAT(Tree(), ElementsAre("Copper+", "(K)", "Empty+", "Long+", "(A)", "Steel+", "(40)",
                                    "(80)", "(40)"));
    EXPECT_EQ(Next(TVGN_CARET), nullptr);
    Init(HF_METRIC, true, 0.0, 0.0);  // no limits; the roughness of copper is 0 here
    EXPECT_THAT(Tree(),
                ElementsAre("Empty+", "Long+", "(A)", "New+", "Steel+", "(40)", "(80)", "(40)"));
    EXPECT_EQ(host->pipe.InitPipeMaterials(Dialog(), folder.Path("nowhere").c_str()), 1);
    EXPECT_EQ(host->pipe.InitPipeMaterials(Dialog(), std::string(5000, 'd').c_str()), 1);
}

TEST_F(PipeDlg, LeadsFromAClickToADiameter) {
    Write("Steel", kSteel);
    Init();
    const HTREEITEM steel = Next(TVGN_ROOT);
    Pick(steel);
    EXPECT_THAT(Shown(), ElementsAre("Steel", "", "0.0018", "140", "", "Steel - vers 2.1"));
    EXPECT_THAT(Sizes(), IsEmpty());
    EXPECT_FALSE(host->pipe.IsValid());

    Pick(Next(TVGN_CHILD, steel));
    EXPECT_THAT(Sizes(), ElementsAre("0.5", "2"));
    EXPECT_EQ(Text(ID_SCHEDULE), "40");
    EXPECT_TRUE(host->pipe.IsValid());
    EXPECT_TRUE(win32::user::PickRow(host->dialog.Item(ID_SIZES), 1));
    EXPECT_EQ(Text(ID_DIAMETER), "(2.067)");

    host->pipe.SetUnit(HF_METRIC);
    EXPECT_THAT(Sizes(), ElementsAre("15", "50"));
    EXPECT_EQ(host->pipe.GetAbsRoughness(), 0.046);
    host->pipe.DlgCommand(ID_SIZES, CBN_SELCHANGE);  // nothing is selected any more
    EXPECT_EQ(Text(ID_DIAMETER), "(2.067)");
    Pick(steel);
    EXPECT_EQ(Text(ID_DIAMETER), "");
    EXPECT_THAT(Sizes(), IsEmpty());
}

TEST_F(PipeDlg, IsDrivenToASize) {
    Write("Steel", kSteel);
    Init();
    host->pipe.SetPipeMaterialSize("sTEEL", "80", 2.5);
    EXPECT_THAT(Shown(),
                ElementsAre("Steel", "80", "0.0018", "140", "(2.323)", "Steel - vers 2.1"));
    EXPECT_EQ(Text(ID_SIZES), "2.5");
    host->pipe.SetPipeMaterialSize("Steel", "40", 0.0);
    EXPECT_EQ(host->dialog.Send(ID_SIZES, CB_GETCURSEL), -1);
    EXPECT_EQ(Text(ID_DIAMETER), "");
    host->pipe.SetPipeMaterialSize("Steel", "40", 7.0);  // no such row
    EXPECT_EQ(host->dialog.Send(ID_SIZES, CB_GETCURSEL), -1);
    EXPECT_EQ(host->pipe.PipeDia(0.5), 0.622);

    const HTREEITEM before = Next(TVGN_CARET);
    for (const auto& [material, schedule] :
         {std::pair{"Glass", "40"}, std::pair{"Steel", "10"}, std::pair{"Steel", "40 "}}) {
        host->pipe.SetPipeMaterialSize(material, schedule, 2);
        EXPECT_EQ(Text(ID_PIPE_NOTE), "Pipe Table for " + std::string(material) + " is Invalid.");
        EXPECT_EQ(Next(TVGN_CARET), before);
    }

    host->pipe.SetPipeMaterialSize("", "40", 2);
    EXPECT_EQ(Next(TVGN_CARET), nullptr);
    EXPECT_EQ(host->pipe.PipeDia(0.5), 0.622) << "the pipe stays";
}

TEST_F(PipeDlg, SaysWhatIsWrongWithATable) {
    Write("Steel", kSteel);
    Write("Bad", "V|\"1\"|x|1|9\nR|1|1|1\nZ|A|1|1|1|1|1|1\nZ|A|2|2|0|1|1|1\nZ|A|3|3|1|1|1|1\n");
    Init();
    host->pipe.SetPipeMaterialSize("Bad", "A", 0.0);
    EXPECT_EQ(Text(ID_PIPE_NOTE), "Unable to Load Pipe Sizes for Schedule A Pipe.");
    EXPECT_EQ(Text(ID_SCHEDULE), "");
    EXPECT_THAT(Sizes(), ElementsAre("1")) << "those ahead of the fault";

    std::filesystem::remove(folder.Path("Steel.PTBL"));
    host->pipe.SetPipeMaterialSize("Steel", "40", 0.0);
    EXPECT_EQ(Text(ID_PIPE_NOTE), "Pipe Table for Steel is Invalid.");
    EXPECT_FALSE(host->pipe.IsValid());
}

TEST_F(PipeDlg, SpeaksTheChosenLanguage) {
    Write("Steel", kSteel);
    Init();
    Hydrofacts_SetLanguage(1031);
    host->pipe.SetPipeMaterialSize("Steel", "80", 0.0);
    EXPECT_THAT(Sizes(), ElementsAre("2", "2,5"));
    EXPECT_TRUE(win32::user::PickRow(host->dialog.Item(ID_SIZES), 1));
    EXPECT_EQ(Text(ID_DIAMETER), "(2,323)");
    EXPECT_EQ(Text(ID_ROUGHNESS), "0,0018");
}

TEST_F(PipeDlg, WorksWithoutSizes) {
    Write("Steel", kSteel);
    Init(HF_US, false);
    host->pipe.SetPipeMaterialSize("Steel", "80", 2.0);
    EXPECT_THAT(Shown(), ElementsAre("Steel", "80", "0.0018", "140", "", "Steel - vers 2.1"));
    EXPECT_EQ(host->pipe.PipeDia(2.0), 1.939);
}

TEST_F(PipeDlg, IsCopiedWithItsDialog) {
    Write("Steel", kSteel);
    Init();
    host->pipe.SetPipeMaterialSize("Steel", "40", 2.0);
    CPipeTableDlg copy(host->pipe);
    host->pipe.SetPipeMaterialSize("Steel", "80", 2.0);
    EXPECT_EQ(copy.PipeDia(2.0), 2.067);
    copy = host->pipe;
    copy = *&copy;
    host->pipe.ClearPipeList();
    EXPECT_EQ(copy.PipeDia(2.0), 1.939);
    copy.SetUnit(HF_METRIC);
    EXPECT_THAT(Sizes(), ElementsAre("50", "65"));
}

}  // namespace
