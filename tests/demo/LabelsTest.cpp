// What stands on the controls, in every language: nothing is cut off, and no two controls of a page
// share a mnemonic.

#include <gtest/gtest.h>

#include <cctype>
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "demo/MainDialog.h"
#include "win32/User.h"

#ifndef _WIN32
#include <QApplication>
#include <QFontMetrics>

#include "win32/qt/QtView.h"
#endif

namespace demo {
namespace {

constexpr const char* kPageTexts[] = {"Fluid", "Conditions", "Temperature", "Pipe", "Valve"};

#ifdef _WIN32
// Texts are measured with the font of the dialog.
class Screen {
  public:
    static int WidthOf(HWND control, const std::string& text) {
        const HDC dc = GetDC(control);
        const auto font = reinterpret_cast<HGDIOBJ>(SendMessageA(control, WM_GETFONT, 0, 0));
        const HGDIOBJ former = SelectObject(dc, font);
        SIZE size{};
        GetTextExtentPoint32A(dc, text.data(), static_cast<int>(text.size()), &size);
        SelectObject(dc, former);
        ReleaseDC(control, dc);
        return static_cast<int>(size.cx);
    }
};
#else
class Screen {
  public:
    static int WidthOf(HWND, const std::string& text) {
        return QFontMetrics(QApplication::font())
            .horizontalAdvance(QString::fromLatin1(text.c_str()));
    }

  private:
    int argc_ = 1;
    char name_[5] = "demo";
    char* argv_[2] = {name_, nullptr};
    bool offscreen_ = qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application_{argc_, argv_};
    win32::qt::QtView view_;
};
#endif

std::string ClassOf(HWND window) {
    char name[32] = "";
    GetClassNameA(window, name, sizeof name);
    return name;
}

LONG_PTR StyleOf(HWND window) { return GetWindowLongPtrA(window, GWL_STYLE); }

bool IsKind(HWND control, DWORD mask, DWORD kind) {
    return (static_cast<DWORD>(StyleOf(control)) & mask) == kind;
}

bool IsButton(HWND control) { return ClassOf(control) == "Button"; }

// Of those that say what a label says, not what was chosen.
std::vector<HWND> LabelsOf(HWND dialog) {
    std::vector<HWND> labels;
    for (HWND control = GetWindow(dialog, GW_CHILD); control != nullptr;
         control = GetWindow(control, GW_HWNDNEXT)) {
        const bool label = ClassOf(control) == "Static" &&
                           (StyleOf(control) & static_cast<LONG_PTR>(SS_NOPREFIX)) == 0 &&
                           !IsKind(control, SS_TYPEMASK, SS_OWNERDRAW);
        const bool seen = (StyleOf(control) & static_cast<LONG_PTR>(WS_VISIBLE)) != 0;
        if (seen && (label || IsButton(control))) labels.push_back(control);
    }
    return labels;
}

class LabelsTest : public ::testing::TestWithParam<int> {
  protected:
    LabelsTest() {
        char tables[260] = "";
        GetDirectory(DIR_TABLES, tables, sizeof tables);
        Site site;
        site.tables = tables;
        dialog_ = std::make_unique<MainDialog>(site);
        EXPECT_TRUE(dialog_->Create());
        win32::user::PickRow(GetDlgItem(dialog_->Handle(), kLanguage), GetParam());
    }
    ~LabelsTest() override {
        Hydrofacts_SetLanguage(LanguageId(0));
        DestroyWindow(dialog_->Handle());
    }

    HWND Page(std::size_t page) const { return dialog_->At(static_cast<int>(page)).Handle(); }

    Screen screen_;
    std::unique_ptr<MainDialog> dialog_;
};

// What a button needs around its text, in mean widths of a letter.
int RoomAround(HWND control) {
    RECT unit{0, 0, 4, 8};
    MapDialogRect(GetParent(control), &unit);
    const auto letter = static_cast<int>(unit.right);
    if (!IsButton(control)) return 0;
    if (IsKind(control, BS_TYPEMASK, BS_AUTORADIOBUTTON)) return 3 * letter;
    return 2 * letter;
}

TEST_P(LabelsTest, AreNotCutOff) {
    std::vector<HWND> dialogs{dialog_->Handle()};
    for (std::size_t page = 0; page < std::size(kPageTexts); ++page) dialogs.push_back(Page(page));
    for (const HWND dialog : dialogs) {
        for (const HWND label : LabelsOf(dialog)) {
            std::string text = TextOf(label);
            std::erase(text, '&');
            const int room = static_cast<int>(SizeOf(label).cx) - RoomAround(label);
            EXPECT_LE(Screen::WidthOf(label, text), room)
                << text << " (" << GetDlgCtrlID(label) << ")";
        }
    }
}

TEST_P(LabelsTest, HaveMnemonicsOfTheirOwn) {
    const auto collect = [](HWND dialog, std::map<char, std::string>& taken) {
        for (const HWND label : LabelsOf(dialog)) {
            const std::string text = TextOf(label);
            const std::size_t at = text.find('&');
            if (at == std::string::npos || at + 1 == text.size()) continue;
            const auto key =
                static_cast<char>(std::tolower(static_cast<unsigned char>(text[at + 1])));
            const auto [other, fresh] = taken.try_emplace(key, text);
            EXPECT_TRUE(fresh) << text << " and " << other->second;
        }
    };
    for (std::size_t page = 0; page < std::size(kPageTexts); ++page) {
        SCOPED_TRACE(kPageTexts[page]);
        std::map<char, std::string> taken;
        collect(dialog_->Handle(), taken);
        collect(Page(page), taken);
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, LabelsTest, ::testing::Range(0, kLanguages));

}  // namespace
}  // namespace demo
