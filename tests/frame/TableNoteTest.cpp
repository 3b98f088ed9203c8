#include <gtest/gtest.h>

#include <string>

#include "hydrofacts/frame/TableNote.h"
#include "tests/dialogs/TestDialog.h"
#include "tests/support/TableText.h"
#include "tests/support/TempFolder.h"

namespace {

TEST(TableNote, ShowsTitleAndVersionOfTheFirstTwoLines) {
    constexpr int kNote = 25;
    win32::DialogBuilder form("Note", WS_POPUP, {0, 0, 50, 50});
    form.Static(kNote, "", {0, 0, 50, 12});
    const TestDialog dialog(form);
    const TempFolder folder;
    const std::string longest(97, 't');
    const struct {
        std::string text;
        std::string note;
    } kCases[] = {
        {"S|\"Water\"\nV|\"1.2\"|x|3|5\nD|1\n", "Water - vers 1.2"},
        {"S||Water\nV|1.2\n", "Water - vers 1.2"},
        {"S|\"Water\"\nD|1\nV|\"1.2\"\n", "Water"},
        {"S|\"Water\"\nV|\"1.2\"", "Water"},  // a last line without an end doesn't count
        {"S\nV|\"1.2\"\n", " - vers 1.2"},
        {"s|\"Water\"\nV|\"1.2\"\n", ""},
        {"", ""},
        {"S|" + longest + "more\nV|\"1.2\"\n", longest + "m - vers 1.2"},
    };
    for (const auto& c : kCases) {
        SetDlgItemTextA(dialog.Handle(), kNote, "before");
        const std::string path = folder.Write("Water.FTBL", TableText(c.text));
        ShowTableNote(path.c_str(), dialog.Handle(), kNote);
        EXPECT_EQ(dialog.Text(kNote), c.note) << c.text;
    }
    SetDlgItemTextA(dialog.Handle(), kNote, "before");
    ShowTableNote(folder.Path("None.FTBL").c_str(), dialog.Handle(), kNote);
    EXPECT_EQ(dialog.Text(kNote), "");
}

}  // namespace
