#include "win32/DialogBuilder.h"

#include "win32/CodePage.h"

namespace {

// Where the header of an extended template counts the controls, in words.
constexpr std::size_t kControlCount = 8;

constexpr unsigned kPointSize = 8;
constexpr unsigned kWeight = 400;
constexpr unsigned kDefaultCharset = 1;

}  // namespace

namespace win32 {

DialogBuilder::DialogBuilder(std::string_view title, DWORD style, DialogPlace place,
                             DWORD exStyle) {
    Word(1);
    Word(0xFFFF);
    Dword(0);
    Dword(exStyle);
    Dword(style | DS_SETFONT | DS_FIXEDSYS);
    Word(0);
    Place(place);
    Word(0);  // no menu
    Word(0);  // the class of dialogs
    Text(title);
    Word(kPointSize);
    Word(kWeight);
    Word(kDefaultCharset << 8U);
    Text("MS Shell Dlg");
}

DialogBuilder& DialogBuilder::Control(std::string_view className, int id, std::string_view text,
                                      DWORD style, DialogPlace place, DWORD exStyle) {
    ++words_[kControlCount];
    AlignToDword();
    Dword(0);
    Dword(exStyle);
    Dword(style | WS_CHILD);
    Place(place);
    Dword(static_cast<DWORD>(id));
    Text(className);
    Text(text);
    Word(0);  // no creation data
    return *this;
}

DialogBuilder& DialogBuilder::Static(int id, std::string_view text, DialogPlace place,
                                     DWORD style) {
    return Control("Static", id, text, WS_VISIBLE | style, place);
}

DialogBuilder& DialogBuilder::Edit(int id, DialogPlace place, DWORD style) {
    return Control("Edit", id, "", WS_VISIBLE | WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL | style,
                   place);
}

DialogBuilder& DialogBuilder::Button(int id, std::string_view text, DialogPlace place,
                                     DWORD style) {
    return Control("Button", id, text, WS_VISIBLE | WS_TABSTOP | style, place);
}

DialogBuilder& DialogBuilder::DefaultButton(int id, std::string_view text, DialogPlace place) {
    return Button(id, text, place, BS_DEFPUSHBUTTON);
}

DialogBuilder& DialogBuilder::CheckBox(int id, std::string_view text, DialogPlace place) {
    return Button(id, text, place, BS_AUTOCHECKBOX);
}

DialogBuilder& DialogBuilder::RadioButton(int id, std::string_view text, DialogPlace place,
                                          DWORD style) {
    return Control("Button", id, text, WS_VISIBLE | BS_AUTORADIOBUTTON | style, place);
}

DialogBuilder& DialogBuilder::GroupBox(int id, std::string_view text, DialogPlace place) {
    return Control("Button", id, text, WS_VISIBLE | BS_GROUPBOX, place);
}

DialogBuilder& DialogBuilder::ListBox(int id, DialogPlace place, DWORD style) {
    return Control("ListBox", id, "",
                   WS_VISIBLE | WS_TABSTOP | WS_BORDER | WS_VSCROLL | LBS_NOTIFY |
                       LBS_NOINTEGRALHEIGHT | style,
                   place);
}

DialogBuilder& DialogBuilder::ComboBox(int id, DialogPlace place, DWORD style) {
    constexpr DWORD kKinds = CBS_SIMPLE | CBS_DROPDOWN | CBS_DROPDOWNLIST;
    const DWORD kind = (style & kKinds) == 0 ? CBS_DROPDOWNLIST : 0;
    return Control("ComboBox", id, "", WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | kind | style, place);
}

DialogBuilder& DialogBuilder::Tree(int id, DialogPlace place, DWORD style) {
    return Control("SysTreeView32", id, "",
                   WS_VISIBLE | WS_TABSTOP | WS_BORDER | TVS_HASBUTTONS | TVS_HASLINES |
                       TVS_LINESATROOT | TVS_SHOWSELALWAYS | style,
                   place);
}

LPCDLGTEMPLATEA DialogBuilder::Template() const {
    return reinterpret_cast<LPCDLGTEMPLATEA>(words_.data());
}

void DialogBuilder::Dword(DWORD value) {
    constexpr unsigned kBitsOfWord = 16;
    Word(value & 0xFFFFU);
    Word(value >> kBitsOfWord);
}

void DialogBuilder::Place(DialogPlace place) {
    for (const short value : {place.x, place.y, place.width, place.height}) {
        Word(static_cast<WORD>(value));
    }
}

void DialogBuilder::Text(std::string_view text) {
    for (const char c : text) Word(ToUtf16(c));
    Word(0);
}

void DialogBuilder::AlignToDword() {
    if (words_.size() % 2 != 0) Word(0);
}

}  // namespace win32
