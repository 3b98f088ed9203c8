#include "win32/DialogTemplate.h"

#include <cstring>

#include "win32/CodePage.h"

namespace {

using win32::DialogDescription;
using win32::TemplateItem;

constexpr WORD kOrdinal = 0xFFFF;

/// Takes values one after the other; past the end it gives zeros and notes it.
class Reader {
  public:
    Reader(const void* data, std::size_t size)
        : data_(static_cast<const unsigned char*>(data)), size_(size) {}

    bool Whole() const { return whole_; }

    WORD Word() { return Take<WORD>(); }
    DWORD Dword() { return Take<DWORD>(); }
    LONG Coordinate() { return Take<SHORT>(); }

    RECT Place() {
        const LONG x = Coordinate();
        const LONG y = Coordinate();
        const LONG width = Coordinate();
        const LONG height = Coordinate();
        return {x, y, x + width, y + height};
    }

    std::string Text() { return TextFrom(Word()); }

    /// A text, or the number of one of the classes that have numbers.
    std::string ClassName() {
        constexpr WORD kFirst = 0x80;
        static constexpr const char* kNumbered[] = {"Button",  "Edit",      "Static",
                                                    "ListBox", "ScrollBar", "ComboBox"};
        const WORD first = Word();
        if (first != kOrdinal) return TextFrom(first);
        const unsigned index = Word() - kFirst;
        return index < std::size(kNumbered) ? kNumbered[index] : "";
    }

    /// A text; a number in its place (an icon, a menu) is passed over.
    std::string TextOrNumber() {
        const WORD first = Word();
        if (first != kOrdinal) return TextFrom(first);
        Word();
        return {};
    }

    void AlignToDword() { at_ = (at_ + 3) & ~std::size_t{3}; }
    void Skip(std::size_t bytes) { at_ += bytes; }

  private:
    template <typename T>
    T Take() {
        T value{};
        whole_ = whole_ && at_ <= size_ && size_ - at_ >= sizeof value;
        if (whole_) std::memcpy(&value, data_ + at_, sizeof value);
        at_ += sizeof value;
        return value;
    }

    std::string TextFrom(WORD unit) {
        std::string text;
        for (; unit != 0 && whole_; unit = Word()) {
            text += win32::FromUtf16(static_cast<char16_t>(unit));
        }
        return text;
    }

    const unsigned char* data_;
    std::size_t size_;
    std::size_t at_ = 0;
    bool whole_ = true;
};

TemplateItem ReadControl(Reader& reader) {
    TemplateItem item;
    reader.AlignToDword();
    reader.Dword();  // help id
    item.exStyle = reader.Dword();
    item.style = reader.Dword();
    item.place = reader.Place();
    item.id = static_cast<std::int32_t>(reader.Dword());
    item.className = reader.ClassName();
    item.text = reader.TextOrNumber();
    reader.Skip(reader.Word());
    return item;
}

void SkipFont(Reader& reader) {
    reader.Word();  // points
    reader.Word();  // weight
    reader.Word();  // italic, character set
    reader.Text();
}

}  // namespace

namespace win32 {

std::optional<DialogDescription> ReadTemplate(const void* data, std::size_t size) {
    Reader reader(data, size);
    if (data == nullptr || reader.Word() != 1 || reader.Word() != kOrdinal) return std::nullopt;
    DialogDescription description;
    TemplateItem& dialog = description.dialog;
    reader.Dword();  // help id
    dialog.exStyle = reader.Dword();
    dialog.style = reader.Dword();
    const unsigned count = reader.Word();
    dialog.place = reader.Place();
    reader.TextOrNumber();  // menu
    dialog.className = reader.ClassName();
    dialog.text = reader.Text();
    if ((dialog.style & DS_SETFONT) != 0) SkipFont(reader);
    for (unsigned i = 0; i < count && reader.Whole(); ++i) {
        description.controls.push_back(ReadControl(reader));
    }
    if (!reader.Whole()) return std::nullopt;
    return description;
}

}  // namespace win32
